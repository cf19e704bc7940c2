#pragma once

#include "frame/Rutas.h"
#include "store/Conexion.h"
#include "store/Conversion.h"
#include "store/Diario.h"
#include "store/Esquema.h"
#include "store/OrigenesDeDatos.h"

#include <QLockFile>

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace pastorix {

// The password that all databases share; written into the program and into the data sources.
inline constexpr std::string_view ClaveDeBases = kClave;

// Told how far a long work has come: done, total.
using FuncionAvance = AvanceDeApertura;

// What lives from the start of the program to its end, handed by reference to whoever needs it. The mode and the user
// are empty until somebody has entered.
struct Sesion {
    Rutas rutas;
    OrigenesDeDatos origenes;
    Conexion conexion;              // open on OD_PRADALC: the database of the session
    std::unique_ptr<Diario> diario; // of what was changed there since it was opened; none where nobody asks

    std::vector<HojaDeConversion> convertidas; // Access files read since their user was last told

    std::string ModoSesion;       // "", "VETERINARIO", "CENTRAL"
    std::string UsuarioSesion;    // login name; "" for an anonymous veterinarian; "CENTRAL"
    std::uint8_t BaseElegida = 0; // 0 main database, 1 personal database
    std::string VersionPrograma;

    // The vocabulary of the sheets' buttons. No caption is taken from it.
    std::array<std::string, 6> TextosBoton;

    std::unique_ptr<QLockFile> cerrojo; // one program per folder; released when the session ends
};

// Declares a data source on a file of the session. Throws ErrorDeEjecucion 60010, "Origen de datos No Creado: " and the name to
// be told, when the catalogue does not take it.
void DeclararOrigen(Sesion& sesion, std::string_view nombre, const QString& fichero,
                    std::string_view nombreEnError = {});

// Closes the session's connection if it is open and opens it on another file, for work or to be looked at only; everything that asks the
// session's connection then reaches that file, until AbrirConexion brings it back. Throws ErrorAlmacen, with the connection closed.
void AbrirConexionEn(Sesion& sesion, const QString& fichero, bool soloLectura = false,
                     const FuncionAvance& avance = {});

// Closes the session's connection if it is open and opens it on OD_PRADALC. A database that still is an Access file is converted on
// the way and its original kept in BackUp; avance, if given, follows that. Throws ErrorAlmacen, with the connection closed.
void AbrirConexion(Sesion& sesion, const FuncionAvance& avance = {});

} // namespace pastorix
