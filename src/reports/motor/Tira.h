#pragma once

#include "reports/motor/Evaluador.h"
#include "reports/motor/Pagina.h"

#include <cstddef>
#include <vector>

namespace pastorix {

struct Flujo;
struct Repetida;

// The beginning of a group, borne by its first strip.
struct Marca {
    QString texto;           // entry of the index; none when empty
    int nivel = 0;           // how many groups are around it
    bool conPaginas = false; // its pages are numbered by themselves
};

// A filled band on its way to a page: its primitives are placed from the left margin and from its own top.
struct Tira {
    double alto = 0;
    std::vector<Trozo> trozos;
    std::vector<Flujo> columnas; // in place of primitives: flows side by side
    const Contexto* contexto = nullptr;
    const Repetida* cabeceras = nullptr; // headings to print again when a page begins with this strip
    std::vector<Marca> marcas;
    bool conSiguiente = false;
    bool saltoAntes = false;
};

// Strips in order, and which runs of them should stay on one page.
struct Flujo {
    struct Rango {
        std::size_t inicio = 0;
        std::size_t fin = 0; // one past the last
    };
    std::vector<Tira> tiras;
    std::vector<Rango> juntos; // by beginning; of those with the same beginning the longest first
    bool saltoPendiente = false;
    std::vector<Marca> marcasPendientes; // of what begins with the next strip

    double Alto() const;
};

// A heading that is printed again, within those outside of it.
struct Repetida {
    const Repetida* fuera = nullptr;
    Tira tira;
};

} // namespace pastorix
