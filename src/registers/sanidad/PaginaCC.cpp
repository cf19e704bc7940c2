#include "registers/sanidad/PaginaCC.h"

#include "registers/datos/AsuntosSanidad.h"

namespace pastorix {

namespace {

constexpr AspectoColumna kColumnasNaturales[] = {
    {"AñoNat", 5, "Ct_CCNat(0)", false, 0, "Año natural"},
    {"C.C.mar", 5, "Ct_CCNat(1)", false, 0, "Condición corporal en marzo"},
    {"C.C.nov", 5, "Ct_CCNat(2)", false, 0, "Condición corporal en noviembre"}};

constexpr AspectoColumna kColumnasDeCiclo[] = {
    {"AñoRef", 5, nullptr, false, 0, "Año de referencia"},
    {"Nº Parto", 5},
    {"F.Parto", 8, nullptr, false, 0, "Fecha del parto"},
    {"CC Parto", 5, "Ct_CC(0)", false, 0, "Condición corporal al parto"},
    {"CC90dPostP", 5, "Ct_CC(1)", false, 0, "Condición corporal 90 días después del parto"},
    {"MovReservas", 10, "Cd_CC", false, 0, "Movilización de reservas"},
    {"F.Destete", 8, nullptr, false, 0, "Fecha de destete"},
    {"CC90dPreP", 5, "Ct_CC(2)", false, 0, "Condición corporal 90 días antes del parto"},
    {"C.C.mar", 5, "Ct_CC(3)", false, 0, "Condición corporal en marzo"},
    {"C.C.nov", 5, "Ct_CC(4)", false, 0, "Condición corporal en noviembre"}};

const auto kNaturales = PorAñosNaturales("GridCC_Nat", "Condición corporal por año natural",
                                         kCondicionCorporal.natural, kColumnasNaturales);

const DefinicionLineas kCiclos{"GridCC", "Condición corporal por cubrición",
                               kCondicionCorporal.ciclo.columnas, kColumnasDeCiclo, false};

const DefinicionPagina kPagina{"C.C.", kCondicionCorporal, kNaturales,    kCiclos,        "",     3, 8,
                               false,  "CT_ObsCC",         "B_GuardarCC", "B_CancelarCC", nullptr};

} // namespace

PaginaCC::PaginaCC(Conexion& base, QWidget* padre)
    : PaginaAsunto(base, kPagina, padre) {}

} // namespace pastorix
