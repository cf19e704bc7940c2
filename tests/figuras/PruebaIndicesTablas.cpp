#include "Granja.h"

#include "frame/calendario/ErrorDeEjecucion.h"
#include "reports/figuras/Figuras.h"

using namespace prueba;

// The scratch tables of the yearly technical report.
class PruebaIndicesTablas : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void GranjaVacia() {
        Granja g;
        g.Poner("X_Temp", "C1=del informe anterior");
        g.Poner("X_Tmp5", "N=1");
        std::vector<int> avance;
        LlenarIndicesTecnicos(g.c, {{12}, "2020"}, [&](int hecho, int total) {
            QCOMPARE(total, 100);
            avance.push_back(hecho);
        });
        QCOMPARE(avance, (std::vector{7, 15, 17, 23, 47, 59, 78, 89, 100}));
        QUEDA(g, "C1, C2, C3, C4 FROM X_Temp", "12|Nora  - ||2020");
        QUEDA(g, "N FROM X_Tmp5", "");
        QUEDA(g, "C1, C2, T1, NCC, NCD, N1, N2 FROM X_Temp1",
              "Censo a: 30/11/20|(1/12/19 - 30/11/20)|Novillas de 1º parto|0|0|0|0/Censo a: "
              "30/11/20|(1/12/19 - 30/11/20)|Vacas de 2 a 6 partos|0|0|0|0/Censo a: 30/11/20|(1/12/19 - "
              "30/11/20)|Vacas de más de 6 partos|0|0|0|0");
        QUEDA(g, "Id_Ganadero, N1, N2, N3 FROM X_Tmp3", "12|-|-|-");
        QUEDA(g, "Mes FROM X_Temp2", "Dic/Ene/Feb/Mar/Abr/May/Jun/Jul/Ago/Sep/Oct/Nov");
        QUEDA(g, "Periodo, N1, N2 FROM X_TempGraph", "Dic-Feb|0|0/Mar-May|0|0/Jun-Ago|0|0/Sep-Nov|0|0");
        QUEDA(g, "NTN, GDV, TotalCC, PN, CEBOSTOTAL, P_CEBOSHP FROM X_Tmp4", "0|0|0|-|0|0");
        QUEDA(g, "Texto, N, N1, N2, N3, N5, N6 FROM X_Tmp6",
              "Novillas de 1 Parto|0|0|0|0|0|0/Vacas|0|0|0|0|0|0/Todas|0|0|0|0|0|0/Preñez no confirmada|( 0 "
              ")|-|-|-|-|-");
        QUEDA(g, "Texto, N, N1 FROM X_Tmp7",
              "Perinatal|0|-/Antes de los 30 días|0|-/Antes del Destete|0|-/Total|0|0");
        QUEDA(g, "Texto, N FROM X_Tmp8",
              "Por Preñez Tardía|0,0  Terneros/Por Mortalidad Terneros|0  Terneros/Pérdida Total|0,0  "
              "Terneros/% Pérdida|-");
    }

    void GranjaConPartos() {
        Granja g;
        g.Poner("T_Direcciones", "Id_Direccion=3, Id_GV=12, Localidad=Tineo, TelefonoP=985, TelefonoM=600");
        g.c.Execute("UPDATE T_Ganaderos SET Id_Direccion = 3, Apellidos = 'Díaz' WHERE Id_Ganadero = 12");
        for (int i = 1; i <= 5; ++i)
            g.Vaca(i, i == 1 ? 1 : 2);
        g.Parto(1, 1, 2020, "15/12/2019", "Muere=NaceM");
        g.Parto(2, 2, 2020, "31/1/2020",
                "Muere=No, GDestete=900, EdadDestete=150, PesoDestete=200.5, Cularidad=G-Culón");
        g.Parto(3, 2, 2020, "29/2/2020",
                "Muere=No, GDestete=901, EdadDestete=160, PesoDestete=203.5, Cularidad=Normal");
        g.Parto(4, 2, 2020, "30/11/2020", "Muere=AntesD");
        g.Parto(5, 2, 2020, "1/12/2020", "Muere=Antes30d"); // outside the window, of the year all the same
        g.Cubricion(1, 2020, 1, nullptr, 400);
        g.Cubricion(2, 2020, 2, nullptr, 401);
        g.Cubricion(3, 2020, 2, nullptr, 301);
        g.Cubricion(4, 2020, 2, nullptr, 0);
        g.Poner("T_Cubriciones", "Id_Vaca=5, Año_Ref=2020, N_Parto=2, DatosCompletos=0");
        for (const auto& [id, sexo, origen, muerte] : {std::tuple{1.0, "Macho", "Propio", Valor()},
                                                       {2.0, "macho", "propio", Valor("Otra")},
                                                       {3.0, "Hembra", "Comprado PostD", Valor()},
                                                       {4.0, "Hembra", "Comprado", Valor()}})
            g.Poner("T_Cebo", "Id_Cebo, Id_Ganadero=12, AñoRef=2020, Sexo, Origen, CausaMuerte", id, sexo,
                    origen, muerte);
        LlenarIndicesTecnicos(g.c, {{12}, "2020"});
        QUEDA(g, "C2, C3 FROM X_Temp", "Nora Díaz - Tineo|985 / 600");
        QUEDA(g, "N1, N2 FROM X_Temp2", "0|1/1|0/1|0/0|0/0|0/0|0/0|0/0|0/0|0/0|0/0|0/1|0");
        QUEDA(g, "N1, N2 FROM X_TempGraph", "50|25/0|0/0|0/25|0");
        QUEDA(g, "NTN, NTV, EdadN, EdadV, PesoV, GDV FROM X_Tmp4", "0|2|0|155|202|900"); // 900.5 to even
        QUEDA(g, "Normales, Aculonados, Culones, TotalCC, PN, PA, PC FROM X_Tmp4", "1|0|1|2|50|0|50");
        QUEDA(g, "CEBOSMP, CEBOSHP, CEBOSMC, P_CEBOSMP, CEBOSTOTAL, P_CEBOSHP FROM X_Tmp4", "2|0|1|1|2|40");
        QUEDA(g, "N, N1, N2, N3, N5, N6 FROM X_Tmp6 WHERE Texto <> 'Preñez no confirmada'",
              "1|400|1|400|0|0/2|351|1|301|1|401/3|367|2|350|1|401");
        QUEDA(g, "N FROM X_Tmp6 WHERE Texto = 'Preñez no confirmada'", "( 1 )");
        QUEDA(g, "N, N1 FROM X_Tmp7", "1|20/1|20/1|20/3|60");
        QUEDA(g, "N FROM X_Tmp8", "0,0  Terneros/3  Terneros/3,0  Terneros/60");
    }

    void VariosGanaderos() {
        Granja g;
        g.Poner("T_Ganaderos", "Id_Ganadero=57, Nombre=Ana");
        LlenarIndicesTecnicos(g.c, {{12, 57}, "2020"});
        QUEDA(g, "C1 FROM X_Temp", "57/12");
        QUEDA(g, "Id_Ganadero FROM X_Tmp3", "57/12");
    }

    void Fallos() {
        Granja g;
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion, LlenarIndicesTecnicos(g.c, {{12}, "0000"}));
        // a failure on the way leaves what was written before it, and the next run starts afresh
        g.c.Execute("ALTER TABLE T_Cubriciones DROP COLUMN IEPc");
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, LlenarIndicesTecnicos(g.c, {{12}, "2020"}));
        QUEDA(g, "Count(Mes) AS N FROM X_Temp2", "12");
        QUEDA(g, "Count(Texto) AS N FROM X_Tmp8", "0");
        g.c.Execute("ALTER TABLE T_Cubriciones ADD COLUMN IEPc LONG");
        LlenarIndicesTecnicos(g.c, {{12}, "2020"});
        QUEDA(g, "Count(Mes) AS N FROM X_Temp2", "12");
    }
};

