#pragma once

#include "registers/sanidad/PaginaAsunto.h"

namespace pastorix {

// Page " Neospora ": vaccinations and serology. Names with Lep in them, and the title of its frame, are older than what it keeps.
class PaginaNeospora : public PaginaAsunto {
public:
    PaginaNeospora(Conexion& base, QWidget* padre);
};

} // namespace pastorix
