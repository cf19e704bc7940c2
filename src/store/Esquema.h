#pragma once

#include "store/Catalogo.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;

namespace pastorix {

// The stamp of a database of ours: SQLite's application id, and the table _pastorix with format, class and salted hash of the
// password. The hash keeps no reader out; like the password of the old files it only tells the program's files from others.
inline constexpr int kIdentificadorAplicacion = 0x50535458; // "PSTX"
inline constexpr std::string_view kClave = "q7r2mz";        // the common password of all databases

// Makes tables (without the indexes) and stamp in an empty database; indexes go last, after the rows are in.
void CrearTablas(sqlite3* base, ClaseDeBase clase, std::string_view clave);
// Makes keys and indexes. A key that the rows do not meet becomes a plain index, and is named in the result: no row is refused.
std::vector<std::string> CrearIndices(sqlite3* base, ClaseDeBase clase);

struct SelloDeBase {
    bool nuestra = false;
    bool claveCorrecta = false;
    ClaseDeBase clase = ClaseDeBase::Principal;
};
SelloDeBase LeerSello(sqlite3* base, std::string_view clave);

// New empty database file with its fixed rows (teats). An existing file is refused.
void CrearBase(const std::filesystem::path& fichero, ClaseDeBase clase, std::string_view clave);

// What is wrong with the tables of a database, one clear line each: missing tables and columns, columns in another order.
struct DiferenciasDeEsquema {
    std::vector<std::string> tablasAusentes;   // of the tables that hold records
    std::vector<std::string> columnasAusentes; // "T_Cebo.Cambiado"
    bool otroOrden = false;                    // something must be moved or added to reach the canonical form
};
// A column that older files lack and every entry adds by itself, so that its absence tells nothing.
bool LaPonenLasReparaciones(std::string_view columna);

DiferenciasDeEsquema CompararEsquema(const Catalogo& catalogo, ClaseDeBase clase);

} // namespace pastorix
