#pragma once

#include "store/Errores.h"

#include <string>
#include <string_view>

struct sqlite3;

namespace pastorix {

// SQLite's result code (extended or not) as the number and the words that the program has for it.
struct LecturaDeCodigo {
    CodigoError codigo;
    const char* texto;
};
LecturaDeCodigo LeerCodigo(int codigo);

// Throws it as our error. The connection's own message, the code and the statement go into the detail.
[[noreturn]] void LanzarError(sqlite3* base, int codigo, std::string_view sentencia);

// The detail of the connection's last failure: its message in English, its code, the statement.
std::string DetalleDeSqlite(sqlite3* base, int codigo, std::string_view sentencia);

} // namespace pastorix
