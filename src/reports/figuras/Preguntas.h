#pragma once

#include "frame/calendario/Formatos.h"
#include "reports/indices/IndicesTec.h"

#include <numeric>
#include <optional>
#include <string>
#include <vector>

// What the answers to the questions for a figure share. For Explicaciones.cpp and its fellows alone.
namespace pastorix {

// A key taken apart, and what all explanations say in the same way.
struct Pregunta {
    Conexion& c;
    double g = 0;
    double y = 0;
    std::vector<std::string> detalle;

    std::string Detalle(std::size_t i) const { return i < detalle.size() ? detalle[i] : std::string(); }
    std::string DelAño() const { return "de " + TextoNumero(y); }
    std::string Año() const {
        return "Registros del año de referencia " + TextoNumero(y) + " (" + InicioDeAño(y) + " - " +
               FinDeAño(y) + ").";
    }
};

using Respuesta = std::optional<Explicacion>;

inline double Suma(const Animales& animales) {
    return std::accumulate(animales.begin(), animales.end(), 0.0,
                           [](double s, const AnimalContado& a) { return s + a.valor; });
}

inline double Cuantos(const Animales& animales) {
    return static_cast<double>(animales.size());
}

// Muscling classes of the cows and of the weaned calves; seasons; insemination; fattening; the months' shares and the mean cows of the summary.
Respuesta ExplicarCularidad(const Pregunta& p);
Respuesta ExplicarCularidadAlDestete(const Pregunta& p);
Respuesta ExplicarEpoca(const Pregunta& p);
Respuesta ExplicarInseminacion(const Pregunta& p);
Respuesta ExplicarCebo(const Pregunta& p);
Respuesta ExplicarReparto(const Pregunta& p);
Respuesta ExplicarVacasMedias(const Pregunta& p);
// A line of the inventory at the start or the end of the year, and its livestock units.
Respuesta ExplicarInventario(const Pregunta& p);

} // namespace pastorix
