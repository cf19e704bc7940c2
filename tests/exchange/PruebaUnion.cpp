#include "Filas.h"

#include "exchange/datos/Comparacion.h"
#include "exchange/datos/ExportarPaquete.h"
#include "exchange/datos/FundirPaquete.h"
#include "exchange/datos/UnirVeterinario.h"

using namespace prueba;

// A veterinarian with keys of his own joins; and what can be told before a package is taken.
class PruebaUnion : public QObject {
    Q_OBJECT

    // A station of its own: one veterinarian besides the reserved one, farmers 1 (shared), 2 and 14.
    struct Estacion : Base {
        Estacion() {
            Sql(c, "INSERT INTO T_Veterinarios (Id_Veterinario, NombreVet, ApellidosVet, Usuario, "
                   "Id_Direccion) VALUES (2, 'Ángeles', 'Muñiz', 'am', 3), (1, 'VALNOR', '', 'VALNOR', "
                   "NULL);INSERT INTO T_Ganaderos (Id_Ganadero, Nombre, Apellidos, TorosComun, Id_Direccion) "
                   "VALUES (1, 'Centro', '', 'Sí', NULL), (2, 'Rosa', 'Díaz', 'No', 1), (14, 'Luis', 'Gil', "
                   "'No', NULL);INSERT INTO T_Direcciones (Id_Direccion, Id_GV, Direccion) VALUES (1, 2, 'de "
                   "Rosa'), (3, 2, 'de Ángeles');INSERT INTO T_Vacas (Id_Vaca, Id_Ganadero, NombreC) VALUES "
                   "(2007, 2, 'A'), (2001, 2, 'B'), (14001, 14, 'C');INSERT INTO T_Partos (Id_Parto, "
                   "Id_Vaca, N_Parto, Id_Semental, Semental, Id_Cebo) VALUES (1, 2001, 1, 2001, 'Sultán', "
                   "1), (2, 2007, 1, 1, 'Cuco', NULL);INSERT INTO T_Cebo (Id_Ganadero, Id_Cebo) VALUES (2, "
                   "1);INSERT INTO T_Sementales (Id_Semental, Id_Ganadero, NombreC) VALUES (1, 1, 'Cuco'), "
                   "(2001, 2, 'Sultán');INSERT INTO T_PatologiaSemR (Id_Animal, ANatural) VALUES (2001, "
                   "2025);INSERT INTO T_MAMIVACU (Id_Ganadero, Id_Vaca, AñoNat) VALUES (2, 2007, 2025), (14, "
                   "2007, 2025);INSERT INTO T_IPR (Id_Ganadero, AñoNatural) VALUES (2, 2025), (14, 2025)");
        }
        std::vector<GanaderoQueEntra> Ganaderos(const std::map<std::string, std::string>& codigos) {
            auto lista = GanaderosPorCodificar(c);
            for (auto& g : lista)
                if (const auto it = codigos.find(g.codigo); it != codigos.end())
                    g.central = it->second;
            return lista;
        }
    };

private Q_SLOTS:
    void ElVeterinario_data() {
        // antes: at the centre
        const auto codigo = u"El código: %1 ya está asignado, debe cambiarlo por otro."_s;
        const auto usuario = u"El usuario: %1 ya está asignado, debe cambiarlo por otro."_s;
        const auto resto = u"INSERT INTO T_Veterinarios (Id_Veterinario, NombreVet, "
                           "ApellidosVet, Usuario) VALUES (7, 'Ángeles', 'Muñiz', 'angeles')"_s;
        Caso("free", "", "7", "angeles", "");
        Caso("code taken", "", "3", "angeles", codigo.arg(3));
        Caso("login taken, other case", "", "7", "SVALDES", usuario.arg("SVALDES"));
        Caso("left by a join that failed", resto, "7", "angeles", "");
        Caso("the same code, another login", resto, "7", "otra", codigo.arg(7));
        Caso("the same login, another code", resto, "8", "angeles", usuario.arg("angeles"));
        Caso("a namesake with farmers",
             resto + u"; UPDATE T_Ganaderos SET Id_Veterinario = 7 WHERE Id_Ganadero = 12"_s, "7", "angeles",
             codigo.arg(7));
    }
    void ElVeterinario() {
        const auto [antes, codigo, usuario, objecion] = DelCaso<QString, QString, QString, QString>();
        Oficina central;
        if (!antes.isEmpty())
            Sql(central.c, antes.toStdString());
        Estacion e;
        const auto lista = VeterinariosDelPaquete(e.c);
        QCOMPARE(lista.size(), 1U);
        QCOMPARE(Q(ObjecionAlVeterinario(central.c, lista[0], codigo.toStdString(), usuario.toStdString())),
                 objecion);
    }

