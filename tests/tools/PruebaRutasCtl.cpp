#include "prueba.h"

#include "store/Conexion.h"
#include "store/Diferencias.h"
#include "store/Esquema.h"
#include "store/Recordset.h"
#include "store/Verificacion.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <random>

using namespace pastorix;

// The exchange from the command line: exit status, streams; and what is there after a route was killed.
class PruebaRutasCtl : public QObject {
    Q_OBJECT

    static QString S(const char* t) { return QString::fromUtf8(t); }
    QTemporaryDir m_carpeta;
    QString En(const char* n) const { return m_carpeta.filePath(S(n)); }

    struct Salida {
        int estado = -1;
        QString texto, errores;
    };
    static Salida Correr(const QStringList& argumentos, int matarTras = -1) {
        QProcess p;
        p.start(QStringLiteral(PASTORIXCTL), argumentos);
        if (matarTras >= 0 && !p.waitForFinished(std::max(1, matarTras)))
            p.kill();
        if (!p.waitForFinished(120000))
            return {};
        return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -2,
                QString::fromUtf8(p.readAllStandardOutput()), QString::fromUtf8(p.readAllStandardError())};
    }
    static QStringList Palabras(const QString& linea) { return linea.split(QLatin1Char(' ')); }
    Salida Ruta(const char* linea, const QString& carpeta, int matarTras = -1) const {
        return Correr(Palabras(S(linea)) << S("--carpeta") << carpeta << S("--hoy") << S("2026-11-22"),
                      matarTras);
    }
    static void Copiar(const QString& de, const QString& a) {
        QVERIFY(QDir().mkpath(a));
        for (const auto& f : QDir(de).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden)) {
            const auto destino = a + QLatin1Char('/') + f.fileName();
            if (f.isDir())
                Copiar(f.filePath(), destino);
            else
                QVERIFY(QFile::copy(f.filePath(), destino));
        }
    }
    // All rows of the tables that hold records, the log left out.
    static bool Iguales(const QString& a, const QString& b) {
        Conexion x;
        Conexion y;
        OpcionesApertura mirar;
        mirar.soloLectura = true;
        x.AbrirFichero(a.toStdString(), kClave, mirar);
        y.AbrirFichero(b.toStdString(), kClave, mirar);
        for (const auto& t : x.Esquema().Tablas())
            if (t.nombre.starts_with("T_") &&
                !CompararTabla(x, y, t.nombre, {t.columnas[0].nombre}).filas.empty())
                return false;
        return true;
    }

