#pragma once

#include "exchange/datos/UnirVeterinario.h"
#include "store/Fecha.h"

#include <functional>

namespace pastorix {

// A removed farmer that may be copied to the other database.
struct GanaderoDeBaja {
    double id = 0;
    std::string nombre; // name, a blank, surname
};
std::vector<GanaderoDeBaja> GanaderosDeBaja(Conexion& conexion);

// Uniform numbers in [0, 1).
using Azar = std::function<double()>;

// A farmer's code of four digits that nobody has in that database.
double NuevoCodigoGanadero(Conexion& destino, const Azar& azar);

// What a transfer leaves behind, or brings pointing elsewhere.
struct LoQueQuedaAtras {
    double codigo = 0;          // the farmer's in the other database
    long mamitisYVacunas = 0;   // rows of T_MAMIVACU
    long patologiasDeCiclo = 0; // rows of T_PatologiaSemR of his bulls
    long cebosConParto = 0;     // fattening lines that keep the number of a calving, which is another there
    std::vector<ToroQueCambia> toros; // numbers that are another bull there, or none
};

// Copies a farmer with all that he owns into a working copy of the other database, under new keys where his are taken; he arrives active. What
// was written before a failure stays in the copy. `hoy` is his date of entry. Throws ErrorAlmacen.
LoQueQuedaAtras PasarGanadero(Conexion& origen, Conexion& destino, double ganadero, Fecha hoy,
                              const Azar& azar, const Progreso& progreso);

} // namespace pastorix
