#include "registers/datos/NombreCompuesto.h"

#include <algorithm>

namespace pastorix {

namespace {

bool ConGenotipo(std::string_view clase) {
    return !clase.empty() && (clase[0] == 'G' || clase[0] == 'g');
}

// The class behind "G-". The letters of the classes are plain ones up to there.
std::string_view Genotipo(std::string_view clase) {
    constexpr std::size_t kPrefijo = 2;
    return clase.substr(std::min(kPrefijo, clase.size()));
}

} // namespace

std::string NombreCompuestoDeVaca(const std::string& nombre, std::string_view cularidad) {
    return ConGenotipo(cularidad) ? nombre + "-" + std::string(Genotipo(cularidad)) : nombre;
}

std::string NombreCompuesto(std::string_view nombre, std::string_view clase, std::string_view ganadero) {
    std::string compuesto(nombre);
    if (!ConGenotipo(clase))
        return compuesto;
    return compuesto + (ganadero == "1" ? "(IA)-" : "-") + std::string(Genotipo(clase).substr(0, 1));
}

} // namespace pastorix
