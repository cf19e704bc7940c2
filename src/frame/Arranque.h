#pragma once

#include "frame/Sesion.h"

namespace pastorix {

// The start of the program, before any window: takes the folder's lock, puts databases and layouts into their folders on the
// first run, declares the three data sources and opens the session's connection on the main database. What goes wrong
// is told in a box. True: the splash form is to be shown; false: the program ends. The session's paths are to be set before.
// avance, if given, follows the conversion of an Access file.
bool Arrancar(Sesion& sesion, const FuncionAvance& avance = {});

} // namespace pastorix
