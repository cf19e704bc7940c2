#include "prueba.h"

#include "reports/motor/Zip.h"
#include "store/Diferencias.h"
#include "store/Esquema.h"
#include "store/Recordset.h"
#include "store/Verificacion.h"

#include <sqlite3.h>

#include <random>

using namespace prueba;

// The companion command line as scripts use it: exit status, what it leaves, what it says on which stream; and what is there after
// it was killed.
class PruebaPastorixctl : public QObject {
    Q_OBJECT

    struct Salida {
        int estado = -1;
        QString texto, errores;
    };

    QTemporaryDir m_carpeta;
    QString En(const QString& n) const { return m_carpeta.filePath(n); }

    // Words at blanks; @ stands for the test's folder, + for a blank within a word.
    Salida Correr(const QString& linea, const QByteArray& entrada = {}, int matarTras = -1) const {
        QProcess p;
        p.setWorkingDirectory(m_carpeta.path());
        auto palabras = linea.split(u' ', Qt::SkipEmptyParts);
        palabras.replaceInStrings(u"@"_s, m_carpeta.path() + u'/').replaceInStrings(u"+"_s, u" "_s);
        p.start(QStringLiteral(PASTORIXCTL), palabras);
        p.write(entrada);
        p.closeWriteChannel();
        if (matarTras >= 0 && !p.waitForFinished(std::max(1, matarTras)))
            p.kill();
        if (!p.waitForFinished(120000))
            return {};
        return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -2, Q(p.readAllStandardOutput()),
                Q(p.readAllStandardError())};
    }
    int Estado(const QString& linea, const QByteArray& entrada = {}) const {
        return Correr(linea, entrada).estado;
    }
    Salida Ruta(const QString& linea, const QString& carpeta, int matarTras = -1) const {
        return Correr(linea + u" --hoy 2026-11-22 --carpeta @"_s + carpeta, {}, matarTras);
    }
    static void Copiar(const QString& de, const QString& a) {
        QDir(a).removeRecursively();
        QVERIFY(QDir().mkpath(a));
        for (const auto& f : QDir(de).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden)) {
            const auto destino = a + u'/' + f.fileName();
            if (f.isDir())
                Copiar(f.filePath(), destino);
            else
                QVERIFY(QFile::copy(f.filePath(), destino));
        }
    }
    // All rows of the tables that hold records, the log left out.
    static bool Iguales(const QString& a, const QString& b) {
        Conexion x, y;
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
        QCOMPARE(Estado(u"ejemplo @oficina"_s), 0);
        QCOMPARE(Estado(u"ejemplo @oficina"_s), 1); // not over one that is there
        QCOMPARE(Estado(u"ejemplo @nuevo"_s), 0);
        for (const char* base : {"principal", "personal"}) // converts them
            QCOMPARE(Estado(u"historial --carpeta @oficina --base "_s + base), 0);
        QVERIFY(QDir().mkpath(En(u"lapiz"_s)));
        QCOMPARE(Ruta(u"exportar --usuario elopez --destino @lapiz"_s, u"oficina"_s).estado, 0);
    }

    void Uso() {
        QCOMPARE(Estado({}), 2);
        QCOMPARE(Estado(u"nada"_s), 2);
        QCOMPARE(Estado(u"--help"_s), 0);
        QCOMPARE(Correr(u"help convertir"_s).texto, Correr(u"convertir --help"_s).texto);
        QVERIFY(Correr(u"--version"_s).texto.startsWith(u"pastorixctl 3.09"_s));
        for (const QString orden : {"crear", "clave-central", "ejemplo", "diseños", "convertir", "verificar",
                                    "informe", "exportar", "importar", "enviar", "recibir", "exportar-toros",
                                    "importar-toros", "pasar", "historial", "compactar", "restaurar"}) {
            QVERIFY(Correr(orden + u" --help"_s).texto.contains(orden));
            QCOMPARE(Estado(orden), 2);
        }
        QCOMPARE(Estado(u"informe IndTecnicos --carpeta @x --base otra"_s), 2);
        QCOMPARE(Estado(u"informe Nada --carpeta @x --base personal"_s), 2);
    }

    void CaminoEntero() {
        const auto carpeta = En(u"nuevo"_s);
        QVERIFY(QDir(carpeta).entryList({u"*.rpt"_s}).isEmpty());
        QVERIFY(QFile::copy(carpeta + u"/Toros.mdb"_s,
                            carpeta + u"/IndTecnicos.rpt"_s)); // an old installation's is binary
        const auto con = [&](const QString& mas, const char* año = "2025") {
            return Ruta(u"informe IndTecnicos --base principal --año "_s + año + mas, u"nuevo"_s);
        };
        const auto r = con(u" --ganadero 310 --pdf @i.pdf --xlsx @i.xlsx --csv @csv"_s);
        QVERIFY2(r.estado == 0, qPrintable(r.errores));
        QVERIFY(Contenido(En(u"i.pdf"_s)).startsWith("%PDF-"));
        const auto partes = PartesDelZip(Contenido(En(u"i.xlsx"_s))).value();
        for (const auto& [parte, bytes] : partes) // widths and figures, whatever the locale of the process
            QVERIFY2(!parte.startsWith("xl/worksheets/") ||
                         !Q(bytes).contains(QRegularExpression(u"[0-9],[0-9]"_s)),
                     parte);
        QCOMPARE(QDir(En(u"csv"_s)).entryList(QDir::Files).size(), 12);
        QVERIFY(!QFile::exists(carpeta + u"/BD_PradalC.mdb"_s)); // moved on the first run
        QVERIFY(QFile::exists(carpeta + u"/Informes/IndTecnicos.rpt"_s));
        QCOMPARE(QDir(carpeta + u"/BackUp"_s).entryList({u"*_Access_*.mdb"_s}).size(), 1);
        QCOMPARE(Estado(u"verificar @nuevo/Base+de+Datos/BD_PradalC.mdb"_s), 0);

        // figures of this farm and year, checked by hand against the rows
        Conexion c;
        c.AbrirFichero((carpeta + u"/Base de Datos/BD_PradalC.mdb"_s).toStdString(), kClave);
        for (const auto& [sql, valor] :
             {std::pair{"C2 FROM X_Temp", "Covadonga Rodríguez Núñez - Prado Viejo"},
              {"NCC FROM X_Temp1", "7"},
              {"N1 FROM X_Temp1 WHERE T1 = 'Vacas de 2 a 6 partos'", "25"},
              {"N1 FROM X_Temp2 WHERE Mes = 'Mar'", "8"},
              {"NacidosIns FROM X_Tmp4", "43"},
              {"N1 FROM X_Tmp6 WHERE Texto = 'Todas'", "410"},
              {"N FROM X_Tmp8 WHERE Texto = 'Pérdida Total'", "9,7  Terneros"}})
            QCOMPARE(ValorDeCampo(c, "SELECT "s + sql), valor);
        // the older column has become the new one, with its values
        QVERIFY(c.Esquema().Buscar("T_Cubriciones")->Buscar("Desconocida") < 0);
        QVERIFY(ValorDeCampo(c, "SELECT Count(*) AS N FROM T_Cubriciones WHERE DemoraServIPR = 1") > "0");
        c.Cerrar();

        // boxes of the form go to stderr
        QCOMPARE(con(u" --ganadero 85 --pdf @x.pdf"_s).estado, 1); // has left
        QCOMPARE(con(u" --ganadero 310"_s).estado, 2);             // where to?
        const auto caja = con(u" --ganadero 310 --pdf @x.pdf"_s, "25");
        QVERIFY2(caja.estado == 1 && caja.errores.contains(u"Indique el Año de Referencia"_s),
                 qPrintable(caja.errores));
        QCOMPARE(con(u" --ganadero 310 --pdf @no/hay/carpeta/i.pdf"_s).estado, 1);
    }

    // All reports by one command, whatever the letter case of their names; what a call lacks is told before anything is touched.
    void TodosLosInformes_data() {
        Caso("cebo --ganadero 310 --anyo=2025 --pdf=@t.pdf", 0, "");
        Caso("COM_pro --ganadero=310 --año 2025", 2, "--pdf, --xlsx o --csv");
        Caso("COM_PRO --ganadero=310 --pdf=@t.pdf", 2, "Falta --año");
        Caso("COM_PRO --ganadero=x --año=2025 --pdf=@t.pdf", 2, "no es un número");
        Caso("COM_PRO --ganadero=310 --año=2025 --vivas --pdf=@t.pdf", 2, "Opción desconocida");
        Caso("Hts_R --vivas=1 --pdf=@t.pdf", 2, "No lleva valor");
        Caso("Hts_R --crotal --pdf=@t.pdf", 2, "Falta el valor de --crotal");
        Caso("Hts_R --pdf=@t.pdf", 1, "Seleccione un Ganadero");
        Caso("hts_r --vivas --ganadero 310 --pdf=@t.pdf", 0, "");
        Caso("enfermedades --ganadero=310 --año=2025 --prueba=nada --pdf=@t.pdf", 1, "no admite: nada");
        Caso("ResumenIT --ganadero=310 --años=1999 --pdf=@t.pdf", 1, "no admite: 1999");
        Caso("Toros --pdf=@t.pdf", 0, "");
        Caso("ganaderos --pdf=@t.pdf", 0, "");
        Caso("veterinarios --pdf=@t.pdf", 0, "");
        Caso("--pdf=@t.pdf", 2, "--lista");
    }
    void TodosLosInformes() {
        const auto [estado, dice] = DelCaso<int, QString>();
        QFile::remove(En(u"t.pdf"_s));
        const auto r = Ruta(u"informe --base=principal "_s + Q(QTest::currentDataTag()), u"oficina"_s);
        QVERIFY2(r.estado == estado && r.errores.contains(dice), qPrintable(r.errores));
        QCOMPARE(QFile::exists(En(u"t.pdf"_s)), estado == 0);
    }

    // One file per farmer whom the form offers; those without anything to tell of are named and passed over.
    void ParaTodos() {
        const auto lista = Correr(u"informe --lista"_s);
        QVERIFY(lista.estado == 0 && lista.texto.contains(u"ControlRebaño: "_s) &&
                lista.texto.contains(u"\nVeterinarios: "_s));
        const auto todos =
            Ruta(u"informe --base=principal CEBO --ganadero todos --año 2025 --pdf @pdf --csv @csvs"_s,
                 u"oficina"_s);
        QCOMPARE(todos.estado, 1);
        QVERIFY2(todos.texto.contains(u"310  Covadonga Rodríguez Núñez: hecho\n"_s) &&
                     todos.texto.contains(u"900  Otros Toros: sin informe\n"_s),
                 qPrintable(todos.texto));
        QVERIFY(todos.errores.contains(u"No hay Cebos en el periodo indicado"_s));
        QVERIFY(QFile::exists(En(u"pdf/Cebo - Covadonga Rodríguez Núñez - 2025.pdf"_s)));
        for (const char* carpeta : {"pdf", "csvs"})
            QCOMPARE(QDir(En(carpeta)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(),
                     todos.texto.count(u": hecho\n"_s));
    }

    void CrearYClave() {
        QCOMPARE(Estado(u"crear @vacia"_s), 0);
        QCOMPARE(Estado(u"crear @vacia"_s), 1);
        QCOMPARE(Estado(u"verificar @vacia/BD_PradalP.mdb @vacia/BD_PradalC.mdb @vacia/Toros.mdb"_s), 0);
        const auto clave = u"clave-central @vacia/BD_PradalP.mdb CENTRAL"_s;
        QCOMPARE(Estado(clave, "sin apóstrofo\n"), 0);
        QCOMPARE(Estado(clave, "l'otra\n"), 1);
        QCOMPARE(Estado(clave, "otra\n"), 0);
        Conexion c;
        c.AbrirFichero(En(u"vacia/BD_PradalP.mdb"_s).toStdString(), kClave);
        QCOMPARE(ValorDeCampo(c, "SELECT Clave FROM Claves WHERE Usuario = 'CENTRAL'"), "otra"s);
        QCOMPARE(ValorDeCampo(c, "SELECT Apodo FROM T_Ganaderos WHERE TorosComun = 'Sí'"), "Toros IA"s);
        // English and statements only for who asks for them
        sqlite3_exec(c.Manejador(), "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
        const auto llana = Correr(clave, "x\n"), larga = Correr(clave + u" --detalle"_s, "x\n");
        QVERIFY(llana.estado == 1 && larga.estado == 1);
        QCOMPARE(llana.errores, u"Otro programa tiene bloqueada la base de datos\n"_s);
        QVERIFY2(larga.errores.startsWith(llana.errores) && larga.errores.contains(u"database is locked"_s),
                 qPrintable(larga.errores));
    }

    void Disenos() {
        QCOMPARE(Estado(u"diseños @diseños"_s), 0);
        QVERIFY(Contenido(En(u"diseños/IndTecnicos.rpt"_s)).startsWith("pastorix-informe 1"));
        QCOMPARE(Estado(u"diseños @diseños"_s), 1); // somebody may have changed them
    }

    void ConvertirYVerificar() {
        const auto convertir = [&](const char* n, const char* destino) {
            return Correr(u"convertir "_s + PASTORIX_DATOS "/" + n + u' ' + destino);
        };
        const auto bien = convertir("columnas-cambiadas.mdb", "@convertida.mdb");
        QVERIFY(bien.estado == 0 && bien.texto.contains(u"Mis pesadas"_s) &&
                bien.texto.contains(u"NotaLibre"_s));
        QCOMPARE(Estado(u"verificar @convertida.mdb"_s), 0);
        QCOMPARE(convertir("minima.mdb", "@convertida.mdb").estado, 1);
        const auto suelta = convertir("minima.mdb", "suelta.mdb"); // a name without a folder
        QVERIFY2(suelta.estado == 0 && suelta.errores.isEmpty(), qPrintable(suelta.errores));
        QCOMPARE(Estado(u"verificar suelta.mdb"_s), 0);
        for (const char* malo : {"recortada.mdb", "otra-clave.mdb", "sin-T_Partos.mdb"}) {
            const auto r = convertir(malo, "@mala.mdb");
            QVERIFY(r.estado == 1 && !r.errores.isEmpty() && !QFile::exists(En(u"mala.mdb"_s)));
            QCOMPARE(Estado(u"verificar "_s + PASTORIX_DATOS "/" + malo), 1);
        }
    }

    // What is said, on either stream, and that nothing has changed.
    void UsosYEstados_data() {
        Caso("exportar --usuario elopez", 2, "Falta --destino");
        Caso("exportar --usuario elopez --destino @lapiz --nada", 2, "Opción desconocida");
        Caso("exportar --usuario nadie --destino @lapiz", 1, "nadie");
        Caso("exportar --usuario elopez --destino @lapiz/no", 1, "No existe la carpeta");
        Caso("importar --usuario svaldes --origen @lapiz", 1, "no encontrada");
        Caso("importar --usuario elopez --origen @lapiz --ganaderos 1:x", 2, "VIEJO:NUEVO");
        Caso("importar --usuario elopez --origen @lapiz --simular", 0,
             "Registros que vienen: 0; que se van: 0; que cambian: 0");
        Caso("recibir --usuario elopez --origen @lapiz --simular", 0,
             "ATENCIÓN: Lo anotado aquí que no está en el fichero se pierde");
        Caso("recibir --usuario nadie --origen @lapiz", 1, "Usuario No Autorizado");
        Caso("pasar --base principal --ganadero 12 --si", 1, "no está de baja");
        Caso("pasar --base principal --ganadero 85", 1, "(No; con --si");
        Caso("pasar --base otra --ganadero 85", 2, "--base");
        Caso("restaurar --base principal --copia /no/hay", 1, "No existe el fichero");
        Caso("historial --base principal --vaciar", 1, "Confirmar Eliminar");
        Caso("historial --base principal", 0, "CENTRAL");
    }
    void UsosYEstados() {
        const auto [estado, dicho] = DelCaso<int, QString>();
        const auto base = En(u"oficina/Base de Datos/BD_PradalC.mdb"_s), antes = En(u"antes.mdb"_s);
        QFile::remove(antes);
        QVERIFY(QFile::copy(base, antes));
        const auto r = Ruta(Q(QTest::currentDataTag()), u"oficina"_s);
        QVERIFY2(r.estado == estado && (r.texto + r.errores).contains(dicho),
                 qPrintable(r.texto + r.errores));
        QVERIFY(Iguales(antes, base));
    }

    // Killed at seeded moments: the next start finds a whole database, as before or as after, and cleans up.
    void MuertasAMitad_data() {
        Caso("importar --usuario elopez --origen @lapiz", "C");
        Caso("recibir --usuario elopez --origen @lapiz", "C");
        Caso("pasar --base principal --ganadero 85 --si", "P");
        Caso("compactar --base principal", "C");
    }
    void MuertasAMitad() {
        const auto base = u"/Base de Datos/BD_Pradal"_s + DelCaso<QString>() + u".mdb"_s;
        const auto linea = Q(QTest::currentDataTag());
        const auto muerta = En(u"muerta"_s);
        Copiar(En(u"oficina"_s), En(u"hecha"_s));
        if (linea.startsWith(u"importar"_s)) { // something to do
            Conexion c;
            c.AbrirFichero(En(u"lapiz/elopez.mdb"_s).toStdString(), kClave);
            c.Execute("UPDATE T_Vacas SET Nombre = 'cambiada'");
        }
        QElapsedTimer reloj;
        reloj.start();
        QCOMPARE(Ruta(linea, u"hecha"_s).estado, 0);
        const auto dura = static_cast<unsigned>(reloj.elapsed());
        std::mt19937 azar(20261122);
        for (int i = 0; i < 4; ++i) {
            Copiar(En(u"oficina"_s), muerta);
            Ruta(linea, u"muerta"_s, static_cast<int>(azar() % dura));
            // the next start, a half written lock put aside
            QCOMPARE(Ruta(u"historial --base principal --si"_s, u"muerta"_s).estado, 0);
            QVERIFY(VerificarBase((muerta + base).toStdString(), kClave).empty());
            const bool comoAntes = Iguales(muerta + base, En(u"oficina"_s) + base);
            if (!linea.startsWith(u"pasar"_s)) // each transfer draws a code of its own
                QVERIFY(comoAntes || Iguales(muerta + base, En(u"hecha"_s) + base));
            QVERIFY(QDir(muerta + u"/Temp"_s)
                        .entryList({u"*.tmp*"_s, u"Imp_Cli*"_s, u"xPradalC*"_s, u"xImportar*"_s}, QDir::Files)
                        .isEmpty());
            QVERIFY(QDir(muerta + u"/Base de Datos"_s).entryList({u"*.tmp*"_s}, QDir::Files).isEmpty());
        }
    }
};

PRUEBA(PruebaPastorixctl)
#include "PruebaPastorixctl.moc"
