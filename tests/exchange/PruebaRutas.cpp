#include "Filas.h"

#include "exchange/datos/BasesEnteras.h"
#include "exchange/datos/CatalogoDeToros.h"
#include "exchange/datos/ExportarPaquete.h"
#include "exchange/datos/FundirPaquete.h"
#include "exchange/datos/Historial.h"
#include "exchange/datos/PasarGanadero.h"

using namespace prueba;

// What each route leaves, to the row.
class PruebaRutas : public QObject {
    Q_OBJECT

    static const Progreso& Callado() {
        static const Progreso p = [](int) {};
        return p;
    }
    static std::string Fallo(const std::function<void()>& f) {
        try {
            f();
        } catch (const std::exception& e) {
            return e.what();
        }
        return {};
    }
    // A package that elopez has worked on: the office's export, with the changes of a station.
    struct DeVuelta : Oficina {
        DeVuelta() {
            ReducirAPaquete(c, "elopez", "CENTRAL", Callado());
            Sql(c, "UPDATE T_Vacas SET NombreC = 'Morica' WHERE Id_Vaca = 12001; DELETE FROM T_Vacas WHERE "
                   "Id_Vaca IN (12002, 99, 40001);INSERT INTO T_Vacas (Id_Vaca, Id_Ganadero, NombreC) VALUES "
                   "(12003, 12, 'Nueva');INSERT INTO T_Partos (Id_Parto, Id_Vaca, N_Parto) VALUES (1, 12003, "
                   "1);UPDATE T_Sementales SET NombreC = 'Otro' WHERE Id_Semental = 1;INSERT INTO "
                   "T_Sementales (Id_Semental, Id_Ganadero, NombreC) VALUES (40901, 40, 'De Ana');UPDATE "
                   "T_Ganaderos SET Apodo = 'El Nico' WHERE Id_Ganadero = 12;UPDATE T_Direcciones SET "
                   "Direccion = 'Calle nueva' WHERE Id_GV = 12;DELETE FROM Historial; INSERT INTO Historial "
                   "VALUES ('elopez', '2026-11-21 08:00:00', 'w'), ('otro', NULL, 'v')");
        }
    };

private Q_SLOTS:
    void LoQueQuedaEnUnPaquete_data() {
        const auto fila = [](const char* tabla, const char* columna, const char* quedan) {
            Caso(tabla, u"SELECT %1 FROM %2 ORDER BY %1"_s.arg(QLatin1String(columna), QLatin1String(tabla)),
                 Q(quedan));
        };
        fila("T_Ganaderos", "Id_Ganadero", "1/12/40");
        fila("T_Vacas", "Id_Vaca", "99/12001/12002/40001"); // a Null is never different from anything
        fila("T_IPR", "Id_Ganadero", "-/1/12/40");
        fila("T_MAMIVACU", "Id_Ganadero", "-/12");
        fila("T_Cubriciones", "Id_Vaca", "99/777/12001"); // of no cow at all: stays
        fila("T_Partos", "Id_Vaca", "777/12001");
        fila("T_Servicios", "Id_Vaca", "777/12001");
        fila("T_Mamitis", "Id_Vaca", "777/12001");
        fila("T_Sementales", "Id_Semental", "1/12901");
        fila("T_PatologiaSem", "Id_Animal", "1/888/12901");
        fila("T_PatologiaSemR", "Id_Animal", "1/888/12901");
        fila("T_Direcciones", "Id_GV", "2/3/12/8888");
        fila("T_Veterinarios", "Usuario", "elopez/svaldes/VALNOR");
        fila("Claves", "Usuario", "CENTRAL");
        fila("Historial", "Equipo", "-/CENTRAL");
        fila("T_Cebo", "Id_Ganadero", "12");
    }
    void LoQueQuedaEnUnPaquete() {
        const auto [consulta, quedan] = DelCaso<QString, QString>();
        static Oficina o;
        static const long cuantos = ReducirAPaquete(o.c, "elopez", "CENTRAL", Callado());
        QCOMPARE(cuantos, 3L);
        QCOMPARE(Q(Filas(o.c, consulta.toStdString())), quedan);
    }

