#include "BaseDePrueba.h"

#include "store/Apertura.h"
#include "store/Integridad.h"
#include "store/Verificacion.h"

#ifndef _WIN32
#include <unistd.h>
#endif

using namespace prueba;

// Files as the world leaves them: cut off by a crash, forbidden, changed by other programs, sent by somebody.
class PruebaApertura : public QObject {
    Q_OBJECT

    static QByteArray Error(Conexion& c, const std::string& fichero, const OpcionesApertura& o = {}) {
        try {
            c.AbrirFichero(fichero, kClave, o);
            c.Cerrar();
        } catch (const ErrorAlmacen& e) {
            return e.what();
        }
        return {};
    }

private Q_SLOTS:
    void SinPermisoNoEstaVacio() {
#ifndef _WIN32
        Base b;
        b.c.Cerrar();
        QFile(Q(b.fichero)).setPermissions(QFile::WriteOther);
        QFile(b.carpeta.path()).setPermissions(static_cast<QFile::Permissions>(0x7777));
        const bool todopoderoso = geteuid() == 0;
        if (todopoderoso)
            QCOMPARE(seteuid(65534), 0);
        const auto vuelta = qScopeGuard([&] { QVERIFY(!todopoderoso || seteuid(0) == 0); });
        Conexion c;
        QVERIFY(Error(c, b.fichero).contains("No se puede leer el fichero"));
        QCOMPARE(c.ResultadoUltimo(), ResultadoApertura::Ilegible);
        QVERIFY(QByteArray::fromStdString(VerificarBase(b.fichero, kClave).at(0)).contains("no hay permiso"));
#endif
    }

    // The machine stopped in the middle of a save: the file is sound, since what undoes the save lies beside it.
    void TrasUnCierreBrusco() {
        Base b;
        b.Poner("T_Vacas", "Id_Vaca=1");
        const auto copia = b.fichero + ".copia";
        EnGrupo(b.c, [&] {
            b.c.Execute("UPDATE T_Vacas SET Id_Vaca = 2");
            sqlite3_db_cacheflush(b.c.Manejador());
            CopiarConDiarios(Ruta(b.fichero), Ruta(copia));
        });
        const auto antes = Contenido(Q(copia));
        QVERIFY(!Contenido(Q(copia + "-journal")).isEmpty());
        QCOMPARE(VerificarBase(copia, kClave), std::vector<std::string>());
        QCOMPARE(Contenido(Q(copia)), antes); // looked at, not touched
        QVERIFY(QFile::exists(Q(copia + "-journal")));
        const auto etapa = b.fichero + ".etapa";
        Conexion c;
        AbrirPaquete(c, Ruta(copia), Ruta(etapa), kClave);
        QCOMPARE(ValorDeCampo(c, "SELECT Id_Vaca FROM T_Vacas"), "1"s);
        QCOMPARE(Contenido(Q(copia)), antes);
        c.Cerrar();
        // what an earlier package left beside the staging file has nothing to do with this one
        CopiarConDiarios(Ruta(copia), Ruta(etapa));
        AbrirPaquete(c, Ruta(b.fichero), Ruta(etapa), kClave);
        QCOMPARE(ValorDeCampo(c, "SELECT Id_Vaca FROM T_Vacas"), "2"s);
    }

