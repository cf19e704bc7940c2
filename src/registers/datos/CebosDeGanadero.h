#pragma once

#include <string>

namespace pastorix {

// The animals that a farmer fattens, those of the latest reference year first: one row each, with the mother's name where it was born on the farm.
// The columns are Id_Cebo, AñoRef, Origen, Madre, Sexo, Saneamiento, FechaNac, FechaCebo, FechaSacrif, FechaMuerte, KgCanal.
std::string SentenciaCebos(double idGanadero);

} // namespace pastorix