    void ElProgreso() {
        Oficina o, central;
        QList<int> pasos;
        const auto apuntar = [&](int p) { pasos << p; };
        ReducirAPaquete(o.c, "elopez", "CENTRAL", apuntar);
        QCOMPARE(pasos, (QList<int>{14, 39, 74, 98, 35, 70, 72, 80, 82, 85, 87, 89, 93, 97, 100}));
        pasos.clear();
        DeVuelta p;
        FundirPaquete(p.c, central.c, "elopez", apuntar);
        QCOMPARE(pasos,
                 (QList<int>{2,  9,  34, 56, 78, 80, 83, 80, 83, 90, 98, 35, 70, 78, 80, 82, 94, 94, 94,
                             94, 86, 87, 90, 92, 93, 94, 94, 95, 96, 95, 96, 97, 98, 99, 80, 83, 100}));
    }

    void SinNadieNoHayPaquete() {
        Oficina o;
        QVERIFY(Fallo([&] { ReducirAPaquete(o.c, "nadie", "CENTRAL", Callado()); }).find("nadie") !=
                std::string::npos);
        QVERIFY(!Fallo([&] { ReducirAPaquete(o.c, "d'elopez", "CENTRAL", Callado()); }).empty());
        QCOMPARE(ReducirAPaquete(o.c, "VALNOR", "CENTRAL", Callado()), 1L); // the shared one alone
        Oficina sin;
        Sql(sin.c, "UPDATE T_Ganaderos SET TorosComun = 'No'");
        QVERIFY(!Fallo([&] { ReducirAPaquete(sin.c, "VALNOR", "CENTRAL", Callado()); }).empty());
        QUEDA(sin.c, "Count(*) AS N FROM T_Vacas", "6");
    }

    void ElPaqueteApareceEntero() {
        Oficina o;
        o.c.Cerrar();
        const auto copia = o.fichero + ".copia";
        const auto destino = o.carpeta.filePath(u"d'elopez ñ.mdb"_s).toStdString();
        QVERIFY(QFile::copy(Q(o.fichero), Q(copia)));
        QVERIFY(!Fallo([&] {
                     ExportarPaquete(Ruta(copia), Ruta(destino), "nadie", "CENTRAL", Callado());
                 }).empty());
        QVERIFY(!QFile::exists(Q(destino)));
        QCOMPARE(ExportarPaquete(Ruta(copia), Ruta(destino), "elopez", "CENTRAL", Callado()), 3L);
        auto paquete = AbrirParaLeer(Ruta(destino));
        QUEDA(paquete, "Id_Ganadero FROM T_Ganaderos ORDER BY Id_Ganadero", "1/12/40");
        const auto bytes = Contenido(Q(destino)); // nothing of the others is left in the room of deleted rows
        QVERIFY(bytes.contains("Mora") && !bytes.contains("Rubia"));
    }

