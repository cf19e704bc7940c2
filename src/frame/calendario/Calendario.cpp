#include "frame/calendario/Calendario.h"

#include "frame/calendario/Formatos.h"
#include "frame/calendario/Reloj.h"

#include <array>
#include <optional>
#include <utility>

namespace pastorix {

namespace {

std::function<void(long, const std::string&)> avisoDeError;

Fecha FechaExigida(std::string_view texto) {
    const std::optional<Fecha> fecha = FechaDeTexto(texto);
    if (!fecha)
        throw ErrorDeEjecucion::TiposDistintos();
    return *fecha;
}

// True from 1 January to 30 November: the reference year is then the civil one.
bool EnSuAñoCivil(Fecha fecha) {
    const int año = fecha.Año();
    const int t = año * 10000 + fecha.Mes() * 100 + fecha.DiaDelMes();
    return t > (año - 1) * 10000 + 1201 && t <= año * 10000 + 1130;
}

// The three parts between slashes, or nothing when there are more or fewer.
std::optional<std::array<std::string_view, 3>> TresPartes(std::string_view texto) {
    const std::size_t primera = texto.find('/');
    if (primera == std::string_view::npos)
        return std::nullopt;
    const std::size_t segunda = texto.find('/', primera + 1);
    if (segunda == std::string_view::npos || texto.find('/', segunda + 1) != std::string_view::npos)
        return std::nullopt;
    return std::array{texto.substr(0, primera), texto.substr(primera + 1, segunda - primera - 1),
                      texto.substr(segunda + 1)};
}

} // namespace

int AñoReferenciaPropio(Fecha fecha) {
    return fecha.Año() + (EnSuAñoCivil(fecha) ? 0 : 1);
}

std::string AñoReferenciaActual() {
    return std::to_string(AñoReferenciaPropio(Hoy()));
}

std::string AñoReferenciaDe(std::string_view fecha) {
    return std::to_string(Hoy().Año() + (EnSuAñoCivil(FechaExigida(fecha)) ? 0 : 1));
}

bool EsFechaValida(std::string_view texto) {
    try {
        const auto partes = TresPartes(texto);
        if (!partes)
            return false;
        const auto& [dia, mes, año] = *partes;
        if (Val(dia) > 31 || Val(mes) > 12)
            return false;
        if (año.size() != 2 && año.size() != 4)
            return false;
        return FechaDeTexto(texto).has_value();
    } catch (const ErrorDeEjecucion& error) {
        if (avisoDeError)
            avisoDeError(error.Numero(), error.what());
        return false;
    }
}

void FijarAvisoDeErrorDeFecha(std::function<void(long, const std::string&)> aviso) {
    avisoDeError = std::move(aviso);
}

std::string DiasEntre(std::string_view desde, std::string_view hasta) {
    return std::to_string(FechaExigida(hasta).dia - FechaExigida(desde).dia);
}

std::string PesoInterpolado(int pesoFinal, int pesoInicial, std::string_view fechaFinal,
                            std::string_view fechaInicial, int edad) {
    return PesoInterpolado(pesoFinal, pesoInicial,
                           FechaExigida(fechaFinal).dia - FechaExigida(fechaInicial).dia, edad);
}

std::string PesoInterpolado(int pesoFinal, int pesoInicial, int dias, int edad) {
    if (dias <= 0)
        return {};
    const double estimado = static_cast<double>(pesoFinal - pesoInicial) / dias * edad + pesoInicial;
    return estimado > 0 ? TextoNumero(Round(estimado)) : std::string();
}

} // namespace pastorix
