#include "BaseDePrueba.h"

#include "store/CopiaDeFilas.h"
#include "store/Literales.h"
#include "store/Reemplazo.h"
#include "store/Verificacion.h"

using namespace prueba;

// Rows and whole files on their way from one database to another.
class PruebaCopias : public QObject {
    Q_OBJECT

    // One term per farmer.
    static std::string Terminos(const char* operador, const char* nexo, int desde, int hasta) {
        std::string sql;
        for (int i = desde; i <= hasta; ++i)
            sql += (sql.empty() ? "Id_Ganadero " : std::string(nexo) + "Id_Ganadero ") + operador + " " +
                   NumeroSql(i);
        return sql;
    }

private Q_SLOTS:
    void LasFilasVanComoEstan() {
        Base a, b;
        a.c.Execute("ALTER TABLE T_Vacas ADD COLUMN DeA DOUBLE");
        b.c.Execute("ALTER TABLE T_Vacas ADD COLUMN DeB DOUBLE");
        Sql(a.c, "INSERT INTO T_Vacas (Id_Vaca, Nombre, MG_PN, FechaNac, Patologia, Calificacion, DeA) "
                 "VALUES (1, 'd''Arriba ñ', 'doce', 'ayer', x'00FF', 2.5, 9), (2, '', 0.1, '2026-01-02', "
                 "NULL, NULL, 9), (3, NULL, 4000000000, '2026-01-02 10:00:00', 'x', 1e300, 9)");
        b.Poner("T_Vacas", "Id_Vaca=7");
        QList<long> avances;
        QCOMPARE(CopiarFilas(a.c, "Select * FROM T_Vacas WHERE Id_Vaca <> 2 ORDER BY Id_Vaca DESC", b.c,
                             "t_vacas", [&](long n) { avances << n; }),
                 2L);
        QVERIFY(avances.isEmpty()); // two rows are no progress to tell
        const auto volcado = [](Base& x) {
            std::string t;
            Instruccion s(x.c.Manejador(),
                          "SELECT typeof(Nombre) || quote(Nombre) || typeof(MG_PN) || quote(MG_PN) || "
                          "typeof(FechaNac) || quote(FechaNac) || typeof(Patologia) || "
                          "quote(Patologia) || typeof(Calificacion) || quote(Calificacion) FROM "
                          "T_Vacas WHERE Id_Vaca IN (1, 3) ORDER BY Id_Vaca");
            while (s.Fila())
                t += s.Texto(0) + "\n";
            return t;
        };
        QCOMPARE(volcado(b), volcado(a));
        QUEDA(b, "Id_Vaca, DeB FROM T_Vacas ORDER BY Id_Vaca", "1|-/3|-/7|-");
        // a key that is taken ends it; what went before stays, as with any other group
        QCOMPARE(
            Numero([&] { CopiarFilas(a.c, "Select * FROM T_Vacas ORDER BY Id_Vaca DESC", b.c, "T_Vacas"); }),
            long(CodigoError::Restriccion));
        QCOMPARE(Numero([&] { CopiarFilas(a.c, "Select * FROM T_Vacas", b.c, "T_Nada"); }),
                 long(CodigoError::TablaDesconocida));
    }

    void LasColumnasFueraDeSuSitioNoPasan_data() {
        Caso("whole", "SELECT * FROM T_Tetos", true);
        Caso("more than needed", "SELECT Id_Teto, DescTeto, Id_Teto FROM T_Tetos", true);
        Caso("other case", "SELECT ID_TETO, DESCTETO FROM T_Tetos", true);
        Caso("other order", "SELECT DescTeto, Id_Teto FROM T_Tetos", false);
        Caso("one missing", "SELECT Id_Teto FROM T_Tetos", false);
    }
    void LasColumnasFueraDeSuSitioNoPasan() {
        QString consulta;
        bool pasa = false;
        DelCaso(consulta, pasa);
        Base a, b;
        b.c.Execute("DELETE FROM T_Tetos");
        QCOMPARE(Numero([&] { CopiarFilas(a.c, consulta.toStdString(), b.c, "T_Tetos"); }),
                 pasa ? 0L : long(CodigoError::ColumnaDesconocida));
        QCOMPARE(b.Texto("SELECT Id_Teto, DescTeto FROM T_Tetos"),
                 pasa ? a.Texto("SELECT Id_Teto, DescTeto FROM T_Tetos") : std::string());
    }

