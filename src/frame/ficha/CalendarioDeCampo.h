#pragma once

#include "store/Fecha.h"

#include <optional>

class QWidget;

namespace pastorix {

// A small calendar under a field. Arrows and Enter or a click choose a day, Escape leaves it; nothing then.
std::optional<Fecha> ElegirEnCalendario(QWidget& campo, std::optional<Fecha> actual);

} // namespace pastorix
