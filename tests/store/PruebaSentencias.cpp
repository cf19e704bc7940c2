#include "BaseDePrueba.h"
#include "prueba.h"

#include "store/Literales.h"
#include "store/Textos.h"

#include <sqlite3.h>

using namespace pastorix;
using prueba::Base;
using prueba::F;

// The dialect: every construct the program's statements are made of, run on rows, and what must be refused.
class PruebaSentencias : public QObject {
    Q_OBJECT

    static void Sembrar(Base& b) {
        b.Poner("T_Veterinarios", {{"Id_Veterinario", 2.0},
                                   {"NombreVet", "Eulalia"},
                                   {"ApellidosVet", "López"},
                                   {"Usuario", "elopez"}});
        b.Poner("T_Ganaderos",
                {{"Id_Ganadero", 1.0}, {"Nombre", "Centro"}, {"TorosComun", "Sí"}, {"Id_Veterinario", 2.0}});
        b.Poner("T_Ganaderos",
                {{"Id_Ganadero", 12.0}, {"Nombre", "Ñisu"}, {"Id_Direccion", 3.0}, {"Apodo", "d'Arriba"}});
        b.Poner("T_Ganaderos", {{"Id_Ganadero", 57.0},
                                {"Nombre", "Nora"},
                                {"Id_Veterinario", 2.0},
                                {"FechaBaja", F("15/10/23")}});
        b.Poner("T_Ganaderos", {{"Id_Ganadero", 58.0}, {"Nombre", "Óscar"}});
        b.Poner("T_Direcciones", {{"Id_Direccion", 3.0}, {"Id_GV", 12.0}, {"Localidad", "Tineo"}});
        b.Poner("T_Vacas", {{"Id_Vaca", 12001.0},
                            {"Id_Ganadero", 12.0},
                            {"Crotal", "ES0101"},
                            {"FechaDesecho", F("1/12/99")}});
        b.Poner("T_Vacas",
                {{"Id_Vaca", 12002.0}, {"Id_Ganadero", 12.0}, {"Crotal", "ÑU0202"}, {"Nombre", "Niña"}});
        b.Poner(
            "T_Partos",
            {{"Id_Parto", 1.0}, {"Id_Vaca", 12001.0}, {"N_Parto", 1}, {"Año_Ref", 1999}, {"GDestete", 900}});
        b.Poner(
            "T_Partos",
            {{"Id_Parto", 2.0}, {"Id_Vaca", 12001.0}, {"N_Parto", 2}, {"Año_Ref", 2000}, {"GDestete", 1001}});
    }

private Q_SLOTS:
    void Consultas_data() {
        QTest::addColumn<QString>("sentencia");
        QTest::addColumn<QString>("esperado");
        const auto fila = [](const char* nombre, const char* s, const char* e) {
            QTest::newRow(nombre) << QString::fromUtf8(s) << QString::fromUtf8(e);
        };
        fila("case of names, capital Ñ", "SELECT id_vaca FROM t_partos WHERE AÑO_REF = 2000", "12001");
        fila("prefix Not", "Select Id_Ganadero FROM T_Ganaderos WHERE not FechaBaja IS NULL", "57");
        fila("is not null",
             "SELECT Id_Ganadero FROM T_Ganaderos WHERE Id_Veterinario is not null ORDER BY Id_Ganadero",
             "1/57");
        fila("text without case, accents kept apart",
             "SELECT Id_Ganadero FROM T_Ganaderos WHERE TorosComun = 'SÍ'", "1");
        fila("accents matter", "SELECT Id_Ganadero FROM T_Ganaderos WHERE TorosComun = 'Si'", "");
        fila("spanish order, Null first", "SELECT Nombre FROM T_Ganaderos ORDER BY Nombre",
             "Centro/Nora/Ñisu/Óscar");
        fila("descending, Null last", "SELECT FechaDesecho FROM T_Vacas ORDER BY FechaDesecho DESC",
             "01/12/99/-");
        fila("like at the end, without case",
             "Select Id_Vaca, Crotal FROM T_Vacas WHERE Crotal LIKE '%u0202' ORDER BY Crotal",
             "12002|ÑU0202");
        fila("like of ñ", "SELECT Id_Vaca FROM T_Vacas WHERE Crotal LIKE 'ñ%'", "12002");
        fila("month-first date",
             "SELECT Id_Vaca FROM T_Vacas WHERE ((T_Vacas.FechaDesecho) Is Null Or "
             "(T_Vacas.FechaDesecho)>=#12/02/99#)",
             "12002");
        fila("date itself counts", "SELECT Id_Vaca FROM T_Vacas WHERE FechaDesecho>=#12/1/1999#", "12001");
        fila("odbc date", "SELECT Id_Vaca FROM T_Vacas WHERE FechaDesecho = {ts '1999-12-01 00:00:00'}",
             "12001");
        fila("year and bang", "SELECT Id_Vaca FROM T_Vacas WHERE Year([T_Vacas]![FechaDesecho])>=1999",
             "12001");
        fila("joined texts take Null as empty",
             "SELECT T_Veterinarios.NombreVet & ' ' & T_Veterinarios.ApellidosVet & chr(13) & '(' & "
             "T_Veterinarios.Concejo & ')' As "
             "NombreVet FROM T_Veterinarios",
             "Eulalia López\r()");
        fila("number joined to text", "SELECT Id_Vaca & '/' & N_Parto AS C FROM T_Partos WHERE N_Parto>1",
             "12001/2");
        fila("left join",
             "SELECT T_Ganaderos.Id_Ganadero, T_Veterinarios.NombreVet FROM T_Ganaderos LEFT JOIN "
             "T_Veterinarios ON "
             "T_Ganaderos.Id_Veterinario = T_Veterinarios.Id_Veterinario ORDER BY T_Veterinarios.NombreVet, "
             "T_Ganaderos.Id_Ganadero",
             "12|-/58|-/1|Eulalia/57|Eulalia");
        fila(
            "right join, two conditions",
            "SELECT T_Ganaderos.Nombre, T_Direcciones.Localidad FROM T_Direcciones RIGHT JOIN T_Ganaderos ON "
            "(T_Direcciones.Id_GV = T_Ganaderos.Id_Ganadero) AND (T_Direcciones.Id_Direccion = "
            "T_Ganaderos.Id_Direccion) WHERE "
            "Id_Ganadero is not null ORDER BY LOCALIDAD DESC, Id_Ganadero",
            "Ñisu|Tineo/Centro|-/Nora|-/Óscar|-");
        fila("nested joins",
             "SELECT T_Ganaderos.Nombre FROM (T_Ganaderos LEFT JOIN T_Veterinarios ON "
             "T_Ganaderos.Id_Veterinario = "
             "T_Veterinarios.Id_Veterinario) LEFT JOIN T_Direcciones ON (T_Ganaderos.Id_Direccion = "
             "T_Direcciones.Id_Direccion) AND "
             "(T_Ganaderos.Id_Ganadero = T_Direcciones.Id_GV) WHERE Localidad = 'tineo'",
             "Ñisu");
        fila("comma join",
             "SELECT T_Vacas.Id_Vaca FROM T_Vacas, T_Ganaderos WHERE T_Vacas.Id_Ganadero = "
             "T_Ganaderos.Id_Ganadero AND "
             "T_Ganaderos.Nombre = 'ñisu' ORDER BY Id_Vaca",
             "12001/12002");
        fila("aggregates",
             "SELECT Avg(GDestete) AS Media , StDev(GDestete)  As Desv, Count(GDestete) As N FROM T_Partos",
             "950,5|71,4177848998413|2");
        fila("empty aggregate", "SELECT Avg(IEPc) AS Media, Count(IEPc) As N FROM T_Cubriciones", "-|0");
        fila("group, having, glued criterion",
             "SELECT Id_Vaca, Max(N_Parto) AS M FROM T_Partos GROUP BY Id_Vaca, Año_Ref HAVING "
             "(((T_Partos.N_Parto)>1) AND ((Año_Ref) Is Not Null))",
             "12001|2");
        fila("one name twice",
             "SELECT T_Partos.Id_Vaca, T_Vacas.Id_Vaca FROM T_Vacas INNER JOIN T_Partos ON T_Vacas.Id_Vaca = "
             "T_Partos.Id_Vaca WHERE N_Parto=2",
             "12001|12001");
        fila("stars of a join",
             "SELECT T_Direcciones.Localidad, T_Direcciones.* FROM T_Ganaderos INNER JOIN T_Direcciones ON "
             "T_Ganaderos.Id_Ganadero = T_Direcciones.Id_GV WHERE Id_GV <> 1",
             "Tineo|3|12|-|-|-|Tineo|-|-|-|-|-");
        fila("alias in order",
             "SELECT Nombre AS Quien FROM T_Ganaderos WHERE Id_Ganadero > 50 ORDER BY Quien", "Nora/Óscar");
        fila("yes/no by number", "SELECT Id_Cebo FROM T_Cebo WHERE Cambiado = 0", "");
        fila("not equal chain",
             "SELECT Id_Ganadero FROM T_Ganaderos WHERE Id_Ganadero <> 1 AND Id_Ganadero <> 12 AND "
             "Id_Ganadero <> 57",
             "58");
        fila("between", "SELECT Id_Parto FROM T_Partos WHERE GDestete Between 900 And 1000", "1");
    }
    void Consultas() {
        QFETCH(QString, sentencia);
        QFETCH(QString, esperado);
        Base b;
        Sembrar(b);
        QCOMPARE(QString::fromStdString(b.Texto(sentencia.toStdString())), esperado);
    }

