#include "prueba.h"

#include "reports/motor/Zip.h"
#include "store/Esquema.h"
#include "store/Recordset.h"

#include <sqlite3.h>

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

    static Salida Correr(const QStringList& argumentos, const QByteArray& entrada = {},
                         const QString& carpeta = {}) {
        QProcess p;
        p.setWorkingDirectory(carpeta);
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
        QCOMPARE(Correr({S("help"), S("convertir")}).texto, Correr({S("convertir"), S("--help")}).texto);
        QVERIFY(Correr({S("--version")}).texto.startsWith("pastorixctl 3.09"));
        for (const char* orden : {"crear", "clave-central", "ejemplo", "diseños", "convertir", "verificar",
                                  "informe", "exportar", "importar", "enviar", "recibir", "exportar-toros",
                                  "importar-toros", "pasar", "historial", "compactar", "restaurar"}) {
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
        QVERIFY(QDir(carpeta).entryList({S("*.rpt")}).isEmpty());
        QVERIFY(QFile::copy(carpeta + S("/Toros.mdb"),
                            carpeta + S("/IndTecnicos.rpt"))); // an old installation's is binary
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
        QFile libro(En("i.xlsx"));
        QVERIFY(libro.open(QIODevice::ReadOnly));
        const auto partes = PartesDelZip(libro.readAll()).value();
        for (const auto& [parte, bytes] : partes) // widths and figures, whatever the locale of the process
            QVERIFY2(!parte.startsWith("xl/worksheets/") ||
                         !QString::fromUtf8(bytes).contains(QRegularExpression(S("[0-9],[0-9]"))),
                     parte);
        QCOMPARE(QDir(En("csv")).entryList(QDir::Files).size(), 12);
        QVERIFY(!QFile::exists(carpeta + S("/BD_PradalC.mdb"))); // moved on the first run
        QVERIFY(QFile::exists(carpeta + S("/Informes/IndTecnicos.rpt")));
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
        QCOMPARE(con({S("--ganadero"), S("85"), S("--pdf"), En("x.pdf")}).estado, 1); // has left
        QCOMPARE(con({S("--ganadero"), S("310")}).estado, 2);                         // where to?
        auto corto = informe;
        corto[7] = S("25");
        const auto caja = Correr(corto + QStringList{S("--ganadero"), S("310"), S("--pdf"), En("x.pdf")});
        QCOMPARE(caja.estado, 1);
        QVERIFY2(caja.errores.contains("Indique el Año de Referencia"), caja.errores);
        QCOMPARE(con({S("--ganadero"), S("310"), S("--pdf"), En("no/hay/carpeta/i.pdf")}).estado, 1);
    }

    // All reports by one command, whatever the letter case of their names; what a call lacks is told before anything is touched.
    void TodosLosInformes() {
        const auto carpeta = En("todos");
        QCOMPARE(Correr({S("ejemplo"), carpeta}).estado, 0);
        const auto lista = Correr({S("informe"), S("--lista")});
        QCOMPARE(lista.estado, 0);
        QVERIFY(lista.texto.contains("ControlRebaño: ") && lista.texto.contains("\nVeterinarios: "));
        const auto informe = [&](const QStringList& mas) {
            return Correr(QStringList{S("informe"), S("--carpeta=") + carpeta, S("--base=principal"),
                                      S("--hoy"), S("2026-11-22")} +
                          mas);
        };
        struct Caso {
            QStringList palabras;
            int estado;
            const char* dice;
        };
        const auto pdf = S("--pdf=") + En("t.pdf");
        const std::initializer_list<Caso> casos{
            {{S("cebo"), S("--ganadero"), S("310"), S("--anyo=2025"), pdf}, 0, ""},
            {{S("COM_pro"), S("--ganadero=310"), S("--año"), S("2025")}, 2, "--pdf, --xlsx o --csv"},
            {{S("COM_PRO"), S("--ganadero=310"), pdf}, 2, "Falta --año"},
            {{S("COM_PRO"), S("--ganadero=x"), S("--año=2025"), pdf}, 2, "no es un número"},
            {{S("COM_PRO"), S("--ganadero=310"), S("--año=2025"), S("--vivas"), pdf},
             2,
             "Opción desconocida"},
            {{S("Hts_R"), S("--vivas=1"), pdf}, 2, "No lleva valor"},
            {{S("Hts_R"), S("--crotal"), pdf}, 2, "Falta el valor de --crotal"},
            {{S("Hts_R"), pdf}, 1, "Seleccione un Ganadero"},
            {{S("hts_r"), S("--vivas"), S("--ganadero"), S("310"), pdf}, 0, ""},
            {{S("enfermedades"), S("--ganadero=310"), S("--año=2025"), S("--prueba=nada"), pdf},
             1,
             "no admite: nada"},
            {{S("ResumenIT"), S("--ganadero=310"), S("--años=1999"), pdf}, 1, "no admite: 1999"},
            {{S("Toros"), pdf}, 0, ""},
            {{S("ganaderos"), pdf}, 0, ""},
            {{pdf}, 2, "--lista"}};
        for (const auto& c : casos) {
            QFile::remove(En("t.pdf"));
            const auto r = informe(c.palabras);
            QVERIFY2(r.estado == c.estado && r.errores.contains(c.dice),
                     qPrintable(c.palabras.join(QLatin1Char(' ')) + S(": ") + S(r.errores.constData())));
            QCOMPARE(QFile::exists(En("t.pdf")), c.estado == 0);
        }

        // One file per farmer whom the form offers; those without anything to tell of are named and passed over.
        const auto todos = informe({S("CEBO"), S("--ganadero"), S("todos"), S("--año"), S("2025"), S("--pdf"),
                                    En("pdf"), S("--csv"), En("csvs")});
        QCOMPARE(todos.estado, 1);
        QVERIFY2(todos.texto.contains("310  Covadonga Rodríguez Núñez: hecho\n") &&
                     todos.texto.contains("900  Otros Toros: sin informe\n"),
                 todos.texto);
        QVERIFY(todos.errores.contains("No hay Cebos en el periodo indicado"));
        QVERIFY(QFile::exists(En("pdf/Cebo - Covadonga Rodríguez Núñez - 2025.pdf")));
        QCOMPARE(QDir(En("pdf")).entryList(QDir::Files).size(), todos.texto.count(": hecho\n"));
        QCOMPARE(QDir(En("csvs")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(),
                 todos.texto.count(": hecho\n"));
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

    void Disenos() {
        const auto carpeta = En("diseños");
        QCOMPARE(Correr({S("diseños"), carpeta}).estado, 0);
        QFile escrito(carpeta + S("/IndTecnicos.rpt"));
        QVERIFY(escrito.open(QIODevice::ReadOnly) && escrito.readAll().startsWith("pastorix-informe 1"));
        QCOMPARE(Correr({S("diseños"), carpeta}).estado, 1); // somebody may have changed them
    }

    // English and statements only for who asks for them.
    void ElDetalleSePide() {
        const auto carpeta = En("detalle");
        QCOMPARE(Correr({S("crear"), carpeta}).estado, 0);
        const auto base = carpeta + S("/BD_PradalP.mdb");
        sqlite3* otro = nullptr;
        sqlite3_open(base.toUtf8().constData(), &otro);
        sqlite3_exec(otro, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
        const auto llana = Correr({S("clave-central"), base, S("CENTRAL")}, "x\n");
        const auto larga = Correr({S("clave-central"), base, S("CENTRAL"), S("--detalle")}, "x\n");
        sqlite3_close(otro);
        QCOMPARE(llana.estado, 1);
        QCOMPARE(llana.errores, QByteArray("Otro programa tiene bloqueada la base de datos\n"));
        QCOMPARE(larga.estado, 1);
        QVERIFY2(larga.errores.startsWith(llana.errores) && larga.errores.contains("database is locked"),
                 larga.errores);
    }

    void ConvertirYVerificar() {
        const auto datos = [](const char* n) { return S(PASTORIX_DATOS "/") + S(n); };
        const auto destino = En("convertida.mdb");
        const auto bien = Correr({S("convertir"), datos("columnas-cambiadas.mdb"), destino});
        QCOMPARE(bien.estado, 0);
        QVERIFY(bien.texto.contains("Mis pesadas") && bien.texto.contains("NotaLibre"));
        QCOMPARE(Correr({S("verificar"), destino}).estado, 0);
        QCOMPARE(Correr({S("convertir"), datos("minima.mdb"), destino}).estado, 1);
        const auto suelta =
            Correr({S("convertir"), datos("minima.mdb"), S("suelta.mdb")}, {}, m_carpeta.path());
        QVERIFY2(suelta.estado == 0 && suelta.errores.isEmpty(), suelta.errores); // a name without a folder
        QCOMPARE(Correr({S("verificar"), S("suelta.mdb")}, {}, m_carpeta.path()).estado, 0);
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
