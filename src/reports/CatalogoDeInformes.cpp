#include "reports/CatalogoDeInformes.h"

#include "reports/formularios/InfEnfermedades.h"
#include "reports/formularios/InformesAnuales.h"
#include "reports/formularios/LstControlRebano.h"
#include "reports/formularios/LstHistorico.h"
#include "reports/formularios/Lst_ResumenIT.h"
#include "reports/formularios/Lst_Toros.h"
#include "reports/formularios/Lst_Vacas.h"

namespace pastorix {

namespace {

template <typename F>
FormularioDeInforme* Crear(Sesion& s, ControlInforme& c, QWidget* padre) {
    return new F(s, c, padre);
}
template <const DefinicionAnual& D>
FormularioDeInforme* CrearAnual(Sesion& s, ControlInforme& c, QWidget* padre) {
    return new InformeAnual(D, s, c, padre);
}
template <const DefinicionHistorico& D>
FormularioDeInforme* CrearHistorico(Sesion& s, ControlInforme& c, QWidget* padre) {
    return new LstHistorico(D, s, c, padre);
}

constexpr const char* kAnual = "--ganadero N --año AAAA";
constexpr const char* kHistorico = "[--ganadero N] [--crotal T] [--vivas]";
constexpr const char* kVacas = "--ganadero N --año AAAA [--novillas]";
constexpr const char* kEnfermedades =
    "--ganadero N --año AAAA [--prueba IBR|BVD|NEOSPORA --condicion Conv*|Positiva|Negativa|> --valor X] "
    "[--problematicas]";

// clang-format off
constexpr EntradaDeInforme kCatalogo[] = {
    {"rVacas",        "Menu_Herr(3)",        kVacas,     "Vacas de la explotación en un año", Crear<Lst_Vacas>},
    {"rTVacas",       "Menu_Herr(3)",        kVacas,     "Vacas y toros de la explotación en un año", Crear<Lst_Vacas>, "toros="},
    {"Sementales",    "Menu_Herr(4)",        "[--ganadero N]", "Sementales con sus índices genéticos", Crear<Lst_Toros>, "modelo=0"},
    {"Toros",         "Menu_Herr(4)",        "[--ganadero N]", "Altas y bajas de sementales", Crear<Lst_Toros>, "modelo=1"},
    {"ControlRebaño", "Mnu_ControlRebaño",   "--ganadero N [--control-reproductivo]", "Hoja para la visita: la situación de cada vaca", Crear<LstControlRebaño>},
    {"COM_PRO",       "Mnu_EAR_DP",          kAnual,     "Comportamiento productivo: los partos y terneros del año", CrearAnual<kLstEAR_DP>},
    {"HTS_P",         "MnuHtsEARDRXV",       kHistorico, "Histórico productivo: todos los partos de cada vaca", CrearHistorico<kLstHtsPxV>},
    {"COM_REP",       "Mnu_EAR_DR",          kAnual,     "Comportamiento reproductivo: las cubriciones del año", CrearAnual<kLstEAR_DR>},
    {"Hts_R",         "MnuHtsRV",            kHistorico, "Histórico reproductivo: todas las cubriciones de cada vaca", CrearHistorico<kLstHtsEAR_DR>},
    {"CEBO",          "Mnu_InfCebo",         kAnual,     "Animales en cebo del año", CrearAnual<kInfCebo>},
    {"MANEJO",        "MnuManejo",           kAnual,     "Manejo de la explotación en un año natural", CrearAnual<kInfManejo>},
    {"DEMORA",        "Mnu_CDemoraPreñez",   kAnual,     "Vacas con más de 42 días hasta la preñez, y por qué", CrearAnual<kInfDemora>},
    {"enfermedades",  "Mnu_InfEnfermedades", kEnfermedades, "Enfermedades reproductivas y resultados de las pruebas", Crear<InfEnfermedades>},
    {"IndTecnicos",   "Mnu_IndicesTecnicos", kAnual,     "Índices técnicos del año", CrearAnual<kLst_IndicesTecnicos>},
    {"ResumenIT",     "Mnu_ResumenIT",       "--ganadero N [--años A,B,...|todos]", "Índices técnicos de varios años, uno al lado de otro", Crear<Lst_ResumenIT>},
    {"ParamTecnicos", "Mnu_InfParamTec",     kAnual,     "Inventario al principio y al final del año, y sus UGM", CrearAnual<kLstParamTec>},
};
// clang-format on

} // namespace

std::span<const EntradaDeInforme> CatalogoDeInformes() {
    return kCatalogo;
}

} // namespace pastorix
