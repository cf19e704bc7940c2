#pragma once

#include "frame/Sesion.h"

#include <span>
#include <string_view>

namespace pastorix {

// What every entry does to the database it enters: the marker of the upgrade, a fixed list of repairs, and, when the user
// asks for it, the health rows of the natural year.

// The repairs in their order. They run at every entry and are made so that a second run changes nothing: a column that is there
// already, or gone, makes its statement fail, and that costs nothing.
std::span<const std::string_view> Reparaciones();

// Runs the repairs as one durable unit. A failing one does not keep the next from running, but for a failure of the file itself
// (lock, disk, read-only): that one ends the list and is thrown. The renaming of a column is whole or not at all.
void Reparar(Conexion& conexion);

// Upgrades the database of the entry (0 main, 1 personal) when this user's marker "Version_0" or "Version_1" is below 309, and
// sets the marker.
void PasarVersion(Conexion& conexion, int base);

// Where an upgrade of a future release goes; nothing to do in this one.
void ActualizarVersion(Conexion& conexion);

// Opens the rows of the current civil year in T_CCNATVACAS, T_IBRBVD, T_NEOSPIROSIS and T_MAMIVACU for every cow that has not left
// and lacks them. avance gets rows done and their count, before each cow. Returns the number of rows added. Throws ErrorAlmacen;
// what was added before stays.
long InicializarAñosNaturales(Conexion& conexion, const FuncionAvance& avance = {});

} // namespace pastorix