    void Cambios() {
        Base b;
        Sembrar(b);
        b.Poner("T_Sementales", {{"Id_Semental", 12001.0}, {"NombreC", "Nerón"}});
        b.Poner("T_Cubriciones", {{"Id_Vaca", 12001.0}, {"Año_Ref", 2000}});
        b.c.Execute("UPDATE T_Partos SET Id_Semental = 12001, Semental = 'viejo' WHERE N_Parto=1;");
        b.c.Execute("UPDATE T_Sementales INNER JOIN T_Partos ON T_Sementales.Id_Semental = "
                    "T_Partos.Id_Semental SET T_Partos.Semental = "
                    "[T_Sementales].[NombreC]");
        QCOMPARE(b.Texto("SELECT Semental FROM T_Partos ORDER BY N_Parto"), std::string("Nerón/-"));

        // a number into a text column is the text of it; the same column then meets '0'
        b.c.Execute("UPDATE T_Cubriciones SET T_Cubriciones.DescCausaPPal = 0 WHERE "
                    "(((T_Cubriciones.DescCausaPPal) Is Null));");
        QCOMPARE(b.c.Execute("UPDATE T_Cubriciones SET DescCausaPpal= Null WHERE DescCausaPpal ='0'"), 1L);

        b.c.Execute("UPDATE T_Vacas set ObsControlRebaño = 'nota' , Chekeo = Null Where ID_Vaca = 12002");
        QCOMPARE(b.Texto("SELECT OBSCONTROLREBAÑO FROM T_Vacas WHERE Id_Vaca=12002"), std::string("nota"));
        QCOMPARE(b.c.Execute("DELETE * FROM T_Partos WHERE (((N_PARTO)=1))"), 1L);
        QCOMPARE(b.c.Execute("DELETE FROM T_Partos"), 1L);
    }

