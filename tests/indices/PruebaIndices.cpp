#include "Granja.h"

#include "frame/calendario/ErrorDeEjecucion.h"
#include "reports/indices/IndicesTec.h"

using namespace prueba;

// Farm figures on cows put exactly on the limits of the rules.
class PruebaIndices : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // A list holds what its count counts: a record without the counted column is in neither. What is left over of twins is a twin.
    void Listas() {
        Granja g;
        g.Vaca(1, 2);
        for (const char* muere : {"Perinatal", "Perinatal", "No"})
            g.Parto(1, 2, 2020, "1/12/2019", "Muere", muere);
        g.Parto(1, 2, 2020, "1/12/2019", "Muere=AntesD, N_Parto", Valor());
        const auto muertos = Listar(g.c, RegistrosTernerosMuertos(12, 2020), "Fecha_Parto", "Muere");
        QCOMPARE(muertos.size(), 2U);
        QCOMPARE(Contar(g.c, RegistrosTernerosMuertos(12, 2020)), 2.0);
        QCOMPARE(muertos[0].fecha + muertos[0].dato, "01/12/19Perinatal"s);
        const auto todos = Listar(g.c, RegistrosPartosDelAño(12, 2020), "Fecha_Parto", "Muere");
        QCOMPARE(todos.size(), 4U);
        auto resto = Resto(todos, {muertos[0]});
        QCOMPARE(resto.size(), 3U);
        QCOMPARE(
            std::count_if(resto.begin(), resto.end(), [](const auto& a) { return a.dato == "Perinatal"; }),
            1);
        Nombrar(g.c, 12, resto);
        QCOMPARE(resto[2].crotal + resto[2].nombre, "1V"s);
    }

    void Censo() {
        Granja g;
        g.Vaca(1, 0);
        g.Vaca(2, 1);
        g.Vaca(3, 2);
        g.Vaca(4, 6);
        g.Vaca(5, 7);
        g.Vaca(6, -1);                       // no mating record: nowhere
        g.Vaca(7, 3, "30/11/2020");          // leaves on the date: still there
        g.Vaca(8, 3, "29/11/2020");          // left the day before
        g.Vaca(9, 3, nullptr, "30/11/2020"); // bought on the date
        g.Vaca(10, 3, nullptr, "1/12/2020"); // bought later
        g.Vaca(11, -1);
        g.Cubricion(11, 2019, 4);
        g.Cubricion(11, 2020, Valor());        // last one without parity: of more than six
        g.Vaca(12, 1, nullptr, nullptr, 2021); // first record in a later year: nowhere
        g.Vaca(13, 5);
        g.Cubricion(13, 2021, 6); // records after the year do not count
        const auto censo = [&](int categoria) {
            return CensoVacasAFecha(g.c, 12, 2020, "30/11/20", categoria);
        };
        QCOMPARE(censo(NovillasEnCubricion), 1.0);
        QCOMPARE(censo(PrimerParto), 1.0);
        QCOMPARE(censo(DeDosASeisPartos), 5.0); // 3, 4, 7, 9, 13
        QCOMPARE(censo(MasDeSeisPartos), 2.0);  // 5, 11
        QCOMPARE(censo(TodasLasParidas), 8.0);
        QCOMPARE(censo(2), 0.0);
        QCOMPARE(censo(-1), 0.0);
        QCOMPARE(BajasVacasEnPeriodo(g.c, 12, "29/11/2020", "30/11/2020", 2020, TodasLasParidas), 2.0);
        QCOMPARE(BajasVacasEnPeriodo(g.c, 12, "30/11/2020", "1/12/2020", 2020, TodasLasParidas), 1.0);
        QCOMPARE(BajasVacasEnPeriodo(g.c, 12, "1/12/19", "30/11/20", 2020, NovillasEnCubricion), 0.0);
        QCOMPARE(CensoVacasAFecha(g.c, 1, 2020, "30/11/20", TodasLasParidas), 0.0);
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion, CensoVacasAFecha(g.c, 12, 2020, "31/11/20", 0));
        // heifers 1 + parous 8, one of them gone in the year: 8 + 1 * 0.7 + 2 / 2
        QCOMPARE(CensoMedioAño(g.c, "12", 2020), 10.0);
    }

    void Cularidad() {
        Granja g;
        const auto vaca = [&](double id, const char* desecho, int año) {
            g.Vaca(id, 1, desecho, nullptr, año);
            g.c.Execute("UPDATE T_Vacas SET Cularidad = 'g-culón' WHERE Id_Vaca = " +
                        std::to_string(int(id)));
        };
        vaca(1, nullptr, 2020);
        vaca(2, "30/11/2019", 2019); // had left by then
        vaca(3, "1/12/2019", 2019);
        vaca(4, nullptr, 2021); // no record up to the year
        QCOMPARE(CensoPorCularidad(g.c, 12, 2020, "G-Culón"), 2.0);
        QCOMPARE(CensoPorCularidad(g.c, 12, 2020, "G-Normal"), 0.0);
    }

    void Partos() {
        Granja g;
        for (int i = 1; i <= 4; ++i)
            g.Vaca(i, 1);
        g.Parto(1, 2, 2020, "1/12/2019", "Muere=No");
        g.Parto(1, 2, 2020, "1/12/2019", "Muere=Perinatal"); // twins: one calving
        g.Parto(2, 1, 2020, "31/12/2019", "Muere=DespuésD");
        g.Parto(3, 3, 2020, "1/1/2020", "Muere", Valor());
        g.Parto(4, 3, 2021, "31/12/2019", "Muere=AntesD"); // of another reference year
        QCOMPARE(PartosEnPeriodo(g.c, 12, "1/12/19", "31/12/19", ">1", 2020), 1.0);
        QCOMPARE(PartosEnPeriodo(g.c, 12, "1/12/19", "31/12/19", "=1", 2020), 1.0);
        QCOMPARE(PartosEnPeriodo(g.c, 12, "1/12/19", "31/12/19", ">=1", 2020), 2.0);
        QCOMPARE(PartosDelAño(g.c, 12, 2020), 4.0);
        QCOMPARE(TernerosMuertos(g.c, 12, 2020), 1.0);
        QCOMPARE(TernerosVivos(g.c, 12, 2020), 3.0);
        QCOMPARE(PartosDelAño(g.c, 12, 1999), 0.0);
    }

    void Inseminacion() {
        Granja g;
        g.Poner("T_Sementales", "Id_Semental=1001, Id_Ganadero=1, NombreC=Nerón(IA)");
        g.Poner("T_Sementales", "Id_Semental=12001, Id_Ganadero=12, NombreC=Urbano");
        g.Vaca(1, 1);
        QCOMPARE(PorcentajeNacidosIA(g.c, 12, 2020), std::int64_t(0)); // no calves is no error
        for (int i = 0; i < 8; ++i)
            g.Parto(1, i + 1, 2020, "1/5/2020", "Semental", i == 0 ? Valor("nerón(ia)") : Valor("Urbano"));
        QCOMPARE(PorcentajeNacidosIA(g.c, 12, 2020), std::int64_t(12)); // 12.5 to the even one
    }

    void Destete() {
        Granja g;
        g.Vaca(1, 1);
        const auto ternero = [&](const char* muere, int ganancia, int edad, const char* cularidad) {
            g.Parto(1, 1, 2020, "1/5/2020", "Muere, GDestete, EdadDestete, Cularidad", muere, ganancia, edad,
                    cularidad);
        };
        ternero("No", 501, 120, "Culón");
        ternero("no", 900, 200, "culón");
        ternero("No", 500, 120, "Culón");
        ternero("No", 501, 119, "Culón");
        ternero("DespuésD", 900, 200, "Culón");
        ternero("No", 900, 200, "G-Culón");
        QCOMPARE(DestetadosPorCularidad(g.c, 12, 2020, "Culón"), std::int64_t(2));
    }

    void AbortosYPerdidas() {
        Granja g;
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion, PorcentajeAbortos(g.c, 12, 2020));
        g.Vaca(1, -1);
        g.Vaca(2, -1, "31/12/2019"); // gone before the civil year
        g.Vaca(3, -1, "1/1/2020");
        for (const double v : {1.0, 2.0, 3.0})
            g.Poner("T_Cubriciones", "Id_Vaca, Año_Ref=2020, N_Parto=2, Aborto, IEPc=340", v, v == 3 ? 1 : 0);
        g.Poner("T_Cubriciones", "Id_Vaca=1, Año_Ref=2019, N_Parto=1, DatosCompletos=0, IEPc=800");
        g.Poner("T_Cubriciones", "Id_Vaca=3, Año_Ref=2019, N_Parto=1, DatosCompletos", Valor());
        QCOMPARE(PorcentajeAbortos(g.c, 12, 2020), "33"s);  // of 3: two of the year and one open
        QCOMPARE(PerdidaPreñezTardia(g.c, 12, 2020), -0.2); // three times 25 days early
        g.Poner("T_Cubriciones", "Id_Vaca=1, Año_Ref=2020, N_Parto=3, IEPc=0"); // does not count
        QCOMPARE(PerdidaPreñezTardia(g.c, 12, 2020), -0.2);
    }

    void Medias() {
        QCOMPARE(InicioDeAño(2001), "1/12/00"s);
        QCOMPARE(FinDeAño(2001), "30/11/01"s);
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion, InicioDeAño(0));
        Granja g; // year 2020: 1/12/2019 to 30/11/2020
        g.Vaca(1, -1);
        g.Cubricion(1, 2020, 2, "1/12/2019");
        g.Vaca(2, -1);
        g.Cubricion(2, 2019, 2, "1/5/2019"); // not calved in the year, not gone
        g.Vaca(3, -1, "1/12/2020");
        g.Cubricion(3, 2019, 2, "1/5/2019"); // gone after the year
        g.Vaca(4, -1, "30/11/2020");
        g.Cubricion(4, 2019, 2, "1/5/2019"); // gone on the last day: 365 days
        g.Vaca(5, -1, "30/11/2019");
        g.Cubricion(5, 2019, 2, "1/5/2019"); // gone before
        g.Vaca(6, -1);
        g.Cubricion(6, 2021, 2, "1/12/2020"); // calved after
        g.Vaca(7, -1);
        g.Cubricion(7, 2020, 0); // heifer
        QCOMPARE(VacasMediasPartos(g.c, 12, 2020), 4.0);
        // 1, 2 and 3 all year; 4 leaves on the last day, is in R and by its 365 days in D2
        QCOMPARE(VacasMediasPresentes(g.c, 12, 2020), 5.0);

        Granja h;
        h.Vaca(1, 2, nullptr, "31/5/2020");                 // 183 days
        h.Vaca(2, 2, "31/5/2020");                          // 182 days
        h.Vaca(3, 2, "31/5/2020", "1/4/2020");              // 60 days
        h.Vaca(4, 2, nullptr, "1/12/2020");                 // bought after the year
        QCOMPARE(VacasMediasPresentes(h.c, 12, 2020), 1.0); // (183 + 182 + 60) / 365 = 1.16
    }

    void AFecha() {
        Granja g;
        g.Poner("T_Sementales", "Id_Semental=1, Id_Ganadero=12, FechaBaja=1/12/2019");
        g.Poner("T_Sementales", "Id_Semental=2, Id_Ganadero=12, FechaBaja=2/12/2019");
        g.Poner("T_Sementales", "Id_Semental=3, Id_Ganadero=12, FechaAlta=1/1/2024");
        QCOMPARE(SementalesAFecha(g.c, 12, "1/12/2019"),
                 "2"s); // the one that leaves that day is out

        g.Vaca(1, -1);
        g.Parto(1, 1, 2019, "30/9/2018", "DESTINOTERNERO=recría"); // 15 months on 1/12/2019
        g.Parto(1, 2, 2019, "1/10/2018", "DESTINOTERNERO=Recría"); // 14
        g.Parto(1, 3, 2018, "1/11/2019", "DESTINOTERNERO=Recría");
        g.Parto(1, 4, 2019, "1/11/2019", "DESTINOTERNERO=Cebo");
        std::string fecha = "1/12/2019";
        QCOMPARE(RecriaAFecha(g.c, 12, fecha, 2020, "INICIO"), "2"s);
        QCOMPARE(fecha, "1/12/2019"s);
        fecha = "30/11/2019";
        QCOMPARE(RecriaAFecha(g.c, 12, fecha, 2019, "FIN"), "2"s);
        QCOMPARE(fecha, "01/12/19"s); // moved for the caller

        g.Poner("T_Cebo", "Id_Cebo=1, Id_Ganadero=12, FechaCebo=30/11/2019");
        g.Poner("T_Cebo", "Id_Cebo=2, Id_Ganadero=12, FechaCebo=1/12/2019"); // not before
        g.Poner("T_Cebo",
                "Id_Cebo=3, Id_Ganadero=12, FechaCebo=1/1/2019, FechaSacrif=1/12/2019"); // not after
        QCOMPARE(CeboAFecha(g.c, 12, "1/12/2019", 2020, "INICIO"), "1"s);

        g.Vaca(2, -1);
        g.Cubricion(2, 2019, 0);
        g.Vaca(3, -1);
        g.Cubricion(3, 2019, 4, "30/11/2019");
        g.Vaca(4, -1);
        g.Cubricion(4, 2020, 4, "1/12/2019"); // not before the date
        QCOMPARE(HembrasAFecha(g.c, 12, "1/12/2019", 0, 2020), "1"s);
        QCOMPARE(HembrasAFecha(g.c, 12, "1/12/2019", 1, 2020), "1"s);
        QCOMPARE(HembrasAFecha(g.c, 12, "1/12/2019", 7, 2020), "0"s);
        // 1 cow + 2 bulls * 1.5 + 1 heifer * 0.8 + 2 replacement * 0.4 + 1 fattening * 0.6 = 6.2
        QCOMPARE(CargaUGM(g.c, 12, 2020, "INICIO"), "6"s);
        QCOMPARE(CargaUGM(g.c, 12, 2020, "MITAD"), "0"s);

        g.Parto(3, 5, 2019, "30/11/2019", "FechaDestete=2/12/2019");
        g.Parto(3, 6, 2019, "30/11/2019", "FVentaAD", Granja::Dia("1/12/2019"));
        QCOMPARE(TernerosMamonesAFecha(g.c, 12, "1/12/2019", 2020, "INICIO"),
                 "4"s); // three of cow 1, one of cow 3
    }

    // The end of a year is the start of the next: everything is counted on 1 December, and cows by their records of the next year. So many of
    // each that a day or a year beside it changes the figure.
    void CargaAlFin() {
        Granja g;
        for (int i = 1; i <= 3; ++i) {
            g.Poner("T_Sementales", "Id_Semental, Id_Ganadero=12, FechaBaja=1/12/2019",
                    double(i)); // still there the day before
            g.Vaca(i, -1);
            g.Cubricion(i, 2019, 4, "30/11/2019"); // calved the day before
            g.Vaca(10 + i, -1);
            g.Cubricion(10 + i, 2020, 0); // heifer of the next year
            g.Parto(1, 10 + i, 2019, "1/10/2018", "DESTINOTERNERO=Recría");
            g.Poner("T_Cebo", "Id_Cebo, Id_Ganadero=12, FechaCebo=30/11/2019", double(i));
        }
        for (int i = 0; i < 5; ++i)
            g.Parto(1, 20 + i, 2019, "30/9/2018", "DESTINOTERNERO=Recría"); // 15 months on that day
        // 3 cows + 3 heifers * 0.8 + 3 replacement * 0.4 + 3 fattening * 0.6 = 8.4
        QCOMPARE(CargaUGM(g.c, 12, 2019, "FIN"), "8"s);
        QCOMPARE(CargaUGM(g.c, 12, 2020, "INICIO"), "8"s);
        QCOMPARE(CargaUGM(g.c, 12, 2019, "INICIO"), "5"s); // 3 bulls * 1.5
    }
};

PRUEBA(PruebaIndices)
#include "PruebaIndices.moc"