    void LosGanaderos_data() {
        Caso("one of them", "70", "", "");
        Caso("none", "", "",
             "Debe indicar la nueva codificación para los ganaderos que desea incluir en la Base Central");
        Caso("one of the centre's", "57", "", "El código: 57 no es válido, ya existe en la Base Central");
        Caso("one of the package's", "14", "71",
             "El código: 14 no es válido, no mantendría la integridad de la base de datos");
        Caso("twice", "70", "070",
             "El código: 070 no es válido, no mantendría la integridad de la base de datos");
    }
    void LosGanaderos() {
        const auto [rosa, luis, objecion] = DelCaso<QString, QString, QString>();
        Oficina central;
        Estacion e;
        QCOMPARE(Q(ObjecionALosGanaderos(
                     central.c, e.c, e.Ganaderos({{"2", rosa.toStdString()}, {"14", luis.toStdString()}}))),
                 objecion);
    }

    void LaRenumeracion() {
        Oficina central;
        Estacion e;
        RenumerarVeterinario(e.c, 2, "7", "angeles");
        QUEDA(e.c, "Id_Veterinario, Usuario FROM T_Veterinarios", "7|angeles/7|angeles");
        QUEDA(e.c, "Id_Direccion, Id_GV FROM T_Direcciones ORDER BY Id_Direccion",
              "1|2/3|7"); // his, not Rosa's
        RenumerarGanaderos(e.c, e.Ganaderos({{"2", "70"}}));
        const auto en = [&](const char* consulta) { return Filas(e.c, consulta); };
        QCOMPARE(en("SELECT NombreVet FROM T_Veterinarios"), "Ángeles"s);
        QCOMPARE(en("SELECT Id_Ganadero, Id_Veterinario FROM T_Ganaderos ORDER BY Id_Ganadero"), "1|7/70|7"s);
        QCOMPARE(en("SELECT Id_Vaca, NombreC FROM T_Vacas ORDER BY Id_Vaca"), "14001|C/70001|B/70002|A"s);
        QCOMPARE(en("SELECT Id_Semental, NombreC FROM T_Sementales"), "70001|Sultán"s);
        QCOMPARE(en("SELECT Id_Animal FROM T_PatologiaSemR"), "70001"s);
        QCOMPARE(en("SELECT Id_Vaca, Id_Semental, Id_Cebo FROM T_Partos ORDER BY Id_Vaca"),
                 "70001|2001|1/70002|1|-"s); // old bull's number
        QCOMPARE(en("SELECT Id_Ganadero FROM T_Cebo"), "70"s);
        QCOMPARE(en("SELECT Id_Ganadero, Id_Vaca FROM T_MAMIVACU ORDER BY Id_Ganadero"), "14|2007/70|70002"s);
        QCOMPARE(en("SELECT Id_Ganadero FROM T_IPR ORDER BY Id_Ganadero"),
                 "14/70"s); // left out: under the old code
        QCOMPARE(en("SELECT Id_GV FROM T_Direcciones ORDER BY Id_Direccion"), "70/7"s);
        for (int i = 0; i < 2; ++i) // a second try finds him there
            DarDeAltaVeterinario(central.c, e.c);
        QUEDA(central.c, "Usuario, Id_Direccion FROM T_Veterinarios WHERE Id_Veterinario = 7", "angeles|3");
        QUEDA(central.c, "Direccion FROM T_Direcciones WHERE Id_GV = 7", "de Ángeles");
        FundirPaquete(e.c, central.c, "VETERINARIO", [](int) {});
        const auto toros = TorosConOtroNombre(e.c, central.c);
        QCOMPARE(toros.size(), 1U); // 1 is the same bull here and there
        QCOMPARE(Texto(toros[0]), "Toro 2001: Sultán → (nadie) (0 servicios, 1 parto)"s);
    }

    // The address is that of the first row, whoever's it is: a reserved row that comes first has none to give.
    void LaDireccionDeLaPrimeraFila() {
        Estacion e;
        Sql(e.c, "UPDATE T_Veterinarios SET Id_Direccion = NULL WHERE Id_Veterinario = 2; UPDATE "
                 "T_Veterinarios SET Id_Direccion = 3 WHERE Id_Veterinario = 1");
        RenumerarVeterinario(e.c, 2, "7", "angeles");
        QUEDA(e.c, "Id_GV FROM T_Direcciones ORDER BY Id_Direccion", "2/2");
    }

