#pragma once

#include "store/Fecha.h"

#include <optional>

namespace pastorix {

// Today's civil date, at midnight. The only source of "today" in the program.
Fecha Hoy();

// Today's date with the local time of day.
Fecha Ahora();

// Stops the clock at a moment (tests, demonstrations); empty lets it run again.
void FijarHoy(std::optional<Fecha> momento);

} // namespace pastorix
