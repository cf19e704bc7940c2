#include "Granja.h"

#include "reports/figuras/Figuras.h"

using namespace prueba;

// The analyses of a farmer's year: fattening, delays, management, diseases.
class PruebaAnalisis : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // A year without animals empties the table and opens nothing.
    void SinCebo() {
        Granja g;
        g.Poner("T_Cebo", "Id_Cebo=1, Id_Ganadero=12, AñoRef=2020, PrecioKg=1234.565");
        QVERIFY(LlenarCebo(g.c, {{12}, "2020"}));
        QUEDA(g, "C3, C10 FROM X_Temp", "-|1.234,57");
        QVERIFY(!LlenarCebo(g.c, {{12}, "2021"}));
        QUEDA(g, "C10 FROM X_Temp", "");
    }
    void OrigenDelCebo_data() {
        Caso("own", "Propio", 5.5, "1|V|5,50");
        Caso("capitals are another word", "PROPIO", 5.5, "-|-|5,50");
        Caso("bought, for nothing", "Comprado PostD", 0.0, "-|-|-");
        Caso("negative price", "Propio", -1.0, "1|V|-");
    }
    void OrigenDelCebo() {
        const auto [origen, precio, fila] = DelCaso<QString, double, QString>();
        Granja g;
        g.Vaca(1, -1);
        g.Poner("T_Cebo", "Id_Cebo=1, Id_Ganadero=12, AñoRef=2020, Origen, Id_Vaca=1, PrecioKg",
                origen.toStdString(), precio);
        QVERIFY(LlenarCebo(g.c, {{12}, "2020"}));
        QCOMPARE(g.Texto("SELECT C3, C4, C10 FROM X_Temp"), fila.toStdString());
    }

    void Demora() {
        Granja g;
        g.Vaca(1, -1, "5/6/2020");
        const auto cubricion = [&](int año, int n, int dias) {
            g.Poner("T_Cubriciones",
                    "Id_Vaca=1, Año_Ref, N_Parto, IPR_CP, TA2MIPR=1, DemoraServ=0, Enfermendad=0, "
                    "DescEnfermedad=cojera, DatosCompletos=0",
                    año, n, dias);
        };
        cubricion(2020, 2, 42);
        QVERIFY(!LlenarDemora(g.c, {{12}, "2020"})); // 42 days are no delay
        cubricion(2020, 2, 43);
        cubricion(2019, 2, 10);
        g.c.Execute("UPDATE T_Vacas SET FechaNac = #03/01/2018#");
        QVERIFY(LlenarDemora(g.c, {{12}, "2020"}));
        QUEDA(g, "F1, N1, N2, C5, C7, C8, C9, C10, C11, C12, C15 FROM X_Temp",
              "01/03/18|2|43|05/06/20|-|-|-| |Sí|-|No");
        // The services of all years in which she has a record of that parity, whatever their own parity.
        const auto servicio = [&](int año, int n, int s, const char* dia) {
            g.Poner("T_Servicios", "Id_Vaca=1, Año_Ref, N_Parto, N_Servicio, Fecha_Servicio", año, n, s,
                    F(dia));
        };
        servicio(2020, 2, 1, "1/5/20");
        servicio(2019, 7, 3, "1/5/19");
        servicio(2018, 2, 9, "1/5/18");
        LlenarDemora(g.c, {{12}, "2020"});
        QUEDA(g, "C10 FROM X_Temp", "01/05/19");
    }

    // The load is the mean of the year's two ends; each figure has its own guard.
    void Manejo() {
        Granja g;
        g.Poner("T_Sementales", "Id_Semental=1, Id_Ganadero=12"); // 1.5 UGM, 2 when rounded
        LlenarManejo(g.c, {{12}, "2020"});
        QUEDA(g, "N1, N2, C3, C4, C6, C7, C8, C10, C13 FROM X_Temp", "2020|12|2|-|-|-|-|-|-");
        g.Poner("T_IPR", "Id_Ganadero=12, AñoNatural=2020, PartosAgrup=Inv.");
        g.Poner("T_AbonadoSuperficie",
                "Id_Ganadero=12, AñoNatural=2020, HasNoCom=8, HasAbonadas=1, Abonado=Bueno");
        g.Poner("T_PastosComunales", "Id_Ganadero=12, AñoNatural=2020, InicioPC, FinPC, NovVacasPC=1",
                F("28/2/20"), F("1/3/20"));
        g.Poner("T_AlimentacionInvernal", "Id_Ganadero=12, AñoNatural=2020, InicioPI, AlimPI=Bueno",
                F("28/2/20"));
        g.Poner("T_SistemaProduccion", "Id_Ganadero=12, AñoNatural=2021, TipoSP=SE");
        const auto fila = [&] {
            LlenarManejo(g.c, {{12}, "2020"});
            return g.Texto("SELECT C4, C5, C6, C7, C8, C10, C11, C12, C13 FROM X_Temp");
        };
        QCOMPARE(fila(), "Inv.|Bueno|12|0,3|2|50|-|Bueno|-"s); // 12.5 % to even, 0.25 up
        g.c.Execute("UPDATE T_AbonadoSuperficie SET HasNoCom = 0, Abonado = ''");
        g.c.Execute("DELETE FROM T_Sementales");
        QCOMPARE(fila(), "Inv.|-|-|-|2|-|-|Bueno|-"s);
    }

    void Enfermedades_data() {
        Caso("all", -1, 1, "", false, "1/2/3/4/5/6");
        Caso("problematic", -1, -1, "", true, "2/4");
        Caso("any conversion", 0, 0, "", false, "1/6");
        Caso("positive, any case", 0, 1, "", false, "2/3");
        Caso("negative", 0, 2, "", false, "");
        Caso("above", 0, 3, "0,5", false, "4");
        Caso("above, point", 0, 3, "0.5", false, "4");
        Caso("above itself", 0, 3, "0,85", false, "");
        Caso("above letters", 0, 3, "x", false, "");
        Caso("no condition", 0, -1, "", false, "5");
        Caso("both", 0, 3, "0,5", true, "4");
        Caso("another test", 2, 1, "", false, "5");
    }
    void Enfermedades() {
        const auto [prueba, condicion, valor, problematicas, vacas] =
            DelCaso<int, int, QString, bool, QString>();
        Granja g;
        int i = 0;
        for (const char* ibr : {"ConvSp", "positiva", "Positiva", "0,85", "", "Conv*"}) {
            const double id = ++i;
            g.Vaca(id, -1);
            g.Poner("T_Cubriciones", "Id_Vaca, Año_Ref=2020, N_Parto=2, IPR_CP, Metritis, Estado", id,
                    i % 2    ? 42
                    : i == 6 ? 0
                             : 43,
                    i, i == 1 ? "preñada" : "Vacía");
            if (*ibr)
                g.Poner("T_R_IBRBVD", "Id_Ganadero=12, Id_Vaca, AñoRef=2020, NumParto=2, IBR", id, ibr);
        }
        // of another parity
        g.Poner("T_R_IBRBVD", "Id_Ganadero=12, Id_Vaca=5, AñoRef=2020, NumParto=3, IBR=Positiva");
        g.Poner("T_R_NEOSPIROSIS",
                "Id_Ganadero=12, Id_Vaca=5, AñoRef=2020, NumParto=2, Neospirosis=Positiva");
        const PeticionEnfermedades p{12,
                                     "2020",
                                     static_cast<PruebaDeEnfermedad>(prueba),
                                     static_cast<CondicionDePrueba>(condicion),
                                     valor.toStdString(),
                                     problematicas};
        QVERIFY(LlenarEnfermedades(g.c, p)); // a report, though none may pass
        QCOMPARE(g.Texto("SELECT C3 FROM X_Temp"), vacas.toStdString());
        if (prueba == -1 && !problematicas)
            QUEDA(g, "C5, C6, C7, C9, C12, C13 FROM X_Temp WHERE C3 = '1' OR C3 = '5'",
                  "Sí|-|ConvSp||Preñada|Sí/Sí|-||Positiva|-|Sí");
        auto otroAño = p;
        otroAño.año = "2021";
        QVERIFY(!LlenarEnfermedades(g.c, otroAño));
    }
};

PRUEBA(PruebaAnalisis)
#include "PruebaAnalisis.moc"
