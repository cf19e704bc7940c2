#pragma once

#include "store/Conexion.h"

#include <string>

namespace banco {

// A made-up farm of the size the program must be instant on: 500 cows with 14 years of matings, services, calvings and fattening.
// Farmer 12, and the numbers after it for more farms; reference years 2013 to 2026. Always the same rows.
void HacerRebaño(const std::string& fichero, int granjas = 1, int vacasPorGranja = 500);

} // namespace banco