    void Estructura() {
        Base b;
        const long repetida = static_cast<long>(CodigoError::Restriccion);
        const long desconocida = static_cast<long>(CodigoError::ColumnaDesconocida);
        QCOMPARE(b.Error("ALTER TABLE T_Cubriciones ADD COLUMN DemoraServIPR DOUBLE"), repetida);
        QCOMPARE(b.Error("ALTER TABLE T_Cubriciones DROP COLUMN Desconocida"), desconocida);
        QCOMPARE(
            b.Error("UPDATE T_Cubriciones SET T_Cubriciones.DemoraServIPR = [T_Cubriciones]![Desconocida]"),
            desconocida);
        b.Poner("T_Cubriciones", {{"Id_Vaca", 1.0}});
        QCOMPARE(b.Error("ALTER TABLE T_Cubriciones ADD COLUMN Desconocida DOUBLE"), 0L);
        QCOMPARE(b.Error("UPDATE T_Cubriciones SET Desconocida = 1"), 0L);
        QCOMPARE(
            b.Error("UPDATE T_Cubriciones SET T_Cubriciones.DemoraServIPR = [T_Cubriciones]![Desconocida]"),
            0L);
        QCOMPARE(b.Error("ALTER TABLE T_Cubriciones DROP COLUMN Desconocida"), 0L);
        QCOMPARE(b.Texto("SELECT DemoraServIPR FROM T_Cubriciones"), std::string("1"));
        QCOMPARE(b.Error("SELECT Desconocida FROM T_Cubriciones"), desconocida);
    }

