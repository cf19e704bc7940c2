#include "BaseDePrueba.h"

#include "store/Literales.h"
#include "store/Textos.h"

using namespace prueba;

// The dialect: every construct the program's statements are made of, run on rows, and what must be refused.
class PruebaSentencias : public QObject {
    Q_OBJECT

    static void Sembrar(Base& b) {
        b.Poner("T_Veterinarios", "Id_Veterinario=2, NombreVet=Eulalia, ApellidosVet=López, Usuario=elopez");
        b.Poner("T_Ganaderos", "Id_Ganadero=1, Nombre=Centro, TorosComun=Sí, Id_Veterinario=2");
        b.Poner("T_Ganaderos", "Id_Ganadero=12, Nombre=Ñisu, Id_Direccion=3, Apodo=d'Arriba");
        b.Poner("T_Ganaderos", "Id_Ganadero=57, Nombre=Nora, Id_Veterinario=2, FechaBaja=15/10/23");
        b.Poner("T_Ganaderos", "Id_Ganadero=58, Nombre=Óscar");
        b.Poner("T_Direcciones", "Id_Direccion=3, Id_GV=12, Localidad=Tineo");
        b.Poner("T_Vacas", "Id_Vaca=12001, Id_Ganadero=12, Crotal=ES0101, FechaDesecho=1/12/99");
        b.Poner("T_Vacas", "Id_Vaca=12002, Id_Ganadero=12, Crotal=ÑU0202, Nombre=Niña");
        b.Poner("T_Partos", "Id_Parto=1, Id_Vaca=12001, N_Parto=1, Año_Ref=1999, GDestete=900");
        b.Poner("T_Partos", "Id_Parto=2, Id_Vaca=12001, N_Parto=2, Año_Ref=2000, GDestete=1001");
    }

private Q_SLOTS:
    void Consultas_data() {
        Caso("case of names, capital Ñ", "SELECT id_vaca FROM t_partos WHERE AÑO_REF = 2000", "12001");
        Caso("prefix Not", "Select Id_Ganadero FROM T_Ganaderos WHERE not FechaBaja IS NULL", "57");
        Caso("is not null",
             "SELECT Id_Ganadero FROM T_Ganaderos WHERE Id_Veterinario is not null ORDER BY Id_Ganadero",
             "1/57");
        Caso("text without case, accents kept apart",
             "SELECT Id_Ganadero FROM T_Ganaderos WHERE TorosComun = 'SÍ'", "1");
        Caso("accents matter", "SELECT Id_Ganadero FROM T_Ganaderos WHERE TorosComun = 'Si'", "");
        Caso("spanish order", "SELECT Nombre FROM T_Ganaderos ORDER BY Nombre", "Centro/Nora/Ñisu/Óscar");
        Caso("descending", "SELECT FechaDesecho FROM T_Vacas ORDER BY FechaDesecho DESC", "01/12/99/-");
        Caso("like at the end, without case",
             "Select Id_Vaca, Crotal FROM T_Vacas WHERE Crotal LIKE '%u0202' ORDER BY Crotal",
             "12002|ÑU0202");
        Caso("like of ñ", "SELECT Id_Vaca FROM T_Vacas WHERE Crotal LIKE 'ñ%'", "12002");
        Caso("month-first date",
             "SELECT Id_Vaca FROM T_Vacas WHERE ((T_Vacas.FechaDesecho) Is Null Or "
             "(T_Vacas.FechaDesecho)>=#12/02/99#)",
             "12002");
        Caso("date itself counts", "SELECT Id_Vaca FROM T_Vacas WHERE FechaDesecho>=#12/1/1999#", "12001");
        Caso("odbc", "SELECT Id_Vaca FROM T_Vacas WHERE FechaDesecho = {ts '1999-12-01 00:00:00'}", "12001");
        Caso("a bang", "SELECT Id_Vaca FROM T_Vacas WHERE Year([T_Vacas]![FechaDesecho])>=1999", "12001");
        Caso("joined texts take Null as empty",
             "SELECT T_Veterinarios.NombreVet & ' ' & T_Veterinarios.ApellidosVet & chr(13) & '(' & "
             "T_Veterinarios.Concejo & ')' As NombreVet FROM T_Veterinarios",
             "Eulalia López\r()");
        Caso("number & text", "SELECT Id_Vaca & '/' & N_Parto AS C FROM T_Partos WHERE N_Parto>1", "12001/2");
        Caso("left join",
             "SELECT T_Ganaderos.Id_Ganadero, T_Veterinarios.NombreVet FROM T_Ganaderos LEFT JOIN "
             "T_Veterinarios ON T_Ganaderos.Id_Veterinario = T_Veterinarios.Id_Veterinario ORDER BY "
             "T_Veterinarios.NombreVet, T_Ganaderos.Id_Ganadero",
             "12|-/58|-/1|Eulalia/57|Eulalia");
        Caso("right join, two conditions",
             "SELECT T_Ganaderos.Nombre, T_Direcciones.Localidad FROM T_Direcciones RIGHT JOIN T_Ganaderos "
             "ON (T_Direcciones.Id_GV = T_Ganaderos.Id_Ganadero) AND (T_Direcciones.Id_Direccion = "
             "T_Ganaderos.Id_Direccion) WHERE Id_Ganadero is not null ORDER BY LOCALIDAD DESC, Id_Ganadero",
             "Ñisu|Tineo/Centro|-/Nora|-/Óscar|-");
        Caso("nested joins",
             "SELECT T_Ganaderos.Nombre FROM (T_Ganaderos LEFT JOIN T_Veterinarios ON "
             "T_Ganaderos.Id_Veterinario = T_Veterinarios.Id_Veterinario) LEFT JOIN T_Direcciones ON "
             "(T_Ganaderos.Id_Direccion = T_Direcciones.Id_Direccion) AND (T_Ganaderos.Id_Ganadero = "
             "T_Direcciones.Id_GV) WHERE Localidad = 'tineo'",
             "Ñisu");
        Caso("comma join",
             "SELECT T_Vacas.Id_Vaca FROM T_Vacas, T_Ganaderos WHERE T_Vacas.Id_Ganadero = "
             "T_Ganaderos.Id_Ganadero AND T_Ganaderos.Nombre = 'ñisu' ORDER BY Id_Vaca",
             "12001/12002");
        Caso("aggregates",
             "SELECT Avg(GDestete) AS Media , StDev(GDestete)  As Desv, Count(GDestete) As N FROM T_Partos",
             "950,5|71,4177848998413|2");
        Caso("empty aggregate", "SELECT Avg(IEPc) AS Media, Count(IEPc) As N FROM T_Cubriciones", "-|0");
        Caso("group, having, glued criterion",
             "SELECT Id_Vaca, Max(N_Parto) AS M FROM T_Partos GROUP BY Id_Vaca, Año_Ref HAVING "
             "(((T_Partos.N_Parto)>1) AND ((Año_Ref) Is Not Null))",
             "12001|2");
        Caso("one name twice",
             "SELECT T_Partos.Id_Vaca, T_Vacas.Id_Vaca FROM T_Vacas INNER JOIN T_Partos ON T_Vacas.Id_Vaca = "
             "T_Partos.Id_Vaca WHERE N_Parto=2",
             "12001|12001");
        Caso("stars of a join",
             "SELECT T_Direcciones.Localidad, T_Direcciones.* FROM T_Ganaderos INNER JOIN T_Direcciones ON "
             "T_Ganaderos.Id_Ganadero = T_Direcciones.Id_GV WHERE Id_GV <> 1",
             "Tineo|3|12|-|-|-|Tineo|-|-|-|-|-");
        Caso("alias in order",
             "SELECT Nombre AS Quien FROM T_Ganaderos WHERE Id_Ganadero > 50 ORDER BY Quien", "Nora/Óscar");
        Caso("yes/no by number", "SELECT Id_Cebo FROM T_Cebo WHERE Cambiado = 0", "");
        Caso("not equal chain",
             "SELECT Id_Ganadero FROM T_Ganaderos WHERE Id_Ganadero <> 1 AND Id_Ganadero <> 12 AND "
             "Id_Ganadero <> 57",
             "58");
        Caso("between", "SELECT Id_Parto FROM T_Partos WHERE GDestete Between 900 And 1000", "1");
    }
    void Consultas() {
        const auto [sentencia, esperado] = DelCaso<QString, QString>();
        Base b;
        Sembrar(b);
        QCOMPARE(Q(b.Texto(sentencia.toStdString())), esperado);
    }

