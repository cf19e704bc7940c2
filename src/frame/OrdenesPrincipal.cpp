#include "frame/OrdenesPrincipal.h"

#include <array>

namespace pastorix {

namespace {

using enum EntradaDeMenu::Clase;

// clang-format off
constexpr EntradaDeMenu Menus[] = {
    {Menu,  "Mnu_Archivo",         "&Archivo",                             "", ""},
    {Orden, "Mnu_ControlCli",      "&Relación de Distribución",             "Mnu_Archivo", ""},
    {Regla, "Sep4",                "",                                     "Mnu_Archivo", ""},
    {Orden, "Mnu_Importar",        "&Importar Datos",                      "Mnu_Archivo", ""},
    {Orden, "Mnu_Exportar",        "&Exportar Datos",                      "Mnu_Archivo", ""},
    {Orden, "Mnu_ImpTD",           "Importar &Toros de Inseminación",       "Mnu_Archivo", ""},
    {Orden, "Mnu_ExpTD",           "Exportar Toros de I&nseminación",       "Mnu_Archivo", ""},
    {Regla, "Mnu_Sep1",            "",                                     "Mnu_Archivo", ""},
    {Menu,  "MnuT",                "Tras&paso de Ganaderos a",              "Mnu_Archivo", ""},
    {Orden, "MnuT1",               "&Pastorix",                             "MnuT", ""},
    {Orden, "MnuT2",               "Pastorix P&ersonal",                    "MnuT", ""},
    {Regla, "Sep5",                "",                                     "Mnu_Archivo", ""},
    {Orden, "Mnu_Salir",           "&Salir",                               "Mnu_Archivo", "salir"},

    {Menu,  "Mnu_Complementos",    "&Complementos",                        "", ""},
    {Orden, "Mnu_Veterinarios",    "V&eterinarios",                        "Mnu_Complementos", "veterinarios"},
    {Orden, "Mnu_Ganaderos",       "&Ganaderos",                           "Mnu_Complementos", "ganaderos"},
    {Orden, "Mnu_Vacas",           "&Vacas",                               "Mnu_Complementos", "vacas"},
    {Orden, "Mnu_Sementales",      "&Toros",                               "Mnu_Complementos", "toros"},

    {Menu,  "Mnu_Herr",            "&Informes",                            "", ""},
    {Orden, "Menu_Herr(1)",        "&Veterinarios",                         "Mnu_Herr", ""},
    {Orden, "Menu_Herr(2)",        "&Ganaderos",                            "Mnu_Herr", ""},
    {Orden, "Menu_Herr(3)",        "V&acas",                                "Mnu_Herr", ""},
    {Orden, "Menu_Herr(4)",        "&Sementales",                           "Mnu_Herr", ""},
    {Regla, "Sep3",                "",                                     "Mnu_Herr", ""},
    {Orden, "Mnu_ControlRebaño",   "&Controles de Rebaño",                  "Mnu_Herr", ""},
    {Orden, "Mnu_EAR_DP",          "Comportamiento &Productivo del Rebaño", "Mnu_Herr", ""},
    {Orden, "MnuHtsEARDRXV",       "&Histórico Productivo por Vaca",        "Mnu_Herr", ""},
    {Orden, "Mnu_EAR_DR",          "Comportamiento &Reproductivo del Rebaño", "Mnu_Herr", ""},
    {Orden, "MnuHtsRV",            "Histórico Reproduc&tivo por Vaca",      "Mnu_Herr", ""},
    {Regla, "Mnu_Sep4",            "",                                     "Mnu_Herr", ""},
    {Orden, "Mnu_InfCebo",         "Ce&bo",                                 "Mnu_Herr", ""},
    {Orden, "MnuManejo",           "&Manejo",                               "Mnu_Herr", ""},
    {Orden, "Mnu_CDemoraPreñez",   "Causas &Demora Preñez",                 "Mnu_Herr", ""},
    {Orden, "Mnu_InfEnfermedades", "&Enfermedades Reproductivas",           "Mnu_Herr", ""},
    {Regla, "MnuSep3",             "",                                     "Mnu_Herr", ""},
    {Orden, "Mnu_IndicesTecnicos", "&Indices Técnicos",                     "Mnu_Herr", ""},
    {Orden, "Mnu_ResumenIT",       "Indices Técnicos (Res&umen)",           "Mnu_Herr", ""},
    {Orden, "Mnu_InfParamTec",     "I&nventario",                           "Mnu_Herr", ""},

    {Menu,  "MnuHerramientas",     "&Herramientas",                        "", ""},
    {Orden, "Mnu_BorrarBackup",    "&Historial de Transacciones",           "MnuHerramientas", ""},
    {Orden, "Mnu_Compactar",       "&Compactar Base de Datos",              "MnuHerramientas", ""},

    {Menu,  "Mnu_Ayuda",           "Ay&uda",                               "", ""},
    {Orden, "Mnu_Manual",          "&Manual",                               "Mnu_Ayuda", ""},
    {Orden, "Mnu_Atajos",          "A&tajos de teclado",                    "Mnu_Ayuda", ""},
    {Regla, "Sep",                 "",                                     "Mnu_Ayuda", ""},
    {Orden, "Mnu_Acercade",        "&Acerca de...",                        "Mnu_Ayuda", ""},

    // Shown by the mating sheet as a context menu; never on the bar.
    {Menu,  "MnuCausaPrincipal",   "CausaPrincipal",                       "", ""},
    {Orden, "MnuPpal",             "&Definir como Causa Principal",         "MnuCausaPrincipal", ""},
};

constexpr BotonDeBarra Barra[] = {
    {1, " Salir",        "Mnu_Salir",        "salir"},
    {2, "",              "",                 ""},
    {3, " Veterinarios", "Mnu_Veterinarios", "veterinarios"},
    {4, " Nucleos",      "",                 "nucleos"},
    {5, " Ganaderos",    "Mnu_Ganaderos",    "ganaderos"},
    {6, "",              "",                 ""},
    {7, " Vacas",        "Mnu_Vacas",        "vacas"},
    {8, " Toros",        "Mnu_Sementales",   "toros"},
};
// clang-format on

} // namespace

std::span<const EntradaDeMenu> MenusDePrincipal() {
    return Menus;
}

std::span<const BotonDeBarra> BarraDePrincipal() {
    return Barra;
}

} // namespace pastorix