    void LoQueTraeUnPaquete_data() {
        Caso("farmers: 40 went out and does not come back",
             "SELECT Id_Ganadero, Apodo FROM T_Ganaderos ORDER BY Id_Ganadero",
             "1|Toros IA/12|El Nico/40|/57|");
        Caso("cows", "SELECT Id_Vaca, NombreC FROM T_Vacas ORDER BY Id_Vaca",
             "99|de nadie/12001|Morica/12003|Nueva/40001|Sola/57001|Rubia/57002|Parda");
        Caso("children of cows of the package's farmers only",
             "SELECT Id_Vaca FROM T_Cubriciones ORDER BY Id_Vaca", "99/777/12001/57001");
        Caso("keys that stations number for themselves repeat",
             "SELECT Id_Vaca FROM T_Partos WHERE Id_Parto = 1 ORDER BY Id_Vaca", "12001/12003/57001");
        Caso("bulls: the shared ones are the centre's, those of 40 are not his to send",
             "SELECT Id_Semental, NombreC FROM T_Sementales ORDER BY Id_Semental",
             "1|Cuco/12901|Sultán/57901|Duque");
        Caso("pathologies by bull, once", "SELECT Id_Animal FROM T_PatologiaSemR ORDER BY Id_Animal",
             "1/888/12901/57901");
        Caso("whole tables bring the rows of outsiders", "SELECT Id_Ganadero FROM T_IPR ORDER BY Id_Ganadero",
             "-/-/1/1/12/40/40/57");
        Caso("rows of nobody", "SELECT Id_Ganadero FROM T_MAMIVACU ORDER BY Id_Ganadero", "-/-/12/57");
        Caso("addresses",
             "SELECT Id_Direccion, Id_GV, Direccion, FAX FROM T_Direcciones WHERE Id_GV < 100 ORDER BY Id_GV",
             "5|2|de Eva|/6|3|de Sofía|/1|12|Calle nueva|f/2|57|Calle 2|");
        Caso("log: the station's rows are replaced, all of the package's come",
             "SELECT Equipo, Operacion FROM Historial ORDER BY Operacion", "otro|v/elopez|w/CENTRAL|x/-|z");
        Caso("fattening", "SELECT Id_Ganadero, Id_Cebo FROM T_Cebo ORDER BY Id_Ganadero, Id_Cebo",
             "12|1/57|1/57|2");
    }
    void LoQueTraeUnPaquete() {
        const auto [consulta, quedan] = DelCaso<QString, QString>();
        DeVuelta paquete;
        Oficina central;
        FundirPaquete(paquete.c, central.c, "elopez", Callado());
        QCOMPARE(Q(Filas(central.c, consulta.toStdString())), quedan);
    }

    void OtraVezElMismoPaquete() {
        DeVuelta paquete;
        Oficina central;
        Sql(paquete.c, "DELETE FROM T_IPR WHERE Id_Ganadero <> 12 OR Id_Ganadero IS NULL; DELETE FROM "
                       "T_MAMIVACU WHERE Id_Ganadero IS NULL");
        std::string antes;
        for (int i = 0; i < 2; ++i) {
            FundirPaquete(paquete.c, central.c, "elopez", Callado());
            std::string todo;
            for (const auto& t : central.c.Esquema().Tablas())
                if (t.nombre != "Historial") // rows of other stations accumulate there
                    todo +=
                        t.nombre + ": " +
                        Filas(central.c, "SELECT * FROM " + t.nombre + " ORDER BY " + t.columnas[0].nombre) +
                        "\n";
            if (i == 1)
                QCOMPARE(todo, antes);
            antes = todo;
        }
        QUEDA(central.c, "Equipo FROM Historial ORDER BY Equipo", "-/CENTRAL/elopez/otro/otro");
    }

