#include "exchange/datos/Recorridos.h"

namespace pastorix {

namespace {

using enum ClaseDePaso;
constexpr int _ = kSinProgreso;

// clang-format off
constexpr PasoDeSalida Salida[] = {
    {Tabla,        "T_AbonadoSuperficie",    39},
    {Tabla,        "T_AlimentacionInvernal", 74},
    {Tabla,        "T_CCVacas",              _},
    {Tabla,        "T_CCNATVACAS",           98},
    {Tabla,        "T_Cebo",                 _},
    {HijosDeVacas, "",                       _},
    {Ganaderos,    "",                       80},
    {Tabla,        "T_IBRBVD",               _},
    {Tabla,        "T_R_IBRBVD",             _},
    {Tabla,        "T_NEOSPIROSIS",          _},
    {Tabla,        "T_R_NEOSPIROSIS",        82},
    {Tabla,        "T_IPR",                  85},
    {Tabla,        "T_PastosComunales",      87},
    {Tabla,        "T_SistemaProduccion",    89},
    {Tabla,        "T_Vacunaciones",         _},
    {Tabla,        "T_FechasVacu",           _},
    {Tabla,        "T_Vacas",                93},
    {HijosDeToros, "",                       97},
    {Tabla,        "T_Sementales",           _},
    {Tabla,        "T_MAMIVACU",             100},
};

constexpr PasoDeEntrada Entrada[] = {
    {Tabla,        "T_AbonadoSuperficie",    "Id_Ganadero",     false, 9,  34},
    {Tabla,        "T_AlimentacionInvernal", "Id_Ganadero",     false, 56, 78},
    {Tabla,        "T_CCNATVACAS",           "Id_Ganadero",     false, 80, 83},
    {Tabla,        "T_CCVacas",              "Id_Ganadero",     false, 80, 83},
    {Tabla,        "T_Cebo",                 "Id_Ganadero",     false, 90, 98},
    {HijosDeVacas, "",                       "",                true,  _,  78},
    {Ganaderos,    "T_Ganaderos",            "Id_Ganadero",     true,  80, 82},
    {Tabla,        "T_IBRBVD",               "Id_Ganadero",     false, 94, _},
    {Tabla,        "T_R_IBRBVD",             "Id_Ganadero",     false, 94, _},
    {Tabla,        "T_NEOSPIROSIS",          "Id_Ganadero",     false, 94, _},
    {Tabla,        "T_R_NEOSPIROSIS",        "Id_Ganadero",     false, 94, 86},
    {Tabla,        "T_IPR",                  "Id_Ganadero",     false, 87, 90},
    {Tabla,        "T_PastosComunales",      "Id_Ganadero",     false, 92, 93},
    {Tabla,        "T_SistemaProduccion",    "Id_Ganadero",     false, 94, 94},
    {Tabla,        "T_Vacunaciones",         "Id_Ganadero",     false, 95, 96},
    {Tabla,        "T_FechasVacu",           "Id_Ganadero, Ln", false, 95, 96},
    {Tabla,        "T_Vacas",                "Id_Ganadero",     false, 97, _},
    {HijosDeToros, "",                       "",                true,  _,  _},
    {Tabla,        "T_Sementales",           "",                true,  98, 99},
    {Tabla,        "T_MAMIVACU",             "Id_Ganadero",     false, 80, 83},
};
// clang-format on

constexpr const char* DeVaca[] = {"T_Cubriciones", "T_Partos", "T_Mamitis", "T_Servicios"};
constexpr const char* DeToro[] = {"T_PatologiaSem", "T_PatologiaSemR"};

} // namespace

std::span<const PasoDeSalida> PasosDeSalida() {
    return Salida;
}

std::span<const PasoDeEntrada> PasosDeEntrada() {
    return Entrada;
}

std::span<const char* const> TablasDeVaca() {
    return DeVaca;
}

std::span<const char* const> TablasDeToro() {
    return DeToro;
}

} // namespace pastorix
