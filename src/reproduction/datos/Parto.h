#pragma once

#include "registers/datos/CiclosDeVaca.h"
#include "store/Fecha.h"

#include <optional>
#include <string>
#include <vector>

namespace pastorix {

// A calving: one row a calf, twins being two rows of one year and parity. All functions throw ErrorAlmacen. Numbers of calvings repeat between
// stations, so every change binds cow, year and parity besides.

// Numbers of its rows in their order. A sheet has place for two: what comes behind them is left alone.
std::vector<double> FilasDeParto(Conexion& c, const CicloDeVaca& ciclo);

// The query of one of its rows.
std::string SentenciaParto(const CicloDeVaca& ciclo, double idParto);

// Adds the row of the second calf and marks both with the kind of twins; its number.
double CrearMellizo(Conexion& c, const CicloDeVaca& ciclo, double idPrimero, std::optional<Fecha> fechaParto,
                    const std::string& gemelar);
// Marks the first row, without touching the other.
void MarcarGemelar(Conexion& c, const CicloDeVaca& ciclo, double idPrimero, const std::string& gemelar);
// Removes the second row with the fattening record of that calf. The first one is no twin any more.
void QuitarMellizo(Conexion& c, const CicloDeVaca& ciclo, double idGanadero, double idPrimero,
                   double idSegundo);

// Adds a calving unless there is one of that year and parity, which stays as it is; its date and its sire are those of the mating record that it
// ends, the sire only with a date. True when it was added.
bool AltaParto(Conexion& c, const CicloDeVaca& ciclo, std::optional<Fecha> fecha,
               const std::string& semental);

// Moves the fattening records of a calving's calves to another year or parity; its own rows are its sheet's.
void LlevarCebo(Conexion& c, const CicloDeVaca& de, const CicloDeVaca& a, double idGanadero);

} // namespace pastorix