private Q_SLOTS:
    void initTestCase() {
        QCOMPARE(Correr({S("ejemplo"), En("oficina")}).estado, 0);
        for (const char* base : {"principal", "personal"}) // converts them
            QCOMPARE(Correr({S("historial"), S("--carpeta"), En("oficina"), S("--base"), S(base)}).estado, 0);
        QVERIFY(QDir().mkpath(En("lapiz")));
        QCOMPARE(
            Ruta(qPrintable(S("exportar --usuario elopez --destino ") + En("lapiz")), En("oficina")).estado,
            0);
    }

    void UsosYEstados_data() {
        QTest::addColumn<QString>("linea"); // %1 folder of the packages
        QTest::addColumn<int>("estado");
        QTest::addColumn<QString>("dicho"); // on either stream
        const auto fila = [](const char* linea, int estado, const char* dicho) {
            QTest::newRow(linea) << S(linea) << estado << S(dicho);
        };
        fila("exportar --usuario elopez", 2, "Falta --destino");
        fila("exportar --usuario elopez --destino %1 --nada", 2, "Opción desconocida");
        fila("exportar --usuario nadie --destino %1", 1, "nadie");
        fila("exportar --usuario elopez --destino %1/no", 1, "No existe la carpeta");
        fila("importar --usuario svaldes --origen %1", 1, "no encontrada");
        fila("importar --usuario elopez --origen %1 --ganaderos 1:x", 2, "VIEJO:NUEVO");
        fila("importar --usuario elopez --origen %1 --simular", 0,
             "Registros que vienen: 0; que se van: 0; que cambian: 0");
        fila("recibir --usuario elopez --origen %1 --simular", 0,
             "ATENCIÓN: Lo anotado aquí que no está en el fichero se pierde");
        fila("recibir --usuario nadie --origen %1", 1, "Usuario No Autorizado");
        fila("pasar --base principal --ganadero 12 --si", 1, "no está de baja");
        fila("pasar --base principal --ganadero 85", 1, "(No; con --si");
        fila("pasar --base otra --ganadero 85", 2, "--base");
        fila("restaurar --base principal --copia /no/hay", 1, "No existe el fichero");
        fila("historial --base principal --vaciar", 1, "Confirmar Eliminar");
        fila("historial --base principal", 0, "CENTRAL");
    }
    void UsosYEstados() {
        QFETCH(QString, linea);
        QFETCH(int, estado);
        QFETCH(QString, dicho);
        const auto base = En("oficina/Base de Datos/BD_PradalC.mdb");
        const auto antes = En("antes.mdb");
        QFile::remove(antes);
        QVERIFY(QFile::copy(base, antes));
        const auto r =
            Ruta(qPrintable(linea.contains(S("%1")) ? linea.arg(En("lapiz")) : linea), En("oficina"));
        QVERIFY2(r.estado == estado, qPrintable(r.errores));
        QVERIFY2((r.texto + r.errores).contains(dicho), qPrintable(r.texto + r.errores));
        QVERIFY(Iguales(antes, base));
    }

    // Killed at seeded moments: the next start finds a whole database, as before or as after, and cleans up.
    void MuertasAMitad_data() {
        prueba::ColumnasDeTexto({"linea", "base"});
        const auto C = S("Base de Datos/BD_PradalC.mdb");
        prueba::FilaDeTextos("merge", {S("importar --usuario elopez --origen ") + En("lapiz"), C});
        prueba::FilaDeTextos("replace", {S("recibir --usuario elopez --origen ") + En("lapiz"), C});
        prueba::FilaDeTextos(
            "transfer", {S("pasar --base principal --ganadero 85 --si"), S("Base de Datos/BD_PradalP.mdb")});
        prueba::FilaDeTextos("compact", {S("compactar --base principal"), C});
    }
    void MuertasAMitad() {
        QFETCH(QString, linea);
        QFETCH(QString, base);
        const auto hecha = En("hecha");
        const auto muerta = En("muerta");
        QDir(hecha).removeRecursively();
        Copiar(En("oficina"), hecha);
        if (linea.startsWith(S("importar"))) { // something to do
            Conexion c;
            c.AbrirFichero((En("lapiz") + S("/elopez.mdb")).toStdString(), kClave);
            c.Execute("UPDATE T_Vacas SET Nombre = 'cambiada'");
        }
        QElapsedTimer reloj;
        reloj.start();
        QCOMPARE(Ruta(qPrintable(linea), hecha).estado, 0);
        const auto dura = static_cast<int>(reloj.elapsed());
        std::mt19937 azar(20261122);
        for (int i = 0; i < 4; ++i) {
            QDir(muerta).removeRecursively();
            Copiar(En("oficina"), muerta);
            Ruta(qPrintable(linea), muerta, static_cast<int>(azar() % static_cast<unsigned>(dura)));
            QCOMPARE(Ruta("historial --base principal --si", muerta).estado,
                     0); // the next start, a half written lock put aside
            const auto ahora = muerta + QLatin1Char('/') + base;
            QVERIFY(VerificarBase(ahora.toStdString(), kClave).empty());
            const bool comoAntes = Iguales(ahora, En("oficina/") + base);
            if (!linea.startsWith(S("pasar"))) // each transfer draws a code of its own
                QVERIFY(comoAntes || Iguales(ahora, hecha + QLatin1Char('/') + base));
            QVERIFY(QDir(muerta + S("/Temp"))
                        .entryList({S("*.tmp*"), S("Imp_Cli*"), S("xPradalC*"), S("xImportar*")}, QDir::Files)
                        .isEmpty());
            QVERIFY(QDir(muerta + S("/Base de Datos")).entryList({S("*.tmp*")}, QDir::Files).isEmpty());
        }
    }
};

PRUEBA(PruebaRutasCtl)
#include "PruebaRutasCtl.moc"
