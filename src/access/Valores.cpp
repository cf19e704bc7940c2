#include "access/Valores.h"

#include <array>
#include <cmath>

namespace pastorix::access {

namespace {

// Digits of a whole number, lowest first, into decimal notation with `decimales` of them behind the point.
void Puntuar(bool negativo, std::string cifras, unsigned decimales, std::string& texto) {
    while (cifras.size() <= decimales)
        cifras.push_back('0');
    if (decimales > 0)
        cifras.insert(decimales, 1, '.');
    if (negativo)
        cifras.push_back('-');
    texto.assign(cifras.rbegin(), cifras.rend());
}

} // namespace

Momento LeerMomento(const Lector& bytes) {
    constexpr double primerDia = -657434, trasUltimoDia = 2958466, milisegundosPorDia = 86400000;
    const double d = bytes.Doble(0);
    if (!(d >= primerDia && d < trasUltimoDia)) // NaN fails both
        Dañar("una fecha no es posible", bytes.Pagina());
    double dia = std::trunc(d);
    double ms = std::floor(std::fabs(d - dia) * milisegundosPorDia + 0.5);
    if (ms >= milisegundosPorDia) {
        dia += 1;
        ms = 0;
    }
    if (dia >= trasUltimoDia)
        Dañar("una fecha no es posible", bytes.Pagina());
    return {static_cast<std::int32_t>(dia), static_cast<std::int32_t>(ms)};
}

void EscribirMoneda(const Lector& bytes, std::string& texto) {
    const std::uint64_t crudo = bytes.U64(0);
    const bool negativo = (crudo >> 63) != 0;
    std::uint64_t resto = negativo ? 0 - crudo : crudo;
    std::string cifras;
    for (; resto != 0; resto /= 10)
        cifras.push_back(static_cast<char>('0' + resto % 10));
    Puntuar(negativo, std::move(cifras), 4, texto);
}

void EscribirDecimal(const Lector& bytes, unsigned escala, std::string& texto) {
    const bool conSigno = (bytes.U8(0) & 0x80U) != 0;
    std::array<std::uint32_t, 4> palabras{bytes.U32(1), bytes.U32(5), bytes.U32(9), bytes.U32(13)};
    const auto EsCero = [&palabras] { return palabras == std::array<std::uint32_t, 4>{}; };
    const bool negativo = conSigno && !EsCero();
    std::string cifras;
    while (!EsCero()) {
        std::uint64_t resto = 0;
        for (std::uint32_t& palabra : palabras) {
            const std::uint64_t parte = (resto << 32) | palabra;
            palabra = static_cast<std::uint32_t>(parte / 10);
            resto = parte % 10;
        }
        cifras.push_back(static_cast<char>('0' + resto));
    }
    Puntuar(negativo, std::move(cifras), escala, texto);
}

void EscribirGuid(const Lector& bytes, std::string& texto) {
    // The first three groups are numbers, lowest byte first; the rest are bytes in order. -1 stands for a hyphen.
    constexpr std::array<int, 20> orden{3, 2, 1, 0, -1, 5, 4, -1, 7, 6, -1, 8, 9, -1, 10, 11, 12, 13, 14, 15};
    constexpr char cifras[] = "0123456789ABCDEF";
    const Vista b = bytes.Trozo(0, 16);
    texto.assign(1, '{');
    for (const int i : orden) {
        if (i < 0) {
            texto += '-';
        } else {
            texto += cifras[b[static_cast<std::size_t>(i)] >> 4];
            texto += cifras[b[static_cast<std::size_t>(i)] & 0xFU];
        }
    }
    texto += '}';
}

} // namespace pastorix::access
