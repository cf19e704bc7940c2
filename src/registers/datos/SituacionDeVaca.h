#pragma once

#include "store/Conexion.h"
#include "store/Fecha.h"

#include <optional>
#include <string>

namespace pastorix {

// What one asks about a cow before anything else: is she there, is somebody to look at her, has she calved, is she in calf.
struct SituacionDeVaca {
    bool deBaja = false;
    std::string fechaDeBaja; // as it is shown
    std::string causaDeBaja;
    std::string nota;    // for the herd control, without blanks around it
    std::string chequeo; // planned for it: "Parto + 40d", "X" or ""
    std::optional<Fecha> ultimoParto;
    std::optional<int> nParto; // its number
    // Of her last mating record. A pregnancy that has ended in its calving is none any more: then the state is "".
    std::string estado;
    std::optional<Fecha> partoEsperado;
    std::optional<Fecha> ultimoServicio; // the last of that record
    std::string semental;
};

// All of it empty for a cow who is not there. Throws ErrorAlmacen.
SituacionDeVaca LeerSituacion(Conexion& c, double idVaca);

// Her calvings and matings in a line: "Último parto 12/03/25 (nº 4) · Preñada, para el 20/03/26 · Último servicio 03/06/25 (Ares)".
std::string ReproduccionEnPalabras(const SituacionDeVaca& vaca);
// "De baja el 08/12/20: Vieja"; "" for a cow in the herd.
std::string BajaEnPalabras(const SituacionDeVaca& vaca);
// What the herd control knows of her: "Con nota, chequeo: X".
std::string ControlEnPalabras(const SituacionDeVaca& vaca);

// The next cow of a farm (paso 1) or the one before (-1) by name, among those in the herd, or among those who have left, as she is herself. With
// nobody of that code (0) the first one in the herd, or the last. Nothing at either end. Throws ErrorAlmacen.
std::optional<double> VecinaDeRebaño(Conexion& c, double idGanadero, double idVaca, int paso);

} // namespace pastorix
