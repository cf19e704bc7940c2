#include "registers/sanidad/PaginaNeospora.h"

#include "registers/sanidad/AsuntosSanidad.h"

namespace pastorix {

namespace {

const auto kNaturales = PorAñosNaturales("Grid_Lep", "Neospora por año natural", kNeospora.natural);

const DefinicionLineas kCiclos{"Grid_Lep_R", "Neospora por cubrición", kNeospora.ciclo.columnas, false};

constexpr std::size_t kVacunas[] = {1};

const DefinicionPagina kPagina{"Neospora", kNeospora,   kNaturales, kCiclos,  "Leptospirosis", 1,       1,
                               true,       "Ct_ObsLep", "B_GLep",   "B_CLep", "NEOSPORA",      kVacunas};

} // namespace

PaginaNeospora::PaginaNeospora(Conexion& base, QWidget* padre)
    : PaginaAsunto(base, kPagina, padre) {}

} // namespace pastorix
