#pragma once

#include "frame/ficha/CampoFicha.h"

namespace pastorix {

// The sheet of bulls as data: its fields, on the heading (0) and the tabs General (1), Patologías (2) and Baja (3).
const DefinicionFicha& DefinicionSementales();

inline constexpr int kFechaNac = 6;
inline constexpr int kObsBaja = 20;
inline constexpr int kObsPatologia = 21;
inline constexpr int kOtraCausa = 100; // CtextoBaja: not of the array

} // namespace pastorix
