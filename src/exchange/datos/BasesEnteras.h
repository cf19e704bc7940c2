#pragma once

#include "exchange/datos/Comun.h"
#include "store/Reemplazo.h"

// Routes that take whole databases. No connection of this program may have them open.
namespace pastorix {

// Copies a database to a file that is to be carried away; it appears whole or not at all.
void EnviarBase(const std::filesystem::path& base, const std::filesystem::path& destino,
                const Progreso& progreso);

// Puts a database in the place of another, of which a copy is kept. One that still is an Access file is brought to our form before, its original
// kept too; a damaged one is kept as it is; where there is none, none is kept. Returns the copy's path. Throws ErrorAlmacen with `base` as it was.
std::filesystem::path PonerBase(const std::filesystem::path& base, const std::filesystem::path& nueva,
                                const LugarDeCopia& copia);

struct Compactacion {
    std::uintmax_t antes = 0, despues = 0; // bytes
};
// Takes the room of deleted rows out of a database, of which a copy is kept as it was.
Compactacion Compactar(const std::filesystem::path& base, const LugarDeCopia& copia);

} // namespace pastorix
