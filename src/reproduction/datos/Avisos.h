#pragma once

#include "store/Conexion.h"
#include "store/Fecha.h"

#include <optional>
#include <string>
#include <vector>

namespace pastorix {

// What the records say is to be done: the day's work of the veterinarian who reads them. Nothing of it is stored.

enum class ClaseAviso {
    PartoAtrasado,
    PartoProximo,
    Diagnostico,
    Control,
    VacaAbierta,
    Incompleto,
    Imposible
};

inline constexpr int kDiasDePartoProximo = 30; // how far ahead expected calvings are told
inline constexpr int kDiasDeControl = 30;      // how long the control after calving is due

struct Aviso {
    ClaseAviso clase = ClaseAviso::Incompleto;
    double idGanadero = 0;
    std::string ganadero;
    double idVaca = 0;
    std::string vaca;
    std::string crotal;
    Fecha fecha; // by which notices of one class stand in order: when it is due, or what it is about
    std::string texto;
};

// What a class of notices is called: "Parto atrasado".
const char* NombreDe(ClaseAviso clase);

// Of the cows in the herd of farmers who have not left, by class and date. From a cow's latest mating record: calvings expected within 30 days and
// overdue ones, diagnoses 22 days after the last service while no state is told, the control 40 days after calving while neither
// control nor service is noted, and no pregnancy 43 days after the start of her reproductive period. From the records of this reference year and the
// former: those of the former that are not complete, and dates that cannot be. Throws ErrorAlmacen.
std::vector<Aviso> LeerAvisos(Conexion& c, Fecha hoy);

// Leaves them in X_Temp, in their order, for the report of that name. Throws ErrorAlmacen.
void EscribirAvisos(Conexion& c, const std::vector<Aviso>& avisos);

} // namespace pastorix
