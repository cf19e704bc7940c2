#pragma once

#include "registers/datos/CiclosDeVaca.h"
#include "store/Fecha.h"

#include <optional>
#include <string>
#include <vector>

namespace pastorix {

// A fattening record and the calving that it may be linked to. All functions throw ErrorAlmacen.

std::string SentenciaCebo(double idGanadero, double idCebo);
double SiguienteCebo(Conexion& c, double idGanadero);

// Names the record in the calf's row, and its destination with it.
void EnlazarConParto(Conexion& c, double idCebo, const CicloDeVaca& parto, double idParto);

// What an own calf's record carries back to its calving: the entry into fattening is the weaning, and number, sex and birth date are the calf's.
struct DeVueltaAlParto {
    double idGanadero = 0;
    double idCebo = 0;
    std::optional<Fecha> fechaCebo; // without it the weaning stays
    std::string saneamiento;
    std::string sexo;
    std::optional<Fecha> fechaNac; // without it the calving keeps its date
};
// The names of the fields that change, to be told before; `escribir` false only looks. A record that names its calf reaches that row alone.
std::vector<std::string> DevolverAlParto(Conexion& c, const DeVueltaAlParto& d, bool escribir = true);

} // namespace pastorix
