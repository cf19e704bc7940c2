#pragma once

#include "access/Paginas.h"
#include "access/Texto.h"
#include "access/ValoresLargos.h"

#include <cstdint>
#include <string>
#include <vector>

namespace pastorix::access {

struct Entrada {
    std::string nombre;       // UTF-8
    std::uint32_t pagina = 0; // first page of the definition
};

// The user tables that the catalogue names, in its order: neither the engine's nor the designer's own, nor deleted ones that
// are not yet swept away, nor tables linked from elsewhere. `usadas`: see LeerDefinicion. Throws Daño.
std::vector<Entrada> LeerCatalogo(const Paginas& paginas, const Textos& textos, ValoresLargos& largos,
                                  std::vector<bool>& usadas);

} // namespace pastorix::access
