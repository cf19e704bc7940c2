#include "Granja.h"
#include "prueba.h"

#include "frame/calendario/ErrorDeEjecucion.h"
#include "reports/figuras/Figuras.h"

using namespace pastorix;
using prueba::F;
using prueba::Granja;

// The inventory of a year and the summary of several.
class PruebaInventario : public QObject {
    Q_OBJECT

    static void Animal(Granja& g, double id, int año, const char* origen, Valor muerte = {}) {
        g.Poner("T_Cebo", {{"Id_Cebo", id},
                           {"Id_Ganadero", 12.0},
                           {"AñoRef", año},
                           {"Sexo", "Macho"},
                           {"Origen", origen},
                           {"CausaMuerte", muerte}});
    }

private Q_SLOTS:
    // Bulls, cows, heifers, replacement, suckling and fattening calves at both ends of the year.
    void Inventario() {
        Granja g;
        g.Poner("T_Sementales",
                {{"Id_Semental", 1.0}, {"Id_Ganadero", 12.0}, {"FechaBaja", F("1/12/2020")}}); // gone on it
        g.Vaca(1, 2, nullptr, nullptr, 2019);
        g.Vaca(2, 0, nullptr, nullptr, 2020);
        g.Cubricion(1, 2021, 3, "30/11/2020");                           // of the year after, before the date
        g.Parto(1, 2, 2020, "1/9/2019", {{"DESTINOTERNERO", "Recría"}}); // 15 months on 1/12/2020
        g.Parto(1, 3, 2020, "1/10/2020",
                {{"DESTINOTERNERO", "Recría"}, {"FechaDestete", F("1/12/2020")}}); // weaned on the moved date
        g.Poner("T_Cebo",
                {{"Id_Cebo", 9.0}, {"Id_Ganadero", 12.0}, {"AñoRef", 2021}, {"FechaCebo", F("30/11/2020")}});
        g.Poner("T_Cebo",
                {{"Id_Cebo", 8.0}, {"Id_Ganadero", 12.0}, {"AñoRef", 2021}, {"FechaCebo", F("1/12/2020")}});
        QVERIFY(LlenarParametrosTecnicos(g.c, {{12}, "2020"}));
        QCOMPARE(g.Texto("SELECT Texto, N, N1, N2 FROM X_Tmp6"),
                 std::string("Toros|1|0|1,5/Vacas (Nº parto > 0)|1|1|1/Novillas (Nº parto = 0)|1|1|0,8/"
                             "Terneras (recría)|0|1|0,4/Terneros mamones|0|1| /Terneros en cebo|0|1|0,6/"
                             "U.G.M.|3|3| "));
        QCOMPARE(g.Texto("SELECT C1, C2, C4 FROM X_Temp"), std::string("12|Nora  - |2020"));
    }

    // Each of the two rates has its own denominator.
    void Cebados() {
        Granja g;
        g.Poner("X_Tmp6", {{"Texto", "anterior"}});
        const auto tasas = [&] {
            LlenarParametrosTecnicos(g.c, {{12}, "2020"});
            return g.Texto("SELECT N, N1 FROM X_Tmp5");
        };
        QCOMPARE(tasas(), std::string("-|-"));
        QCOMPARE(g.Texto("SELECT Count(Texto) AS N FROM X_Tmp6"), std::string("7"));
        g.Vaca(1, -1);
        g.Parto(1, 2, 2020, "1/2/2020", {{"Muere", "AntesD"}});
        QCOMPARE(tasas(), std::string("-|0")); // all calves dead
        g.Parto(1, 3, 2020, "1/2/2020", {{"Muere", "No"}});
        for (int i = 1; i <= 3; ++i)
            Animal(g, i, 2020, i == 1 ? "Propio" : "Comprado PostD", i == 3 ? Valor("Otra") : Valor());
        Animal(g, 4, 2020, "Comprado");
        QCOMPARE(tasas(), std::string("200|100"));
    }

    void AñosDelGanadero() {
        Granja g;
        g.Vaca(1, 2, nullptr, nullptr, 2021);
        g.Cubricion(1, 2019, 1);
        g.Vaca(2, 2, nullptr, nullptr, 2021);
        g.Poner("T_Cubriciones", {{"Id_Vaca", 1.0}});
        QCOMPARE(AñosConCubriciones(g.c, 12), (std::vector{2019, 2021}));
        QCOMPARE(AñosConCubriciones(g.c, 57), std::vector<int>());
    }

    // A line per year in ascending order, only of the years asked for. C6 and C15 count calvings of any reference year, out of the year's own.
    void Resumen() {
        Granja g;
        for (const int año : {2021, 2020, 2019})
            g.Vaca(año, 2, nullptr, nullptr, año);
        const auto parto = [&](const char* dia, int ref, const char* muere = "No") {
            g.Parto(2020, 1 + g.partos, ref, dia,
                    {{"Muere", muere}, {"EdadDestete", 150}, {"GDestete", 900}, {"PesoDestete", 200.0}});
        };
        parto("29/2/2020", 2020); // the leap day is of February
        parto("1/12/2019", 2020, "NaceM");
        parto("1/3/2020", 2020, "Antes30d");
        parto("1/9/2020", 2021);
        parto("30/11/2020", 2021);
        parto("1/6/2020", 2020);
        g.Cubricion(2020, 2020, 3, nullptr, 400);
        g.Cubricion(2020, 2020, 0, nullptr, 500);
        Animal(g, 1, 2020, "Propio");
        QVERIFY(LlenarResumen(g.c, 12, {2021, 2020}));
        QCOMPARE(g.Texto("SELECT C3, C5, C6, C15, C7, C8, C9, C10, C11, C12, C13, C14 FROM X_Temp"),
                 std::string("2020|4|50|50|2|0|150|900|25|0|400|62/2021|2|-|-|0|0|150|900|0|0|0|0"));
    }

    // Without calvings shares are Null and percentages "0"; a year of which the abortions cannot be told stops with the rows before it.
    void AñosSinDatos() {
        Granja g;
        g.Vaca(1, 2, nullptr, nullptr, 2019);
        g.Vaca(2, 2, "1/1/2019", nullptr, 2020); // has left: her record counts nowhere
        LlenarResumen(g.c, 12, {2019});
        QCOMPARE(g.Texto("SELECT C5, C6, C15, C11, C12, C13, C14 FROM X_Temp"), std::string("0|-|-|0|0|0|0"));
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion, LlenarResumen(g.c, 12, {2019, 2020}));
        QCOMPARE(g.Texto("SELECT C3 FROM X_Temp"), std::string("2019"));
    }
};

PRUEBA(PruebaInventario)
#include "PruebaInventario.moc"
