#include "reports/formularios/InformesAnuales.h"

namespace pastorix {

namespace {

QStringList AñoRef(const QString& año) {
    return {QStringLiteral("AñoRef;") + año};
}

// Headings of the two columns of the inventory; the end of the year is told as the first of December.
QStringList InicioYFin(const QString& año) {
    const auto fecha = [](int dosCifras) {
        return QStringLiteral("1/12/%1").arg(dosCifras, 2, 10, QLatin1Char('0'));
    };
    return {QStringLiteral("Inicio;%1\r\n(Inicio)").arg(fecha((año.toInt() + 99) % 100)),
            QStringLiteral("Fin;%1\r\n(Fin)").arg(fecha(año.toInt() % 100))};
}

constexpr const char* kDebeIndicar = "Debe indicar el año de Referencia";
constexpr const char* kIndique = "Indique el Año de Referencia";

} // namespace

const DefinicionAnual kLst_IndicesTecnicos{"Lst_IndicesTecnicos",
                                           "Índices Técnicos",
                                           "Año Referencia",
                                           kIndique,
                                           true,
                                           LlenarIndicesTecnicos,
                                           nullptr,
                                           " Índices Técnicos",
                                           "IndTecnicos.rpt",
                                           nullptr,
                                           false};

const DefinicionAnual kLstParamTec{
    "LstParamTec", "Inventario",  "Año Referencia",    kIndique,   true, LlenarParametrosTecnicos,
    nullptr,       " Inventario", "ParamTecnicos.rpt", InicioYFin, true};

const DefinicionAnual kLstEAR_DP{"LstEAR_DP",
                                 "Comportamiento Productivo del Rebaño",
                                 "Año de Referencia",
                                 kDebeIndicar,
                                 false,
                                 LlenarComportamientoProductivo,
                                 nullptr,
                                 "Comportamiento Productivo del Rebaño",
                                 "COM_PRO.rpt",
                                 AñoRef,
                                 true};

const DefinicionAnual kLstEAR_DR{"LstEAR_DR",
                                 "Comportamiento Reproductivo del Rebaño",
                                 "Año de Referencia",
                                 kDebeIndicar,
                                 false,
                                 LlenarComportamientoReproductivo,
                                 nullptr,
                                 "Comportamiento Reproductivo del Rebaño",
                                 "COM_REP.rpt",
                                 AñoRef,
                                 true};

const DefinicionAnual kInfCebo{"InfCebo",
                               "Cebo",
                               "Año Referencia",
                               kDebeIndicar,
                               false,
                               LlenarCebo,
                               "No hay Cebos en el periodo indicado",
                               "Cebo",
                               "CEBO.RPT",
                               AñoRef,
                               true};

const DefinicionAnual kInfDemora{"InfDemora",
                                 "Causas Demora Preñez",
                                 "Año Referencia",
                                 kDebeIndicar,
                                 false,
                                 LlenarDemora,
                                 "No hay Cubriciones en el periodo indicado",
                                 "Causas Demora Preñez",
                                 "DEMORA.RPT",
                                 AñoRef,
                                 true};

// The year is a natural one, though its parameter keeps the name of the others.
const DefinicionAnual kInfManejo{"InfManejo", "Manejo", "Año Natural", kDebeIndicar, false, LlenarManejo,
                                 nullptr,     "Manejo", "MANEJO.RPT",  AñoRef,       true};

} // namespace pastorix
