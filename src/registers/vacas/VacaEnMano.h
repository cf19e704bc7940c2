#pragma once

#include "registers/vacas/CiclosDeVaca.h"

#include <functional>
#include <string>

class QWidget;

namespace pastorix {

// The cow on the open sheet, as the sheets of her cycles see her: values as they stand in her fields at that moment.
struct VacaEnMano {
    double idVaca = 0;
    double idGanadero = 0;
    std::string nombreC;
    std::string añoDeBaja;    // reference year of her last mating record when she is out of the herd, else ""
    std::string fechaCompra;  // dates as dd/mm/yy
    std::string fechaBaja;    // as stored
    std::string fechaDesecho; // as it stands in its field, perhaps not saved yet
};

// What sheets of a higher room do for the cow's: each opens its sheet over the given window and comes back when it is closed. An
// empty one is not there yet, and its button is off.
struct OrdenesDeVaca {
    std::function<void(QWidget*, const VacaEnMano&, const CicloDeVaca&)> abrirCubricion;
    std::function<void(QWidget*, const VacaEnMano&, const CicloDeVaca&)> abrirParto;
    std::function<void(QWidget*, const VacaEnMano&)> añadirCubricion;
    std::function<void(QWidget*, const VacaEnMano&)> añadirParto;
};

} // namespace pastorix
