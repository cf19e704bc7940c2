#include "registers/Listas.h"

namespace pastorix {
std::optional<double> ElegirVeterinario(Sesion&, QWidget*) {
    return {};
}
std::optional<double> ElegirGanadero(Sesion&, QWidget*) {
    return {};
}
} // namespace pastorix
