#pragma once

#include "frame/Sesion.h"

#include <functional>

namespace pastorix {

// The start of the program, before any window: takes the folder's lock, puts databases and layouts into their folders on the
// first run, declares the three data sources and opens the session's connection on the main database. What goes wrong
// is told in a box. True: the splash form is to be shown; false: the program ends. The session's paths are to be set before.
// avance, if given, follows the conversion of an Access file. pedirBases, if given, is asked once the user has been told that there are no
// databases at all, neither at work nor delivered; true when it has put the three beside the program.
bool Arrancar(Sesion& sesion, const FuncionAvance& avance = {},
              const std::function<bool(const Rutas&)>& pedirBases = {});

} // namespace pastorix
