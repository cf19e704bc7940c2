#pragma once

#include "frame/ficha/CampoFicha.h"

namespace pastorix {

// Places of a calving's fields in the array Ct_G, and its check box.
namespace campo_parto {
enum { NParto = 0, AñoRef = 1, Fecha = 2, FechaCompra = 3, FechaBaja = 4 };
}
// The page of the calving as a whole; grid 1 has the check box alone.
const DefinicionHoja& HojaDeParto();

// A calf's fields, by what they are: on the pages of the two calves their controls are numbered otherwise.
namespace campo_ternero {
enum {
    PesoNac,
    FechaMuerte,
    OtraCausaMuerte,
    Observaciones,
    FVentaAD,
    FechaDestete,
    PesoDestete,
    FechaPeso,
    Peso,
    RegSaneam,
    EdadDestete,
    GDestete,
    CuartosPerdidos,
    FechaSecado,
    Semental,
    IdSemental,
};
}
// Grid 0 tells of the calf, grid 1 of its weaning, grid 2 the remarks.
const DefinicionHoja& HojaDeTernero(int ternero); // 0 or 1

// Names of a calf's combos that the sheet asks for.
struct CombosDeTernero {
    const char* sexo;
    const char* origen;
    const char* destino;
};
const CombosDeTernero& CombosDe(int ternero);

} // namespace pastorix
