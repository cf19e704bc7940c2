#pragma once

#include "store/Recordset.h"

#include <optional>
#include <string>
#include <vector>

namespace pastorix {

// One cycle of a cow, as a line of her matings or calvings names it. Rows from elsewhere may lack the year or the parity.
struct CicloDeVaca {
    double idVaca = 0;
    double idCubricion = 0; // of a mating record
    std::optional<int> añoRef;
    std::optional<int> nParto;
    std::string fechaParto; // of a calving, dd/mm/yy
    bool completo = false;  // all its data are in
};

// Condition on a cycle's rows, " WHERE Id_Vaca = ... AND Año_Ref = ... AND N_PARTO = ..."; those of a cycle without year or parity are the rows
// without. Year and parity go by other names in the health tables.
std::string DondeCiclo(const CicloDeVaca& ciclo, const char* año = "Año_Ref", const char* parto = "N_PARTO");

// A whole number of a row, if there is one.
std::optional<int> EnteroDe(const Campo& campo);

// Mating records and calvings of a cow, the latest first. Twins are two rows of one parity and show as one calving.
std::vector<CicloDeVaca> CubricionesDeVaca(Conexion& c, double idVaca);
std::vector<CicloDeVaca> PartosDeVaca(Conexion& c, double idVaca);

// Removes a calving, both twins, with the fattening records of its calves. Each statement stands alone: one that fails (ErrorAlmacen) leaves
// what was deleted before it.
void EliminarParto(Conexion& c, const CicloDeVaca& ciclo);
// Removes a mating record with its services and the health entries of its cycle. The calving of that year stays.
void EliminarCubricion(Conexion& c, const CicloDeVaca& ciclo);

// Reference year of a cow's last mating record; "" when she has none.
std::string UltimoAñoDeVaca(Conexion& c, double idVaca);

} // namespace pastorix
