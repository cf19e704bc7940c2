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

    void TablasYClaves_data() {
        QTest::addColumn<QString>("fichero");
        QTest::addColumn<QString>("clave");
        QTest::addColumn<int>("tablas");
        const auto Fila = [](const std::string& f, const char* clave, int tablas) {
            QTest::addRow("%s", f.c_str() + f.rfind('/') + 1)
                << QString::fromStdString(f) << QString::fromLatin1(clave) << tablas;
        };
        Fila(ejemplo + "BD_PradalC.mdb", "q7r2mz", 43);
        Fila(ejemplo + "BD_PradalP.mdb", "q7r2mz", 43);
        Fila(ejemplo + "Toros.mdb", "q7r2mz", 5);
        Fila(datos + "paquetes/VETERINARIO.mdb", "q7r2mz", 43);
        Fila(datos + "minima.mdb", "q7r2mz", 43);
        Fila(datos + "otra-clave.mdb", "otra12", 43);
        Fila(datos + "sin-T_Partos.mdb", "q7r2mz", 42);
        Fila(datos + "columnas-cambiadas.mdb", "q7r2mz", 44);
    }
    void TablasYClaves() {
        QFETCH(QString, fichero);
        QFETCH(QString, clave);
        QFETCH(int, tablas);
        const BaseAccess base = BaseAccess::Abrir(fichero.toStdString());
        QCOMPARE(base.VersionJet(), 4);
        QCOMPARE(base.Clave(), clave.toStdString());
        QCOMPARE(int(base.Tablas().size()), tablas);
        for (const Tabla& tabla : base.Tablas())
            QCOMPARE(base.Recorrer(tabla, [](std::span<const Celda>) {}), tabla.filasDeclaradas);
    }
};

PRUEBA(PruebaMuestras)
#include "PruebaMuestras.moc"
