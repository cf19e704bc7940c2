#pragma once

#include "store/Fecha.h"

#include <string>
#include <string_view>

namespace pastorix {

// The only ways in which a value enters the text of a statement.

// A number, decimal point, no separators: "1200044", "2.5".
std::string NumeroSql(double n);

// A text between apostrophes. Statements do not escape: a text that holds an apostrophe makes the whole statement fail with a
// syntax error. It can never end the literal early, so nothing that a user types becomes part of a statement.
std::string TextoSql(std::string_view texto);

// Month-first literals #mm/dd/yy# and #mm/dd/yyyy#. The two-digit one is exact only within 1950..2049.
std::string FechaSql2(Fecha fecha);
std::string FechaSql4(Fecha fecha);

// {ts 'yyyy-mm-dd 00:00:00'}
std::string MomentoSql(Fecha fecha);

} // namespace pastorix
