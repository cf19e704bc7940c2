#pragma once

#include "store/BasePropia.h"
#include "store/Conexion.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace pastorix {

// What came of opening a file, whether it opened or not.
struct DatosDeApertura {
    ResultadoApertura resultado = ResultadoApertura::Ausente;
    std::vector<std::string> columnasAñadidas; // see Conexion::ColumnasAñadidas
};

// Opens a database file for a connection; converts it first where the options ask for it. Throws ErrorAlmacen.
BasePropia AbrirBase(const std::string& fichero, std::string_view clave, const OpcionesApertura& opciones,
                     DatosDeApertura& datos);

// Opens a package from elsewhere for work, with distrust: copies it (with the journal of a crash) over its staging file `etapa`, brings that
// one to our form and opens it. The origin, Access file or ours, is only read. Throws ErrorAlmacen; a package that lacks columns is of
// another schema.
// The copy is worth nothing but to the program that made it: nobody waits for the disk.
ResultadoApertura AbrirPaquete(Conexion& conexion, const std::filesystem::path& origen,
                               const std::filesystem::path& etapa, std::string_view clave,
                               const AvanceDeApertura& avance = {});

} // namespace pastorix
