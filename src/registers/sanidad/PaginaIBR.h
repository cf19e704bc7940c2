#pragma once

#include "registers/sanidad/PaginaAsunto.h"

namespace pastorix {

// Page " IBR/BVD ": vaccinations and serology of both diseases.
class PaginaIBR : public PaginaAsunto {
public:
    PaginaIBR(Conexion& base, QWidget* padre);
};

} // namespace pastorix