    void LosTorosSalenYEntran() {
        Oficina central;
        Base toros(ClaseDeBase::Toros);
        Sql(toros.c, "INSERT INTO T_Sementales (Id_Semental, Id_Ganadero) VALUES (5, 5)");
        Sql(central.c, "INSERT INTO T_Ganaderos (Id_Ganadero, Apodo, TorosComun, Id_Direccion) VALUES (2, "
                       "'A', 'Sí', 5)");
        const auto que = LeerCompartidos(central.c);
        QCOMPARE(que.toros.size(), 2U); // the owner without bulls shows too
        QVERIFY(que.toros[0].apodo == "A" && que.toros[0].nombre.empty() && que.toros[1].nombre == "Cuco");
        LlenarCatalogo(central.c, toros.c, que);
        QUEDA(toros.c, "Id_Ganadero FROM T_Ganaderos ORDER BY Id_Ganadero", "1/2");
        QUEDA(toros.c, "Id_Semental FROM T_Sementales", "1");
        QUEDA(toros.c, "Direccion FROM T_Direcciones", "de Eva"); // by number and owner
        Sql(toros.c, "UPDATE T_Sementales SET NombreC = 'Cuco II'; INSERT INTO T_Sementales (Id_Semental, "
                     "Id_Ganadero, NombreC) VALUES (2, 1, 'Nuevo')");

        Oficina estacion;
        Sql(estacion.c, "UPDATE T_Partos SET Semental = 'Viejo' WHERE Id_Semental = 12901");
        for (int i = 1; i <= 2; ++i) {
            TomarCatalogo(toros.c, estacion.c);
            QUEDA(estacion.c, "Id_Semental, NombreC FROM T_Sementales ORDER BY Id_Semental",
                  "1|Cuco II/2|Nuevo/12901|Sultán/57901|Duque");
            QUEDA(estacion.c, "Count(*) AS N FROM T_PatologiaSem WHERE Id_Animal = 1", "1");
            QCOMPARE(Filas(estacion.c, "SELECT Count(*) AS N FROM T_PatologiaSemR WHERE Id_Animal = 1"),
                     std::to_string(1 + i));
        }
        // the names of all bulls, the own ones' too
        QUEDA(estacion.c, "Semental FROM T_Partos ORDER BY Id_Semental, Id_Vaca", "Cuco II/Cuco II/Sultán");
        QUEDA(estacion.c, "Semental FROM T_Servicios ORDER BY Id_Vaca", "Cuco II/Cuco II/Duque");
    }

    void LosTorosQueNoPuedenEntrar() {
        Oficina estacion;
        Base toros(ClaseDeBase::Toros);
        Sql(toros.c,
            "INSERT INTO T_Ganaderos (Id_Ganadero, TorosComun) VALUES (1, 'Sí'); INSERT INTO T_Sementales "
            "(Id_Semental, Id_Ganadero, NombreC, Crotal) VALUES (1, 1, 'Cuco bis', 'C1')");
        QVERIFY(MirarCatalogo(toros.c, estacion.c).nombres.empty()); // the same tag: the same bull, renamed
        Sql(toros.c, "UPDATE T_Sementales SET Crotal = 'otro'");
        const auto nombres = MirarCatalogo(toros.c, estacion.c).nombres;
        QCOMPARE(nombres.size(), 1U);
        QVERIFY(nombres[0].servicios == 2 && nombres[0].partos == 2 && nombres[0].nombreAlli == "Cuco bis");
        Sql(toros.c, "UPDATE T_Sementales SET Id_Semental = 57901");
        const auto claves = MirarCatalogo(toros.c, estacion.c).claves;
        QCOMPARE(claves.size(), 1U);
        QVERIFY(claves[0].find("57901") != std::string::npos && claves[0].find("Duque") != std::string::npos);
        QVERIFY(!Fallo([&] { TomarCatalogo(toros.c, estacion.c); }).empty());
        QUEDA(estacion.c, "Nombre FROM T_Ganaderos WHERE Id_Ganadero = 1", "Centro"); // all or nothing
    }

