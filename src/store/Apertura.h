#pragma once

#include "store/Conexion.h"

#include <memory>
#include <string>
#include <string_view>

struct sqlite3;

namespace pastorix {

struct CierraBase {
    void operator()(sqlite3* base) const;
};
using BasePropia = std::unique_ptr<sqlite3, CierraBase>;

// Opens a database file for a connection; converts it first where the options ask for it. Throws ErrorAlmacen; `resultado`
// tells the outcome in both cases.
BasePropia AbrirBase(const std::string& fichero, std::string_view clave, const OpcionesApertura& opciones,
                     ResultadoApertura& resultado);

// Looks through a whole database: SQLite's own integrity check and the tables. One line per fault; empty for a sound one.
std::vector<std::string> VerificarBase(const std::string& fichero, std::string_view clave);

} // namespace pastorix
