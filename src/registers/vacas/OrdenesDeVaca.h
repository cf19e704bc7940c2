#pragma once

#include "registers/datos/VacaEnMano.h"

#include <functional>

class QWidget;

namespace pastorix {

// What sheets of a higher room do for the cow's: each opens its sheet over the given window and comes back when it is closed. An
// empty one is not there yet, and its button is off.
struct OrdenesDeVaca {
    std::function<void(QWidget*, const VacaEnMano&, const CicloDeVaca&)> abrirCubricion;
    std::function<void(QWidget*, const VacaEnMano&, const CicloDeVaca&)> abrirParto;
    std::function<void(QWidget*, const VacaEnMano&)> añadirCubricion;
    std::function<void(QWidget*, const VacaEnMano&)> añadirParto;
};

} // namespace pastorix