    void UnGanaderoPasa() {
        Oficina origen, destino;
        Sql(origen.c,
            "UPDATE T_Ganaderos SET FechaBaja = '2024-01-01', Id_Direccion = 1 WHERE Id_Ganadero = 57;INSERT "
            "INTO T_Direcciones (Id_Direccion, Id_GV, Direccion) VALUES (1, 57, 'la suya');UPDATE T_Partos "
            "SET Id_Semental = 57901, Semental = 'Duque' WHERE Id_Vaca = 57001");
        Sql(destino.c, "DELETE FROM T_Sementales; INSERT INTO T_Sementales (Id_Semental, Id_Ganadero, "
                       "NombreC) VALUES (1, 1, 'Otro'), (57901, 12, 'Ajeno')");
        const auto lista = GanaderosDeBaja(origen.c);
        QVERIFY(lista.size() == 1 && lista[0].nombre == "José Riesgo");
        QList<double> sorteo{0.0, 0.9995, 0.5};
        const auto azar = [&] { return sorteo.size() > 1 ? sorteo.takeFirst() : sorteo.first(); };
        Sql(destino.c,
            "INSERT INTO T_Ganaderos (Id_Ganadero) VALUES (1000)"); // drawn first, and taken; the second has five digits
        const auto r = PasarGanadero(origen.c, destino.c, 57, F("22/11/2026"), azar, Callado());
        QCOMPARE(r.codigo, 5999.0);
        const auto en = [&](const char* consulta) { return Filas(destino.c, consulta); };
        QCOMPARE(
            en("SELECT Nombre, FechaAlta, FechaBaja, Id_Direccion FROM T_Ganaderos WHERE Id_Ganadero = 5999"),
            "José|22/11/26|-|10"s);
        QCOMPARE(en("SELECT Direccion FROM T_Direcciones WHERE Id_Direccion = 10 AND Id_GV = 5999"),
                 "la suya"s);
        QCOMPARE(en("SELECT Id_Vaca, NombreC FROM T_Vacas WHERE Id_Ganadero = 5999 ORDER BY Id_Vaca"),
                 "5999001|Rubia/5999002|Parda"s);
        QCOMPARE(en("SELECT Id_Semental FROM T_Sementales WHERE Id_Ganadero = 5999"), "57902"s);
        QCOMPARE(en("SELECT Id_Animal FROM T_PatologiaSem WHERE Id_Animal = 57902"), "57902"s);
        QCOMPARE(en("SELECT Id_Animal FROM T_PatologiaSemR WHERE Id_Animal = 57902"), std::string());
        QCOMPARE(en("SELECT Id_Parto, Id_Semental FROM T_Partos WHERE Id_Vaca = 5999001"), "5|57902"s);
        QCOMPARE(en("SELECT Id_Semental FROM T_Servicios WHERE Id_Vaca = 5999001"), "57902"s);
        QCOMPARE(en("SELECT Id_Cubricion FROM T_Cubriciones WHERE Id_Vaca = 5999001"), "5"s);
        QCOMPARE(en("SELECT Id_Vaca FROM T_CCNATVACAS WHERE Id_Ganadero = 5999"), "5999001"s);
        QCOMPARE(en("SELECT Id_Cebo FROM T_Cebo WHERE Id_Ganadero = 5999 ORDER BY Id_Cebo"), "1/2"s);
        QCOMPARE(en("SELECT Id_Vaca FROM T_MAMIVACU WHERE Id_Ganadero = 5999"), std::string());
        QVERIFY(r.mamitisYVacunas == 1 && r.patologiasDeCiclo == 1 && r.cebosConParto == 1 &&
                r.toros.empty());

        Oficina libre; // nobody has his code: he and his cows keep theirs
        Sql(libre.c, "DELETE FROM T_Ganaderos WHERE Id_Ganadero = 57; DELETE FROM T_Vacas WHERE Id_Ganadero "
                     "= 57; DELETE FROM T_Mamitis; DELETE FROM T_Cebo");
        QCOMPARE(PasarGanadero(origen.c, libre.c, 57, F("22/11/2026"), azar, Callado()).codigo, 57.0);
        QUEDA(libre.c, "Id_Vaca FROM T_Vacas WHERE Id_Ganadero = 57 ORDER BY Id_Vaca", "57001/57002");
    }

