#pragma once

#include <map>
#include <string>
#include <string_view>

namespace pastorix {

// One data source: a name that stands for a database file.
struct OrigenDeDatos {
    std::string nombre;  // "OD_PRADALC"
    std::string fichero; // path of the database
    std::string clave;
};

// The in-process catalogue of data sources. Declaring a name again replaces it, which is how the personal entry moves
// OD_PRADALC to its own file. Names are found without regard to case.
class OrigenesDeDatos {
public:
    // Declares a source from its attribute list: "Description=...", "DSN=...", "FIL=MS Access", "DBQ=...", "UID=", "PWD=...",
    // each pair closed by one NUL. False when the list has no name or no file, or names another driver.
    bool Declarar(std::string_view atributos);

    // The source of that name, or nullptr.
    const OrigenDeDatos* Buscar(std::string_view nombre) const;

    // Resolves "dsn=OD_PRADALC", "DSN=OD_PSTX;DBQ=path", or the same inside the quoted Extended Properties of a longer string: the named
    // source, with its file replaced if DBQ is given. Throws ErrorAlmacen(NoSePuedeAbrir) for a name that is not declared.
    OrigenDeDatos Resolver(std::string_view cadenaDeConexion) const;

private:
    std::map<std::string, OrigenDeDatos, std::less<>> m_origenes; // by name in capitals
};

// The long connection string, by which a source is pointed at another file for one connection.
std::string CadenaDeConexion(std::string_view nombre, std::string_view fichero, std::string_view clave);

// The attribute list above for a source on a file, as the program declares it.
std::string AtributosDeOrigen(std::string_view nombre, std::string_view fichero, std::string_view clave);

} // namespace pastorix
