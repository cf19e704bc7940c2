#include "Granja.h"
#include "prueba.h"

#include "frame/calendario/ErrorDeEjecucion.h"
#include "frame/calendario/Reloj.h"
#include "reports/figuras/Figuras.h"
#include "reports/figuras/GanaderoDeInforme.h"

using namespace pastorix;
using prueba::F;
using prueba::Granja;

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
        prueba::ColumnasDeTexto({"fijo", "movil", "noNulo", "siHay", "elQueHaya"});
        prueba::FilaDeTextos("both", {"985", "600", "985 / 600", "985 / 600", "985 / 600"});
        prueba::FilaDeTextos("fixed", {"985", QString(), "985", "985", "985"});
        prueba::FilaDeTextos("mobile", {QString(), "600", " / 600", " / 600", "600"});
        prueba::FilaDeTextos("none", {QString(), QString(), "", "", QString()});
        prueba::FilaDeTextos("empty mobile", {"985", "", "985 / ", "985", "985"});
    }
    void Telefonos() {
        const auto valor = [](const QString& t) { return t.isNull() ? Valor() : Valor(t.toStdString()); };
        QFETCH(QString, fijo);
        QFETCH(QString, movil);
        GanaderoDeInforme g;
        g.fijo = valor(fijo);
        g.movil = valor(movil);
        QFETCH(QString, noNulo);
        QFETCH(QString, siHay);
        QFETCH(QString, elQueHaya);
        QVERIFY(g.TextoTelefonos(pastorix::Telefonos::MovilNoNulo) == valor(noNulo));
        QVERIFY(g.TextoTelefonos(pastorix::Telefonos::MovilSiHay) == valor(siHay));
        QVERIFY(g.TextoTelefonos(pastorix::Telefonos::ElQueHaya) == valor(elQueHaya));
    }

    // What leads a cow's line on the control sheet: date, year, parity, by the newest mating record.
    void Situacion_data() {
        QTest::addColumn<int>("paridad"); // -1: no record, -2: a record without parity, -3: without year
        QTest::addColumn<QString>("esperado");
        QTest::addColumn<QString>("real");
        QTest::addColumn<QString>("linea"); // F1, C5, C6, C8
        const auto fila = [](const char* caso, int n, const char* esp, const char* real, const char* linea) {
            QTest::newRow(caso) << n << esp << real << linea;
        };
        fila("no record", -1, "", "", "01/03/18|2026|0|-");
        fila("open heifer", 0, "", "", "01/03/18|2025|0|2");
        fila("open heifer that calved", 0, "", "05/12/24", "01/03/18|2025|0|2");
        fila("heifer in calf", 0, "03/04/26", "", "03/04/26|2025|1|2");
        fila("calved heifer", 0, "03/04/26", "05/12/24", "05/12/24|2027|1|2"); // today's year
        fila("calved in spring", 0, "03/04/26", "05/05/24", "05/05/24|2026|1|2");
        fila("cow in calf", 3, "03/04/26", "", "03/04/26|2025|4|2");
        fila("open cow", 3, "", "", "10/02/25|2025|3|2");
        fila("no year", -3, "", "", "10/02/25|2026|3|-");
        fila("no parity", -2, "03/04/26", "", "03/04/26|2025|1|-");
    }
    void Situacion() {
        QFETCH(int, paridad);
        QFETCH(QString, esperado);
        QFETCH(QString, real);
        QFETCH(QString, linea);
        const Hoy_ hoy("22/11/26");
        Granja g;
        g.Vaca(1, -1);
        g.c.Execute("UPDATE T_Vacas SET FechaNac = #03/01/2018#");
        const auto dia = [](const QString& t) { return t.isEmpty() ? Valor() : Valor(F(qUtf8Printable(t))); };
        if (paridad != -1) {
            const auto n = paridad == -2 ? Valor() : Valor(std::int64_t(paridad == -3 ? 3 : paridad));
            const auto año = paridad == -3 ? Valor() : Valor(std::int64_t(2025));
            if (paridad != -3)
                g.Poner("T_Cubriciones", {{"Id_Vaca", 1.0}, {"Año_Ref", 2024}, {"N_Parto", n}});
            g.Poner("T_Cubriciones", {{"Id_Vaca", 1.0},
                                      {"Año_Ref", año},
                                      {"N_Parto", n},
                                      {"Fecha_Parto", F("10/02/25")},
                                      {"FechaEspParto", dia(esperado)},
                                      {"FechaRealParto", dia(real)}});
            for (const int s : {2, 1})
                g.Poner("T_Servicios",
                        {{"Id_Vaca", 1.0}, {"Año_Ref", 2025}, {"N_Parto", n}, {"N_Servicio", s}});
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
        QCOMPARE(g.Texto("SELECT C3, C4, C5, C7, C9, M1 FROM X_Temp"),
                 std::string(" |Mora|2027|-|X|mirar/1|V|2027|-|-|-/3|V|2027|-|-|-"));
        QVERIFY(LlenarControlRebaño(g.c, {57})); // a farmer without cows: no row, and a report all the same
        QCOMPARE(g.Texto("SELECT Count(C6) AS N FROM X_Temp"), std::string("0"));
    }

    void SexoYCularidad_data() {
        prueba::ColumnasDeTexto({"sexo", "clase", "codigo"});
        prueba::FilaDeTextos("genotype", {"Macho", "G-Culón", "M-GC"});
        prueba::FilaDeTextos("phenotype", {"Hembra", "Normal", "H-N"});
        prueba::FilaDeTextos("small g", {"Macho", "g-culón", "M-g"});
        prueba::FilaDeTextos("no class", {"Macho", "", "M-"});
        prueba::FilaDeTextos("accents", {"Ñ", "Único", "Ñ-Ú"});
        prueba::FilaDeTextos("G alone", {"Macho", "G", "M-G"});
        prueba::FilaDeTextos("no sex", {"", "Normal", "-"});
    }
    void SexoYCularidad() {
        QFETCH(QString, sexo);
        QFETCH(QString, clase);
        QFETCH(QString, codigo);
        Granja g;
        g.Vaca(1, -1);
        g.Parto(1, 2, 2020, "1/2/2020", {{"Sexo", sexo.toStdString()}, {"Cularidad", clase.toStdString()}});
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
            g.Parto(id, 2, 2020, "1/2/2020",
                    {{"DatosCompletos", 1}, {"FechaPeso", F("1/8/20")}, {"Peso", 200.5}});
            g.Parto(id, 1, 2019, "1/2/2019", {{"DatosCompletos", 0}, {"PesoNac", 40.5}});
            g.Parto(id, 0, 2019, "1/2/2019", {{"PesoDestete", 150.0}});
        }
        g.Parto(2, 2, 2020, "1/2/2020");
        LlenarComportamientoProductivo(g.c, {{12}, "2020"});
        QCOMPARE(g.Texto("SELECT C3, C5, C6, C9, C17, F3, N2 FROM X_Temp ORDER BY C3, C5 DESC, C17"),
                 std::string("1|2020|2|-|Sí|01/08/20|200,5/1|2019|1|40,5|No|-|-/2|2020|2|-|Sí|01/08/20|200,5/"
                             "2|2020|2|-|Sí|-|-/2|2019|1|40,5|No|-|-"));

        const auto cubricion = [&](double vaca, int año, int n, Valor iepc, Valor ipr) {
            g.Poner("T_Cubriciones", {{"Id_Vaca", vaca},
                                      {"Año_Ref", año},
                                      {"N_Parto", n},
                                      {"IEPc", iepc},
                                      {"IPR_CP", ipr},
                                      {"FinicioP", F("1/4/20")},
                                      {"FechaEspParto", F("1/3/21")},
                                      {"DatosCompletos", 0}});
        };
        for (const double id : {1.0, 2.0})
            cubricion(id, 2020, 2, 0, 50);
        cubricion(2, 2019, 0, 400, 0);
        g.Poner("T_CCVacas", {{"Id_Vaca", 2.0}, {"AñoRef", 2020}, {"NumParto", 2}, {"CCmar", 2.5}});
        for (const int s : {1, 3, 2})
            g.Poner("T_Servicios", {{"Id_Vaca", 2.0},
                                    {"Año_Ref", 2020},
                                    {"N_Parto", 2},
                                    {"N_Servicio", s},
                                    {"Semental", "Toro " + std::to_string(s)}});
        LlenarComportamientoReproductivo(g.c, {{12}, "2020"}); // cow 1 left in 2019
        QCOMPARE(g.Texto("SELECT C3, C5, C8, C9, C12, C13, C15, C17, F4 FROM X_Temp"),
                 std::string("2|2020|1/4/20|2,5|Toro 3|3|-|No|01/03/21/2|2019|1/4/20|-|-|-|0|No|01/03/21"));
        g.c.Execute("UPDATE T_Vacas SET FechaDesecho = #12/31/20# WHERE Id_Vaca = 1");
        LlenarComportamientoReproductivo(g.c, {{12}, "2020"});
        QCOMPARE(g.Texto("SELECT C3, F3 FROM X_Temp WHERE C3 = '1'"), std::string("1|31/12/20"));
    }

    // The tag wins over the farmer; the two histories tell a live cow by different fields.
    void Historicos() {
        Granja g;
        g.Poner("T_Ganaderos", {{"Id_Ganadero", 57.0}, {"Nombre", "Ana"}, {"Apellidos", "Gil"}});
        for (const double id : {1.0, 2.0, 3.0}) {
            g.Vaca(id, 1);
            g.Parto(id, 1, 2020, id == 1 ? "1/5/2020" : "1/3/2020", {{"PesoDestete", 200.0 + id}});
            g.Parto(id, 2, 2021, id == 1 ? "1/2/2021" : "1/4/2021", {{"FechaPeso", F("1/8/20")}});
        }
        g.c.Execute("UPDATE T_Vacas SET FechaBaja = #01/01/22#, FechaDesecho = Null WHERE Id_Vaca = 2");
        g.c.Execute("UPDATE T_Vacas SET FechaDesecho = #01/01/22#, FechaBaja = Null WHERE Id_Vaca = 3");
        const auto crotales = [&] { return g.Texto("SELECT C3 FROM X_Temp"); };
        LlenarHistoricoProductivo(g.c, {"", 12, false});
        QCOMPARE(g.Texto("SELECT C3, N2, F3 FROM X_Temp"),
                 std::string("2|202|-/3|203|-/1|201|-/1|-|-/2|-|-/3|-|-")); // they interleave by date
        LlenarHistoricoProductivo(g.c, {"", 12, true});
        QCOMPARE(crotales(), std::string("3/1/1/3"));
        LlenarHistoricoReproductivo(g.c, {"", 12, true});
        QCOMPARE(crotales(), std::string("1/2"));
        LlenarHistoricoReproductivo(g.c, {"3", 57, false}); // of another farmer
        QCOMPARE(g.Texto("SELECT C1, C3, C17 FROM X_Temp"), std::string("Nora  - |3|Sí"));
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
        QCOMPARE(lista({12, "2020", false, ""}), std::string("1|3|-|1/12/19|-/3|5|01/02/20|-|30/11/20"));
        QCOMPARE(g.Texto("SELECT C1, C2, N10 FROM X_Temp WHERE C3 = '1'"), std::string("12   Nora | |12"));
        QCOMPARE(lista({12, "2020", true, ""}),
                 std::string("1|3|-|1/12/19|-/3|5|01/02/20|-|30/11/20/5|0|-|-|-"));
        QCOMPARE(lista({12, "2020", false, "1/12/2019"}), std::string("1|3|-|1/12/19|-")); // a census
        QCOMPARE(lista({12, "2020", false, "2/12/2019"}), std::string());
        QVERIFY_THROWS_EXCEPTION(ErrorDeEjecucion, lista({12, "0000", false, ""}));
    }
};

PRUEBA(PruebaRegistrosDeVacas)
#include "PruebaRegistrosDeVacas.moc"
