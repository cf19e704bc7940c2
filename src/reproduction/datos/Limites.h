#pragma once

#include "store/Fecha.h"

#include <optional>
#include <string>

namespace pastorix {

// What is biologically possible in cattle. A value outside is remarked upon beside its field and never refused: it may be a slip of the pen or a case to
// be looked at, and which of them only the user knows.

// The remark on a value, in words; "" for a possible one, and where there is nothing to judge.
std::string ReparoDeGestacion(std::optional<Fecha> servicio, std::optional<Fecha> parto);
std::string ReparoDeEdadDestete(const std::string& dias);
std::string ReparoDePesoNac(const std::string& kg);
// A calving that is to come.
std::string ReparoDeParto(std::optional<Fecha> fecha, Fecha hoy);
// A number that no calving has: entering the database removes such rows.
std::string ReparoDeParidad(const std::string& nParto);
// A service lies between the calving that opened its cycle and the day that the cow left the herd.
std::string ReparoDeServicio(std::optional<Fecha> servicio, std::optional<Fecha> parto,
                             std::optional<Fecha> baja);

} // namespace pastorix
