#pragma once

#include "store/Conexion.h"
#include "store/Fecha.h"
#include "store/Reemplazo.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The safety copies of a database: which there are, what is in them, and how one comes back.
namespace pastorix {

// What people tell copies apart by.
struct ContenidoDeBase {
    long ganaderos = 0;
    long vacas = 0;
    long sementales = 0;
    std::optional<Fecha> ultimoParto;
};
ContenidoDeBase LeerContenido(Conexion& conexion);

struct CopiaDeSeguridad {
    std::filesystem::path fichero;
    Fecha momento; // as its name tells it, or else the file itself
};

// The copies of a database (by its file name, "BD_PradalP.mdb") in a folder, newest first. Those that imports make are spelt "DB_...".
std::vector<CopiaDeSeguridad> BuscarCopias(const std::filesystem::path& carpeta, std::string_view base);

// Looks through a copy, an Access file as well. Throws ErrorAlmacen when it is not sound, or no database of ours.
ContenidoDeBase ExaminarCopia(const std::filesystem::path& copia, std::string_view clave);

// Whether a file is an Access database, by its first bytes.
bool EsDeAccess(const std::filesystem::path& fichero);

struct CopiaSana {
    CopiaDeSeguridad copia;
    ContenidoDeBase contenido;
};
// The newest copy that is sound; empty when there is none.
std::optional<CopiaSana> UltimaCopiaSana(const std::filesystem::path& carpeta, std::string_view base,
                                         std::string_view clave);

// Puts a copy back in the place of its database, which nothing may have open and which need not be readable. That one is kept in
// `carpeta` as <name>_Averiada_<ddmmyyyy>_<hhmmss>.mdb, or as one more copy <name>_<ddmmyyyy>_<hhmmss>.mdb when it is sound; returns
// its path. Throws ErrorAlmacen with everything as it was.
std::filesystem::path RestaurarCopia(const std::filesystem::path& fichero, const std::filesystem::path& copia,
                                     const std::filesystem::path& carpeta, Fecha momento,
                                     std::string_view clave, BaseAnterior anterior = BaseAnterior::Averiada);

} // namespace pastorix
