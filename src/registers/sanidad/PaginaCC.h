#pragma once

#include "registers/sanidad/PaginaAsunto.h"

namespace pastorix {

// Page " C.C. ": body condition of a cow, by mating record and by natural year.
class PaginaCC : public PaginaAsunto {
public:
    PaginaCC(Conexion& base, QWidget* padre);
};

} // namespace pastorix
