#pragma once

#include <string>
#include <string_view>

namespace pastorix {

// The names under which the records know an animal: its own, and behind it the muscling class when that is known by genotype ("G-...");
// other classes, or none, leave the bare name.

// "Luna", "G-Culón" gives "Luna-Culón".
std::string NombreCompuestoDeVaca(const std::string& nombre, std::string_view cularidad);

// Of the class its letter alone, "-C"; the insemination bulls, those of farmer 1, are marked: "Ares(IA)-C".
std::string NombreCompuesto(std::string_view nombre, std::string_view clase, std::string_view ganadero);

} // namespace pastorix
