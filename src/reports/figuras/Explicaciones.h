#pragma once

#include "reports/indices/Contados.h"

#include <optional>
#include <string_view>

namespace pastorix {

// Where a figure of the technical report comes from, by the key that its layout gives it: kind, farmer, reference year and what of it, with
// semicolons, as in "Mortalidad;12;2025;Total". Nothing for a key that it does not know. The animals are those that the figure's own
// function counts, named.
std::optional<Explicacion> ExplicarFigura(Conexion& c, std::string_view clave);

} // namespace pastorix
