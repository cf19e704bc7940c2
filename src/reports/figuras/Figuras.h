#pragma once

#include "store/Conexion.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What the reports print, a function for each: it empties its scratch tables and fills them, as one durable unit, with the rows in the order in
// which they are printed. False: there is nothing to report, and the form says so in place of opening it. A failure (ErrorAlmacen,
// ErrorDeEjecucion) leaves what was written up to it. Years are texts as they were typed.
namespace pastorix {

// Told how far the work has come, as value and total.
using AvanceDeInforme = std::function<void(int hecho, int total)>;

struct GanaderosYAño {
    std::vector<double> ganaderos;
    std::string año;
};

// The yearly technical report (X_Temp, X_Temp1, X_Temp2, X_TempGraph, X_Tmp3, X_Tmp4, X_Tmp6 to X_Tmp8), a farmer after the other by name.
bool LlenarIndicesTecnicos(Conexion& c, const GanaderosYAño& p, const AvanceDeInforme& avance = {});

// The main indices of a farmer, a row per reference year, ascending. A year of which the percentage of abortions cannot be told ends in
// ErrorDeEjecucion 11.
bool LlenarResumen(Conexion& c, double ganadero, const std::vector<int>& años,
                   const AvanceDeInforme& avance = {});
// The reference years of which a farmer's cows have mating records, ascending.
std::vector<int> AñosConCubriciones(Conexion& c, double ganadero);

// Inventory at the start and at the end of a year, with the fattening rates (X_Temp, X_Tmp5, X_Tmp6).
bool LlenarParametrosTecnicos(Conexion& c, const GanaderosYAño& p, const AvanceDeInforme& avance = {});

// Every live cow with her next or last calving, her last service and the note for the visit; those with a planned check first.
bool LlenarControlRebaño(Conexion& c, const std::vector<double>& ganaderos,
                         const AvanceDeInforme& avance = {});

// The year's calvings, those of cows that have left too, and last year's open ones.
bool LlenarComportamientoProductivo(Conexion& c, const GanaderosYAño& p, const AvanceDeInforme& avance = {});
// The year's mating records of the cows that had not left before it, and last year's open ones.
bool LlenarComportamientoReproductivo(Conexion& c, const GanaderosYAño& p,
                                      const AvanceDeInforme& avance = {});

// The career of one cow, whoever's she is, or of all cows of a farmer.
struct PeticionHistorico {
    std::string crotal; // empty: of the farmer
    double ganadero = 0;
    bool soloVivas = false;
};
// Calvings by their date, so that the cows of a farmer interleave. A live cow has no FechaBaja.
bool LlenarHistoricoProductivo(Conexion& c, const PeticionHistorico& p, const AvanceDeInforme& avance = {});
// Mating records, cow by cow. A live cow has no FechaDesecho.
bool LlenarHistoricoReproductivo(Conexion& c, const PeticionHistorico& p, const AvanceDeInforme& avance = {});

// Animals in fattening of the reference year; false when there is none.
bool LlenarCebo(Conexion& c, const GanaderosYAño& p, const AvanceDeInforme& avance = {});
// Why cows took more than 42 days to conceive in the reference year; false when none did.
bool LlenarDemora(Conexion& c, const GanaderosYAño& p, const AvanceDeInforme& avance = {});
// Land, load and feeding of a natural year: always one row.
bool LlenarManejo(Conexion& c, const GanaderosYAño& p, const AvanceDeInforme& avance = {});

enum class PruebaDeEnfermedad { Ninguna = -1, IBR, BVD, Neospora };
enum class CondicionDePrueba { Ninguna = -1, Conversion, Positiva, Negativa, MayorQue };
struct PeticionEnfermedades {
    double ganadero = 0;
    std::string año;
    PruebaDeEnfermedad prueba = PruebaDeEnfermedad::Ninguna; // without one every row passes
    CondicionDePrueba condicion = CondicionDePrueba::Ninguna;
    std::string valor;          // the threshold of MayorQue, as typed
    bool problematicas = false; // more than 42 days to conceive
};
// The condition as its list shows it; "" for none.
std::string_view TextoDe(CondicionDePrueba condicion);
// Reproductive diseases of the reference year; false when it has no mating record (all of them may fail the criteria).
bool LlenarEnfermedades(Conexion& c, const PeticionEnfermedades& p, const AvanceDeInforme& avance = {});

struct PeticionVacas {
    double ganadero = 0;
    std::string año;
    bool novillas = false; // with heifers before their first calving
    std::string fecha;     // of a census; empty: of the year
};
// Cows that were on the farm on any day of the reference year; with a date, those that were there on it. Their parity is that of the year's end.
bool LlenarVacas(Conexion& c, const PeticionVacas& p, const AvanceDeInforme& avance = {});

} // namespace pastorix
