#pragma once

#include "access/Formato.h"
#include "access/Lector.h"

#include <cstdint>
#include <string>

namespace pastorix::access {

// What the first page of a file tells.
struct Cabecera {
    const Formato* formato = nullptr;
    std::uint32_t llave = 0;    // key of the encoded pages, 0 = plain file
    unsigned paginaCodigos = 0; // of the texts of Jet 3 files
    std::string clave;          // password, UTF-8, empty when none
};

// True when the bytes begin as an Access file of whatever version does.
bool TieneFirma(Vista principio);

// Recognises signature and version from the first bytes (0x15 are enough). Throws ErrorAccess, class NoEsAccess or
// VersionNoTratada with the version's name.
const Formato& ReconocerFormato(Vista principio);

// Reads the whole first page. Throws ErrorAccess when its code page is not treated (Jet 3 only), Daño when its date, with
// which the password of Jet 4 is masked, is none.
Cabecera LeerCabecera(Vista pagina, const Formato& formato);

} // namespace pastorix::access
