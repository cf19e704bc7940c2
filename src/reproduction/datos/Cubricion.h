#pragma once

#include "registers/datos/CiclosDeVaca.h"
#include "store/Fecha.h"

#include <optional>
#include <string>
#include <vector>

namespace pastorix {

// What a mating record has to do with other rows. All functions throw ErrorAlmacen.

// The query of a record.
std::string SentenciaCubricion(const CicloDeVaca& ciclo);

// The cow's health in that cycle, as the sheet shows it beside the causes.
struct SanidadDeCiclo {
    std::string bvd;
    std::string ibr;
    std::string movReservas;
    std::string neospora;
};
SanidadDeCiclo LeerSanidadDeCiclo(Conexion& c, const CicloDeVaca& ciclo);

// Of the calving of the same year and parity, its first row: drying off, and how hard it was.
std::optional<Fecha> FechaSecadoDeCiclo(Conexion& c, const CicloDeVaca& ciclo);
std::string DificultadDeCiclo(Conexion& c, const CicloDeVaca& ciclo);

// Dates offered for the start of reproduction, the earliest first and those that are not there before all: the calving and 60 days, and the herd's
// two periods of the natural year that the record's year names.
struct FechaOfrecida {
    std::string nombre;
    std::string fecha; // dd/mm/yy; "" when there is none
};
std::vector<FechaOfrecida> FechasIPROfrecidas(Conexion& c, const CicloDeVaca& ciclo, double idGanadero,
                                              std::optional<Fecha> primeraFechaIPR);

// Moves what hangs on a record to another parity: services and the health entries of its cycle. The record itself is its sheet's.
void LlevarAParidad(Conexion& c, const CicloDeVaca& ciclo, std::optional<int> paridad);

// Adds a mating record unless there is one of that year and parity, which stays as it is. True when it was added.
bool AltaCubricion(Conexion& c, const CicloDeVaca& ciclo, std::optional<Fecha> fechaParto);

} // namespace pastorix
