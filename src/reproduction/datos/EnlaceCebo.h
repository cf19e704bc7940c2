#pragma once

#include "registers/datos/CiclosDeVaca.h"
#include "store/Fecha.h"
#include "store/Valor.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace pastorix {

// A calf as its fattening record sees it: whose it is, and what the record takes from it.
struct TerneroDeParto {
    CicloDeVaca parto;
    double idParto = 0;
    double idGanadero = 0;
    std::string sexo;
    std::optional<Fecha> fechaParto;
    std::optional<Fecha> fechaDestete;
    std::string regSaneam;
    std::string origen;
};

// A fattening record that was withdrawn, column by column: it can come back as it was.
using CeboRetirado = std::vector<std::pair<std::string, Valor>>;

// All throw ErrorAlmacen, and are whole or not at all.

bool TieneCebo(Conexion& c, const TerneroDeParto& ternero);

// Sends a calf to fattening: its record is added unless it has one, numbered within the farmer's, or comes back as it was withdrawn. The calf's row
// names it. Nothing happens for a calf whose keys are not all given (a calving of parity 0 has no fattening record); then 0, else the number.
double CrearCebo(Conexion& c, const TerneroDeParto& ternero, const CeboRetirado& retirado = {});

// Takes the calf's record back, and returns it; empty when there was none.
CeboRetirado QuitarCebo(Conexion& c, const TerneroDeParto& ternero);

// Brings dates, sex, number and origin of the calf's record up to the calf, unless the record says that its birth date is its own. An empty origin
// leaves the record's. The names of the fields that change, to be told before; `escribir` false only looks.
std::vector<std::string> ActualizarCebo(Conexion& c, const TerneroDeParto& ternero, bool escribir = true);

} // namespace pastorix
