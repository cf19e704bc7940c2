#pragma once

#include "reports/indices/Contados.h"
#include "store/Fecha.h"

#include <cstdint>
#include <string>
#include <string_view>

// Farm-level calculations that the technical reports and the farm sheet share: how many females of each category a farmer has at a
// date, how many left, calvings and weanings of a year, losses, the mean herd and the stocking load. Plain functions over a
// connection; they write nothing. Farmers and years are numbers; dates are texts day/month/year, and a text that is no date ends in
// ErrorDeEjecucion 13. Rows with the fields Null that a rule does not name fall out as the statements say.
//
// Two fields tell that a cow left: the census of parities goes by FechaDesecho, the mean herds and the counts at a date go by
// FechaBaja. They hold the same date on nearly every row and are not the same thing.
namespace pastorix {

// Categories of the census, by the parity N of the cow's last mating record up to the year. Any other code above 1 counts nothing.
inline constexpr int NovillasEnCubricion = 0; // N = 0
inline constexpr int PrimerParto = 1;         // N = 1
inline constexpr int DeDosASeisPartos = 26;   // 2 to 6
inline constexpr int MasDeSeisPartos = 6;     // above 6
inline constexpr int TodasLasParidas = 99;    // 1 and above

// First and last day of a reference year as texts with two-digit year: "1/12/00" and "30/11/01" for 2001.
std::string InicioDeAño(double añoRef);
std::string FinDeAño(double añoRef);
// The date of a text, or ErrorDeEjecucion 13.
Fecha FechaDeArgumento(std::string_view texto);

// Cows of the category in the herd at the date: one that leaves on the date itself still counts, one that was bought later does not. A
// female without a mating record up to the year counts nowhere; one whose last record has no parity counts as of more than six.
double CensoVacasAFecha(Conexion& c, double idGanadero, double añoRef, std::string_view fecha, int categoria);
// Those cows, each with her parity.
Animales VacasEnCenso(Conexion& c, double idGanadero, double añoRef, std::string_view fecha, int categoria);
// Cows of the category that left from one date to the other, both included.
double BajasVacasEnPeriodo(Conexion& c, double idGanadero, std::string_view fechaInicio,
                           std::string_view fechaFin, double añoRef, int categoria);
Animales VacasDeBajaEnPeriodo(Conexion& c, double idGanadero, std::string_view fechaInicio,
                              std::string_view fechaFin, double añoRef, int categoria);
// Cows of a muscling class with mating records up to the year that had not left by 30 November of the year before.
double CensoPorCularidad(Conexion& c, double idGanadero, double añoRef, std::string_view cularidad);
Animales VacasDeCularidad(Conexion& c, double idGanadero, double añoRef, std::string_view cularidad);

// Calvings in the period and reference year of the parities that the criterion (">1", "=1", ">=1") picks. Twins are one calving.
double PartosEnPeriodo(Conexion& c, double idGanadero, std::string_view fechaInicio,
                       std::string_view fechaFin, std::string_view criterioParto, double añoRef);
// Those calvings, each with its date.
Animales PartosContados(Conexion& c, double idGanadero, std::string_view fechaInicio,
                        std::string_view fechaFin, std::string_view criterioParto, double añoRef);
// Percentage of the year's calves whose sire is a bull of the common pool (of farmer 1), halves to even; 0 without calves.
std::int64_t PorcentajeNacidosIA(Conexion& c, double idGanadero, double añoRef);
// The year's calves with a parity, and those of them of such a bull.
Registros RegistrosNacidos(double idGanadero, double añoRef);
Registros RegistrosNacidosIA(double idGanadero, double añoRef);
// Calves of a muscling class that were alive at weaning, at 120 days or older, with more than 500 g a day: the test of all weaning figures.
std::int64_t DestetadosPorCularidad(Conexion& c, double idGanadero, double añoRef,
                                    std::string_view cularidad);
Registros RegistrosDestetadosPorCularidad(double idGanadero, double añoRef, std::string_view cularidad);
// Abortions per cent of the year's records and last year's open ones, as text "###0". ErrorDeEjecucion 11 when there is no record.
std::string PorcentajeAbortos(Conexion& c, double idGanadero, double añoRef);
// Those records, each with its year and 1 for an abortion.
Animales CubricionesParaAbortos(Conexion& c, double idGanadero, double añoRef);
// Records of the year with days between calvings.
Registros IntervalosDelAño(double idGanadero, double añoRef);
// Calves lost to late pregnancy: the days over 365 between calvings, less those under it, in years of 365 days; may be negative.
double PerdidaPreñezTardia(Conexion& c, double idGanadero, double añoRef);
// Calves dead up to weaning; a death after weaning is none of these, nor is a row without an entry.
double TernerosMuertos(Conexion& c, double idGanadero, double añoRef);
Registros RegistrosTernerosMuertos(double idGanadero, double añoRef);
double PartosDelAño(Conexion& c, double idGanadero, double añoRef);
Registros RegistrosPartosDelAño(double idGanadero, double añoRef);
// Fattening animals of the year with a cause of death.
double MuertesCebo(Conexion& c, double idGanadero, double añoRef);
double TernerosVivos(Conexion& c, double idGanadero, double añoRef);

// Mean cows of the year by their last calving; those that left count by days, their sum rounded to a whole cow.
double VacasMediasPartos(Conexion& c, double idGanadero, double añoRef);
// Those cows, each with her last calving and what she adds: 1, or the part of a year of one that left.
Animales VacasParaMediaPorPartos(Conexion& c, double idGanadero, double añoRef);
// Mean parous cows of the year by days present, for those that came and those that left, rounded to whole cows.
double VacasMediasPresentes(Conexion& c, double idGanadero, double añoRef);
Animales VacasParaMediaPresentes(Conexion& c, double idGanadero, double añoRef);

// Counts at a date, as texts. Momento is "INICIO" or "FIN" of the year.
std::string SementalesAFecha(Conexion& c, double idGanadero, std::string_view fecha);
// Parous cows (category 1) or heifers (0) with mating records.
std::string HembrasAFecha(Conexion& c, double idGanadero, std::string_view fecha, int categoria,
                          double añoRef);
// Replacement calves under 15 calendar months. With "FIN" the date argument is moved to the next day, which its caller uses.
std::string RecriaAFecha(Conexion& c, double idGanadero, std::string& fecha, double añoRef,
                         std::string_view momento);
std::string CeboAFecha(Conexion& c, double idGanadero, std::string_view fecha, double añoRef,
                       std::string_view momento);
std::string TernerosMamonesAFecha(Conexion& c, double idGanadero, std::string_view fecha, double añoRef,
                                  std::string_view momento);

// The animals of these counts, at a date that is no longer moved.
Animales SementalesPresentes(Conexion& c, double idGanadero, std::string_view fecha);
Animales HembrasPresentes(Conexion& c, double idGanadero, std::string_view fecha, int categoria,
                          double añoRef);
Animales RecriaPresente(Conexion& c, double idGanadero, std::string_view fecha, double añoRef,
                        std::string_view momento);
Animales CeboPresente(Conexion& c, double idGanadero, std::string_view fecha);
Animales MamonesPresentes(Conexion& c, double idGanadero, std::string_view fecha, double añoRef,
                          std::string_view momento);

// Stocking load in livestock units at the start or the end of the year, "######0": bull 1.5, cow 1, heifer 0.8, replacement calf 0.4,
// fattening animal 0.6. Any other Momento gives "0".
std::string CargaUGM(Conexion& c, double idGanadero, double añoRef, std::string_view momento);

// Mean census of the year in cow equivalents: a heifer weighs 0.7 of a cow, an animal gone during the year half.
double CensoMedioAño(Conexion& c, std::string_view idGanadero, double añoRef);

} // namespace pastorix
