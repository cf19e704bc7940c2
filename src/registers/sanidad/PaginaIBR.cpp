#include "registers/sanidad/PaginaIBR.h"

#include "registers/sanidad/AsuntosSanidad.h"

namespace pastorix {

namespace {

const auto kNaturales =
    PorAñosNaturales("GridIBR", "IBR y BVD por año natural", kIBRBVD.natural, "Eliminar Año Natural: ");

const DefinicionLineas kCiclos{"GridIBR_R", "IBR y BVD por cubrición", kIBRBVD.ciclo.columnas, false};

constexpr std::size_t kVacunas[] = {1, 4};

const DefinicionPagina kPagina{"IBR/BVD",   kIBRBVD,        kNaturales,      kCiclos,    "",      7, 5, true,
                               "CT_ObsIBR", "B_GuardarIBR", "B_CancelarIBR", "IBR, BVD", kVacunas};

} // namespace

PaginaIBR::PaginaIBR(Conexion& base, QWidget* padre)
    : PaginaAsunto(base, kPagina, padre) {}

} // namespace pastorix