    void Rechazos_data() {
        QTest::addColumn<QString>("sentencia");
        QTest::addColumn<long>("numero");
        const long sintaxis = static_cast<long>(CodigoError::Sintaxis);
        const auto fila = [](const QString& s, long n) {
            QTest::newRow(s.left(60).toUtf8().constData()) << s << n;
        };
        for (const char* s : {"SELECT",
                              "SELECT * FROM",
                              "SELECT Id_Vaca T_Vacas",
                              "SELECT * FROM T_Vacas WHERE",
                              "SELECT * FROM T_Vacas WHERE Id_Vaca = ",
                              "INSERT INTO T_Vacas VALUES (1)",
                              "DROP TABLE T_Vacas",
                              "PRAGMA writable_schema=1",
                              "SELECT DISTINCT Nombre FROM T_Vacas",
                              "SELECT * FROM T_Vacas; DELETE FROM T_Vacas",
                              "SELECT * FROM T_Vacas WHERE Nombre = 'x",
                              "SELECT * FROM T_Vacas WHERE FechaBaja = #31/31/20#",
                              "SELECT * FROM T_Vacas WHERE FechaBaja = #12/31/20",
                              "SELECT * FROM [T_Vacas",
                              "SELECT load_extension('x') FROM T_Vacas",
                              "SELECT * FROM T_Vacas WHERE Id_Vaca = ?",
                              "SELECT * FROM T_Vacas -- x",
                              "SELECT Id_Ganadero FROM T_Vacas, T_Ganaderos",
                              "UPDATE T_Vacas SET Nombre",
                              "DELETE T_Vacas",
                              "SELECT \"x\" FROM T_Vacas",
                              "SELECT * FROM T_Vacas WHERE 12abc = 1",
                              "SELECT * FROM T_Vacas UNION SELECT * FROM T_Vacas",
                              "ALTER TABLE T_Vacas ADD COLUMN x BLOB"})
            fila(QString::fromUtf8(s), sintaxis);
        fila(QStringLiteral("SELECT * FROM T_Nada"), static_cast<long>(CodigoError::TablaDesconocida));
        fila(QStringLiteral("SELECT * FROM sqlite_schema"), static_cast<long>(CodigoError::TablaDesconocida));
        fila(QStringLiteral("SELECT * FROM _pastorix"), static_cast<long>(CodigoError::TablaDesconocida));
        fila(QStringLiteral("SELECT rowid FROM T_Vacas"), static_cast<long>(CodigoError::ColumnaDesconocida));
        fila(QStringLiteral("SELECT T_Partos.Id_Vaca FROM T_Vacas"),
             static_cast<long>(CodigoError::TablaDesconocida));
        fila(QStringLiteral("UPDATE T_Vacas SET Id_Ganadero = 'doce'"),
             static_cast<long>(CodigoError::TipoInadecuado));
        fila(QStringLiteral("SELECT Id_Vaca FROM T_Vacas WHERE ") + QString(200, QLatin1Char('(')) +
                 QStringLiteral("1=1") + QString(200, QLatin1Char(')')),
             sintaxis);
    }
    void Rechazos() {
        QFETCH(QString, sentencia);
        QFETCH(long, numero);
        Base b;
        b.Poner("T_Vacas", {{"Id_Vaca", 1.0}});
        QCOMPARE(b.Error(sentencia.toStdString()), numero);
        try {
            b.c.Execute(sentencia.toStdString());
            QFAIL("ran");
        } catch (const ErrorAlmacen& e) {
            QVERIFY2(QByteArray::fromStdString(e.Detalle()).contains(sentencia.toUtf8()), e.what());
            QVERIFY(!QByteArray(e.what()).contains(sentencia.toUtf8())); // for the detail alone
        }
        QCOMPARE(b.Texto("SELECT Id_Vaca FROM T_Vacas"), std::string("1"));
    }