    void UnaBaseAbiertaSeCopia() {
        Base b;
        EnGrupo(b.c, [&] {
            for (int i = 1; i <= 3000; ++i)
                b.Poner("T_Vacas", "Id_Vaca, Patologia", double(i), std::string(400, 'x'));
        });
        const auto copia = b.fichero + ".copia";
        QFile(Q(copia)).open(QIODevice::WriteOnly); // something stood there
        int ultimo = 0;
        CopiarBase(b.c, Ruta(copia), [&](int hecho, int total) {
            QVERIFY(hecho > ultimo && hecho <= total);
            ultimo = hecho;
        });
        QVERIFY(ultimo > 0);
        b.c.Execute("DELETE FROM T_Vacas");
        Conexion c;
        c.AbrirFichero(copia, kClave);
        QCOMPARE(ValorDeCampo(c, "SELECT Count(*) AS N FROM T_Vacas"), "3000"s);
        QVERIFY(VerificarBase(copia, kClave).empty());
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, CopiarBase(b.c, Ruta(b.fichero + "/no/hay")));
        QCOMPARE(QDir(b.carpeta.path()).entryList(QDir::Files).size(), 2);
    }

    // What stands in the place of a database afterwards, and what is kept.
    void ReemplazarUnaBase_data() {
        Caso("two sound ones", "", 0L);
        Caso("the old one with the journal of a crash", "crash", 0L);
        Caso("the old one in use", "locked", long(CodigoError::Bloqueada));
        Caso("the new one damaged", "bad new", long(CodigoError::NoSePuedeAbrir));
        Caso("the old one damaged", "bad old", long(CodigoError::NoSePuedeAbrir));
        Caso("the old one damaged, and known to be", "bad old, known", 0L);
    }
    void ReemplazarUnaBase() {
        const auto [caso, error] = DelCaso<QString, long>();
        Base vieja, nueva;
        EnGrupo(vieja.c, [&] {
            for (int i = 1; i <= 500; ++i)
                vieja.Poner("T_Vacas", "Id_Vaca, Patologia", double(i), std::string(200, 'x'));
        });
        nueva.Poner("T_Vacas", "Id_Vaca=9");
        nueva.c.Cerrar();
        sqlite3* otro = nullptr;
        if (caso == "crash" || caso.endsWith("known")) { // the rows are written, the commit never came
            const auto a = nueva.fichero + ".a";
            EnGrupo(vieja.c, [&] {
                vieja.c.Execute("UPDATE T_Vacas SET Nombre = 'a medias'");
                sqlite3_db_cacheflush(vieja.c.Manejador());
                CopiarConDiarios(Ruta(vieja.fichero), Ruta(a));
            });
            vieja.c.Cerrar();
            CopiarConDiarios(Ruta(a), Ruta(vieja.fichero));
        }
        vieja.c.Cerrar();
        if (caso == "locked") {
            sqlite3_open(vieja.fichero.c_str(), &otro);
            sqlite3_exec(otro, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
        }
        QFile mala(Q(caso == "bad new" ? nueva.fichero : vieja.fichero));
        if (caso.startsWith("bad")) {
            QVERIFY(mala.open(QIODevice::ReadWrite));
            mala.seek(mala.size() / 2);
            mala.write(QByteArray(8192, 'Z'));
            mala.close();
        }
        const QDir carpeta(vieja.carpeta.filePath("BackUp"));
        const LugarDeCopia lugar{Ruta(carpeta.path().toStdString()), "DB_PradalC",
                                 *Fecha::De(2026, 12, 31, 23, 59, 59)};
        QVERIFY(mala.open(QIODevice::ReadOnly));
        const auto antes = mala.readAll();
        const auto reemplazar = [&](BaseAnterior anterior) {
            return Numero([&] { ReemplazarBase(Ruta(vieja.fichero), Ruta(nueva.fichero), lugar, anterior); });
        };
        QCOMPARE(reemplazar(caso.endsWith("known") ? BaseAnterior::Averiada : BaseAnterior::Sana), error);
        sqlite3_close(otro);
        QCOMPARE(QDir(vieja.carpeta.path()).entryList(QDir::Files).filter("prueba.mdb"),
                 QStringList{"prueba.mdb"});

        if (error != 0) { // as it was
            mala.seek(0);
            QCOMPARE(mala.readAll(), antes);
            QVERIFY(carpeta.isEmpty()); // no second name that would change with it
            if (!caso.startsWith("bad old")) {
                vieja.c.Reabrir();
                QUEDA(vieja, "Count(*) AS N FROM T_Vacas", "500");
            }
            return;
        }
        vieja.c.Reabrir();
        QUEDA(vieja, "Id_Vaca FROM T_Vacas", "9");
        vieja.c.Cerrar();
        QVERIFY(QFile::exists(Q(nueva.fichero)));
        const auto copia = carpeta.filePath("DB_PradalC_31122026_235959.mdb");
        if (caso.startsWith("bad")) {
            QCOMPARE(Contenido(copia), antes);
        } else {
            Conexion c;
            c.AbrirFichero(copia.toStdString(), kClave);
            QCOMPARE(ValorDeCampo(c, "SELECT Count(*) AS N FROM T_Vacas WHERE Nombre Is Null"), "500"s);
        }
        QCOMPARE(reemplazar(BaseAnterior::Sana), 0L); // within the same second
        QVERIFY(carpeta.exists("DB_PradalC_01012027_000000.mdb"));
    }

    // Compact, nothing lost, and as it was among the copies; the new file is no second name of anything.
    void CompactarEnSuSitioYSegundosNombres() {
        Base b;
        EnGrupo(b.c, [&] {
            for (int i = 1; i <= 2000; ++i)
                b.Poner("T_Vacas", "Id_Vaca, Patologia", double(i), std::string(400, 'x'));
        });
        b.c.Execute("DELETE FROM T_Vacas WHERE Id_Vaca > 10");
        b.c.Cerrar();
        const auto fichero = Ruta(b.fichero);
        const auto carpeta = CarpetaDe(fichero) / "BackUp";
        const auto antes = std::filesystem::file_size(fichero);
        const auto copia = CompactarEnSuSitio(fichero, {carpeta, "BD_PradalC", Fecha{46348, 3661}});
        QVERIFY(std::filesystem::file_size(copia) == antes &&
                std::filesystem::file_size(fichero) < antes / 2);
        b.c.Reabrir();
        QUEDA(b, "Count(*) AS N FROM T_Vacas", "10");
        b.c.Cerrar();
        std::filesystem::create_hard_link(fichero, carpeta / "alias.mdb");
        QuitarSegundosNombres(fichero, carpeta);
        QVERIFY(std::filesystem::exists(copia) && !std::filesystem::exists(carpeta / "alias.mdb"));
    }

    // A statement of the exchange has one term per farmer, of offices of any size.
    void CadenasDeGanaderos() {
        Base b;
        EnGrupo(b.c, [&] {
            for (int i = 1; i <= 3000; ++i)
                b.Poner("T_IPR", "Id_Ganadero", i == 2999 ? Valor() : Valor(double(i)));
        });
        for (const int n : {2, 50, 51, 500, 2500}) {
            QCOMPARE(b.Texto("SELECT Count(*) AS N FROM T_IPR WHERE " + Terminos("=", " OR ", 1, n)),
                     std::to_string(n));
            QCOMPARE(b.Texto("SELECT Count(*) AS N FROM T_IPR WHERE " + Terminos("<>", " AND ", 1, n)),
                     std::to_string(2999 - n)); // a Null is neither equal nor different
            QCOMPARE(b.Texto("SELECT Count(*) AS N FROM T_IPR WHERE Id_Ganadero > 3 AND (" +
                             Terminos("=", " OR ", 1, n) + ") AND NOT Id_Ganadero = 5"),
                     std::to_string(n < 3 ? 0 : n - 4));
        }
        QCOMPARE(b.c.Execute("DELETE FROM T_IPR WHERE " + Terminos("<>", " AND ", 1, 500)), 2499L);
    }
};

PRUEBA(PruebaCopias)
#include "PruebaCopias.moc"
