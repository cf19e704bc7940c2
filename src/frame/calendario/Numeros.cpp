#include "frame/calendario/Formatos.h"

#include <charconv>
#include <cmath>
#include <cstdlib>

namespace pastorix {

namespace {

bool EsCifra(char c) {
    return c >= '0' && c <= '9';
}
bool EsBlanco(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

std::string SinBlancos(std::string_view texto) {
    std::string limpio;
    for (const char c : texto)
        if (!EsBlanco(c))
            limpio += c;
    return limpio;
}

std::string_view Recortado(std::string_view texto) {
    while (!texto.empty() && EsBlanco(texto.front()))
        texto.remove_prefix(1);
    while (!texto.empty() && EsBlanco(texto.back()))
        texto.remove_suffix(1);
    return texto;
}

double DeDigitos(const std::string& texto) {
    double n = 0;
    const auto resultado = std::from_chars(texto.data(), texto.data() + texto.size(), n);
    if (resultado.ec == std::errc::result_out_of_range) {
        // Too small to be told from 0 is 0; too big is an error.
        if (std::fabs(std::strtod(texto.c_str(), nullptr)) > 1)
            throw ErrorDeEjecucion::Desbordamiento();
        return 0;
    }
    return n;
}

// &HFF and &O17 from their letter on; nothing when there is no digit of that base.
std::optional<double> DeOtraBase(std::string_view texto, bool entero) {
    if (texto.empty())
        return std::nullopt;
    const bool hexadecimal = texto[0] == 'h' || texto[0] == 'H';
    if (!hexadecimal && texto[0] != 'o' && texto[0] != 'O')
        return std::nullopt;
    texto.remove_prefix(1);
    std::uint64_t n = 0;
    const auto resultado =
        std::from_chars(texto.data(), texto.data() + texto.size(), n, hexadecimal ? 16 : 8);
    if (resultado.ec != std::errc() || (entero && resultado.ptr != texto.data() + texto.size()))
        return std::nullopt;
    return static_cast<double>(n);
}

// Moves the exponent at i (e or d, sign, digits) into numero; false and nothing moved when it is none.
bool TomarExponente(std::string_view texto, std::size_t& i, std::string& numero) {
    if (i >= texto.size() || std::string_view("eEdD").find(texto[i]) == std::string_view::npos)
        return false;
    std::size_t j = i + 1;
    std::string exponente = "e";
    if (j < texto.size() && (texto[j] == '+' || texto[j] == '-'))
        exponente += texto[j++];
    if (j >= texto.size() || !EsCifra(texto[j]))
        return false;
    while (j < texto.size() && EsCifra(texto[j]))
        exponente += texto[j++];
    if (exponente[1] == '+')
        exponente.erase(1, 1);
    numero += exponente;
    i = j;
    return true;
}

bool Quitar(std::string_view& texto, std::string_view final, bool delante) {
    if (delante ? !texto.starts_with(final) : !texto.ends_with(final))
        return false;
    delante ? texto.remove_prefix(final.size()) : texto.remove_suffix(final.size());
    texto = Recortado(texto);
    return true;
}

// Digits with points between thousands, decimal comma and exponent; nothing else around them.
std::optional<double> NumeroDesnudo(std::string_view texto) {
    std::string numero;
    bool cifras = false;
    bool coma = false;
    std::size_t i = 0;
    for (; i < texto.size(); ++i) {
        if (EsCifra(texto[i])) {
            numero += texto[i];
            cifras = true;
        } else if (texto[i] == ',' && !coma) {
            if (!cifras)
                numero += '0';
            numero += '.';
            coma = true;
        } else if (texto[i] != '.' || coma || !cifras) {
            break;
        }
    }
    if (!cifras)
        return std::nullopt;
    if (coma && numero.back() == '.')
        numero.pop_back();
    TomarExponente(texto, i, numero);
    if (i != texto.size())
        return std::nullopt;
    return DeDigitos(numero);
}

} // namespace

double Val(std::string_view texto) {
    const std::string limpio = SinBlancos(texto);
    std::size_t i = 0;
    if (limpio.size() > 1 && limpio[0] == '&')
        return DeOtraBase(std::string_view(limpio).substr(1), false).value_or(0);
    std::string numero;
    if (i < limpio.size() && (limpio[i] == '+' || limpio[i] == '-')) {
        if (limpio[i] == '-')
            numero += '-';
        ++i;
    }
    bool cifras = false;
    bool punto = false;
    for (; i < limpio.size(); ++i) {
        if (EsCifra(limpio[i])) {
            cifras = true;
        } else if (limpio[i] == '.' && !punto) {
            punto = true;
            if (!cifras)
                numero += '0';
        } else {
            break;
        }
        numero += limpio[i];
    }
    if (!cifras)
        return 0;
    TomarExponente(limpio, i, numero);
    return DeDigitos(numero);
}

std::optional<double> NumeroEscrito(std::string_view texto) {
    double directo = 0;
    if (NumeroDeTexto(texto, directo))
        return directo;
    texto = Recortado(texto);
    if (texto.starts_with('&'))
        return DeOtraBase(texto.substr(1), true);
    bool negativo = false;
    bool signo = false;
    if (texto.size() > 2 && texto.front() == '(' && texto.back() == ')') {
        texto = Recortado(texto.substr(1, texto.size() - 2));
        negativo = signo = true;
    }
    bool moneda = false;
    for (bool sigue = true; sigue;) {
        sigue = false;
        for (const bool delante : {true, false}) {
            if (!moneda && Quitar(texto, "€", delante))
                sigue = moneda = true;
            if (!signo && Quitar(texto, "-", delante))
                sigue = signo = negativo = true;
            if (!signo && Quitar(texto, "+", delante))
                sigue = signo = true;
        }
    }
    try {
        const std::optional<double> n = NumeroDesnudo(texto);
        return n && negativo ? std::optional(-*n) : n;
    } catch (const ErrorDeEjecucion&) {
        return std::nullopt; // no number type holds it, so it is no number
    }
}

bool IsNumeric(std::string_view texto) {
    return NumeroEscrito(texto).has_value();
}

} // namespace pastorix