// The inventory of a year and the summary of several.
class PruebaInventario : public QObject {
    Q_OBJECT

    static void Animal(Granja& g, double id, int año, const char* origen, Valor muerte = {}) {
        g.Poner("T_Cebo", "Id_Cebo, Id_Ganadero=12, AñoRef, Sexo=Macho, Origen, CausaMuerte", id, año, origen,
                muerte);
    }

private Q_SLOTS:
    // Bulls, cows, heifers, replacement, suckling and fattening calves at both ends of the year.
    void Inventario() {
        Granja g;
        g.Poner("T_Sementales", "Id_Semental=1, Id_Ganadero=12, FechaBaja=1/12/2020"); // gone on it
        g.Vaca(1, 2, nullptr, nullptr, 2019);
        g.Vaca(2, 0, nullptr, nullptr, 2020);
        g.Cubricion(1, 2021, 3, "30/11/2020");                    // of the year after, before the date
        g.Parto(1, 2, 2020, "1/9/2019", "DESTINOTERNERO=Recría"); // 15 months on 1/12/2020
        g.Parto(1, 3, 2020, "1/10/2020",
                "DESTINOTERNERO=Recría, FechaDestete=1/12/2020"); // weaned on the moved date
        g.Poner("T_Cebo", "Id_Cebo=9, Id_Ganadero=12, AñoRef=2021, FechaCebo=30/11/2020");
        g.Poner("T_Cebo", "Id_Cebo=8, Id_Ganadero=12, AñoRef=2021, FechaCebo=1/12/2020");
        QVERIFY(LlenarParametrosTecnicos(g.c, {{12}, "2020"}));
        QUEDA(g, "Texto, N, N1, N2 FROM X_Tmp6",
              "Toros|1|0|1,5/Vacas (Nº parto > 0)|1|1|1/Novillas (Nº parto = 0)|1|1|0,8/Terneras "
              "(recría)|0|1|0,4/Terneros mamones|0|1| /Terneros en cebo|0|1|0,6/U.G.M.|3|3| ");
        QUEDA(g, "C1, C2, C4 FROM X_Temp", "12|Nora  - |2020");
    }

