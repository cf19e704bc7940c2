#pragma once

#include "store/Recordset.h"

#include <functional>
#include <span>
#include <string>

namespace pastorix {

// The address of a veterinarian or farmer: one row of T_Direcciones, found by its number and its owner's code.
struct CampoDireccion {
    const char* columna;
    int indice; // of the sheet's control array
};

// Texts of the address fields of a sheet, in the order of its table of fields.
using TextoDeCampo = std::function<std::string(int indice)>;

// True when something stands in the controls 4 to 11: only then is an address written.
bool HayDireccion(const TextoDeCampo& texto);

// Before the owner's row is updated: gives it a number for its address if it needs one (a new owner, or one without), and returns the
// number, 0 if none.
double NumerarDireccion(Conexion& c, Recordset& propietario, const TextoDeCampo& texto);

// After it: writes the row of the address, if there is one to write.
void EscribirDireccion(Conexion& c, double idDireccion, double codigo, std::span<const CampoDireccion> campos,
                       const TextoDeCampo& texto);

// Reads it: `poner` gets every field with its text; nothing is called when the owner has no address.
void LeerDireccion(Conexion& c, double idDireccion, double codigo, std::span<const CampoDireccion> campos,
                   const std::function<void(int indice, const std::string& texto)>& poner);

} // namespace pastorix
