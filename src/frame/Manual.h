#pragma once

#include "frame/Rutas.h"

class QWidget;

namespace pastorix {

// Asks the desktop to open the manual; tells in a box when the file is absent or the desktop cannot.
void AbrirManual(QWidget* padre, const Rutas& rutas);
void AbrirManual(QWidget* padre, const QString& manual);

} // namespace pastorix
