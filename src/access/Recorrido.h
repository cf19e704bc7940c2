#pragma once

#include "access/BaseAccess.h"
#include "access/Definicion.h"
#include "access/ValoresLargos.h"

#include <functional>
#include <span>

namespace pastorix::access {

// Hands out the live rows of a table in physical order, a moved row where it stood first. Returns how many. Throws Daño, and
// whatever `fila` throws.
std::uint64_t RecorrerFilas(const Paginas& paginas, const Definicion& definicion, const Textos& textos,
                            ValoresLargos& largos, const std::function<void(std::span<const Celda>)>& fila);

} // namespace pastorix::access
