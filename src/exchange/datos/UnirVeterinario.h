#pragma once

#include "exchange/datos/Comun.h"

#include <optional>

// A veterinarian with a database of his own joins the centre: his package gets the keys of the centre before it is merged.
namespace pastorix {

struct VeterinarioNuevo {
    double id = 0;
    std::string nombre; // name and surname
    std::string usuario;
};
// The veterinarians of a package besides the reserved one, by code. A join needs exactly one.
std::vector<VeterinarioNuevo> VeterinariosDelPaquete(Conexion& paquete);

// Why code or login cannot be given to him, in the words of the form; empty when they can. Those of a join that failed after the
// centre had taken its veterinarian are his already: the same code, login and name, without a farmer. Throws ErrorAlmacen, for a login
// with an apostrophe too.
std::string ObjecionAlVeterinario(Conexion& central, const VeterinarioNuevo& nuevo, const std::string& codigo,
                                  const std::string& usuario);

// Gives every veterinarian and farmer of the package the code, and him the login. `anterior` is his old code.
void RenumerarVeterinario(Conexion& paquete, double anterior, const std::string& codigo,
                          const std::string& usuario);

// A farmer of the package: his code there and the one he gets at the centre, digits both; "" stays out.
struct GanaderoQueEntra {
    std::string codigo;
    std::string central;
    std::string apodo, nombre, apellidos;
};
std::vector<GanaderoQueEntra> GanaderosPorCodificar(Conexion& paquete);

// Why the new codes cannot be taken, in the words of the form; empty when they can.
std::string ObjecionALosGanaderos(Conexion& central, Conexion& paquete,
                                  const std::vector<GanaderoQueEntra>& ganaderos);
// Keys of cows and bulls that the new codes would make twice, one clear line each: within the package, and against the animals of the
// centre.
std::vector<std::string> ClavesRepetidas(Conexion& central, Conexion& paquete,
                                         const std::vector<GanaderoQueEntra>& ganaderos);

// Gives farmers, cows and bulls of the package their keys of the centre. Farmers without a new code lose their own row only; services and
// calvings keep the bull's old number.
void RenumerarGanaderos(Conexion& paquete, const std::vector<GanaderoQueEntra>& ganaderos);

// Copies the package's first veterinarian and his address to the centre, unless a failed join has left him there.
void DarDeAltaVeterinario(Conexion& central, Conexion& paquete);

// Numbers of bulls that services and calvings of the package carry and that will be another bull at the centre, or none.
struct ToroQueCambia {
    double numero = 0;
    std::string nombreAqui; // as the records spell it
    std::string nombreAlli; // "" when nobody has that number there
    long servicios = 0;
    long partos = 0;
};
// Compares the names that records carry with the bulls that `catalogo` has under their numbers. Only rows whose cow `origen` holds.
std::vector<ToroQueCambia> TorosConOtroNombre(Conexion& origen, Conexion& catalogo,
                                              const std::string& condicion = {});
std::string Texto(const ToroQueCambia& toro);

} // namespace pastorix
