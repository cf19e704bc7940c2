#pragma once

#include "frame/calendario/ErrorDeEjecucion.h"
#include "store/Valor.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace pastorix {

// Numbers are typed and shown with decimal comma and points between thousands, whatever the system's locale. Two roundings
// live side by side: masks round halves away from zero, everything else rounds them to the even neighbour.

// Writes a number by a mask of 0 (digit always there), # (digit if there is one), a point for the decimal comma and a comma for
// thousands: "##0", "#####0.0", "###,##0.00". Other characters stand for themselves. Rounds the 15 digits of the number as they
// read, halves away from zero.
std::string FormatoNumero(double n, std::string_view mascara);

// Rounds to so many decimals, halves to even.
double Round(double n, int decimales = 0);

// Conversion of a number to a whole one, halves to even. Throws ErrorDeEjecucion 6 when it does not fit.
std::int64_t AEntero(double n);

// The number that a text begins with, read with a decimal point and blanks left out: "12ab" is 12, "ab" and "" are 0, "1,5" is 1.
// Also hexadecimal &H and octal &O. Throws ErrorDeEjecucion 6 for a number beyond any.
double Val(std::string_view texto);

// True when the whole text reads as a number in Spanish: sign before or behind, brackets for a negative one, points between
// thousands, decimal comma, exponent, euro sign.
bool IsNumeric(std::string_view texto);

// The value of a text for which IsNumeric holds. A text that the sheets accept in a number field ("2.5" too) gives the value that they
// store; a point is a thousands separator only where it cannot be the decimal one.
std::optional<double> NumeroEscrito(std::string_view texto);

} // namespace pastorix
