#pragma once

#include "store/Valor.h"

#include <string>
#include <string_view>
#include <vector>

namespace pastorix {

// Stands in a text literal for an apostrophe that was in the value (see TextoSql): the statement must fail.
inline constexpr char kMarcaApostrofo = '\x01';

// First pass over a statement, made for speed since it runs at every call: takes every literal out and leaves the shape, in
// which a ? stands for each. Statements of one shape share one prepared statement. Throws ErrorAlmacen(Sintaxis).
void SepararLiterales(std::string_view sentencia, std::string& forma, std::vector<Valor>& literales);

enum class TipoFicha { Nombre, Corchetes, Literal, Simbolo, Fin };

// A word of a shape.
struct Ficha {
    TipoFicha tipo = TipoFicha::Fin;
    std::string_view texto; // without the brackets of a bracketed name
};

// Second pass, only for a shape met for the first time.
std::vector<Ficha> Fichas(std::string_view forma, std::string_view sentencia);

// The statement as a message shows it: the mark is an apostrophe again.
std::string SentenciaVisible(std::string_view sentencia);

} // namespace pastorix
