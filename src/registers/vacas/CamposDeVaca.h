#pragma once

#include "frame/ficha/CampoFicha.h"

namespace pastorix {

// Places of the cow's fields in the array CT_Estandar.
namespace campo_vaca {
enum {
    Codigo = 0,
    Nombre = 1,
    CuartosPerdidos = 2,
    AñoRef = 3,
    NombreC = 4,
    Crotal = 7,
    NombrePadre = 9,
    NombreMadre = 12,
    FechaCompra = 20,
    FechaBaja = 21,
    FechaDesecho = 31
};
}

// Its grids: the tab General, what stands above the tabs, and the tabs with fields of their own.
namespace hoja_vaca {
enum { General = 0, Cabecera = 1, Desecho = 2, Patologia = 3, Mamitis = 4 };
}

extern const DefinicionFicha kFichaDeVaca;

} // namespace pastorix