    // Each of the two rates has its own denominator.
    void Cebados() {
        Granja g;
        g.Poner("X_Tmp6", "Texto=anterior");
        const auto tasas = [&] {
            LlenarParametrosTecnicos(g.c, {{12}, "2020"});
            return g.Texto("SELECT N, N1 FROM X_Tmp5");
        };
        QCOMPARE(tasas(), "-|-"s);
        QUEDA(g, "Count(Texto) AS N FROM X_Tmp6", "7");
        g.Vaca(1, -1);
        g.Parto(1, 2, 2020, "1/2/2020", "Muere=AntesD");
        QCOMPARE(tasas(), "-|0"s); // all calves dead
        g.Parto(1, 3, 2020, "1/2/2020", "Muere=No");
        for (int i = 1; i <= 3; ++i)
            Animal(g, i, 2020, i == 1 ? "Propio" : "Comprado PostD", i == 3 ? Valor("Otra") : Valor());
        Animal(g, 4, 2020, "Comprado");
        QCOMPARE(tasas(), "200|100"s);
    }

    void AñosDelGanadero() {
        Granja g;
        g.Vaca(1, 2, nullptr, nullptr, 2021);
        g.Cubricion(1, 2019, 1);
        g.Vaca(2, 2, nullptr, nullptr, 2021);
        g.Poner("T_Cubriciones", "Id_Vaca=1");
        QCOMPARE(AñosConCubriciones(g.c, 12), (std::vector{2019, 2021}));
        QCOMPARE(AñosConCubriciones(g.c, 57), std::vector<int>());
    }

    // A line per year in ascending order, only of the years asked for; C6 and C15 count calvings of any reference year, out of the year's own.
    void Resumen() {
        Granja g;
        for (const int año : {2021, 2020, 2019})
            g.Vaca(año, 2, nullptr, nullptr, año);
        const auto parto = [&](const char* dia, int ref, const char* muere = "No") {
            g.Parto(2020, 1 + g.partos, ref, dia, "Muere, EdadDestete=150, GDestete=900, PesoDestete=200",
                    muere);
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
        QUEDA(g, "C3, C5, C6, C15, C7, C8, C9, C10, C11, C12, C13, C14 FROM X_Temp",
              "2020|4|50|50|2|0|150|900|25|0|400|62/2021|2|-|-|0|0|150|900|0|0|0|0");
    }

    // Without calvings shares are Null and percentages "0"; a year of which the abortions cannot be told stops with the rows before it.
    void AñosSinDatos() {
        Granja g;
        g.Vaca(1, 2, nullptr, nullptr, 2019);
        g.Vaca(2, 2, "1/1/2019", nullptr, 2020); // has left: her record counts nowhere
        LlenarResumen(g.c, 12, {2019});
        QUEDA(g, "C5, C6, C15, C11, C12, C13, C14 FROM X_Temp", "0|-|-|0|0|0|0");
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion, LlenarResumen(g.c, 12, {2019, 2020}));
        QUEDA(g, "C3 FROM X_Temp", "2019");
    }
};

PRUEBA(PruebaIndicesTablas)
PRUEBA(PruebaInventario)
#include "PruebaIndicesTablas.moc"
