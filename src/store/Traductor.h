#pragma once

#include "store/Catalogo.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace pastorix {

enum class ClaseSentencia { Select, Delete, Update, Alter };

// A table of a query's FROM. `uno` marks the one side of a join: its rows are found by their whole key, so the row that belongs
// to the line of the result alone is that of another table.
struct TablaDeConsulta {
    const TablaCatalogo* tabla = nullptr;
    bool uno = false;
};

// A column of a query's result; table and column are set when it comes straight from one.
struct ColumnaSalida {
    std::string nombre;
    TipoColumna tipo = TipoColumna::Otro;
    const TablaCatalogo* tabla = nullptr;
    const ColumnaTabla* columna = nullptr;
};

struct Traduccion {
    ClaseSentencia clase = ClaseSentencia::Select;
    std::string sql;                     // for SQLite, a ? per literal in the order of the statement
    std::vector<TablaDeConsulta> tablas; // Select: tables of FROM; others: the table that is changed
    std::vector<ColumnaSalida> salida;   // Select
    bool escribible = false;             // Select without grouping: each line stands for one row per table
    // Literals that are assigned to a column of a fixed kind (Update), to be checked before they are bound.
    std::vector<std::pair<int, TipoColumna>> asignados;
};

// Translates one statement shape (see Lexico.h) against the tables of a database. `conFilas` appends the row identifiers of all
// tables to the columns of a writable Select. Throws ErrorAlmacen (Sintaxis, TablaDesconocida, ColumnaDesconocida, Restriccion)
// naming the statement; what is not part of the dialect is refused.
Traduccion Traducir(std::string_view forma, std::string_view sentencia, const Catalogo& catalogo,
                    bool conFilas);

} // namespace pastorix
