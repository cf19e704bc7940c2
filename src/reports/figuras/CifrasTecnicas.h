#pragma once

#include "reports/indices/Contados.h"
#include "reports/indices/IndicesTec.h"

#include <array>
#include <string>
#include <string_view>

// The figures of the technical report by the names under which it prints them: those who fill its tables and those who tell where a figure
// comes from take them from here.
namespace pastorix {

struct CategoriaDeCenso {
    const char* texto;
    int categoria;
};
inline constexpr std::array<CategoriaDeCenso, 3> kCategoriasDeVaca{
    {{"Novillas de 1º parto", PrimerParto},
     {"Vacas de 2 a 6 partos", DeDosASeisPartos},
     {"Vacas de más de 6 partos", MasDeSeisPartos}}};

// The months of a reference year and the days with which they begin and end; 0 is December of the year before.
inline constexpr std::array<const char*, 12> kMesesDelAño{"Dic", "Ene", "Feb", "Mar", "Abr", "May",
                                                          "Jun", "Jul", "Ago", "Sep", "Oct", "Nov"};
struct Periodo {
    std::string desde;
    std::string hasta;
};
Periodo MesDelAño(double añoRef, std::size_t mes);

// The four seasons of three months each, from December on.
inline constexpr std::array<const char*, 4> kEpocasDelAño{"Dic-Feb", "Mar-May", "Jun-Ago", "Sep-Nov"};

// Calvings of the first months, to the end of February, and of the last ones, from September on; of whatever reference year. Twins are one.
Animales PartosPorFechas(Conexion& c, double ganadero, Fecha desde, Fecha hasta);
Animales PrimerosPartos(Conexion& c, double ganadero, double añoRef);
Animales UltimosPartos(Conexion& c, double ganadero, double añoRef);

// Causes of death of calves up to weaning, each with its condition on T_Partos.
struct CondicionConNombre {
    const char* texto;
    const char* condicion;
};
inline constexpr std::array<CondicionConNombre, 3> kCausasDeMuerte{
    {{"Perinatal", " AND (Muere = 'Perinatal' OR Muere = 'NaceM')"},
     {"Antes de los 30 días", " AND Muere = 'Antes30d'"},
     {"Antes del Destete", " AND Muere = 'AntesD'"}}};
Registros MuertosPor(double ganadero, double añoRef, const CondicionConNombre& causa);
// Of all three causes.
double MuertosAntesDelDestete(Conexion& c, double ganadero, double añoRef);

// Whose intervals, and which of them: up to 400 days between calvings is normal, beyond is long.
inline constexpr std::array<CondicionConNombre, 3> kGruposDeIntervalo{
    {{"Novillas de 1 Parto", " AND T_Cubriciones.N_Parto=1"},
     {"Vacas", " AND N_Parto > 1"},
     {"Todas", " AND N_Parto >= 1"}}};
inline constexpr std::array<CondicionConNombre, 3> kTramosDeIntervalo{
    {{"Todos los intervalos", " AND IEPc > 0"},
     {"Hasta 400 días", " AND IEPc <= 400 AND IEPc > 0"},
     {"Más de 400 días", " AND IEPc > 400"}}};
Registros Intervalos(double ganadero, double añoRef, const CondicionConNombre& grupo,
                     const CondicionConNombre& tramo);

// A share as the reports print it, halves to even.
double Porcentaje(double parte, double total);

// The five figures by which a year is judged. Empty: there is nothing to work them out of.
struct Titulares {
    double censo = 0;
    std::optional<double> diasEntrePartos;
    std::optional<double> mortalidad;
    std::optional<double> perdida;
    std::optional<double> cebados;
};
Titulares TitularesDelAño(Conexion& c, double ganadero, double añoRef);

} // namespace pastorix
