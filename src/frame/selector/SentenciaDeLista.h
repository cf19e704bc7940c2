#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pastorix {

// A list's statement in three parts, so that a filter can enter between the second and the third. Each part carries the blank in
// front of it: "SELECT ... FROM ...", " WHERE ...", " ORDER BY ...".
struct SentenciaDeLista {
    std::string seleccion;
    std::string donde; // base condition; may be empty
    std::string orden; // may be empty

    // The whole statement with a filter ("T_Vacas.Crotal LIKE '%45' AND ...", or "") behind the base condition.
    std::string Completa(std::string_view filtro = {}) const;
    // The same list by one column first; its own order decides among equals.
    SentenciaDeLista OrdenadaPor(std::string_view campo, bool descendente) const;
};

// Takes a whole statement apart at its own WHERE and ORDER BY; words within brackets, parentheses and literals do not count.
SentenciaDeLista PartirSentencia(std::string_view texto);

// The column that each element of a SELECT list stands for, as a condition may name it: an alias gives its expression's
// column, an expression its first one ("T_Veterinarios.NombreVet & ' ' & ..." gives T_Veterinarios.NombreVet). "*" stays "*".
std::vector<std::string> CamposDeSeleccion(std::string_view seleccion);

} // namespace pastorix
