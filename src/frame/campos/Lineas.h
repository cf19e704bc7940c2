#pragma once

#include "frame/campos/ReglasDeCampo.h"
#include "store/Recordset.h"

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace pastorix {

// One column of a table of lines: the rows of a child table, one to a line.
struct ColumnaLinea {
    const char* columna; // field of the query; nullptr for one that its owner fills
    ClaseCampo clase = ClaseCampo::Texto;
    std::span<const char* const> lista{}; // values of a coded column
};

// A line as it stands in the grid. What was read is kept beside what is shown: a cell that reads as it did goes back as it was, with the
// columns that the grid does not show.
struct Linea {
    std::vector<std::string> celdas;                  // one a column
    std::vector<Valor> leidos;                        // one a column; empty for a line that was entered
    std::vector<std::pair<std::string, Valor>> otras; // columns without a place in the grid

    // Number in a cell; 0 when it is none.
    double Numero(std::size_t columna) const;
};

// Fields of the query that have no column, nor are the caller's own (`propias`): they belong to other sheets, or to the file alone.
std::vector<std::string> OtrosCampos(const Recordset& rs, std::span<const ColumnaLinea> columnas,
                                     std::initializer_list<std::string_view> propias);

// The rows of the query as lines. `otras` are further fields to be carried along.
std::vector<Linea> LeerLineas(Recordset& rs, std::span<const ColumnaLinea> columnas,
                              std::span<const std::string> otras = {});

// A cell as its column takes it: as it was read when nobody touched it, Null when it is empty.
Valor ValorDeCelda(const Linea& linea, std::size_t columna);

// Assigns a line's cells to the fields of the current row, which was just added: an empty cell as Null, an untouched one as it was read, and
// the columns carried along. Null or 0 keys are the caller's. Throws ErrorAlmacen for a text that the column does not take.
void EscribirLinea(Recordset& rs, const Linea& linea, std::span<const ColumnaLinea> columnas);

} // namespace pastorix
