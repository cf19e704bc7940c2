#pragma once

#include "frame/selector/SentenciaDeLista.h"
#include "store/Recordset.h"

#include <string>
#include <string_view>
#include <vector>

namespace pastorix {

// Type codes that a filter box knows; over a column of any other type the box is dead.
inline constexpr int TipoTexto = 202;
inline constexpr int TipoFecha = 135;
inline constexpr int TipoNumero = 5;

// A column as the filter sees it.
struct ColumnaDeFiltro {
    std::string nombre; // in the recordset
    std::string campo;  // as a condition may name it: with its table, never by an alias
    int tipo = 0;
};

// The columns of an open list, in its order. `sentencia` is the one it was opened on.
std::vector<ColumnaDeFiltro> ColumnasDeFiltro(const Recordset& lista, const SentenciaDeLista& sentencia);

// May the key enter a box of this type? Digits and comparison signs in numbers, digits and "/" in dates, everything in texts.
bool TeclaDeFiltro(int tipo, char32_t tecla);

// The conditions of all boxes that hold something, joined by AND; "" when there is none. Texts are patterns with "*", the ear tag is
// found by its end, a date that is none adds nothing. textos[i] belongs to columnas[i]; blanks around a text do not count.
// A text with an apostrophe gives a condition that the store refuses. Throws ErrorAlmacen(Sintaxis) for a number with anything but
// digits and comparison signs.
std::string TextoDelFiltro(const std::vector<ColumnaDeFiltro>& columnas,
                           const std::vector<std::string>& textos);

} // namespace pastorix
