#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pastorix {

// One word of a layout line: a bare word, a quoted text, or key=value (the value quoted or not).
struct Palabra {
    std::string clave; // of key=value, else empty
    std::string texto;
    bool entreComillas = false;
};

struct LineaLeida {
    int numero = 0; // from 1
    std::vector<Palabra> palabras;
};

// Cuts the text of a layout into lines of words: UTF-8 with or without byte order mark, any line ending, blank lines and lines that
// begin with # left out. Within quotes \" \\ and \n stand for a quote, a backslash and a line break.
// Throws ErrorInforme(Disposicion) with the line number for broken UTF-8, an open quote, or a text beyond all measure.
std::vector<LineaLeida> CortarLineas(std::string_view texto, const std::string& fichero);

// "fichero, línea 12: texto", thrown as ErrorInforme(Disposicion).
[[noreturn]] void FalloEnLinea(const std::string& fichero, int linea, const std::string& texto);

} // namespace pastorix
