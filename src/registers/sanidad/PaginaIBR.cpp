#include "registers/sanidad/PaginaIBR.h"

#include "registers/datos/AsuntosSanidad.h"

namespace pastorix {

namespace {

constexpr AspectoColumna kColumnasNaturales[] = {{"AñoNat", 5, "Ct_E", false, 0, "Año natural"},
                                                 {"V. IBR", 8, "Cd_VIBR", true, 0, "Vacuna de IBR"},
                                                 {"IBRsp", 8, "Cd_IBRsp", false, 0, "Resultado de IBR, sp"},
                                                 {"IBRbp", 8, "Cd_IBRbp", false, 0, "Resultado de IBR, bp"},
                                                 {"V. BVD", 8, "Cd_VBVD", true, 0, "Vacuna de BVD"},
                                                 {"BVDsp", 8, "Cd_BVDsp", false, 0, "Resultado de BVD, sp"},
                                                 {"BVDbp", 8, "Cd_BVDbp", false, 0, "Resultado de BVD, bp"}};

constexpr AspectoColumna kColumnasDeCiclo[] = {
    {"AñoRef", 5, nullptr, false, 0, "Año de referencia"},
    {"Nº Parto", 5},
    {"F. Parto", 8, nullptr, false, 0, "Fecha del parto"},
    {"F. Últ.Servicio", 8, nullptr, false, 0, "Fecha del último servicio"},
    {"IBR", 8, "Cd_IBR", false, 0, "Rinotraqueítis infecciosa bovina: resultado"},
    {"BVD", 8, "Cd_BVD", false, 0, "Diarrea vírica bovina: resultado"}};

const auto kNaturales = PorAñosNaturales("GridIBR", "IBR y BVD por año natural", kIBRBVD.natural,
                                         kColumnasNaturales, "Eliminar Año Natural: ");

const DefinicionLineas kCiclos{"GridIBR_R", "IBR y BVD por cubrición", kIBRBVD.ciclo.columnas,
                               kColumnasDeCiclo, false};

constexpr std::size_t kVacunas[] = {1, 4};

const DefinicionPagina kPagina{"IBR/BVD",   kIBRBVD,        kNaturales,      kCiclos,    "",      7, 5, true,
                               "CT_ObsIBR", "B_GuardarIBR", "B_CancelarIBR", "IBR, BVD", kVacunas};

} // namespace

PaginaIBR::PaginaIBR(Conexion& base, QWidget* padre)
    : PaginaAsunto(base, kPagina, padre) {}

} // namespace pastorix