    void Cambios() {
        Base b;
        Sembrar(b);
        b.Poner("T_Sementales", "Id_Semental=12001, NombreC=Nerón");
        b.Poner("T_Cubriciones", "Id_Vaca=12001, Año_Ref=2000");
        b.c.Execute("UPDATE T_Partos SET Id_Semental = 12001, Semental = 'viejo' WHERE N_Parto=1;");
        b.c.Execute("UPDATE T_Sementales INNER JOIN T_Partos ON T_Sementales.Id_Semental = "
                    "T_Partos.Id_Semental SET T_Partos.Semental = [T_Sementales].[NombreC]");
        QUEDA(b, "Semental FROM T_Partos ORDER BY N_Parto", "Nerón/-");

        // a number into a text column is the text of it; the same column then meets '0'
        b.c.Execute("UPDATE T_Cubriciones SET T_Cubriciones.DescCausaPPal = 0 WHERE "
                    "(((T_Cubriciones.DescCausaPPal) Is Null));");
        QCOMPARE(b.c.Execute("UPDATE T_Cubriciones SET DescCausaPpal= Null WHERE DescCausaPpal ='0'"), 1L);

        b.c.Execute("UPDATE T_Vacas set ObsControlRebaño = 'nota' , Chekeo = Null Where ID_Vaca = 12002");
        QUEDA(b, "OBSCONTROLREBAÑO FROM T_Vacas WHERE Id_Vaca=12002", "nota");
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
        b.Poner("T_Cubriciones", "Id_Vaca=1");
        QCOMPARE(b.Error("ALTER TABLE T_Cubriciones ADD COLUMN Desconocida DOUBLE"), 0L);
        QCOMPARE(b.Error("UPDATE T_Cubriciones SET Desconocida = 1"), 0L);
        QCOMPARE(
            b.Error("UPDATE T_Cubriciones SET T_Cubriciones.DemoraServIPR = [T_Cubriciones]![Desconocida]"),
            0L);
        QCOMPARE(b.Error("ALTER TABLE T_Cubriciones DROP COLUMN Desconocida"), 0L);
        QUEDA(b, "DemoraServIPR FROM T_Cubriciones", "1");
        QCOMPARE(b.Error("SELECT Desconocida FROM T_Cubriciones"), desconocida);
    }