    // Nobody types his way out of a literal: with an apostrophe the statement fails, whatever follows it.
    void Apostrofos() {
        Base b;
        b.Poner("Claves", {{"Usuario", "CENTRAL"}, {"Clave", "oficina"}, {"NIVEL", "CENTRAL"}});
        const auto consulta = [](const std::string& usuario) {
            return "Select * FROM Claves WHERE Usuario = " + TextoSql(usuario);
        };
        QCOMPARE(b.Error(consulta("central")), 0L);
        for (const char* malo :
             {"' OR 'a'='a", "x' OR Usuario <> '", "CENTRAL' OR '1", "d'Arriba", "'", "''", "\x01"})
            QCOMPARE(b.Error(consulta(malo)), static_cast<long>(CodigoError::Sintaxis));
        try {
            b.Texto(consulta("d'Arriba"));
        } catch (const ErrorAlmacen& e) {
            QVERIFY(QByteArray::fromStdString(e.Detalle()).contains("d'Arriba"));
        }
    }

    void Literales() {
        QCOMPARE(NumeroSql(1200044), std::string("1200044"));
        QCOMPARE(NumeroSql(2.5), std::string("2.5"));
        QCOMPARE(NumeroSql(-1e21), std::string("-1000000000000000000000"));
        QCOMPARE(FechaSql2(F("1/12/2000")), std::string("#12/01/00#"));
        QCOMPARE(FechaSql4(F("1/12/1930")), std::string("#12/01/1930#"));
        QCOMPARE(MomentoSql(F("5/3/2026")), std::string("{ts '2026-03-05 00:00:00'}"));
    }

    // The features of SQLite that the translation relies on.
    void Sqlite() {
        QVERIFY(sqlite3_libversion_number() >= 3039000); // RIGHT JOIN
        Base b;
        int valor = 1;
        sqlite3_db_config(b.c.Manejador(), SQLITE_DBCONFIG_DQS_DML, -1, &valor);
        QCOMPARE(valor, 0);
        sqlite3_db_config(b.c.Manejador(), SQLITE_DBCONFIG_DEFENSIVE, -1, &valor);
        QCOMPARE(valor, 1);
    }

    void Orden() {
        const char* orden[] = {" a",   "1",  "12", "2",  "a", "á",    "B",    "cana", "canz",
                               "caña", "nz", "ñ",  "ñu", "o", "papa", "papá", "z"};
        for (std::size_t i = 0; i < std::size(orden); ++i)
            for (std::size_t j = 0; j < std::size(orden); ++j) {
                const int c = CompararEspañol(orden[i], orden[j]);
                QCOMPARE(c < 0 ? -1 : c > 0, i < j ? -1 : i > j);
            }
        QCOMPARE(CompararEspañol("ÁRBOL Ñ", "árbol ñ"), 0);
        QVERIFY(Parecido("%ñ_ü%", "xxÑaÜyy"));
        QVERIFY(Parecido("%ab%ab", "abxabab"));
        QVERIFY(!Parecido("a_c", "ac"));
        QVERIFY(Parecido("", ""));
    }
};

PRUEBA(PruebaSentencias)
#include "PruebaSentencias.moc"
