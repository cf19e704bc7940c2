#pragma once

#include "registers/datos/CiclosDeVaca.h"

#include <string>

namespace pastorix {

// The cow on the open sheet, as the sheets of her cycles see her: values as they stand in her fields at that moment.
struct VacaEnMano {
    double idVaca = 0;
    double idGanadero = 0;
    std::string nombreC;
    std::string crotal;
    std::string añoDeBaja; // reference year of her last mating record when she is out of the herd, else ""
    std::optional<Fecha> fechaCompra;
    std::optional<Fecha> fechaBaja; // as stored
    std::string textoCompra;        // what stands in those two fields
    std::string textoBaja;
    std::optional<Fecha> fechaDesecho; // as it stands in its field, perhaps not saved yet
};

} // namespace pastorix
