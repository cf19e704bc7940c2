#pragma once

#include <filesystem>
#include <memory>

struct sqlite3;

namespace pastorix {

struct CierraBase {
    void operator()(sqlite3* base) const;
};
using BasePropia = std::unique_ptr<sqlite3, CierraBase>;

enum class Modo { Lectura, Escritura, Nueva };

// Opens a file with everything that a connection of ours works with; `Nueva` makes it when it is not there. Throws ErrorAlmacen.
BasePropia AbrirBasePropia(const std::filesystem::path& fichero, Modo modo);

// Functions, collation and settings of a connection. One place for all.
void InicializarConexion(sqlite3* base);

} // namespace pastorix
