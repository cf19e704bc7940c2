#include "store/Valor.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace pastorix {

std::string TextoNumero(double n) {
    if (n == 0) // also minus zero
        return "0";
    if (std::abs(n) < 1e15 && n == std::trunc(n))
        return std::to_string(static_cast<std::int64_t>(n));
    std::array<char, 40> buffer{};
    const int largo = std::snprintf(buffer.data(), buffer.size(), "%.15g", n);
    std::string texto(buffer.data(), static_cast<std::size_t>(largo));
    std::replace(texto.begin(), texto.end(), '.', ',');
    std::replace(texto.begin(), texto.end(), 'e', 'E');
    return texto;
}

bool NumeroDeTexto(std::string_view texto, double& n) {
    while (!texto.empty() && texto.front() == ' ')
        texto.remove_prefix(1);
    while (!texto.empty() && texto.back() == ' ')
        texto.remove_suffix(1);
    if (!texto.empty() && texto.front() == '+')
        texto.remove_prefix(1);
    if (texto.empty() || texto.size() > 320 || texto.front() == '+')
        return false;
    // from_chars also takes "inf" and "nan", which no sheet means.
    std::string copia(texto);
    if (copia.find_first_not_of("0123456789.,-+eE") != std::string::npos)
        return false;
    if (std::count_if(copia.begin(), copia.end(), [](char c) { return c == '.' || c == ','; }) > 1)
        return false;
    std::replace(copia.begin(), copia.end(), ',', '.');
    double leido = 0;
    const auto [fin, error] = std::from_chars(copia.data(), copia.data() + copia.size(), leido);
    if (error != std::errc{} || fin != copia.data() + copia.size() || !std::isfinite(leido))
        return false;
    n = leido;
    return true;
}

std::string TextoDe(const Valor& v) {
    struct Visita {
        std::string operator()(std::monostate) const { return {}; }
        std::string operator()(std::int64_t n) const { return std::to_string(n); }
        std::string operator()(double n) const { return TextoNumero(n); }
        std::string operator()(Fecha f) const { return FormatoFecha(f, "dd/mm/yy"); }
        std::string operator()(const std::string& t) const { return t; }
    };
    return std::visit(Visita{}, v);
}

double NumeroDe(const Valor& v) {
    struct Visita {
        double operator()(std::monostate) const { return 0; }
        double operator()(std::int64_t n) const { return static_cast<double>(n); }
        double operator()(double n) const { return n; }
        double operator()(Fecha f) const { return f.dia + f.segundo / 86400.0; }
        double operator()(const std::string& t) const {
            double n = 0;
            return NumeroDeTexto(t, n) ? n : 0;
        }
    };
    return std::visit(Visita{}, v);
}

} // namespace pastorix
