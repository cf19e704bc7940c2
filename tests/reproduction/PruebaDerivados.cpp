#include "BaseDePrueba.h"

#include "reproduction/datos/Causas.h"
#include "reproduction/datos/DatosDeCiclo.h"
#include "reproduction/datos/Destete.h"
#include "reproduction/datos/Limites.h"

using namespace prueba;

namespace {

// "parto|real|ipr|primer|último|secado|baja", dates or nothing.
DatosDeCiclo Datos(const QString& fechas, EstadoReproductivo estado, const char* añoRef,
                   const char* añoBaja) {
    const auto partes = fechas.split(u'|');
    const auto fecha = [&](qsizetype i) { return FechaDeTexto(partes.value(i).toStdString()); };
    return {fecha(0), fecha(1), fecha(2), fecha(3), fecha(4),       fecha(5),
            estado,   añoRef,   fecha(6), añoBaja,  F("22/11/2026")};
}

std::string Texto(const std::optional<int>& n) {
    return n ? std::to_string(*n) : "";
}

} // namespace

// What a mating record and a calf are worth, worked out from dates and texts alone.
class PruebaDerivados : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Intervalos_data() {
        // estado: 0 none, 1 pregnant, 2 empty
        // años: of the record, of her last record when she left
        Caso("nothing known", "||||||", 0, "2026|", "No F.IPR", "");
        // in the herd
        Caso("open 79 days", "4/9/26||||||", 0, "2026|", "No F.IPR", "");
        Caso("open 80 days", "3/9/26||||||", 0, "2026|", "No F.IPR", "366");
        Caso("to today", "1/6/26||11/10/26||||", 2, "2026|", "42", "460");
        Caso("served at once", "1/11/26||1/11/26|5/11/26|5/11/26||", 0, "2026|", "4", "290");
        Caso("last line without a date", "1/11/26||1/11/26|5/11/26|||", 1, "2026|", "21", "");
        Caso("service before the start", "1/6/26||1/10/26||1/9/26||", 1, "2026|", "-30", "378");
        // she left: this record's year, an earlier one, a later one
        Caso("pregnant, year she left", "1/1/26||1/3/26||1/5/26||1/9/26", 1, "2026|2026", "61", "406");
        Caso("pregnant, no service", "1/1/26||1/3/26||||1/9/26", 1, "2026|2026", "266", "529");
        Caso("pregnant, no start", "1/1/26||||1/5/26||1/9/26", 1, "2026|2026", "", "406");
        Caso("empty, start before she left", "1/1/26||1/3/26||1/5/26||1/9/26", 2, "2026|2026", "184", "406");
        Caso("empty, start the day she left", "1/1/26||1/9/26||1/5/26||1/9/26", 2, "2026|2026", "", "406");
        Caso("no state, no start", "1/1/26||||1/5/26||1/9/26", 0, "2026|2026", "No F.IPR", "406");
        Caso("left 79 days after calving", "1/1/26||1/2/26||1/3/26||21/3/26", 1, "2026|2026", "28", "");
        Caso("left 80 days after calving", "1/1/26||1/2/26||||22/3/26", 1, "2026|2026", "294", "366");
        Caso("earlier record", "1/1/25||1/3/25||1/5/25||1/9/26", 1, "2025|2026", "61", "");
        Caso("later record", "1/1/27||1/3/27||||1/9/26", 2, "2027|2026", "", "");
        Caso("left, date emptied on the sheet", "1/1/26||1/3/26||||", 2, "2026|2026", "", "611");
    }
    void Intervalos() {
        const auto [fechas, estado, años, iprCp, iepc] = DelCaso<QString, int, QString, QString, QString>();
        const auto d = Datos(fechas, static_cast<EstadoReproductivo>(estado),
                             qPrintable(años.section(u'|', 0, 0)), qPrintable(años.section(u'|', 1)));
        QCOMPARE(Q(IPR_CP(d)), iprCp);
        QCOMPARE(Q(Texto(IEPc(d))), iepc);
    }

    void FechasDelProtocolo() {
        auto d = Datos(u"10/1/26|5/1/26||1/3/26|2/3/26|1/2/26|"_s, EstadoReproductivo::Preñada, "2026", "");
        QCOMPARE(FechaDG22dias(d), std::optional(F("24/3/26")));
        QCOMPARE(D40PostParto(d), std::optional(F("19/2/26")));
        QCOMPARE(PrimeraFechaIPR(d), std::optional(F("11/3/26")));
        QCOMPARE(FechaEspParto(d), std::optional(F("13/12/26")));
        QCOMPARE(IEP(d), std::optional(-5)); // as it comes
        QCOMPARE(Amamantamiento(d), std::optional(28));
        d.estado = EstadoDe("VACÍA");
        QCOMPARE(FechaEspParto(d), std::nullopt);
        d.ultimoServicio.reset();
        d.fechaSecado.reset();
        QCOMPARE(FechaDG22dias(d), std::nullopt);
        QCOMPARE(Amamantamiento(d), std::nullopt);
        QVERIFY(!EsIPRTardia("42") && EsIPRTardia("43") && !EsIPRTardia("No F.IPR") && !EsIPRTardia(""));
        QCOMPARE(EstadoDe("preñada"), EstadoReproductivo::Preñada);
        QCOMPARE(EstadoDe("otra"), EstadoReproductivo::Ninguno);
    }

    void CausasYCeros() {
        QCOMPARE(EdadMostrada("0", true) + EdadMostrada("0", false) + EdadMostrada("10", false), "010"s);
        QCOMPARE(GananciaMostrada("0") + GananciaMostrada("-5"), "-5"s);
        QCOMPARE(DescripcionDeCausa(16, "2"), "MortEmbrion 2"s);
        QCOMPARE(DescripcionDeCausa(5, ""),
                 "BVD "s); // the blank goes with the companion, empty or not
        QCOMPARE(DescripcionDeCausa(22, "x"), ". x"s);
        QCOMPARE(DescripcionDeCausa(7, "x"), "ControlRepNo"s);
        QCOMPARE(NombreDeCausa(24) + NombreDeCausa(0) + NombreDeCausa(26), "Libre"s);
    }

    void Destete_data() {
        // fechas: calving, weaning, weighing
        // pesos: birth, weighing
        // figuras: age, weight, gain
        Caso("weighed at weaning", "1/1/26|30/6/26|30/6/26", "40|220", "180|220|1000");
        Caso("carried along the line", "1/1/26|30/6/26|10/7/26", "40|230", "180|220|1000");
        Caso("41,5 counts as 42", "1/1/26|11/4/26|11/4/26", "41,5|142", "100|142|1000");
        Caso("42,5 counts as 42", "1/1/26|11/4/26|11/4/26", "42,5|142", "100|142|1000");
        Caso("half a gram to the even one", "1/1/26|17/1/26|17/1/26", "40|41", "16|41|62");
        Caso("weighed on the day of birth", "1/1/26|30/6/26|1/1/26", "40|40", "180||");
        Caso("no weighing", "1/1/26|30/6/26|", "40|220", "180||");
        Caso("no number", "1/1/26|30/6/26|30/6/26", "cuarenta|220", "180||");
        Caso("weaned on the day of birth", "1/1/26|1/1/26|30/6/26", "40|220", "0|40|");
        Caso("weaned before", "2/1/26|1/1/26|30/6/26", "40|220", "-1|39|");
        Caso("lost weight", "1/1/26|11/4/26|11/4/26", "40|30", "100|30|-100");
        Caso("no gain", "1/1/26|11/4/26|11/4/26", "40|40", "100|40|");
        Caso("carried under zero", "1/1/26|11/4/26|11/1/26", "40|30", "100||");
        Caso("no calving", "|11/4/26|11/4/26", "40|140", "||");
    }
    void Destete() {
        QString fechas, pesos, figuras;
        DelCaso(fechas, pesos, figuras);
        const auto fecha = [&](qsizetype i) {
            return FechaDeTexto(fechas.section(u'|', i, i).toStdString());
        };
        const auto f = CalcularDestete({fecha(0), fecha(1), fecha(2), pesos.section(u'|', 0, 0).toStdString(),
                                        pesos.section(u'|', 1).toStdString()});
        QCOMPARE(Q(f.edadDestete + "|" + f.pesoDestete + "|" + f.gDestete), figuras);
    }

    // The ends of what is possible are possible.
    void Limites() {
        const auto dias = [](int n) {
            return ReparoDeGestacion(F("1/1/26"), F("1/1/26").MasDias(n)).empty();
        };
        QVERIFY(!dias(239) && dias(240) && dias(310) && !dias(311) && !dias(-5));
        const auto pesos = [](const char* kg) { return ReparoDePesoNac(kg).empty(); };
        QVERIFY(!pesos("14,9") && pesos("15") && pesos("80") && !pesos("81") && pesos("") && !pesos("0"));
        const auto edades = [](const char* d) { return ReparoDeEdadDestete(d).empty(); };
        QVERIFY(!edades("59") && edades("60") && edades("400") && !edades("401") && !edades("-3") &&
                edades(""));
        QCOMPARE(ReparoDeEdadDestete("30"), "Destete de 30 días: lo posible va de 60 a 400"s);
        const auto servicio = [](const char* d, const char* parto, const char* baja) {
            return ReparoDeServicio(F(d), FechaDeTexto(parto), FechaDeTexto(baja)).empty();
        };
        QVERIFY(servicio("1/3/26", "1/3/26", "1/3/26") && !servicio("28/2/26", "1/3/26", "") &&
                !servicio("2/3/26", "", "1/3/26"));
        QVERIFY(ReparoDeParto(F("1/1/26"), F("1/1/26")).empty() &&
                !ReparoDeParto(F("2/1/26"), F("1/1/26")).empty());
        QVERIFY(ReparoDeParidad("").empty() && ReparoDeParidad("10").empty() &&
                !ReparoDeParidad("0").empty());
    }
};

PRUEBA(PruebaDerivados)
#include "PruebaDerivados.moc"
