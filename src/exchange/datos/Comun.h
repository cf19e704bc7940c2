#pragma once

#include "store/Conexion.h"
#include "store/Errores.h"
#include "store/Recordset.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

// What the routes of the exchange share.
namespace pastorix {

// Told of per cents, which may fall back.
using Progreso = std::function<void(int)>;

// A route that cannot be gone, though no statement has failed: the package holds nobody, the name is no file's. what() is Spanish.
class ErrorDeIntercambio : public ErrorConDetalle {
public:
    using ErrorConDetalle::ErrorConDetalle;
};

// A statement with one term per id: head, first id, then link and id for each further one ("... Id = 1 OR Id = 2"). Throws
// ErrorDeIntercambio without ids: half a statement is none.
std::string Cadena(std::string_view cabeza, std::string_view nexo, const std::vector<double>& ids);

// The numbers of one column of a query, in its order; Null is left out.
std::vector<double> Numeros(Conexion& conexion, std::string_view consulta, std::string_view columna);

// A new row of a table with what the current row of another database's holds, by position; what differs is assigned, then Update().
Recordset FilaCopiada(Recordset& origen, Conexion& destino, std::string_view consulta);

// "a, b, c y 12 más"
std::string Algunos(const std::vector<std::string>& lista, std::size_t maximo = 8);

// The same file under both names, though they be written in different ways.
bool MismoFichero(const std::filesystem::path& a, const std::filesystem::path& b);

// Throws ErrorDeIntercambio for a name under which no file can lie everywhere: empty, with a bar, with signs that some systems refuse.
void ExigirNombreDeFichero(std::string_view nombre);

// Opens a database of the program on a connection apart from the session's: to be read, or as a work file.
Conexion AbrirParaLeer(const std::filesystem::path& fichero);
Conexion AbrirDeTrabajo(const std::filesystem::path& fichero);

} // namespace pastorix
