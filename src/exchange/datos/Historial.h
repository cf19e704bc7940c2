#pragma once

#include "exchange/datos/Comun.h"
#include "store/Fecha.h"

#include <optional>

// The log of what was exchanged, and the safety copies.
namespace pastorix {

// Adds a row to the log of a database: who, when, what. `usuario` is the session's; the empty one writes as "VETERINARIO". The result has
// no column: it is "Ok" in every row. Texts that are too long for their columns are cut. Throws ErrorAlmacen.
void EscribirHistorial(Conexion& conexion, const std::string& usuario, Fecha momento,
                       std::string_view operacion, std::string_view resultado = "Ok");

struct Transaccion {
    std::string equipo;
    std::optional<Fecha> fecha;
    std::string operacion;
};
// Newest first.
std::vector<Transaccion> LeerHistorial(Conexion& conexion);

// More rows than this and the log empties itself when it is looked at.
inline constexpr std::size_t kHistorialMaximo = 100;

// Writes the rows of the log to a text in `carpeta` (Historial_<ddmmyyyy>_<hhmmss>.txt) and then deletes them. Returns the text's path;
// empty for a log without rows. Throws ErrorAlmacen, with the rows where they were if the text could not be written.
std::filesystem::path VaciarHistorial(Conexion& conexion, const std::filesystem::path& carpeta,
                                      Fecha momento);

// What lies in the folder of safety copies, whatever it is.
struct ContenidoDeCopias {
    long ficheros = 0;
    std::uintmax_t bytes = 0;
    std::optional<Fecha> masNueva; // of those whose names tell when they were made
};
ContenidoDeCopias MirarCopias(const std::filesystem::path& carpeta);
// Deletes every file in it. Throws ErrorAlmacen at the first that does not let itself be deleted.
void BorrarCopias(const std::filesystem::path& carpeta);

} // namespace pastorix