    void Rechazos_data() {
        const long sintaxis = static_cast<long>(CodigoError::Sintaxis);
        const auto fila = [](const QString& s, long n) { Caso(s.left(60).toUtf8().constData(), s, n); };
        for (const auto& s :
             QString(
                 "SELECT|SELECT * FROM|SELECT Id_Vaca T_Vacas|SELECT * FROM T_Vacas WHERE|SELECT * FROM "
                 "T_Vacas WHERE Id_Vaca = |INSERT INTO T_Vacas VALUES (1)|DROP TABLE T_Vacas|PRAGMA "
                 "writable_schema=1|SELECT DISTINCT Nombre FROM T_Vacas|SELECT * FROM T_Vacas; DELETE FROM "
                 "T_Vacas|SELECT * FROM T_Vacas WHERE Nombre = 'x|SELECT * FROM T_Vacas WHERE FechaBaja = "
                 "#31/31/20#|SELECT * FROM T_Vacas WHERE FechaBaja = #12/31/20|SELECT * FROM [T_Vacas|SELECT "
                 "load_extension('x') FROM T_Vacas|SELECT * FROM T_Vacas WHERE Id_Vaca = ?|SELECT * FROM "
                 "T_Vacas -- x|SELECT Id_Ganadero FROM T_Vacas, T_Ganaderos|UPDATE T_Vacas SET Nombre|DELETE "
                 "T_Vacas|SELECT \"x\" FROM T_Vacas|SELECT * FROM T_Vacas WHERE 12abc = 1|SELECT * FROM "
                 "T_Vacas UNION SELECT * FROM T_Vacas|ALTER TABLE T_Vacas ADD COLUMN x BLOB")
                 .split(u'|'))
            fila(s, sintaxis);
        fila(u"SELECT * FROM T_Nada"_s, static_cast<long>(CodigoError::TablaDesconocida));
        fila(u"SELECT * FROM sqlite_schema"_s, static_cast<long>(CodigoError::TablaDesconocida));
        fila(u"SELECT * FROM _pastorix"_s, static_cast<long>(CodigoError::TablaDesconocida));
        fila(u"SELECT rowid FROM T_Vacas"_s, static_cast<long>(CodigoError::ColumnaDesconocida));
        fila(u"SELECT T_Partos.Id_Vaca FROM T_Vacas"_s, static_cast<long>(CodigoError::TablaDesconocida));
        fila(u"UPDATE T_Vacas SET Id_Ganadero = 'doce'"_s, static_cast<long>(CodigoError::TipoInadecuado));
        fila(u"SELECT Id_Vaca FROM T_Vacas WHERE "_s + QString(200, u'(') + u"1=1"_s + QString(200, u')'),
             sintaxis);
    }
    void Rechazos() {
        const auto [sentencia, numero] = DelCaso<QString, long>();
        Base b;
        b.Poner("T_Vacas", "Id_Vaca=1");
        QCOMPARE(b.Error(sentencia.toStdString()), numero);
        try {
            b.c.Execute(sentencia.toStdString());
            QFAIL("ran");
        } catch (const ErrorAlmacen& e) {
            QVERIFY2(QByteArray::fromStdString(e.Detalle()).contains(sentencia.toUtf8()), e.what());
            QVERIFY(!QByteArray(e.what()).contains(sentencia.toUtf8())); // for the detail alone
        }
        QUEDA(b, "Id_Vaca FROM T_Vacas", "1");
    }

