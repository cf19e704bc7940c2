#pragma once

#include "frame/campos/Lineas.h"
#include "store/Conexion.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace pastorix {

// The cow on the sheet; idVaca 0: none.
struct VacaEnHoja {
    double idVaca = 0;
    double idGanadero = 0;
    friend bool operator==(const VacaEnHoja&, const VacaEnHoja&) = default;
};

// A table with a row per natural year; its first column is AñoNat. It has rows of its own.
struct TablaNatural {
    const char* tabla;
    std::span<const ColumnaLinea> columnas;
};

// What a line of a mating record shows of other tables.
enum class DatoDeCiclo { FechaDestete, UltimoServicio };

// A table with a row per mating record. Its lines are the cow's mating records, each with what is stored beside its year and parity.
struct TablaDeCiclo {
    const char* tabla;
    std::span<const ColumnaLinea> columnas; // year, parity and date of calving come first
    std::size_t columnaDato;
    DatoDeCiclo dato;
};

// One subject of a cow's health: two tables and an observation. Both tables are rewritten whole by one save.
struct AsuntoSanidad {
    TablaNatural natural;
    TablaDeCiclo ciclo;
    bool primeroCiclo;            // which table a save rewrites first
    bool soloConCiclos;           // without a mating record a save only empties the table of cycles
    const char* observacion;      // column of T_Vacas
    bool observacionPorSentencia; // by an UPDATE, in which an apostrophe makes it fail; otherwise as a field
};

struct DatosSanidad {
    std::vector<Linea> naturales;
    std::vector<Linea> ciclos;
    Valor observacion;
};

// Everything of one subject and cow, the latest year first; without a cow nothing. Throws ErrorAlmacen.
DatosSanidad LeerAsunto(Conexion& c, const AsuntoSanidad& asunto, double idVaca);

// Rewrites the subject: first table, observation, second table. Rows of mating records that are no more go with the rewrite. A statement that
// fails (ErrorAlmacen) leaves what was done before it.
void GuardarAsunto(Conexion& c, const AsuntoSanidad& asunto, VacaEnHoja vaca, const DatosSanidad& datos);

// Deletes a natural year from its table at once; how many rows that were.
long BorrarAñoNatural(Conexion& c, const TablaNatural& tabla, VacaEnHoja vaca, double año);

// The yearly rows of a table, the latest first, and their rewriting.
std::vector<Linea> LeerNaturales(Conexion& c, const TablaNatural& tabla, double idVaca);
void EscribirNaturales(Conexion& c, const TablaNatural& tabla, VacaEnHoja vaca,
                       std::span<const Linea> lineas);

} // namespace pastorix
