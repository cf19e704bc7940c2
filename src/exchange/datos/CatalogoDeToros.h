#pragma once

#include "exchange/datos/UnirVeterinario.h"

#include <optional>

// The bulls of the shared farmers on their way from the centre to the stations.
namespace pastorix {

// What goes out: one entry per bull, and one without bull for a farmer who has none.
struct ToroCompartido {
    std::string apodo, nombre;
    std::optional<double> id;
};
struct GanaderoCompartido {
    double id = 0;
    std::optional<double> direccion;
};
struct Compartidos {
    std::vector<ToroCompartido> toros;
    std::vector<GanaderoCompartido> ganaderos;
};
Compartidos LeerCompartidos(Conexion& conexion);

// Empties the catalogue and fills it with them. All or nothing.
void LlenarCatalogo(Conexion& central, Conexion& catalogo, const Compartidos& que);

// What speaks against taking a catalogue in, one clear line each.
struct ReparosAlCatalogo {
    std::vector<std::string>
        claves; // rows of the catalogue whose key somebody else has here: it cannot be done
    std::vector<ToroQueCambia> nombres; // services and calvings that would get another sire's name
};
ReparosAlCatalogo MirarCatalogo(Conexion& catalogo, Conexion& base);

// Puts the farmers and bulls of a catalogue in the place of the ones with their codes, and writes the names of all bulls into the services
// and calvings that carry their numbers. Rows of T_PatologiaSemR are not deleted: they come again each time. All or nothing.
void TomarCatalogo(Conexion& catalogo, Conexion& base);

} // namespace pastorix