    void ClavesQueSeRepetirian() {
        Oficina central;
        Estacion e;
        QVERIFY(ClavesRepetidas(central.c, e.c, e.Ganaderos({{"2", "70"}})).empty());
        Sql(central.c,
            "INSERT INTO T_Vacas (Id_Vaca, Id_Ganadero, NombreC) VALUES (70002, 12, 'La de aquí')");
        Sql(e.c,
            "INSERT INTO T_Sementales (Id_Semental, Id_Ganadero, NombreC) VALUES (70001, 14, 'El de Luis')");
        const auto faltas = ClavesRepetidas(central.c, e.c, e.Ganaderos({{"2", "70"}}));
        QCOMPARE(faltas.size(), 2U);
        QCOMPARE(faltas[0], "La vaca 2007 (A) de Rosa Díaz recibiría la clave 70002, que ya es "
                            "de La de aquí en la Base Central"s);
        QVERIFY(faltas[1].find("El de Luis") != std::string::npos);
    }

    void CuatroCifras() {
        Estacion e;
        std::string sql = "DELETE FROM T_Vacas;";
        for (int i = 1; i <= 1000; ++i)
            sql +=
                "INSERT INTO T_Vacas (Id_Vaca, Id_Ganadero) VALUES (" + std::to_string(20000 + i) + ", 2);";
        Sql(e.c, sql);
        RenumerarGanaderos(e.c, e.Ganaderos({{"2", "70"}}));
        QUEDA(e.c, "Max(Id_Vaca) AS N FROM T_Vacas", "701000");
        QUEDA(e.c, "Id_Vaca FROM T_Vacas WHERE Id_Vaca = 70999", "70999");
    }

    // What is told before a package is taken: `cambio` is made in it, or at the centre.
    void LosAvisos_data() {
        // aviso: "" none; "!" before a clash
        Caso("nothing", "", "", "");
        Caso("a cow is gone", "DELETE FROM T_Vacas WHERE Id_Vaca = 12002", "", "Desaparece 1 vaca");
        Caso("a calving is gone", "DELETE FROM T_Partos WHERE Id_Vaca = 12001", "", "Desaparece 1 parto");
        Caso("older", "", "UPDATE Historial SET Fecha = '2026-11-20 10:00:01' WHERE Equipo = 'elopez'",
             "El fichero es más antiguo");
        Caso("a farmer is missing", "",
             "INSERT INTO T_Ganaderos (Id_Ganadero, Nombre, Apellidos, TorosComun, Id_Veterinario) VALUES "
             "(60, 'Falta', 'Él', 'No', 2)",
             "No vienen en el fichero, y se quedan como están: Falta Él");
        Caso("rows of others", "INSERT INTO T_IPR (Id_Ganadero, AñoNatural) VALUES (57, 2024)", "",
             "El fichero trae registros de ganaderos que no son suyos");
        Caso("and their keys are taken",
             "INSERT INTO T_Cebo (Id_Ganadero, Id_Cebo, Saneamiento) VALUES (57, 2, 'ES1')", "",
             "!T_Cebo, clave 57/2");
        Caso("a cow's key belongs to somebody else",
             "INSERT INTO T_Vacas (Id_Vaca, Id_Ganadero, NombreC) VALUES (57001, 12, 'Su Rubia')", "",
             "!T_Vacas, clave 57001: aquí, Rubia; en el fichero, Su Rubia");
        Caso("a bull's key", "INSERT INTO T_Sementales (Id_Semental, Id_Ganadero) VALUES (1, 12)", "",
             "!T_Sementales, clave 1");
        Caso("an address that nobody owns", "", "DELETE FROM T_Ganaderos WHERE Id_Ganadero = 12",
             "!T_Direcciones, clave 1/12");
        Caso("a key twice in the package",
             "DROP INDEX clave_T_Cebo; INSERT INTO T_Cebo (Id_Ganadero, Id_Cebo) VALUES (12, 1)", "",
             "!T_Cebo, clave 12/1");
    }
    void LosAvisos() {
        const auto [enPaquete, enCentral, aviso] = DelCaso<QString, QString, QString>();
        Oficina central, p;
        ReducirAPaquete(p.c, "elopez", "CENTRAL", [](int) {});
        Sql(p.c, "DELETE FROM T_Vacas WHERE Id_Ganadero <> 12 OR Id_Ganadero IS NULL; DELETE FROM T_IPR "
                 "WHERE Id_Ganadero <> 12 OR Id_Ganadero IS NULL; DELETE FROM T_MAMIVACU WHERE Id_Ganadero "
                 "IS NULL;DELETE FROM T_Sementales WHERE Id_Semental = 1; INSERT INTO Historial VALUES "
                 "('elopez', '2026-11-20 10:00:00', 'y')");
        for (const auto& [b, sql] : {std::pair{&p.c, enPaquete}, std::pair{&central.c, enCentral}})
            if (!sql.isEmpty())
                Sql(*b, sql.toStdString());
        const auto c = ComprobarFusion(central.c, p.c, "elopez");
        const auto& lista = aviso.startsWith('!') ? c.choques : c.avisos;
        QString todo;
        for (const auto* l : {&c.avisos, &c.choques})
            for (const auto& x : *l)
                todo += Q(x) + u'\n';
        const auto buscado = aviso.mid(aviso.startsWith('!') ? 1 : 0);
        QVERIFY2(lista.size() == (aviso.isEmpty() ? 0U : 1U) && todo.contains(buscado), qPrintable(todo));
        QVERIFY2(!aviso.isEmpty() || todo.isEmpty(), qPrintable(todo));
        // what is told to clash does, and nothing else
        bool fallo = false;
        try {
            FundirPaquete(p.c, central.c, "elopez", [](int) {});
        } catch (const ErrorAlmacen& e) {
            fallo = e.Codigo() == CodigoError::Restriccion;
        }
        QCOMPARE(fallo, !c.choques.empty());
    }

