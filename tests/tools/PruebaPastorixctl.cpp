#include "prueba.h"

#include "store/Esquema.h"
#include "store/Recordset.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

using namespace pastorix;

// The companion command line as scripts use it: exit status, what it leaves, what it says on which stream.
class PruebaPastorixctl : public QObject {
    Q_OBJECT

    struct Salida {
        int estado = -1;
        QByteArray texto;
        QByteArray errores;
    };

    static Salida Correr(const QStringList& argumentos, const QByteArray& entrada = {}) {
        QProcess p;
        p.start(QStringLiteral(PASTORIXCTL), argumentos);
        p.write(entrada);
        p.closeWriteChannel();
        if (!p.waitForFinished(120000))
            return {};
        return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -2, p.readAllStandardOutput(),
                p.readAllStandardError()};
    }
    static QString S(const char* t) { return QString::fromUtf8(t); }

    QTemporaryDir m_carpeta;
    QString En(const char* n) const { return m_carpeta.filePath(S(n)); }

private Q_SLOTS:
    void Uso() {
        QCOMPARE(Correr({}).estado, 2);
        QCOMPARE(Correr({S("nada")}).estado, 2);
        QCOMPARE(Correr({S("--help")}).estado, 0);
        for (const char* orden : {"crear", "clave-central", "ejemplo", "convertir", "verificar", "informe"}) {
            QVERIFY(Correr({S(orden), S("--help")}).texto.contains(orden));
            QCOMPARE(Correr({S(orden)}).estado, 2);
        }
        QCOMPARE(
            Correr({S("informe"), S("IndTecnicos"), S("--carpeta"), En("x"), S("--base"), S("otra")}).estado,
            2);
        QCOMPARE(
            Correr({S("informe"), S("Nada"), S("--carpeta"), En("x"), S("--base"), S("personal")}).estado, 2);
    }

    void CaminoEntero() {
        const auto carpeta = En("ejemplo");
        QCOMPARE(Correr({S("ejemplo"), carpeta}).estado, 0);
        QCOMPARE(Correr({S("ejemplo"), carpeta}).estado, 1); // not over one that is there
        const QStringList informe{S("informe"), S("IndTecnicos"), S("--carpeta"), carpeta,
                                  S("--base"),  S("principal"),   S("--año"),     S("2025"),
                                  S("--hoy"),   S("2026-11-22")};
        const auto con = [&](const QStringList& mas) { return Correr(informe + mas); };
        const auto r = con({S("--ganadero"), S("310"), S("--pdf"), En("i.pdf"), S("--xlsx"), En("i.xlsx"),
                            S("--csv"), En("csv")});
        QVERIFY2(r.estado == 0, r.errores);
        QFile pdf(En("i.pdf"));
        QVERIFY(pdf.open(QIODevice::ReadOnly));
        QVERIFY(pdf.read(5) == "%PDF-");
        QVERIFY(QFile::exists(En("i.xlsx")));
        QCOMPARE(QDir(En("csv")).entryList(QDir::Files).size(), 9);
        QVERIFY(!QFile::exists(carpeta + S("/BD_PradalC.mdb"))); // moved on the first run
        QCOMPARE(QDir(carpeta + S("/BackUp")).entryList({S("*_Access_*.mdb")}).size(), 1);
        const auto base = carpeta + S("/Base de Datos/BD_PradalC.mdb");
        QCOMPARE(Correr({S("verificar"), base}).estado, 0);

        // figures of this farm and year, checked by hand against the rows
        Conexion c;
        c.AbrirFichero(base.toStdString(), kClave);
        const auto valor = [&](const char* sql) { return ValorDeCampo(c, sql); };
        QCOMPARE(valor("SELECT C2 FROM X_Temp"), std::string("Covadonga Rodríguez Núñez - Prado Viejo"));
        QCOMPARE(valor("SELECT NCC FROM X_Temp1"), std::string("7"));
        QCOMPARE(valor("SELECT N1 FROM X_Temp1 WHERE T1 = 'Vacas de 2 a 6 partos'"), std::string("25"));
        QCOMPARE(valor("SELECT N1 FROM X_Temp2 WHERE Mes = 'Mar'"), std::string("8"));
        QCOMPARE(valor("SELECT NacidosIns FROM X_Tmp4"), std::string("43"));
        QCOMPARE(valor("SELECT N1 FROM X_Tmp6 WHERE Texto = 'Todas'"), std::string("410"));
        QCOMPARE(valor("SELECT N FROM X_Tmp8 WHERE Texto = 'Pérdida Total'"), std::string("9,7  Terneros"));
        // the older column has become the new one, with its values
        QVERIFY(c.Esquema().Buscar("T_Cubriciones")->Buscar("Desconocida") < 0);
        QVERIFY(
            !valor("SELECT Count(DemoraServIPR) AS N FROM T_Cubriciones WHERE DemoraServIPR = 1").empty());
        c.Cerrar();

        // boxes of the form go to stderr
        QCOMPARE(con({S("--ganadero"), S("85")}).estado, 1); // has left
        auto corto = informe;
        corto[7] = S("25");
        const auto caja = Correr(corto + QStringList{S("--ganadero"), S("310")});
        QCOMPARE(caja.estado, 1);
        QVERIFY2(caja.errores.contains("Indique el Año de Referencia"), caja.errores);
        QCOMPARE(con({S("--ganadero"), S("310"), S("--pdf"), En("no/hay/carpeta/i.pdf")}).estado, 1);
    }

    void CrearYClave() {
        const auto carpeta = En("nueva");
        QCOMPARE(Correr({S("crear"), carpeta}).estado, 0);
        QCOMPARE(Correr({S("crear"), carpeta}).estado, 1);
        const auto base = carpeta + S("/BD_PradalP.mdb");
        QCOMPARE(
            Correr({S("verificar"), base, carpeta + S("/BD_PradalC.mdb"), carpeta + S("/Toros.mdb")}).estado,
            0);
        QCOMPARE(Correr({S("clave-central"), base, S("CENTRAL")}, "sin apóstrofo\n").estado, 0);
        QCOMPARE(Correr({S("clave-central"), base, S("CENTRAL")}, "l'otra\n").estado, 1);
        QCOMPARE(Correr({S("clave-central"), base, S("CENTRAL")}, "otra\n").estado, 0);
        Conexion c;
        c.AbrirFichero(base.toStdString(), kClave);
        QCOMPARE(ValorDeCampo(c, "SELECT Clave FROM Claves WHERE Usuario = 'CENTRAL'"), std::string("otra"));
        QCOMPARE(ValorDeCampo(c, "SELECT Apodo FROM T_Ganaderos WHERE TorosComun = 'Sí'"),
                 std::string("Toros IA"));
    }

    void ConvertirYVerificar() {
        const auto datos = [](const char* n) { return S(PASTORIX_DATOS "/") + S(n); };
        const auto destino = En("convertida.mdb");
        const auto bien = Correr({S("convertir"), datos("columnas-cambiadas.mdb"), destino});
        QCOMPARE(bien.estado, 0);
        QVERIFY(bien.texto.contains("Mis pesadas") && bien.texto.contains("NotaLibre"));
        QCOMPARE(Correr({S("verificar"), destino}).estado, 0);
        QCOMPARE(Correr({S("convertir"), datos("minima.mdb"), destino}).estado, 1);
        for (const char* malo : {"recortada.mdb", "otra-clave.mdb", "sin-T_Partos.mdb"}) {
            const auto r = Correr({S("convertir"), datos(malo), En("mala.mdb")});
            QCOMPARE(r.estado, 1);
            QVERIFY(!r.errores.isEmpty());
            QVERIFY(!QFile::exists(En("mala.mdb")));
            QCOMPARE(Correr({S("verificar"), datos(malo)}).estado, 1);
        }
    }
};

PRUEBA(PruebaPastorixctl)
#include "PruebaPastorixctl.moc"
