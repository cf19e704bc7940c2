#pragma once

#include "access/BaseAccess.h"
#include "access/Lector.h"

#include <cstdint>
#include <string>

// Values of one cell from their bytes. All throw Daño when there are fewer bytes than the type needs.
namespace pastorix::access {

// Days since 1899-12-30 with the time of day as their fraction, which counts forward in negative numbers too: -1.25 is 06:00
// of day -1. Rounded to milliseconds. Years 100 to 9999 only; anything else is damage.
Momento LeerMomento(const Lector& bytes);

// Ten-thousandths in 64 bits; text with four decimals: no floating point on the way.
void EscribirMoneda(const Lector& bytes, std::string& texto);

// Sign and 128 bits, the highest 32 first; text with `escala` decimals.
void EscribirDecimal(const Lector& bytes, unsigned escala, std::string& texto);

// {XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}
void EscribirGuid(const Lector& bytes, std::string& texto);

} // namespace pastorix::access