    void ElHistorial() {
        Oficina o;
        EscribirHistorial(o.c, "", F("22/11/2026"), "Exportar Datos al Servidor");
        EscribirHistorial(o.c, std::string(60, 'x'), Fecha{46348, 3661}, "ñ" + std::string(120, 'o'));
        auto filas = LeerHistorial(o.c);
        QCOMPARE(filas.size(), 5U);
        QVERIFY(filas[0].operacion.size() == 101 && filas[0].equipo.size() == 50 &&
                filas[1].equipo == "VETERINARIO");
        const auto carpeta = Ruta(o.carpeta.filePath(u"nueva"_s).toStdString());
        const auto texto = VaciarHistorial(o.c, carpeta, Fecha{46348, 3661});
        const auto lineas = Contenido(Q(TextoDeRuta(texto))).split('\n');
        QCOMPARE(lineas.size(), 7);
        QVERIFY(lineas[2].startsWith("VETERINARIO\t22/11/2026\t00:00:00\tExportar Datos al Servidor"));
        QVERIFY(LeerHistorial(o.c).empty() && VaciarHistorial(o.c, carpeta, {}).empty());
        // a text that cannot be written keeps the rows
        EscribirHistorial(o.c, "a", {}, "b");
        QVERIFY(!Fallo([&] { VaciarHistorial(o.c, Ruta(o.fichero), Fecha{46348, 3661}); }).empty());
        QCOMPARE(LeerHistorial(o.c).size(), 1U);
        QFile(o.carpeta.filePath(u"nueva/BD_PradalC_01022026_101112.mdb"_s)).open(QIODevice::WriteOnly);
        const auto c = MirarCopias(carpeta);
        QVERIFY(c.ficheros == 2 && c.bytes > 100 && c.masNueva == Fecha::De(2026, 2, 1, 10, 11, 12));
        BorrarCopias(carpeta);
        QCOMPARE(MirarCopias(carpeta).ficheros, 0L);
    }

    void BasesEnteras() {
        Oficina o, nueva;
        Sql(nueva.c, "DELETE FROM T_Vacas WHERE Id_Vaca <> 57001");
        for (auto* b : std::initializer_list<Oficina*>{&o, &nueva})
            b->c.Cerrar();
        const auto en = [&](const char* n) { return Ruta(o.carpeta.filePath(Q(n)).toStdString()); };
        EnviarBase(Ruta(o.fichero), en("fuera.mdb"), Callado());
        const LugarDeCopia lugar{en("BackUp"), "DB_PradalC", Fecha{46348, 3661}};
        const auto copia = PonerBase(Ruta(o.fichero), Ruta(nueva.fichero), lugar);
        QCOMPARE(copia.filename().string(), "DB_PradalC_22112026_010101.mdb"s);
        QCOMPARE(PonerBase(Ruta(o.fichero), Ruta(nueva.fichero), lugar).filename().string(),
                 "DB_PradalC_22112026_010102.mdb"s);
        const auto vacas = [](const std::filesystem::path& f) {
            auto c = AbrirParaLeer(f);
            return Filas(c, "SELECT Count(*) AS N FROM T_Vacas");
        };
        QVERIFY(vacas(copia) == "6" && vacas(en("fuera.mdb")) == "6" && vacas(Ruta(o.fichero)) == "1");
        const auto r = Compactar(copia, lugar);
        QVERIFY(r.antes >= r.despues && vacas(copia) == "6");
        QVERIFY(PonerBase(en("no/existe.mdb").parent_path().parent_path() / "otra.mdb", copia, lugar)
                    .empty()); // nothing to keep
        for (const auto& f : {en("fuera.mdb"), en("otra.mdb")})
            QVERIFY(vacas(f) == "6");
        QVERIFY(QDir(o.carpeta.path()).entryList({u"*.tmp*"_s}).isEmpty());
    }

    void NombresDeFichero() {
        for (const char* mal : {"", "a/b", "a\\b", "..", "c:", "x*", " a", "a ", "¿?"})
            QVERIFY2(!Fallo([&] { ExigirNombreDeFichero(mal); }).empty(), mal);
        for (const char* bien : {"elopez", "d'Arriba ñ", "a.b"})
            QVERIFY2(Fallo([&] { ExigirNombreDeFichero(bien); }).empty(), bien);
    }
};

PRUEBA(PruebaRutas)
#include "PruebaRutas.moc"
