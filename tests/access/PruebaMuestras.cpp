#include "Ayudas.h"
#include "prueba.h"

using namespace pastorix::access;
using namespace pastorix::access::ayudas;

namespace {
const std::string datos = PASTORIX_DATOS "/", ejemplo = PASTORIX_EJEMPLO "/";
}

// The sample databases, against a second opinion and against what is known of their rows.
class PruebaMuestras : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ComoExport_data() {
        QTest::addColumn<QString>("fichero");
        for (const std::string& f :
             {ejemplo + "BD_PradalC.mdb", ejemplo + "BD_PradalP.mdb", ejemplo + "Toros.mdb",
              datos + "paquetes/VETERINARIO.mdb", datos + "minima.mdb", datos + "otra-clave.mdb",
              datos + "sin-T_Partos.mdb", datos + "columnas-cambiadas.mdb"})
            QTest::addRow("%s", f.c_str() + f.rfind('/') + 1) << QString::fromStdString(f);
    }
    void ComoExport() {
        QFETCH(QString, fichero);
        if (!HayExport())
            QSKIP("mdb-export is not installed");
        const std::string diferencia = CompararConExport(fichero.toStdString());
        QVERIFY2(diferencia.empty(), diferencia.c_str());
    }

    void TablasYFilas_data() {
        QTest::addColumn<QString>("fichero");
        QTest::addColumn<QString>("clave");
        QTest::addColumn<int>("tablas");
        QTest::addColumn<QList<int>>(
            "filas"); // Historial, T_Vacas, T_Cubriciones, T_Partos, T_Sementales; -1 no such table
        const auto Fila = [](const std::string& f, const char* clave, int tablas, const QList<int>& filas) {
            QTest::addRow("%s", f.c_str() + f.rfind('/') + 1)
                << QString::fromStdString(f) << QString::fromLatin1(clave) << tablas << filas;
        };
        Fila(ejemplo + "BD_PradalC.mdb", "q7r2mz", 43, {14, 753, 2833, 2380, 89});
        Fila(ejemplo + "BD_PradalP.mdb", "q7r2mz", 43, {3, 249, 891, 747, 56});
        Fila(ejemplo + "Toros.mdb", "q7r2mz", 5, {-1, -1, -1, -1, 36});
        Fila(datos + "paquetes/VETERINARIO.mdb", "q7r2mz", 43, {3, 65, 173, 144, 19});
        Fila(datos + "minima.mdb", "q7r2mz", 43, {3, 14, 25, 21, 15});
        Fila(datos + "otra-clave.mdb", "otra12", 43, {3, 14, 25, 21, 15});
        Fila(datos + "sin-T_Partos.mdb", "q7r2mz", 42, {3, 14, 25, -1, 15});
        Fila(datos + "columnas-cambiadas.mdb", "q7r2mz", 44, {3, 14, 25, 21, 15});
    }
    void TablasYFilas() {
        QFETCH(QString, fichero);
        QFETCH(QString, clave);
        QFETCH(int, tablas);
        QFETCH(QList<int>, filas);
        const BaseAccess base = BaseAccess::Abrir(fichero.toStdString());
        QCOMPARE(base.VersionJet(), 4);
        QCOMPARE(base.Clave(), clave.toStdString());
        QCOMPARE(int(base.Tablas().size()), tablas);
        const QStringList nombres{"Historial", "T_Vacas", "T_Cubriciones", "T_Partos", "T_Sementales"};
        QList<int> leidas(nombres.size(), -1);
        for (const Tabla& tabla : base.Tablas()) {
            const std::uint64_t cuantas = base.Recorrer(tabla, [](std::span<const Celda>) {});
            QCOMPARE(cuantas, tabla.filasDeclaradas);
            const qsizetype i = nombres.indexOf(QString::fromStdString(tabla.nombre));
            if (i >= 0)
                leidas[i] = int(cuantas);
        }
        QCOMPARE(leidas, filas);
    }

    void Columnas() {
        const BaseAccess base = BaseAccess::Abrir(datos + "columnas-cambiadas.mdb");
        const Tabla& tabla = TablaDe(base, "Mis pesadas");
        QStringList columnas;
        for (const Columna& c : tabla.columnas)
            columnas << QStringLiteral("%1:%2").arg(QString::fromStdString(c.nombre)).arg(int(c.tipo));
        QCOMPARE(columnas, QStringList({"Kg/día:7", "Fecha pesada:8", "Nº:4", "Observación:12"}));
        QCOMPARE(Filas(base, "Mis pesadas").size(), std::size_t(7));
        const BaseAccess minima = BaseAccess::Abrir(datos + "minima.mdb");
        const Columna& login = TablaDe(minima, "T_Veterinarios").columnas[1];
        QCOMPARE(int(login.tipo), int(Tipo::Texto));
        QVERIFY2(login.longitud > 0 && login.longitud <= 255, "characters, not bytes");
    }

    // Odd values that the main sample is known to hold: table, key column, key, column, value.
    void ValoresRaros_data() {
        QTest::addColumn<QString>("tabla");
        QTest::addColumn<QString>("vaca");
        QTest::addColumn<QString>("columna");
        QTest::addColumn<QString>("valor");
        const auto Fila = [](const char* tabla, const char* vaca, const char* columna, const char* valor) {
            QTest::addRow("%s %s", vaca, columna) << QString::fromUtf8(tabla) << QString::fromUtf8(vaca)
                                                  << QString::fromUtf8(columna) << QString::fromUtf8(valor);
        };
        Fila("T_Vacas", "8500114", "FechaNac", "1899-12-30 00:00:00");
        Fila("T_Vacas", "1200042", "FechaNac", "2205-03-01 00:00:00");
        Fila("T_Vacas", "5700025", "Calificacion", "1e-07");
        Fila("T_Vacas", "4230040", "RegSaneam", "");
        Fila("T_Vacas", "8500099", "NombreC", "@");
        Fila("T_Vacas", "8500069", "Crotal", " ");
        Fila("T_Partos", "5700030", "DifParto", "facil");
        Fila("T_Partos", "1204009", "Semental", "Toro d'L'Otero \"viejo\"");
    }
    void ValoresRaros() {
        QFETCH(QString, tabla);
        QFETCH(QString, vaca);
        QFETCH(QString, columna);
        QFETCH(QString, valor);
        const BaseAccess base = BaseAccess::Abrir(ejemplo + "BD_PradalC.mdb");
        const Tabla& t = TablaDe(base, tabla.toStdString());
        const auto Sitio = [&t](const std::string& nombre) {
            const auto c = std::find_if(t.columnas.begin(), t.columnas.end(),
                                        [&](const Columna& col) { return col.nombre == nombre; });
            return std::size_t(c - t.columnas.begin());
        };
        const std::size_t clave = Sitio("Id_Vaca"), sitio = Sitio(columna.toStdString());
        QVERIFY(clave < t.columnas.size() && sitio < t.columnas.size());
        QStringList valores;
        for (const auto& fila : Filas(base, t.nombre))
            if (fila[clave] == vaca.toStdString())
                valores << QString::fromStdString(fila[sitio]);
        QVERIFY2(valores.contains(valor), qPrintable(valores.join(u'|')));
    }

    // Long memos and characters beyond Latin-1, whole: counted over the main sample.
    void TextosLargos() {
        const BaseAccess base = BaseAccess::Abrir(ejemplo + "BD_PradalC.mdb");
        std::size_t masLargo = 0, conEuro = 0, malos = 0;
        base.Recorrer(TablaDe(base, "T_Vacas"), [&](std::span<const Celda> fila) {
            for (const Celda& celda : fila) {
                if (const auto* s = std::get_if<std::string>(&celda)) {
                    const QString texto = QString::fromUtf8(s->data(), qsizetype(s->size()));
                    masLargo = std::max(masLargo, std::size_t(texto.size()));
                    conEuro += texto.contains(u'€') ? 1 : 0;
                    malos +=
                        texto.contains(QChar::ReplacementCharacter) || texto.contains(QChar::Null) ? 1 : 0;
                }
            }
        });
        QVERIFY2(masLargo > 10000 && masLargo <= 12100, qPrintable(QString::number(masLargo)));
        QVERIFY(conEuro > 0);
        QCOMPARE(malos, std::size_t(0));
    }
};

PRUEBA(PruebaMuestras)
#include "PruebaMuestras.moc"
