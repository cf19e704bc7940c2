#pragma once

#include "store/Conexion.h"

#include <optional>
#include <string>
#include <string_view>

namespace pastorix {

// Code proposed for a farmer's new bull. While his last bull is numbered below the farmer's own code, the new one gets that code and a
// counter of three digits (57001); from then on the numbers go up by one. Farmer 1 simply counts from 1.
std::string CodigoDeSemental(Conexion& c, double idGanadero);

// Age in whole years on 1 July of a natural year, counted as calendar-year boundaries since the birth date; "" without a valid birth
// date or year. The year goes by its last two digits, as dates of the sheets do.
std::string EdadEnAño(std::optional<Fecha> fechaNac, std::string_view año);

// Carries a bull's name to the copies of it that past services and calvings hold. Throws ErrorAlmacen for a name with an apostrophe.
void ExtenderNombre(Conexion& c, std::string_view nombreC, double idSemental);

// Deletes a bull and his yearly serologies. His vaccination rows (T_PatologiaSemR), services and calvings stay. Run it in a group.
void BorrarSemental(Conexion& c, double idSemental);

} // namespace pastorix
