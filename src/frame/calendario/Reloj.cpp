#include "frame/calendario/Reloj.h"

#include <ctime>

namespace pastorix {

namespace {
std::optional<Fecha> momentoFijado;
}

Fecha Ahora() {
    if (momentoFijado)
        return *momentoFijado;
    const std::time_t instante = std::time(nullptr);
    // One thread in the whole program, so the shared buffer of localtime does no harm.
    const std::tm local = *std::localtime(&instante);
    const int segundo = local.tm_sec > 59 ? 59 : local.tm_sec; // leap second
    return Fecha::De(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                     segundo)
        .value_or(Fecha{});
}

Fecha Hoy() {
    return {Ahora().dia, 0};
}

void FijarHoy(std::optional<Fecha> momento) {
    momentoFijado = momento;
}

} // namespace pastorix
