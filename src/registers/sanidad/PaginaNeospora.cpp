#include "registers/sanidad/PaginaNeospora.h"

#include "registers/datos/AsuntosSanidad.h"

namespace pastorix {

namespace {

constexpr AspectoColumna kColumnasNaturales[] = {
    {"AñoNat", 5, "Ct_Lep", false, 0, "Año natural"},
    {"V.Neosp", 8, "Cd_VLep", true, 0, "Vacuna de Neospora"},
    {"NeospSp", 8, "Cd_LepSp", false, 0, "Resultado de Neospora, sp"},
    {"NeospBp", 8, "Cd_LepBp", false, 0, "Resultado de Neospora, bp"}};

constexpr AspectoColumna kColumnasDeCiclo[] = {
    {"Año Ref.", 5, nullptr, false, 0, "Año de referencia"},
    {"Nº Parto", 5},
    {"Fecha Parto", 8},
    {"F. Último Servicio", 8, nullptr, false, 0, "Fecha del último servicio"},
    {"Neospora", 8, "CT_LEPR"}};

const auto kNaturales =
    PorAñosNaturales("Grid_Lep", "Neospora por año natural", kNeospora.natural, kColumnasNaturales);

const DefinicionLineas kCiclos{"Grid_Lep_R", "Neospora por cubrición", kNeospora.ciclo.columnas,
                               kColumnasDeCiclo, false};

constexpr std::size_t kVacunas[] = {1};

const DefinicionPagina kPagina{"Neospora", kNeospora,   kNaturales, kCiclos,  "Leptospirosis", 1,       1,
                               true,       "Ct_ObsLep", "B_GLep",   "B_CLep", "NEOSPORA",      kVacunas};

} // namespace

PaginaNeospora::PaginaNeospora(Conexion& base, QWidget* padre)
    : PaginaAsunto(base, kPagina, padre) {}

} // namespace pastorix
