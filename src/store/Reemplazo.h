#pragma once

#include "store/Conexion.h"
#include "store/Fecha.h"

#include <filesystem>
#include <string>

namespace pastorix {

// Where a safety copy of a database goes: <folder>/<stem>_<ddmmyyyy>_<hhmmss>.mdb. A name that is taken gives way to the next second,
// so that no copy is ever written over another.
struct LugarDeCopia {
    std::filesystem::path carpeta; // made when it is not there
    std::string raiz;              // "DB_PradalC"
    Fecha momento;

    // The first free name. Throws ErrorAlmacen when the folder cannot be made.
    std::filesystem::path Libre() const;
};

// Copies an open database as it stands between two actions, page by page; `destino` appears whole or not at all, over what was there.
// Throws ErrorAlmacen.
void CopiarBase(Conexion& origen, const std::filesystem::path& destino, const AvanceDeApertura& avance = {});

// Writes a database anew without the room that deleted rows have left in it, looks through the result and puts it under the name `destino`,
// whole or not at all. `fichero` is only read. Throws ErrorAlmacen.
void CompactarBase(const std::filesystem::path& fichero, const std::filesystem::path& destino);

// Compacts a database, which no connection may have open, in its place; as it was it stays as a safety copy. Returns the name of the copy.
std::filesystem::path CompactarEnSuSitio(const std::filesystem::path& fichero, const LugarDeCopia& copia);

enum class BaseAnterior { Sana, Averiada };
enum class BaseNueva {
    SeQueda, // a file that stays where it is
    SeGasta, // a work file, moved where the disk allows it
};

// Puts the database `nueva` in the place of `fichero`, which no connection may have open. What was there is kept first: under a second name
// where the file system knows such, else as a copy whose rows are counted against the original's; it is opened and looked through in either
// case, but for a damaged original, which is kept as it is, journal and all.
// Killed at any moment, the old or the new file stands in its place, whole. Returns the name of the copy. Throws ErrorAlmacen with
// `fichero` as it was: a lock, a disk, a new file that is damaged.
std::filesystem::path ReemplazarBase(const std::filesystem::path& fichero, const std::filesystem::path& nueva,
                                     const LugarDeCopia& copia, BaseAnterior anterior = BaseAnterior::Sana,
                                     BaseNueva estado = BaseNueva::SeQueda);

// Takes away what a kill between the keeping and the swap has left: a copy that is only a second name of the database, and would change with it.
void QuitarSegundosNombres(const std::filesystem::path& base, const std::filesystem::path& carpeta);

} // namespace pastorix