    void LaComparacion() {
        Oficina central, p;
        ReducirAPaquete(p.c, "elopez", "CENTRAL", [](int) {});
        Sql(p.c, "UPDATE T_Vacas SET NombreC = 'Morica', FechaNac = '2020-01-02' WHERE Id_Vaca = 12001; "
                 "DELETE FROM T_Mamitis WHERE Id_Vaca = 12001; INSERT INTO T_Cebo (Id_Ganadero, Id_Cebo) "
                 "VALUES (12, 2);UPDATE T_Vacas SET NombreC = 'x' WHERE Id_Vaca = 40001");
        const auto c = CompararFusion(central.c, p.c, "elopez");
        QVERIFY(c.vienen == 1 && c.seVan == 1 && c.cambian == 1); // 40 is none of the package's farmers
        const auto lineas = Lineas(c);
        const auto hay = [&](const char* linea) {
            return std::count(lineas.begin(), lineas.end(), linea) == 1;
        };
        QVERIFY(hay("Nicolás Suárez (12)"));
        QVERIFY(hay("    T_Vacas 12001: FechaNac «» → «02/01/20» NombreC «Mora» → «Morica»") ||
                hay("    T_Vacas 12001: NombreC «Mora» → «Morica» FechaNac «» → «02/01/20»"));
        QVERIFY(hay("    T_Mamitis 12001/1: se va") && hay("    T_Cebo 2: viene"));
        const auto todo = CompararReemplazo(central.c, p.c);
        QVERIFY(todo.seVan > 5 && todo.avisos.size() == 1 && CompararReemplazo(p.c, p.c).avisos.empty());
        QVERIFY(todo.avisos[0].ends_with("historial: 20/11/2026 10:00:00")); // whoever wrote it
    }

    // Repeated rows count as often as they stand there; Null, numbers and texts that read alike are not the same.
    void FilasRepetidas() {
        Base a, b;
        Sql(a.c, "INSERT INTO X_Temp (C1, N1) VALUES ('r', 1), ('r', 1), ('', 2), (NULL, 3)");
        Sql(b.c, "INSERT INTO X_Temp (C1, N1) VALUES ('r', 1), (NULL, 2), (NULL, 3)");
        const auto d = CompararTabla(a.c, b.c, "X_Temp", {"N1"});
        QVERIFY(d.iguales == 2 && d.filas.size() == 2);
        const auto solo = CompararTabla(a.c, b.c, "X_Temp", {"N1"}, "N1", {3.0});
        QVERIFY(solo.iguales == 1 && solo.filas.empty());
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, CompararTabla(a.c, b.c, "T_Nada", {}));
    }
};

PRUEBA(PruebaUnion)
#include "PruebaUnion.moc"
