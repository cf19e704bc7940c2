#pragma once

#include "store/Conexion.h"

#include <string_view>
#include <vector>

namespace pastorix {

// The records that the user had on screen last, by the key column that they are known by ("Id_Ganadero", "Id_Vaca"); per user and database file,
// from one session to the next.

// 0 when there was none. The record may be gone since.
double Ultimo(const Conexion& conexion, std::string_view columnaClave);
// The last ones, the latest first, each once.
std::vector<double> Recientes(const Conexion& conexion, std::string_view columnaClave);
// A code of 0 changes nothing.
void RecordarUltimo(const Conexion& conexion, std::string_view columnaClave, double codigo);

} // namespace pastorix
