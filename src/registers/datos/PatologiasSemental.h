#pragma once

#include "frame/campos/Lineas.h"

#include <span>
#include <string>
#include <vector>

namespace pastorix {

// One of the two tables of a bull's yearly health records. Column 0 is the natural year.
struct TablaPatologia {
    const char* tabla;
    std::span<const ColumnaLinea> columnas;
    int columnaEdad; // the derived age; -1 none
};

const TablaPatologia& PatologiaSem();  // serologies of two samples
const TablaPatologia& PatologiaSemR(); // vaccines, and the results that follow from them

// A bull's lines, newest year first, with the columns that the grid does not show.
std::vector<Linea> LeerPatologias(Conexion& c, const TablaPatologia& d, double idSemental);

// Writes all lines in place of those in the table; one without a year is left out. Throws ErrorAlmacen, with the rows as they were.
void GuardarPatologias(Conexion& c, const TablaPatologia& d, double idSemental,
                       std::span<const Linea> lineas);

} // namespace pastorix
