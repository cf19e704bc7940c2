#include "Granja.h"

#include "frame/calendario/ErrorDeEjecucion.h"
#include "frame/calendario/Reloj.h"
#include "reports/figuras/Figuras.h"
#include "reports/figuras/GanaderoDeInforme.h"

using namespace prueba;

namespace {

struct Hoy_ {
    explicit Hoy_(const char* dia) { FijarHoy(F(dia)); }
    ~Hoy_() { FijarHoy({}); }
};

} // namespace

// The reports with a line per cow, calving or mating record: control sheet, behaviour, histories, list of cows.
class PruebaRegistrosDeVacas : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // The three ways to write two telephones.
    void Telefonos_data() {
        Caso("both", "985", "600", "985 / 600", "985 / 600", "985 / 600");
        Caso("fixed", "985", QString(), "985", "985", "985");
        Caso("mobile", QString(), "600", " / 600", " / 600", "600");
        Caso("none", QString(), QString(), "", "", QString());
        Caso("empty mobile", "985", "", "985 / ", "985", "985");
    }
    void Telefonos() {
        const auto valor = [](const QString& t) { return t.isNull() ? Valor() : Valor(t.toStdString()); };
        const auto [fijo, movil, noNulo, siHay, elQueHaya] =
            DelCaso<QString, QString, QString, QString, QString>();
        GanaderoDeInforme g;
        g.fijo = valor(fijo);
        g.movil = valor(movil);
        QVERIFY(g.TextoTelefonos(pastorix::Telefonos::MovilNoNulo) == valor(noNulo));
        QVERIFY(g.TextoTelefonos(pastorix::Telefonos::MovilSiHay) == valor(siHay));
        QVERIFY(g.TextoTelefonos(pastorix::Telefonos::ElQueHaya) == valor(elQueHaya));
    }

    // What leads a cow's line on the control sheet: date, year, parity, by the newest mating record.
    void Situacion_data() {
        // paridad: -1: no record, -2: a record without parity, -3: without year
        // linea: F1, C5, C6, C8
        Caso("no record", -1, "", "", "01/03/18|2026|0|-");
        Caso("open heifer", 0, "", "", "01/03/18|2025|0|2");
        Caso("open heifer that calved", 0, "", "05/12/24", "01/03/18|2025|0|2");
        Caso("heifer in calf", 0, "03/04/26", "", "03/04/26|2025|1|2");
        Caso("calved heifer", 0, "03/04/26", "05/12/24", "05/12/24|2027|1|2"); // today's year
        Caso("calved in spring", 0, "03/04/26", "05/05/24", "05/05/24|2026|1|2");
        Caso("cow in calf", 3, "03/04/26", "", "03/04/26|2025|4|2");
        Caso("open cow", 3, "", "", "10/02/25|2025|3|2");
        Caso("no year", -3, "", "", "10/02/25|2026|3|-");
        Caso("no parity", -2, "03/04/26", "", "03/04/26|2025|1|-");
    }
    void Situacion() {
        const auto [paridad, esperado, real, linea] = DelCaso<int, QString, QString, QString>();
        const Hoy_ hoy("22/11/26");
        Granja g;
        g.Vaca(1, -1);
        g.c.Execute("UPDATE T_Vacas SET FechaNac = #03/01/2018#");
        const auto dia = [](const QString& t) { return t.isEmpty() ? Valor() : Valor(F(qPrintable(t))); };
        if (paridad != -1) {
            const auto n = paridad == -2 ? Valor() : Valor(std::int64_t(paridad == -3 ? 3 : paridad));
            const auto año = paridad == -3 ? Valor() : Valor(std::int64_t(2025));
            if (paridad != -3)
                g.Poner("T_Cubriciones", "Id_Vaca=1, Año_Ref=2024, N_Parto", n);
            g.Poner("T_Cubriciones",
                    "Id_Vaca=1, Año_Ref, N_Parto, Fecha_Parto=10/02/25, FechaEspParto, FechaRealParto", año,
                    n, dia(esperado), dia(real));
            for (const int s : {2, 1})
                g.Poner("T_Servicios", "Id_Vaca=1, Año_Ref=2025, N_Parto, N_Servicio", n, s);
        }
        QVERIFY(LlenarControlRebaño(g.c, {12}));
        QCOMPARE(g.Texto("SELECT F1, C5, C6, C8 FROM X_Temp"), linea.toStdString());
    }

    // Planned checks first, those that have left not at all; what a cow has not is blank and not empty.
    void HojaDeVisita() {
        const Hoy_ hoy("01/12/26");
        Granja g;
        for (const double id : {1.0, 2.0, 3.0})
            g.Vaca(id, -1);
        g.Vaca(4, -1, "1/1/2020");
        g.c.Execute("UPDATE T_Vacas SET Chekeo = 'X', ObsControlRebaño = 'mirar', Crotal = Null, NombreC = "
                    "'', Nombre = 'Mora' WHERE Id_Vaca = 2");
        g.c.Execute("UPDATE T_Vacas SET FechaBaja = Null, FechaDesecho = #01/01/20# WHERE Id_Vaca = 3");
        QVERIFY(LlenarControlRebaño(g.c, {12}));
        QUEDA(g, "C3, C4, C5, C7, C9, M1 FROM X_Temp", " |Mora|2027|-|X|mirar/1|V|2027|-|-|-/3|V|2027|-|-|-");
        QVERIFY(LlenarControlRebaño(g.c, {57})); // a farmer without cows: no row, and a report all the same
        QUEDA(g, "Count(C6) AS N FROM X_Temp", "0");
    }

    void SexoYCularidad_data() {
        Caso("genotype", "Macho", "G-Culón", "M-GC");
        Caso("phenotype", "Hembra", "Normal", "H-N");
        Caso("small g", "Macho", "g-culón", "M-g");
        Caso("no class", "Macho", "", "M-");
        Caso("accents", "Ñ", "Único", "Ñ-Ú");
        Caso("G alone", "Macho", "G", "M-G");
        Caso("no sex", "", "Normal", "-");
    }
    void SexoYCularidad() {
        const auto [sexo, clase, codigo] = DelCaso<QString, QString, QString>();
        Granja g;
        g.Vaca(1, -1);
        g.Parto(1, 2, 2020, "1/2/2020", "Sexo, Cularidad", sexo.toStdString(), clase.toStdString());
        LlenarComportamientoProductivo(g.c, {{12}, "2020"});
        QCOMPARE(g.Texto("SELECT C10 FROM X_Temp"), codigo.toStdString());
    }

    // Last year's open records stand beside this year's, twins have two lines; cows that have left are in the one report and, from their year on,
    // not in the other.
    void Comportamiento() {
        Granja g;
        g.Vaca(1, -1, "15/1/2019");
        g.Vaca(2, -1);
        for (const double id : {1.0, 2.0}) {
            g.Parto(id, 2, 2020, "1/2/2020", "DatosCompletos=1, FechaPeso=1/8/20, Peso=200.5");
            g.Parto(id, 1, 2019, "1/2/2019", "DatosCompletos=0, PesoNac=40.5");
            g.Parto(id, 0, 2019, "1/2/2019", "PesoDestete=150");
        }
        g.Parto(2, 2, 2020, "1/2/2020");
        LlenarComportamientoProductivo(g.c, {{12}, "2020"});
        QUEDA(g, "C3, C5, C6, C9, C17, F3, N2 FROM X_Temp ORDER BY C3, C5 DESC, C17",
              "1|2020|2|-|Sí|01/08/20|200,5/1|2019|1|40,5|No|-|-/2|2020|2|-|Sí|01/08/20|200,5/"
              "2|2020|2|-|Sí|-|-/2|2019|1|40,5|No|-|-");

        const auto cubricion = [&](double vaca, int año, int n, Valor iepc, Valor ipr) {
            g.Poner(
                "T_Cubriciones",
                "Id_Vaca, Año_Ref, N_Parto, IEPc, IPR_CP, FinicioP, FechaEspParto=1/3/21, DatosCompletos=0",
                vaca, año, n, iepc, ipr, F("1/4/20"));
        };
        for (const double id : {1.0, 2.0})
            cubricion(id, 2020, 2, 0, 50);
        cubricion(2, 2019, 0, 400, 0);
        g.Poner("T_CCVacas", "Id_Vaca=2, AñoRef=2020, NumParto=2, CCmar=2.5");
        for (const int s : {1, 3, 2})
            g.Poner("T_Servicios", "Id_Vaca=2, Año_Ref=2020, N_Parto=2, N_Servicio, Semental", s,
                    "Toro " + std::to_string(s));
        LlenarComportamientoReproductivo(g.c, {{12}, "2020"}); // cow 1 left in 2019
        QUEDA(g, "C3, C5, C8, C9, C12, C13, C15, C17, F4 FROM X_Temp",
              "2|2020|1/4/20|2,5|Toro 3|3|-|No|01/03/21/2|2019|1/4/20|-|-|-|0|No|01/03/21");
        g.c.Execute("UPDATE T_Vacas SET FechaDesecho = #12/31/20# WHERE Id_Vaca = 1");
        LlenarComportamientoReproductivo(g.c, {{12}, "2020"});
        QUEDA(g, "C3, F3 FROM X_Temp WHERE C3 = '1'", "1|31/12/20");
    }

    // The tag wins over the farmer; the two histories tell a live cow by different fields.
    void Historicos() {
        Granja g;
        g.Poner("T_Ganaderos", "Id_Ganadero=57, Nombre=Ana, Apellidos=Gil");
        for (const double id : {1.0, 2.0, 3.0}) {
            g.Vaca(id, 1);
            g.Parto(id, 1, 2020, id == 1 ? "1/5/2020" : "1/3/2020", "PesoDestete", 200.0 + id);
            g.Parto(id, 2, 2021, id == 1 ? "1/2/2021" : "1/4/2021", "FechaPeso=1/8/20");
        }
        g.c.Execute("UPDATE T_Vacas SET FechaBaja = #01/01/22#, FechaDesecho = Null WHERE Id_Vaca = 2");
        g.c.Execute("UPDATE T_Vacas SET FechaDesecho = #01/01/22#, FechaBaja = Null WHERE Id_Vaca = 3");
        const auto crotales = [&] { return g.Texto("SELECT C3 FROM X_Temp"); };
        LlenarHistoricoProductivo(g.c, {"", 12, false});
        QUEDA(g, "C3, N2, F3 FROM X_Temp",
              "2|202|-/3|203|-/1|201|-/1|-|-/2|-|-/3|-|-"); // they interleave by date
        LlenarHistoricoProductivo(g.c, {"", 12, true});
        QCOMPARE(crotales(), "3/1/1/3"s);
        LlenarHistoricoReproductivo(g.c, {"", 12, true});
        QCOMPARE(crotales(), "1/2"s);
        LlenarHistoricoReproductivo(g.c, {"3", 57, false}); // of another farmer
        QUEDA(g, "C1, C3, C17 FROM X_Temp", "Nora  - |3|Sí");
        LlenarHistoricoReproductivo(g.c, {"77", 12, false});
        QCOMPARE(crotales(), std::string());
        QVERIFY_THROWS_EXCEPTION(ErrorAlmacen,
                                 LlenarHistoricoReproductivo(g.c, {"1' OR 'x' = 'x", 12, false}));
    }

    // On the farm on any day of the year, from 1 December to 30 November, by the last record up to the year.
    void Vacas() {
        Granja g;
        g.Vaca(1, 3, "1/12/2019");
        g.Vaca(2, 3, "30/11/2019");
        g.Vaca(3, 3, nullptr, "30/11/2020");
        g.Vaca(4, 3, nullptr, "1/12/2020");
        g.Vaca(5, 0);
        g.Vaca(6, -1);
        g.Cubricion(3, 2021, 4);
        g.Cubricion(3, 2019, 2);
        g.Cubricion(3, 2020, 5, "1/2/2020");
        const auto lista = [&](PeticionVacas p) {
            LlenarVacas(g.c, p);
            return g.Texto("SELECT C3, N1, F2, C7, C12 FROM X_Temp");
        };
        QCOMPARE(lista({12, "2020", false, ""}), "1|3|-|1/12/19|-/3|5|01/02/20|-|30/11/20"s);
        QUEDA(g, "C1, C2, N10 FROM X_Temp WHERE C3 = '1'", "12   Nora | |12");
        QCOMPARE(lista({12, "2020", true, ""}), "1|3|-|1/12/19|-/3|5|01/02/20|-|30/11/20/5|0|-|-|-"s);
        QCOMPARE(lista({12, "2020", false, "1/12/2019"}), "1|3|-|1/12/19|-"s); // a census
        QCOMPARE(lista({12, "2020", false, "2/12/2019"}), std::string());
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion, lista({12, "0000", false, ""}));
    }
};

PRUEBA(PruebaRegistrosDeVacas)
#include "PruebaRegistrosDeVacas.moc"
