#pragma once

#include <functional>
#include <optional>

class QWidget;

namespace pastorix {

// What sheets of a higher room do for the farmer's: each opens its sheet over the given window and comes back when it is closed. An
// empty one is not there yet, and its button is off.
struct OrdenesDeGanadero {
    std::function<void(QWidget*, double idGanadero, std::optional<double> idCebo)>
        abrirCebo; // without a number: adds
    std::function<void(QWidget*, double idGanadero)> abrirFichaIPR;
};

} // namespace pastorix
