#pragma once

#include "frame/campos/Lineas.h"
#include "store/Conexion.h"

#include <array>
#include <span>
#include <string>
#include <vector>

namespace pastorix {

// One quarter of the udder: front left, front right, rear left, rear right.
struct Teto {
    std::string nombre;   // of the fixed list of teats
    bool marcado = false; // lost
    Valor fecha;
    Valor nota;
};

inline constexpr std::size_t kTetos = 4;
using Tetos = std::array<Teto, kTetos>;

// The teats of a cow; without a cow, or without rows, only their names.
Tetos LeerTetos(Conexion& c, double idVaca);
// Always four rows, marked or not. Throws ErrorAlmacen.
void EscribirTetos(Conexion& c, double idVaca, const Tetos& tetos);

// Columns of the grid of lactations.
std::span<const ColumnaLinea> ColumnasDeLactacion();
inline constexpr int kTratSecado = 4;
inline constexpr int kCuartosPerdidos = 5;

// The cow's lactations, the latest first: a line for each calving. Twins are two rows of one parity and make one line, with the two weaning
// dates.
std::vector<Linea> LeerLactaciones(Conexion& c, double idVaca);
// Puts dry-off treatment and lost quarters of each line with year and parity back to its calving, to both twins. Throws ErrorAlmacen.
void EscribirLactaciones(Conexion& c, double idVaca, std::span<const Linea> lineas);

} // namespace pastorix
