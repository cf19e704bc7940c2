#pragma once

#include "registers/datos/CiclosDeVaca.h"

#include <optional>
#include <string>
#include <vector>

namespace pastorix {

// A cow's cycles in the order of time, as a drawing shows them: what is stored, with nothing worked out anew but the days between two calvings.
struct CicloEnElTiempo {
    CicloDeVaca ciclo;              // its mating record
    std::optional<Fecha> parto;     // calving that opened it
    std::optional<Fecha> real;      // calving that closed it
    std::optional<Fecha> esperado;  // the calving that is expected of a pregnant cow
    std::optional<Fecha> diagnosis; // by hand
    std::optional<Fecha> secado;    // drying off, told by the calving of the cycle
    std::vector<Fecha> servicios;
    std::string estado;
    std::optional<int> intervalo; // days between the calvings; the one reckoned with while the cycle is open

    // First and last day that the cycle says anything of; nothing without a date.
    std::optional<Fecha> Desde() const;
    std::optional<Fecha> Hasta() const;
};

inline constexpr int kIntervaloLargo = 400; // days from which an interval between calvings is too long

// Throws ErrorAlmacen.
std::vector<CicloEnElTiempo> LeerLineaDeCiclos(Conexion& c, double idVaca);

// The same in words: "Año 2025, parto 3. Parto 01/02/25. 2 servicios, 12/04/25 y 03/05/25. Preñada, para el 13/02/26. Intervalo 377 días."
std::string CicloEnPalabras(const CicloEnElTiempo& ciclo);

} // namespace pastorix
