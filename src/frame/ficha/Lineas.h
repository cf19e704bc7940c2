#pragma once

#include "frame/ficha/CampoFicha.h"
#include "store/Recordset.h"

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace pastorix {

// One column of a table of lines: the rows of a child table, one to a line, entered below their grid.
struct ColumnaLinea {
    const char* columna; // field of the query; nullptr for one that its owner fills
    const char* titulo;  // heading of the grid
    ClaseCampo clase;
    int caracteres;                // width in the grid
    const char* control = nullptr; // name of its entry control; nullptr: shown, not entered
    std::span<const char* const>
        lista{};          // values of its combo; a column without them and with esLista gets them later
    bool esLista = false; // a combo; otherwise a text box
    int maximo = 0;       // most characters that its text box takes; 0 no limit
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