    void UnBloqueoNoEsUnaAveria() {
        Base b;
        const auto otra = AbrirBasePropia(Ruta(b.fichero), Modo::Lectura);
        Sql(b.c, "BEGIN EXCLUSIVE");
        sqlite3_busy_timeout(otra.get(), 0);
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, BuscarDaños(otra.get()));
        Sql(b.c, "COMMIT");
        QVERIFY(!BuscarDaños(otra.get()).Hay());
    }

    // Whatever page is spoilt: what is called sound can be read from the first row to the last.
    void LoQueSeDaPorBuenoSeLee() {
        Base b;
        EnGrupo(b.c, [&] {
            for (int i = 0; i < 400; ++i)
                b.Poner("T_Vacas", "Id_Vaca, Patologia", i, std::string(300, 'x'));
        });
        b.c.Cerrar();
        const auto sano = Contenido(Q(b.fichero));
        QFile f(Q(b.fichero));
        int dañadas = 0;
        for (qsizetype pagina = 1; pagina < sano.size() / 4096; pagina += 5) {
            auto bytes = sano;
            bytes.replace(pagina * 4096, 4096, QByteArray(4096, char(0x5A)));
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(bytes);
            f.close();
            bool seLee = true;
            try {
                Conexion c;
                c.AbrirFichero(b.fichero, kClave);
                for (const auto& t : c.Esquema().Tablas())
                    Recordset(c, "SELECT * FROM " + t.nombre);
            } catch (const ErrorAlmacen&) {
                seLee = false;
            }
            const auto faltas = VerificarBase(b.fichero, kClave);
            QVERIFY2(seLee || !faltas.empty(), qPrintable(QString::number(pagina)));
            for (const auto& falta : faltas)
                QVERIFY2(QByteArray::fromStdString(falta).contains("dañada"), falta.c_str());
            dañadas += !faltas.empty();
        }
        QVERIFY(dañadas > 10);
    }

    // The one file is complete between two actions, whatever another program had made of it.
    void DiarioDeOtroPrograma() {
        Base b;
        Sql(b.c, "PRAGMA journal_mode=WAL");
        b.c.Cerrar();
        b.c.AbrirFichero(b.fichero, kClave);
        b.Poner("T_Vacas", "Id_Vaca=1");
        QVERIFY(!QFile::exists(Q(b.fichero + "-wal")));
    }

    void LasColumnasQueFaltabanSeDicen() {
        Base b;
        for (const char* sql : {"ALTER TABLE T_Vacas DROP COLUMN Chekeo", "DROP TABLE X_Tmp3",
                                "ALTER TABLE T_Cebo DROP COLUMN Cambiado",
                                "ALTER TABLE T_Cubriciones DROP COLUMN DemoraServIPR"})
            Sql(b.c, sql);
        b.c.Cerrar();
        QCOMPARE(b.c.AbrirFichero(b.fichero, kClave), ResultadoApertura::Convertida);
        QCOMPARE(b.c.ColumnasAñadidas(), std::vector<std::string>{"T_Vacas.Chekeo"});
        b.c.Cerrar();
        QCOMPARE(b.c.AbrirFichero(b.fichero, kClave), ResultadoApertura::Lista);
        QVERIFY(b.c.ColumnasAñadidas().empty());
    }

    // Looked at only: rows stay, and reports and lists have their scratch tables all the same.
    void SoloLectura() {
        Base b;
        b.Poner("T_Vacas", "Id_Vaca=1");
        b.Poner("X_Temp", "C1=del fichero");
        b.c.Cerrar();
        const auto antes = Contenido(Q(b.fichero));
        OpcionesApertura o;
        o.soloLectura = true;
        b.c.AbrirFichero(b.fichero, kClave, o);
        QCOMPARE(b.Error("DELETE FROM T_Vacas"), long(CodigoError::SoloLectura));
        EnGrupo(b.c, [&] {
            b.c.Execute("DELETE FROM X_Temp");
            b.Poner("X_Temp", "C1=dos, F1", F("2/1/2026"));
            b.Poner("X_Temp", "C1=uno, F1", F("1/1/2026"));
        });
        QUEDA(b, "C1, F1 FROM X_Temp ORDER BY F1", "uno|01/01/26/dos|02/01/26");
        b.c.Cerrar();
        QCOMPARE(Contenido(Q(b.fichero)), antes);
    }

    void PaquetesQueNoSonDeFiar_data() {
        // palabra: empty: it is taken, and does no harm
        const QString ajenas = u"tablas que no son"_s;
        Caso("virtual table", "CREATE VIRTUAL TABLE v USING fts5(a)", ajenas);
        Caso("virtual table in place of ours",
             "DROP TABLE T_Tetos; CREATE VIRTUAL TABLE T_Tetos USING fts5(Id_Teto)", ajenas);
        Caso("column missing", "ALTER TABLE T_Vacas DROP COLUMN Chekeo", "T_Vacas.Chekeo");
        Caso("column of the repairs missing", "ALTER TABLE T_Cebo DROP COLUMN Cambiado", "");
        Caso("table missing", "DROP TABLE T_Partos", "T_Partos");
        Caso("view in place of a table", "DROP TABLE T_Partos; CREATE VIEW T_Partos AS SELECT * FROM T_Vacas",
             "T_Partos");
        Caso("trigger", "CREATE TRIGGER t AFTER DELETE ON T_Vacas BEGIN DELETE FROM T_Tetos; END", "");
    }
    void PaquetesQueNoSonDeFiar() {
        const auto [sql, palabra] = DelCaso<QString, QString>();
        Base b;
        b.Poner("T_Vacas", "Id_Vaca=1");
        sqlite3_db_config(b.c.Manejador(), SQLITE_DBCONFIG_DEFENSIVE, 0, nullptr);
        Sql(b.c, qPrintable(sql));
        b.c.Cerrar();
        const auto antes = Contenido(Q(b.fichero));
        Conexion c;
        QByteArray error;
        try {
            AbrirPaquete(c, Ruta(b.fichero), Ruta(b.fichero + ".etapa"), kClave);
            c.Execute("DELETE FROM T_Vacas");
            QCOMPARE(ValorDeCampo(c, "SELECT Count(*) AS N FROM T_Tetos"), "4"s);
        } catch (const ErrorAlmacen& e) {
            error = e.what();
            QCOMPARE(c.ResultadoUltimo(), ResultadoApertura::OtroEsquema);
        }
        QVERIFY2(error.isEmpty() == palabra.isEmpty() && error.contains(palabra.toUtf8()), error);
        QCOMPARE(Contenido(Q(b.fichero)), antes);
        QVERIFY(!QFile::exists(b.carpeta.filePath("BackUp"))); // of a copy no other copy is kept
    }

    // A package may be a real Access file: its copy is converted, itself it is only read.
    void PaqueteDeAccess() {
        QTemporaryDir carpeta;
        const auto etapa = carpeta.filePath("Imp_Cli_VETERINARIO.mdb").toStdString();
        const std::string origen = PASTORIX_DATOS "/paquetes/VETERINARIO.mdb";
        const auto antes = Contenido(Q(origen));
        Conexion c;
        QCOMPARE(AbrirPaquete(c, Ruta(origen), Ruta(etapa), kClave), ResultadoApertura::Convertida);
        QCOMPARE(ValorDeCampo(c, "SELECT Count(*) AS N FROM T_Vacas"), "65"s);
        QCOMPARE(Contenido(Q(origen)), antes);
        QCOMPARE(QDir(carpeta.path()).entryList(QDir::Files), QStringList{"Imp_Cli_VETERINARIO.mdb"});
    }
};

PRUEBA(PruebaApertura)
#include "PruebaApertura.moc"
