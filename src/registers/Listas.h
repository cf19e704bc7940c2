#pragma once

#include "frame/Sesion.h"

#include <optional>

class QWidget;

namespace pastorix {

// The selector's lists that the registers open; the chosen key, or nothing when the list was left with Escape.
std::optional<double> ElegirVeterinario(Sesion& sesion, QWidget* padre);
std::optional<double> ElegirGanadero(Sesion& sesion, QWidget* padre);

} // namespace pastorix
