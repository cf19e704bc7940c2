#include "Granja.h"
#include "prueba.h"

#include "frame/calendario/ErrorDeEjecucion.h"
#include "reports/figuras/Figuras.h"

using namespace pastorix;
using prueba::Granja;

// The scratch tables of the yearly technical report.
class PruebaIndicesTablas : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void GranjaVacia() {
        Granja g;
        g.Poner("X_Temp", {{"C1", "del informe anterior"}});
        g.Poner("X_Tmp5", {{"N", 1}});
        std::vector<int> avance;
        LlenarIndicesTecnicos(g.c, {{12}, "2020"}, [&](int hecho, int total) {
            QCOMPARE(total, 100);
            avance.push_back(hecho);
        });
        QCOMPARE(avance, (std::vector{7, 15, 17, 23, 47, 59, 78, 89, 100}));
        QCOMPARE(g.Texto("SELECT C1, C2, C3, C4 FROM X_Temp"), std::string("12|Nora  - ||2020"));
        QCOMPARE(g.Texto("SELECT N FROM X_Tmp5"), std::string());
        QCOMPARE(g.Texto("SELECT C1, C2, T1, NCC, NCD, N1, N2 FROM X_Temp1"),
                 std::string("Censo a: 30/11/20|(1/12/19 - 30/11/20)|Novillas de 1º parto|0|0|0|0/"
                             "Censo a: 30/11/20|(1/12/19 - 30/11/20)|Vacas de 2 a 6 partos|0|0|0|0/"
                             "Censo a: 30/11/20|(1/12/19 - 30/11/20)|Vacas de más de 6 partos|0|0|0|0"));
        QCOMPARE(g.Texto("SELECT Id_Ganadero, N1, N2, N3 FROM X_Tmp3"), std::string("12|-|-|-"));
        QCOMPARE(g.Texto("SELECT Mes FROM X_Temp2"),
                 std::string("Dic/Ene/Feb/Mar/Abr/May/Jun/Jul/Ago/Sep/Oct/Nov"));
        QCOMPARE(g.Texto("SELECT Periodo, N1, N2 FROM X_TempGraph"),
                 std::string("Dic-Feb|0|0/Mar-May|0|0/Jun-Ago|0|0/Sep-Nov|0|0"));
        QCOMPARE(g.Texto("SELECT NTN, GDV, TotalCC, PN, CEBOSTOTAL, P_CEBOSHP FROM X_Tmp4"),
                 std::string("0|0|0|-|0|0"));
        QCOMPARE(g.Texto("SELECT Texto, N, N1, N2, N3, N5, N6 FROM X_Tmp6"),
                 std::string("Novillas de 1 Parto|0|0|0|0|0|0/Vacas|0|0|0|0|0|0/Todas|0|0|0|0|0|0/Preñez no "
                             "confirmada|( 0 )|-|-|-|-|-"));
        QCOMPARE(g.Texto("SELECT Texto, N, N1 FROM X_Tmp7"),
                 std::string("Perinatal|0|-/Antes de los 30 días|0|-/Antes del Destete|0|-/Total|0|0"));
        QCOMPARE(g.Texto("SELECT Texto, N FROM X_Tmp8"),
                 std::string("Por Preñez Tardía|0,0  Terneros/Por Mortalidad Terneros|0  Terneros/Pérdida "
                             "Total|0,0  Terneros/% Pérdida|-"));
    }

    void GranjaConPartos() {
        Granja g;
        g.Poner("T_Direcciones", {{"Id_Direccion", 3.0},
                                  {"Id_GV", 12.0},
                                  {"Localidad", "Tineo"},
                                  {"TelefonoP", "985"},
                                  {"TelefonoM", "600"}});
        g.c.Execute("UPDATE T_Ganaderos SET Id_Direccion = 3, Apellidos = 'Díaz' WHERE Id_Ganadero = 12");
        for (int i = 1; i <= 5; ++i)
            g.Vaca(i, i == 1 ? 1 : 2);
        g.Parto(1, 1, 2020, "15/12/2019", {{"Muere", "NaceM"}});
        g.Parto(2, 2, 2020, "31/1/2020",
                {{"Muere", "No"},
                 {"GDestete", 900},
                 {"EdadDestete", 150},
                 {"PesoDestete", 200.5},
                 {"Cularidad", "G-Culón"}});
        g.Parto(3, 2, 2020, "29/2/2020",
                {{"Muere", "No"},
                 {"GDestete", 901},
                 {"EdadDestete", 160},
                 {"PesoDestete", 203.5},
                 {"Cularidad", "Normal"}});
        g.Parto(4, 2, 2020, "30/11/2020", {{"Muere", "AntesD"}});
        g.Parto(5, 2, 2020, "1/12/2020",
                {{"Muere", "Antes30d"}}); // outside the window, of the year all the same
        g.Cubricion(1, 2020, 1, nullptr, 400);
        g.Cubricion(2, 2020, 2, nullptr, 401);
        g.Cubricion(3, 2020, 2, nullptr, 301);
        g.Cubricion(4, 2020, 2, nullptr, 0);
        g.Poner("T_Cubriciones",
                {{"Id_Vaca", 5.0}, {"Año_Ref", 2020}, {"N_Parto", 2}, {"DatosCompletos", 0}});
        for (const auto& [id, sexo, origen, muerte] : {std::tuple{1.0, "Macho", "Propio", Valor()},
                                                       {2.0, "macho", "propio", Valor("Otra")},
                                                       {3.0, "Hembra", "Comprado PostD", Valor()},
                                                       {4.0, "Hembra", "Comprado", Valor()}})
            g.Poner("T_Cebo", {{"Id_Cebo", id},
                               {"Id_Ganadero", 12.0},
                               {"AñoRef", 2020},
                               {"Sexo", sexo},
                               {"Origen", origen},
                               {"CausaMuerte", muerte}});
        LlenarIndicesTecnicos(g.c, {{12}, "2020"});
        QCOMPARE(g.Texto("SELECT C2, C3 FROM X_Temp"), std::string("Nora Díaz - Tineo|985 / 600"));
        QCOMPARE(g.Texto("SELECT N1, N2 FROM X_Temp2"),
                 std::string("0|1/1|0/1|0/0|0/0|0/0|0/0|0/0|0/0|0/0|0/0|0/1|0"));
        QCOMPARE(g.Texto("SELECT N1, N2 FROM X_TempGraph"), std::string("50|25/0|0/0|0/25|0"));
        QCOMPARE(g.Texto("SELECT NTN, NTV, EdadN, EdadV, PesoV, GDV FROM X_Tmp4"),
                 std::string("0|2|0|155|202|900")); // 900.5 to even
        QCOMPARE(g.Texto("SELECT Normales, Aculonados, Culones, TotalCC, PN, PA, PC FROM X_Tmp4"),
                 std::string("1|0|1|2|50|0|50"));
        QCOMPARE(g.Texto("SELECT CEBOSMP, CEBOSHP, CEBOSMC, P_CEBOSMP, CEBOSTOTAL, P_CEBOSHP FROM X_Tmp4"),
                 std::string("2|0|1|1|2|40"));
        QCOMPARE(g.Texto("SELECT N, N1, N2, N3, N5, N6 FROM X_Tmp6 WHERE Texto <> 'Preñez no confirmada'"),
                 std::string("1|400|1|400|0|0/2|351|1|301|1|401/3|367|2|350|1|401"));
        QCOMPARE(g.Texto("SELECT N FROM X_Tmp6 WHERE Texto = 'Preñez no confirmada'"), std::string("( 1 )"));
        QCOMPARE(g.Texto("SELECT N, N1 FROM X_Tmp7"), std::string("1|20/1|20/1|20/3|60"));
        QCOMPARE(g.Texto("SELECT N FROM X_Tmp8"), std::string("0,0  Terneros/3  Terneros/3,0  Terneros/60"));
    }

    void VariosGanaderos() {
        Granja g;
        g.Poner("T_Ganaderos", {{"Id_Ganadero", 57.0}, {"Nombre", "Ana"}});
        LlenarIndicesTecnicos(g.c, {{12, 57}, "2020"});
        QCOMPARE(g.Texto("SELECT C1 FROM X_Temp"), std::string("57/12"));
        QCOMPARE(g.Texto("SELECT Id_Ganadero FROM X_Tmp3"), std::string("57/12"));
    }

    void Fallos() {
        Granja g;
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion, LlenarIndicesTecnicos(g.c, {{12}, "0000"}));
        // a failure on the way leaves what was written before it, and the next run starts afresh
        g.c.Execute("ALTER TABLE T_Cubriciones DROP COLUMN IEPc");
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen, LlenarIndicesTecnicos(g.c, {{12}, "2020"}));
        QCOMPARE(g.Texto("SELECT Count(Mes) AS N FROM X_Temp2"), std::string("12"));
        QCOMPARE(g.Texto("SELECT Count(Texto) AS N FROM X_Tmp8"), std::string("0"));
        g.c.Execute("ALTER TABLE T_Cubriciones ADD COLUMN IEPc LONG");
        LlenarIndicesTecnicos(g.c, {{12}, "2020"});
        QCOMPARE(g.Texto("SELECT Count(Mes) AS N FROM X_Temp2"), std::string("12"));
    }
};

PRUEBA(PruebaIndicesTablas)
#include "PruebaIndicesTablas.moc"
