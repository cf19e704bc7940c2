#include "registers/sanidad/PaginaCC.h"

#include "registers/sanidad/AsuntosSanidad.h"

namespace pastorix {

namespace {

const auto kNaturales =
    PorAñosNaturales("GridCC_Nat", "Condición corporal por año natural", kCondicionCorporal.natural);

const DefinicionLineas kCiclos{"GridCC", "Condición corporal por cubrición",
                               kCondicionCorporal.ciclo.columnas, false};

const DefinicionPagina kPagina{"C.C.", kCondicionCorporal, kNaturales,    kCiclos,        "",     3, 8,
                               false,  "CT_ObsCC",         "B_GuardarCC", "B_CancelarCC", nullptr};

} // namespace

PaginaCC::PaginaCC(Conexion& base, QWidget* padre)
    : PaginaAsunto(base, kPagina, padre) {}

} // namespace pastorix
