#pragma once

#include "store/Conexion.h"
#include "store/Valor.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace pastorix {

// A row that is not the same on both sides; the side that does not have it is empty.
struct FilaDistinta {
    std::vector<Valor> antes, despues;
};

struct DiferenciasDeTabla {
    std::vector<std::string> columnas;
    long iguales = 0;
    std::vector<FilaDistinta> filas;
};

// Compares a table of two databases as sets of rows, whatever their order: repeated rows count as often as they stand there. Rows that
// differ are put side by side by the columns `clave`. With `columna` only rows count whose number there is one of `de`; Null is none.
// Columns that the program does not know are left out. Throws ErrorAlmacen.
DiferenciasDeTabla CompararTabla(Conexion& antes, Conexion& despues, std::string_view tabla,
                                 const std::vector<std::string>& clave, std::string_view columna = {},
                                 const std::unordered_set<double>& de = {});

} // namespace pastorix
