#pragma once

#include "frame/Sesion.h"

class QWidget;

namespace pastorix {

class ControlInforme;

// The plain lists of the reports menu: 1 veterinarians, 2 farmers; any other kind does nothing. Failures end in a box.
void ListadoMaestro(int tipo, Sesion& sesion, ControlInforme& control, QWidget* padre);

} // namespace pastorix
