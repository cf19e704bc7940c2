#pragma once

#include "store/Recordset.h"

#include <string>
#include <vector>

namespace pastorix {

// How two telephones become one text. The reports never agreed on it, and their lists are compared with older ones.
enum class Telefonos {
    MovilNoNulo, // the mobile behind " / " wherever it is not Null, whether the other one is there or not
    MovilSiHay,  // the same wherever something stands in it
    ElQueHaya,   // both with " / " between, or the one that is there; Null without any
};

// A farmer as the head of a report names him.
struct GanaderoDeInforme {
    double id = 0;
    std::string nombre;
    std::string apellidos;
    std::string localidad;
    Valor fijo;
    Valor movil;

    std::string NombreYLugar() const; // "Nora Díaz - Tineo"; without a town the hyphen stays
    Valor TextoTelefonos(Telefonos regla) const;
};

// Condition of the farmers' codes, " AND (T_Ganaderos.Id_Ganadero = 12 OR ...)"; nothing for none.
std::string FiltroGanaderos(const std::vector<double>& ganaderos);
// The farmers with their addresses, by name.
std::vector<GanaderoDeInforme> LeerGanaderos(Conexion& c, const std::vector<double>& ganaderos);
// One farmer; without an address, or with the number of one that is not there, place and telephones are empty.
GanaderoDeInforme LeerGanadero(Conexion& c, double ganadero);

} // namespace pastorix
