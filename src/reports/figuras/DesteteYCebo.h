#pragma once

#include "reports/indices/Contados.h"

#include <cstdint>
#include <string>
#include <string_view>

// Figures of weaned and fattened calves that several reports share. Weaned are those alive at weaning, at 120 days or older, with more than
// 500 g a day. A criterion picks the mothers: "=" first calvers, ">" older cows.
namespace pastorix {

// Calvings of a farmer's reference year, ready for a further " AND ...": FROM and WHERE over T_Ganaderos, T_Vacas, T_Partos.
std::string PartosDeGanaderoYAño(double ganadero, double añoRef);
// The same over T_Cubriciones and T_Vacas.
std::string CubricionesDeGanaderoYAño(double ganadero, double añoRef);

// Calvings of those mothers; and those of them whose calf was weaned, with the column to be averaged.
Registros PartosDe(double ganadero, double añoRef, std::string_view criterio);
Registros Destetados(double ganadero, double añoRef, std::string_view criterio,
                     std::string_view columna = "T_Vacas.Id_Vaca");
double TernerosDestetados(Conexion& c, double ganadero, double añoRef, std::string_view criterio);
// Means in whole days, kg and g, halves to even; 0 without calves.
std::int64_t EdadMediaDestete(Conexion& c, double ganadero, double añoRef, std::string_view criterio);
std::int64_t PesoMedioDestete(Conexion& c, double ganadero, double añoRef, std::string_view criterio);
std::int64_t GananciaMediaDestete(Conexion& c, double ganadero, double añoRef, std::string_view criterio);

// Animals of the year in fattening by sex ("Macho", "Hembra") and origin ("Propio", "Comprado PostD").
double TernerosCebados(Conexion& c, double ganadero, double añoRef, std::string_view sexo,
                       std::string_view origen);
// The same with where they stand, and those with a cause of death, whatever their origin: each with its mother, if the farm has her.
Animales AnimalesCebados(Conexion& c, double ganadero, double añoRef, std::string_view sexo,
                         std::string_view origen);
Animales AnimalesMuertosEnCebo(Conexion& c, double ganadero, double añoRef);
// Those of both sexes and both origins.
double TernerosCebados(Conexion& c, double ganadero, double añoRef);

} // namespace pastorix
