#pragma once

#include "store/Fecha.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace pastorix {

// A value of a column or a control: Null is neither 0 nor empty text.
using Valor = std::variant<std::monostate, std::int64_t, double, Fecha, std::string>;

inline bool EsNulo(const Valor& v) {
    return std::holds_alternative<std::monostate>(v);
}

// Fallbacks of the sheets: Null reads as "" or 0. Numbers become text with a decimal comma, dates as dd/mm/yy.
std::string TextoDe(const Valor& v);
double NumeroDe(const Valor& v);

// Number to text as the program shows and concatenates it: no separators, decimal comma, up to 15 digits ("2,5", "1200044").
std::string TextoNumero(double n);

// The program's reading of a typed number: decimal comma or point, blanks around it, no thousands separators.
// False, and n untouched, when the text is no number.
bool NumeroDeTexto(std::string_view texto, double& n);

} // namespace pastorix
