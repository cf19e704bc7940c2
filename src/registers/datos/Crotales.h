#pragma once

#include "store/Conexion.h"

#include <optional>
#include <string>
#include <vector>

namespace pastorix {

// Ear tags. A tag names one cow of the whole database, whoever owns her; field work goes by its last four characters.

// Tags shorter than this are neither checked nor browsed.
inline constexpr int kCrotalMinimo = 4;

// Tags of other cows that equal this one. All functions throw ErrorAlmacen for a tag with an apostrophe.
std::vector<std::string> CrotalesCoincidentes(Conexion& c, const std::string& crotal, double idVaca);

std::optional<double> VacaDeCrotal(Conexion& c, const std::string& crotal);

// The neighbour of a cow among all whose tags end in the same four characters, by tag: the next one with paso 1, the one before with -1. Her
// place is found by her code or else by the tag; a tag that is nobody's (only its end was typed) leads to the first of them, or to the last
// going up. Nothing at either end.
std::optional<double> VecinaPorCrotal(Conexion& c, const std::string& crotal, double idVaca, int paso);

} // namespace pastorix
