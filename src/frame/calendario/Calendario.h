#pragma once

#include "frame/calendario/ErrorDeEjecucion.h"
#include "store/Fecha.h"

#include <functional>
#include <string>
#include <string_view>

namespace pastorix {

// Reference year Y is the farm's reproductive year: 1 December of Y-1 to 30 November of Y, both days included. The natural
// year is the civil one. Dates travel between sheets as texts dd/mm/yy or dd/mm/yyyy.

// Reference year of today.
std::string AñoReferenciaActual();

// The same test on the month and day of the given date, but the year that comes out is today's (or the next one for a
// date of December), whatever the year of the date. The herd control report relies on it; it is not a slip to be corrected.
// Throws ErrorDeEjecucion 13 for a text that is no date.
std::string AñoReferenciaDe(std::string_view fecha);

// Reference year that a date belongs to by the calendar.
int AñoReferenciaPropio(Fecha fecha);

// True for a real date of the form d/m/yy or d/m/yyyy. An error on the way (a number that no number type holds) is told
// through the procedure installed below, and the answer is false.
bool EsFechaValida(std::string_view texto);

// Who shows the box of the unexpected error of the date check: number and description. The frame installs it at start.
void FijarAvisoDeErrorDeFecha(std::function<void(long numero, const std::string& descripcion)> aviso);

// Days from the first date to the second, as text; negative when the second is earlier. Throws ErrorDeEjecucion 13.
std::string DiasEntre(std::string_view desde, std::string_view hasta);

// Weight in kg at an age in days on the straight line between two weighings, in whole kg; "" when there is no
// day between them or the estimate is not above 0. Throws ErrorDeEjecucion 13 for a text that is no date.
std::string PesoInterpolado(int pesoFinal, int pesoInicial, std::string_view fechaFinal,
                            std::string_view fechaInicial, int edad);

// The same with the days between the weighings counted already.
std::string PesoInterpolado(int pesoFinal, int pesoInicial, int dias, int edad);

} // namespace pastorix
