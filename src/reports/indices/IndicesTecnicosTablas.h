#pragma once

#include "store/Conexion.h"

#include <functional>
#include <string_view>
#include <vector>

namespace pastorix {

// Told how far the work has come, as value and total.
using AvanceDeInforme = std::function<void(int hecho, int total)>;

// Fills the scratch tables of the yearly technical report (X_Temp, X_Temp1, X_Temp2, X_TempGraph, X_Tmp3, X_Tmp4, X_Tmp6, X_Tmp7,
// X_Tmp8) for the farmers, in the order of their names, as one durable unit. `año` is the text of the reference year as typed.
// A failure (ErrorAlmacen, ErrorDeEjecucion) leaves what was written up to it.
void LlenarIndicesTecnicos(Conexion& c, const std::vector<double>& ganaderos, std::string_view año,
                           const AvanceDeInforme& avance = {});

} // namespace pastorix