    // Nobody types his way out of a literal: with an apostrophe the statement fails, whatever follows it.
    void Apostrofos() {
        Base b;
        b.Poner("Claves", "Usuario=CENTRAL, Clave=oficina, NIVEL=CENTRAL");
        const auto consulta = [](const std::string& usuario) {
            return "Select * FROM Claves WHERE Usuario = " + TextoSql(usuario);
        };
        QCOMPARE(b.Error(consulta("central")), 0L);
        for (const char* malo :
             {"' OR 'a'='a", "x' OR Usuario <> '", "CENTRAL' OR '1", "d'Arriba", "'", "''", "\x01"})
            QCOMPARE(b.Error(consulta(malo)), static_cast<long>(CodigoError::Sintaxis));
    }

    void Literales() {
        QCOMPARE(NumeroSql(1200044), "1200044"s);
        QCOMPARE(NumeroSql(2.5), "2.5"s);
        QCOMPARE(NumeroSql(-1e21), "-1000000000000000000000"s);
        QCOMPARE(FechaSql2(F("1/12/2000")), "#12/01/00#"s);
        QCOMPARE(FechaSql4(F("1/12/1930")), "#12/01/1930#"s);
        QCOMPARE(MomentoSql(F("5/3/2026")), "{ts '2026-03-05 00:00:00'}"s);
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
        QVERIFY(Parecido("%ñ_ü%", "xxÑaÜyy") && Parecido("%ab%ab", "abxabab") && !Parecido("a_c", "ac"));
        QVERIFY(Parecido("", ""));
    }
};

PRUEBA(PruebaSentencias)
#include "PruebaSentencias.moc"
