#pragma once

#include "store/Diario.h"

#include <string>

namespace pastorix {

// Whose sheet a unit of work belongs to.
enum class FichaDe { Ninguna, Vaca, Toro, Ganadero, Veterinario };

// What was done, in the words of who did it: "Vaca Romera (3040061): cubrición, servicios".
struct Hecho {
    FichaDe ficha = FichaDe::Ninguna;
    double id = 0;
    std::string texto;
};

// Throws ErrorAlmacen.
Hecho QueSeHizo(Conexion& c, const Diario& diario, const Accion& accion);

} // namespace pastorix
