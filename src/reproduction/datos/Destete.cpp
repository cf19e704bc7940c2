#include "reproduction/datos/Destete.h"

#include "frame/calendario/Calendario.h"
#include "frame/calendario/Formatos.h"

namespace pastorix {

namespace {

// A weight as the figures take it: whole, halves to even; none for a text that is no number, or a number beyond any weight.
std::optional<int> Entero(const std::string& texto) {
    constexpr double kMaximo = 1e6;
    const auto n = IsNumeric(texto) ? NumeroEscrito(texto) : std::nullopt;
    return n && *n<kMaximo&& * n> - kMaximo ? std::optional(static_cast<int>(AEntero(*n))) : std::nullopt;
}

} // namespace

std::string EdadMostrada(const std::string& texto, bool conFechas) {
    return texto == "0" && !conFechas ? std::string() : texto;
}

std::string GananciaMostrada(const std::string& texto) {
    return texto == "0" ? std::string() : texto;
}

FigurasDeDestete CalcularDestete(const DatosDeDestete& d) {
    FigurasDeDestete f;
    if (!d.fechaParto || !d.fechaDestete)
        return f;
    const int edad = d.fechaDestete->dia - d.fechaParto->dia;
    f.edadDestete = std::to_string(edad);
    const auto nacimiento = Entero(d.pesoNac);
    const auto peso = Entero(d.peso);
    if (!nacimiento || !peso || !d.fechaPeso)
        return f;
    f.pesoDestete = PesoInterpolado(*peso, *nacimiento, d.fechaPeso->dia - d.fechaParto->dia, edad);
    const auto destete = Entero(f.pesoDestete);
    if (destete && edad > 0)
        f.gDestete =
            GananciaMostrada(TextoNumero(Round(static_cast<double>(*destete - *nacimiento) / edad * 1000)));
    return f;
}

} // namespace pastorix
