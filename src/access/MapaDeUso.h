#pragma once

#include "access/Paginas.h"

#include <cstdint>
#include <vector>

namespace pastorix::access {

// The pages that a usage map names, ascending. Only maps tell what belongs to a table: freed pages keep their old contents,
// owner included. Throws Daño when the map is not sound or names pages that the file does not have.
std::vector<std::uint32_t> LeerMapaDeUso(const Paginas& paginas, PunteroFila donde);

} // namespace pastorix::access
