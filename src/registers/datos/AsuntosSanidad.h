#pragma once

#include "registers/datos/LineasSanidad.h"

namespace pastorix {

// The three subjects that a page of the cow's sheet keeps and saves by itself. The codes of the serology results are what the laboratories write; the program gives them no meaning.
extern const AsuntoSanidad kCondicionCorporal;
extern const AsuntoSanidad kIBRBVD;
extern const AsuntoSanidad kNeospora;

// Vaccinations against mastitis, by natural year.
extern const TablaNatural kVacunasMamitis;

} // namespace pastorix
