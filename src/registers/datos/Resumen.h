#pragma once

#include "store/Conexion.h"

#include <array>
#include <functional>
#include <string>
#include <vector>

namespace pastorix {

// The farm's management figures of one natural year side by side, as the grid shows them; "" where there is nothing to tell.
struct AñoResumido {
    std::string año;
    std::string ugm; // mean stocking load in livestock units, whole
    std::string partosAgrup;
    std::string abonado;
    std::string porcentajeAbonado; // fertilised of the hectares that are not common
    std::string cargaNoComunal;    // livestock units to a hectare that is not common, one decimal
    std::string diasPC;            // on the common pastures
    std::string alimPC;
    std::string porcentajeUgmPC; // of the load that goes up to them
    std::string diasPI;          // of the winter period
    std::string alimPI;
    std::string tipoSP;

    std::array<std::string, 12> Celdas() const; // in the order of the grid
};

// One line per row of T_IPR that has a year, in their order: a year without such a row has none, whatever the other tables hold. Nothing
// is kept between calls; `avance` is told before each line (its number from 1, all of them). Throws ErrorAlmacen.
std::vector<AñoResumido> LeerResumen(Conexion& c, double idGanadero,
                                     const std::function<void(int linea, int total)>& avance = {});

} // namespace pastorix
