#include "PuestoDeFichas.h"
#include "prueba.h"

#include "registers/datos/AsuntosSanidad.h"
#include "registers/datos/Mamitis.h"

using namespace pastorix;
using namespace prueba;

namespace {

constexpr VacaEnHoja kVaca{1200001, 12};

void Cubricion(PuestoDeFichas& p, int año, Valor parto, Valor fecha = {}) {
    p.Poner("T_Cubriciones",
            {{"Id_Vaca", kVaca.idVaca}, {"Año_Ref", año}, {"N_Parto", parto}, {"Fecha_Parto", fecha}});
}

std::string Celdas(const std::vector<Linea>& lineas) {
    std::string t;
    for (const auto& l : lineas) {
        t += t.empty() ? "" : "/";
        for (std::size_t i = 0; i < l.celdas.size(); ++i)
            t += (i ? "|" : "") + l.celdas[i];
    }
    return t;
}

} // namespace

// What the health pages read and write, without a window.
class PruebaSanidad : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Lactaciones() {
        PuestoDeFichas p;
        const auto parto = [&](int año, Valor n, const char* destete, Valor cuartos, double vaca = 1200001) {
            p.Poner("T_Partos", {{"Id_Vaca", vaca},
                                 {"Año_Ref", año},
                                 {"N_Parto", n},
                                 {"FechaDestete", *destete ? Valor(F(destete)) : Valor()},
                                 {"CuartosPerdidos", cuartos}});
        };
        parto(2022, 3, "1/6/2022", 1);
        parto(2022, 3, "5/6/2022", 2);
        parto(2023, 4, "", {});
        parto(2023, 4, "9/7/2023", {});
        parto(2024, 5, "2/8/2024", {});
        parto(2024, 5, "", {});
        parto(2025, {}, "", 0);
        parto(2025, {}, "", 0);   // no parity: nothing says that they are twins
        parto(2022, 3, "", 7, 5); // another cow
        auto lineas = LeerLactaciones(p.sesion.conexion, 1200001);
        QCOMPARE(Celdas(lineas), "2025|||||0/2025|||||0/2024||5|02/08/24 - ||/"
                                 "2023||4|<?> - 09/07/23||/2022||3|01/06/22 - 05/06/22||1"s);
        lineas[0].celdas[kTratSecado] = "sin parto";
        lineas[2].celdas[kTratSecado] = "Sí, d'un día";
        lineas[2].celdas[kCuartosPerdidos] = "x";
        lineas[4].celdas[kCuartosPerdidos] = "2";
        EscribirLactaciones(p.sesion.conexion, 1200001, lineas);
        QCOMPARE(p.Texto("SELECT Año_Ref, TratSecado, CuartosPerdidos FROM T_Partos"),
                 "2022|-|2/2022|-|2/2023|-|-/2023|-|-/2024|Sí, d'un día|-/2024|Sí, d'un día|-/"
                 "2025|-|0/2025|-|0/2022|-|7"s);
    }

    void CuatroTetos() {
        PuestoDeFichas p;
        const auto tetos = [&](double teto, bool marcado, Valor nota) {
            p.Poner(
                "T_Mamitis",
                {{"Id_Vaca", 7.0}, {"Id_Teto", teto}, {"marcado", marcado ? -1 : 0}, {"DescMamitis", nota}});
        };
        tetos(3, true, "Golpe"s);
        tetos(9, true, {}); // there is no such teat
        auto leidos = LeerTetos(p.sesion.conexion, 7);
        QCOMPARE(leidos[0].nombre, "Anterior izquierdo"s);
        QVERIFY(leidos[2].marcado && !leidos[3].marcado);
        leidos[0].fecha = F("1/3/2205");
        EscribirTetos(p.sesion.conexion, 7, leidos);
        QCOMPARE(p.Texto("SELECT Id_Teto, DescMamitis, marcado FROM T_Mamitis ORDER BY Id_Teto"),
                 "1|-|0/2|-|0/3|Golpe|-1/4|-|0"s);
        QCOMPARE(LeerTetos(p.sesion.conexion, 7)[0].fecha, Valor(F("1/3/2205")));
    }

    void LineasDeCiclos() {
        PuestoDeFichas p;
        Cubricion(p, 2022, 3, F("4/1/2022"));
        Cubricion(p, 2023, 4);
        Cubricion(p, 2023, {}); // a mating record without parity has a line of its own
        const auto de = [&](const char* tabla, const char* campo, const char* fecha, int servicio = 0) {
            pastorix::Recordset rs(p.sesion.conexion, "SELECT * FROM "s + tabla);
            rs.AddNew();
            rs["Id_Vaca"] = kVaca.idVaca;
            rs["Año_Ref"] = 2022;
            rs["N_Parto"] = 3;
            rs[campo] = *fecha ? Valor(F(fecha)) : Valor();
            if (servicio)
                rs["N_Servicio"] = servicio;
            rs.Update();
        };
        de("T_Partos", "FechaDestete", "1/6/2022");
        de("T_Partos", "FechaDestete", "5/6/2022");
        de("T_Partos", "FechaDestete", "");
        de("T_Servicios", "Fecha_Servicio", "2/5/2022", 2);
        de("T_Servicios", "Fecha_Servicio", "9/9/2022", 1); // a later date, an earlier service
        const auto valores = [&](Valor año, Valor parto, double cc) {
            p.Poner("T_CCVacas",
                    {{"Id_Vaca", kVaca.idVaca}, {"AñoRef", año}, {"NumParto", parto}, {"CCParto", cc}});
        };
        valores(2022, 3, 2.25);
        valores(2022, 3, 9.0); // repeated: the first one shows
        valores(2023, {}, 1.5);
        valores(2019, 1, 3.0); // its mating record is gone
        auto datos = LeerAsunto(p.sesion.conexion, kCondicionCorporal, kVaca.idVaca);
        QCOMPARE(Celdas(datos.ciclos), "2023|4||||||||/2023|||1,5||||||/2022|3|04/01/22|2,25|||05/06/22|||"s);
        QCOMPARE(Celdas(LeerAsunto(p.sesion.conexion, kIBRBVD, kVaca.idVaca).ciclos),
                 "2023|4||||/2023|||||/2022|3|04/01/22|02/05/22||"s);
        GuardarAsunto(p.sesion.conexion, kCondicionCorporal, kVaca, datos);
        QCOMPARE(p.Texto("SELECT Id_Ganadero, AñoRef, NumParto, CCParto, MobReservas FROM T_CCVacas"),
                 "12|2023|4|-|-/12|2023|-|1,5|-/12|2022|3|2,25|-"s);
    }

    // One table, the observation, the other table; what fails leaves what was done before it.
    void OrdenDeGuardar_data() {
        // guardado: natural years / cycles / observation
        Columnas<int, QString, QString>("asunto", "observacion", "guardado");
        const QString corte = u"d'aldea\r\nsegunda"_s;
        Caso("CC", 0, corte, u"2026/2022/"_s + corte);
        Caso("IBR", 1, corte, u"2026/2022/"_s + corte);
        Caso("Neospora, quote", 2, corte, u"2026/1999/antes"_s);
        Caso("Neospora", 2, u"uno\r\ndos"_s, u"2026/2022/uno\r\ndos"_s);
        Caso("Neospora, empty", 2, QString(), u"2026/2022/-"_s);
        Caso("IBR, empty", 1, QString(), u"2026/2022/-"_s);
    }
    void OrdenDeGuardar() {
        QFETCH(int, asunto);
        QFETCH(QString, observacion);
        QFETCH(QString, guardado);
        const AsuntoSanidad& a = asunto == 0 ? kCondicionCorporal : asunto == 1 ? kIBRBVD : kNeospora;
        PuestoDeFichas p;
        p.Poner("T_Vacas", {{"Id_Vaca", kVaca.idVaca}, {a.observacion, "antes"s}});
        Cubricion(p, 2022, 3);
        const std::string natural = a.natural.tabla;
        const std::string ciclo = a.ciclo.tabla;
        p.Poner(natural, {{"Id_Vaca", kVaca.idVaca}, {"Id_Ganadero", 12.0}, {"AñoNat", 2025}});
        p.Poner(ciclo, {{"Id_Vaca", kVaca.idVaca}, {"Id_Ganadero", 12.0}, {"AñoRef", 1999}});
        auto datos = LeerAsunto(p.sesion.conexion, a, kVaca.idVaca);
        datos.naturales[0].celdas[0] = "2026";
        datos.naturales.push_back(datos.naturales[0]);
        datos.naturales[1].celdas[0].clear(); // no year: not written
        datos.observacion = observacion.isEmpty() ? Valor() : Valor(observacion.toStdString());
        bool fallo = false;
        try {
            EnGrupo(p.sesion.conexion, [&] { GuardarAsunto(p.sesion.conexion, a, kVaca, datos); });
        } catch (const ErrorAlmacen&) {
            fallo = true;
        }
        QCOMPARE(fallo, guardado.endsWith(QLatin1String("antes")));
        QCOMPARE(QString::fromStdString(p.Texto("SELECT AñoNat FROM " + natural) + "/" +
                                        p.Texto("SELECT AñoRef FROM " + ciclo) + "/" +
                                        p.Texto("SELECT "s + a.observacion + " FROM T_Vacas")),
                 guardado);
    }

    // Every page of every cow saved as it was read: the tables hold what they held. Saving adds the rows of mating records that had none, and
    // nothing else; rows of no mating record of their cow go.
    void IdaYVuelta() {
        QTemporaryDir carpeta;
        Conexion c;
        AbrirEjemplo(c, carpeta, u"BD_PradalP.mdb"_s);
        const char* tablas[] = {"T_Mamitis", "T_MAMIVACU", "T_CCNATVACAS", "T_IBRBVD",   "T_NEOSPIROSIS",
                                "T_Partos",  "T_Vacas",    "T_CCVacas",    "T_R_IBRBVD", "T_R_NEOSPIROSIS"};
        std::map<std::string, QStringList> antes;
        for (const char* t : tablas)
            antes[t] = FilasDe(c, t);
        EnGrupo(c, [&] {
            for (Recordset rs(c, "SELECT Id_Vaca, Id_Ganadero FROM T_Vacas"); !rs.Eof(); rs.Siguiente()) {
                const VacaEnHoja vaca{rs["Id_Vaca"].Numero(), rs["Id_Ganadero"].Numero()};
                for (const auto* asunto : {&kCondicionCorporal, &kIBRBVD, &kNeospora})
                    GuardarAsunto(c, *asunto, vaca, LeerAsunto(c, *asunto, vaca.idVaca));
                EscribirNaturales(c, kVacunasMamitis, vaca, LeerNaturales(c, kVacunasMamitis, vaca.idVaca));
                EscribirTetos(c, vaca.idVaca, LeerTetos(c, vaca.idVaca));
                EscribirLactaciones(c, vaca.idVaca, LeerLactaciones(c, vaca.idVaca));
            }
        });
        const auto cuantas = [&](const char* de) { return FilasDe(c, de).size(); };
        for (const char* t : tablas) {
            const QByteArray tabla(t);
            const auto ahora = FilasDe(c, t);
            QVERIFY2(SinLosDe(antes[t], ahora).isEmpty(), t);
            const auto nuevas = SinLosDe(ahora, antes[t]);
            if (tabla == "T_Mamitis")
                QCOMPARE(ahora.size(), cuantas("T_Vacas") * kTetos);
            else if (tabla == "T_CCVacas" || tabla.startsWith("T_R_"))
                QCOMPARE(ahora.size(), cuantas("T_Cubriciones"));
            else
                QVERIFY2(nuevas.isEmpty(), t);
            const auto vacia = tabla == "T_Mamitis" ? u"|-|-|=0"_s : u"|-"_s;
            for (const auto& fila : nuevas)
                QVERIFY2(fila.endsWith(vacia), qUtf8Printable(fila));
        }
    }
};

PRUEBA(PruebaSanidad)
#include "PruebaSanidad.moc"
