#pragma once

#include "reports/motor/Disposicion.h"

#include <string>
#include <string_view>

namespace pastorix {

// Reads a layout. The file name is only told in errors. Throws ErrorInforme(Disposicion) "fichero, línea n: ..." for anything that is
// not a sound layout; whatever the bytes are, it ends, and in little time.
Disposicion LeerDisposicion(std::string_view texto, const std::string& fichero);

// The same from a file. Throws ErrorInforme(FicheroAusente) with the path when it cannot be read.
Disposicion LeerDisposicionDeFichero(const std::string& fichero);

} // namespace pastorix
