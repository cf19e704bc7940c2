#include "Granja.h"
#include "prueba.h"

#include "reports/figuras/Figuras.h"

using namespace pastorix;
using prueba::F;
using prueba::Granja;

// The analyses of a farmer's year: fattening, delays, management, diseases.
class PruebaAnalisis : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // A year without animals empties the table and opens nothing.
    void SinCebo() {
        Granja g;
        g.Poner("T_Cebo",
                {{"Id_Cebo", 1.0}, {"Id_Ganadero", 12.0}, {"AñoRef", 2020}, {"PrecioKg", 1234.565}});
        QVERIFY(LlenarCebo(g.c, {{12}, "2020"}));
        QCOMPARE(g.Texto("SELECT C3, C10 FROM X_Temp"), std::string("-|1.234,57"));
        QVERIFY(!LlenarCebo(g.c, {{12}, "2021"}));
        QCOMPARE(g.Texto("SELECT C10 FROM X_Temp"), std::string());
    }
    void OrigenDelCebo_data() {
        QTest::addColumn<QString>("origen");
        QTest::addColumn<double>("precio");
        QTest::addColumn<QString>("fila");
        QTest::newRow("own") << "Propio" << 5.5 << "1|V|5,50";
        QTest::newRow("capitals are another word") << "PROPIO" << 5.5 << "-|-|5,50";
        QTest::newRow("bought, for nothing") << "Comprado PostD" << 0.0 << "-|-|-";
        QTest::newRow("negative price") << "Propio" << -1.0 << "1|V|-";
    }
    void OrigenDelCebo() {
        QFETCH(QString, origen);
        QFETCH(double, precio);
        QFETCH(QString, fila);
        Granja g;
        g.Vaca(1, -1);
        g.Poner("T_Cebo", {{"Id_Cebo", 1.0},
                           {"Id_Ganadero", 12.0},
                           {"AñoRef", 2020},
                           {"Origen", origen.toStdString()},
                           {"Id_Vaca", 1.0},
                           {"PrecioKg", precio}});
        QVERIFY(LlenarCebo(g.c, {{12}, "2020"}));
        QCOMPARE(g.Texto("SELECT C3, C4, C10 FROM X_Temp"), fila.toStdString());
    }

    void Demora() {
        Granja g;
        g.Vaca(1, -1, "5/6/2020");
        const auto cubricion = [&](int año, int n, int dias) {
            g.Poner("T_Cubriciones", {{"Id_Vaca", 1.0},
                                      {"Año_Ref", año},
                                      {"N_Parto", n},
                                      {"IPR_CP", dias},
                                      {"TA2MIPR", 1},
                                      {"DemoraServ", 0},
                                      {"Enfermendad", 0},
                                      {"DescEnfermedad", "cojera"},
                                      {"DatosCompletos", 0}});
        };
        cubricion(2020, 2, 42);
        QVERIFY(!LlenarDemora(g.c, {{12}, "2020"})); // 42 days are no delay
        cubricion(2020, 2, 43);
        cubricion(2019, 2, 10);
        g.c.Execute("UPDATE T_Vacas SET FechaNac = #03/01/2018#");
        QVERIFY(LlenarDemora(g.c, {{12}, "2020"}));
        QCOMPARE(g.Texto("SELECT F1, N1, N2, C5, C7, C8, C9, C10, C11, C12, C15 FROM X_Temp"),
                 std::string("01/03/18|2|43|05/06/20|-|-|-| |Sí|-|No"));
        // The services of all years in which she has a record of that parity, whatever their own parity.
        const auto servicio = [&](int año, int n, int s, const char* dia) {
            g.Poner("T_Servicios", {{"Id_Vaca", 1.0},
                                    {"Año_Ref", año},
                                    {"N_Parto", n},
                                    {"N_Servicio", s},
                                    {"Fecha_Servicio", F(dia)}});
        };
        servicio(2020, 2, 1, "1/5/20");
        servicio(2019, 7, 3, "1/5/19");
        servicio(2018, 2, 9, "1/5/18");
        LlenarDemora(g.c, {{12}, "2020"});
        QCOMPARE(g.Texto("SELECT C10 FROM X_Temp"), std::string("01/05/19"));
    }

    // The load is the mean of the year's two ends; each figure has its own guard.
    void Manejo() {
        Granja g;
        g.Poner("T_Sementales", {{"Id_Semental", 1.0}, {"Id_Ganadero", 12.0}}); // 1.5 UGM, 2 when rounded
        LlenarManejo(g.c, {{12}, "2020"});
        QCOMPARE(g.Texto("SELECT N1, N2, C3, C4, C6, C7, C8, C10, C13 FROM X_Temp"),
                 std::string("2020|12|2|-|-|-|-|-|-"));
        g.Poner("T_IPR", {{"Id_Ganadero", 12.0}, {"AñoNatural", 2020}, {"PartosAgrup", "Inv."}});
        g.Poner("T_AbonadoSuperficie", {{"Id_Ganadero", 12.0},
                                        {"AñoNatural", 2020},
                                        {"HasNoCom", 8.0},
                                        {"HasAbonadas", 1.0},
                                        {"Abonado", "Bueno"}});
        g.Poner("T_PastosComunales", {{"Id_Ganadero", 12.0},
                                      {"AñoNatural", 2020},
                                      {"InicioPC", F("28/2/20")},
                                      {"FinPC", F("1/3/20")},
                                      {"NovVacasPC", 1.0}});
        g.Poner(
            "T_AlimentacionInvernal",
            {{"Id_Ganadero", 12.0}, {"AñoNatural", 2020}, {"InicioPI", F("28/2/20")}, {"AlimPI", "Bueno"}});
        g.Poner("T_SistemaProduccion", {{"Id_Ganadero", 12.0}, {"AñoNatural", 2021}, {"TipoSP", "SE"}});
        const auto fila = [&] {
            LlenarManejo(g.c, {{12}, "2020"});
            return g.Texto("SELECT C4, C5, C6, C7, C8, C10, C11, C12, C13 FROM X_Temp");
        };
        QCOMPARE(fila(), std::string("Inv.|Bueno|12|0,3|2|50|-|Bueno|-")); // 12.5 % to even, 0.25 up
        g.c.Execute("UPDATE T_AbonadoSuperficie SET HasNoCom = 0, Abonado = ''");
        g.c.Execute("DELETE FROM T_Sementales");
        QCOMPARE(fila(), std::string("Inv.|-|-|-|2|-|-|Bueno|-"));
    }

    void Enfermedades_data() {
        QTest::addColumn<int>("prueba");
        QTest::addColumn<int>("condicion");
        QTest::addColumn<QString>("valor");
        QTest::addColumn<bool>("problematicas");
        QTest::addColumn<QString>("vacas");
        QTest::newRow("all") << -1 << 1 << "" << false << "1/2/3/4/5/6";
        QTest::newRow("problematic") << -1 << -1 << "" << true << "2/4";
        QTest::newRow("any conversion") << 0 << 0 << "" << false << "1/6";
        QTest::newRow("positive, any case") << 0 << 1 << "" << false << "2/3";
        QTest::newRow("negative") << 0 << 2 << "" << false << "";
        QTest::newRow("above") << 0 << 3 << "0,5" << false << "4";
        QTest::newRow("above, point") << 0 << 3 << "0.5" << false << "4";
        QTest::newRow("above itself") << 0 << 3 << "0,85" << false << "";
        QTest::newRow("above letters") << 0 << 3 << "x" << false << "";
        QTest::newRow("no condition") << 0 << -1 << "" << false << "5";
        QTest::newRow("both") << 0 << 3 << "0,5" << true << "4";
        QTest::newRow("another test") << 2 << 1 << "" << false << "5";
    }
    void Enfermedades() {
        QFETCH(int, prueba);
        QFETCH(int, condicion);
        QFETCH(QString, valor);
        QFETCH(bool, problematicas);
        QFETCH(QString, vacas);
        Granja g;
        int i = 0;
        for (const char* ibr : {"ConvSp", "positiva", "Positiva", "0,85", "", "Conv*"}) {
            const double id = ++i;
            g.Vaca(id, -1);
            g.Poner("T_Cubriciones", {{"Id_Vaca", id},
                                      {"Año_Ref", 2020},
                                      {"N_Parto", 2},
                                      {"IPR_CP", i % 2    ? 42
                                                 : i == 6 ? 0
                                                          : 43},
                                      {"Metritis", i},
                                      {"Estado", i == 1 ? "preñada" : "Vacía"}});
            if (*ibr)
                g.Poner("T_R_IBRBVD", {{"Id_Ganadero", 12.0},
                                       {"Id_Vaca", id},
                                       {"AñoRef", 2020},
                                       {"NumParto", 2},
                                       {"IBR", ibr}});
        }
        g.Poner("T_R_IBRBVD", // of another parity
                {{"Id_Ganadero", 12.0},
                 {"Id_Vaca", 5.0},
                 {"AñoRef", 2020},
                 {"NumParto", 3},
                 {"IBR", "Positiva"}});
        g.Poner("T_R_NEOSPIROSIS", {{"Id_Ganadero", 12.0},
                                    {"Id_Vaca", 5.0},
                                    {"AñoRef", 2020},
                                    {"NumParto", 2},
                                    {"Neospirosis", "Positiva"}});
        const PeticionEnfermedades p{12,
                                     "2020",
                                     static_cast<PruebaDeEnfermedad>(prueba),
                                     static_cast<CondicionDePrueba>(condicion),
                                     valor.toStdString(),
                                     problematicas};
        QVERIFY(LlenarEnfermedades(g.c, p)); // a report, though none may pass
        QCOMPARE(g.Texto("SELECT C3 FROM X_Temp"), vacas.toStdString());
        if (prueba == -1 && !problematicas)
            QCOMPARE(g.Texto("SELECT C5, C6, C7, C9, C12, C13 FROM X_Temp WHERE C3 = '1' OR C3 = '5'"),
                     std::string("Sí|-|ConvSp||Preñada|Sí/Sí|-||Positiva|-|Sí"));
        auto otroAño = p;
        otroAño.año = "2021";
        QVERIFY(!LlenarEnfermedades(g.c, otroAño));
    }
};

PRUEBA(PruebaAnalisis)
#include "PruebaAnalisis.moc"
