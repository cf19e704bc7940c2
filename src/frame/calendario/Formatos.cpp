#include "frame/calendario/Formatos.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace pastorix {

namespace {

struct Mascara {
    std::string_view antes, entera, decimal, despues;
    bool miles = false;
    bool conComa = false;
};

bool EsDigito(char c) {
    return c == '0' || c == '#';
}

Mascara Partir(std::string_view texto) {
    Mascara m;
    const std::size_t inicio = std::min(texto.find_first_of("0#."), texto.size());
    std::size_t fin = inicio;
    while (fin < texto.size() && (EsDigito(texto[fin]) || texto[fin] == ',' || texto[fin] == '.'))
        ++fin;
    m.antes = texto.substr(0, inicio);
    m.despues = texto.substr(fin);
    const std::string_view numero = texto.substr(inicio, fin - inicio);
    const std::size_t punto = numero.find('.');
    m.entera = numero.substr(0, punto);
    m.conComa = punto != std::string_view::npos;
    if (m.conComa)
        m.decimal = numero.substr(punto + 1);
    m.miles = m.entera.find(',') != std::string_view::npos;
    return m;
}

// The 15 significant digits of |n| and the number of them that stand before the decimal comma (may be negative).
struct Decimal {
    std::string digitos;
    int enteros = 0;
};

Decimal Descomponer(double n) {
    char texto[40];
    std::snprintf(texto, sizeof texto, "%.14e", std::fabs(n));
    Decimal d;
    d.digitos.push_back(texto[0]);
    d.digitos.append(texto + 2, 14);
    d.enteros = std::atoi(texto + 17) + 1;
    return d;
}

// Rounds to so many decimals, halves up on the digits; afterwards the text holds exactly those decimals and no exponent.
void Redondear(Decimal& d, int decimales) {
    if (d.enteros < 1) {
        d.digitos.insert(0, static_cast<std::size_t>(1 - d.enteros), '0');
        d.enteros = 1;
    }
    const std::size_t quedan = static_cast<std::size_t>(d.enteros) + static_cast<std::size_t>(decimales);
    if (d.digitos.size() <= quedan) {
        d.digitos.append(quedan - d.digitos.size(), '0');
        return;
    }
    const bool sube = d.digitos[quedan] >= '5';
    d.digitos.resize(quedan);
    if (!sube)
        return;
    std::size_t i = quedan;
    while (i > 0 && d.digitos[i - 1] == '9')
        d.digitos[--i] = '0';
    if (i > 0) {
        ++d.digitos[i - 1];
    } else {
        d.digitos.insert(d.digitos.begin(), '1');
        ++d.enteros;
    }
}

std::string ParteEntera(std::string digitos, const Mascara& m) {
    digitos.erase(0, std::min(digitos.find_first_not_of('0'), digitos.size()));
    const std::size_t minimas = static_cast<std::size_t>(std::count(m.entera.begin(), m.entera.end(), '0'));
    if (digitos.size() < minimas)
        digitos.insert(0, minimas - digitos.size(), '0');
    if (m.miles)
        for (std::size_t i = digitos.size(); i > 3; i -= 3)
            digitos.insert(i - 3, 1, '.');
    return digitos;
}

std::string ParteDecimal(std::string digitos, std::string_view mascara) {
    std::size_t quedan = digitos.size();
    while (quedan > 0 && digitos[quedan - 1] == '0' && mascara[quedan - 1] == '#')
        --quedan;
    digitos.resize(quedan);
    return digitos;
}

} // namespace

std::string FormatoNumero(double n, std::string_view mascara) {
    if (!std::isfinite(n))
        throw ErrorDeEjecucion::Desbordamiento();
    const Mascara m = Partir(mascara);
    Decimal d = Descomponer(n);
    Redondear(d, static_cast<int>(m.decimal.size()));

    const bool nada = d.digitos.find_first_not_of('0') == std::string::npos;
    const std::size_t enteros = static_cast<std::size_t>(d.enteros);
    std::string texto;
    if (n < 0 && !nada) // -0,4 shown without decimals is 0, not -0
        texto += '-';
    texto += m.antes;
    texto += ParteEntera(d.digitos.substr(0, enteros), m);
    if (m.conComa)
        texto += ',' + ParteDecimal(d.digitos.substr(enteros), m.decimal);
    texto += m.despues;
    return texto;
}

double Round(double n, int decimales) {
    if (decimales == 0)
        return std::nearbyint(n); // the processor's default rounding: halves to even
    const double potencia = std::pow(10.0, decimales);
    // The product of a decimal fraction carries a tail (2,345 x 100 is a little above 234,5); 15 digits cut it off.
    char texto[40];
    std::snprintf(texto, sizeof texto, "%.15g", n * potencia);
    const double escalado = std::strtod(texto, nullptr);
    return std::isfinite(escalado) ? std::nearbyint(escalado) / potencia : n;
}

std::int64_t AEntero(double n) {
    const double entero = std::nearbyint(n);
    if (!(entero >= -9223372036854775808.0 && entero < 9223372036854775808.0))
        throw ErrorDeEjecucion::Desbordamiento();
    return static_cast<std::int64_t>(entero);
}

} // namespace pastorix
