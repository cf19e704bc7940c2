#include "frame/selector/SentenciaDeLista.h"

#include <algorithm>
#include <cctype>
#include <cstddef>

namespace pastorix {

namespace {

bool EsDePalabra(char c) {
    const auto u = static_cast<unsigned char>(c);
    return u >= 0x80 || std::isalnum(u) || c == '_';
}

// A word or a comma that stands outside brackets, parentheses and literals.
struct Hito {
    std::size_t lugar;
    std::string_view texto;
};

std::size_t FinDeLiteral(std::string_view t, std::size_t i, char cierre) {
    const auto fin = t.find(cierre, i + 1);
    return fin == std::string_view::npos ? t.size() : fin + 1;
}

std::vector<Hito> Hitos(std::string_view t) {
    std::vector<Hito> hitos;
    int fondo = 0;
    for (std::size_t i = 0; i < t.size();) {
        if (t[i] == '\'' || t[i] == '#' || t[i] == '[') {
            i = FinDeLiteral(t, i, t[i] == '[' ? ']' : t[i]);
            continue;
        }
        fondo += (t[i] == '(') - (t[i] == ')');
        const auto desde = i++;
        if (EsDePalabra(t[desde]))
            while (i < t.size() && EsDePalabra(t[i]))
                ++i;
        else if (t[desde] != ',')
            continue;
        if (fondo == 0)
            hitos.push_back({desde, t.substr(desde, i - desde)});
    }
    return hitos;
}

bool Es(std::string_view palabra, std::string_view mayusculas) {
    return std::equal(
        palabra.begin(), palabra.end(), mayusculas.begin(), mayusculas.end(),
        [](char a, char b) { return std::toupper(static_cast<unsigned char>(a)) == static_cast<int>(b); });
}

// Where a clause begins, the blanks in front of its word included.
std::size_t ConBlancos(std::string_view t, std::size_t lugar) {
    while (lugar > 0 && t[lugar - 1] == ' ')
        --lugar;
    return lugar;
}

// The first name of an expression: letters, prefix and brackets; a function's own name is none.
std::string PrimerCampo(std::string_view expresion) {
    for (std::size_t i = 0; i < expresion.size();) {
        if (expresion[i] == '\'' || expresion[i] == '#') {
            i = FinDeLiteral(expresion, i, expresion[i]);
            continue;
        }
        const auto desde = i;
        while (i < expresion.size() && (EsDePalabra(expresion[i]) || expresion[i] == '.' ||
                                        expresion[i] == '!' || expresion[i] == '[' || expresion[i] == '*'))
            i = expresion[i] == '[' ? FinDeLiteral(expresion, i, ']') : i + 1;
        if (i == desde)
            ++i;
        else if ((i == expresion.size() || expresion[i] != '(') &&
                 !std::isdigit(static_cast<unsigned char>(expresion[desde])))
            return std::string(expresion.substr(desde, i - desde));
    }
    return {};
}

} // namespace

std::string SentenciaDeLista::Completa(std::string_view filtro) const {
    std::string t = seleccion + donde;
    if (!filtro.empty())
        t.append(donde.empty() ? " WHERE " : " AND ").append(filtro);
    return t + orden;
}

SentenciaDeLista SentenciaDeLista::OrdenadaPor(std::string_view campo, bool descendente) const {
    constexpr std::string_view kOrden = " ORDER BY ";
    auto otra = *this;
    otra.orden = std::string(kOrden).append(campo).append(descendente ? " DESC" : "");
    if (orden.size() > kOrden.size())
        otra.orden.append(", ").append(orden.substr(kOrden.size()));
    return otra;
}

SentenciaDeLista PartirSentencia(std::string_view texto) {
    const auto hitos = Hitos(texto);
    auto donde = std::string_view::npos;
    auto orden = texto.size();
    for (std::size_t i = 0; i < hitos.size(); ++i)
        if (Es(hitos[i].texto, "WHERE") && donde == std::string_view::npos)
            donde = ConBlancos(texto, hitos[i].lugar);
        else if (Es(hitos[i].texto, "ORDER") && i + 1 < hitos.size() && Es(hitos[i + 1].texto, "BY"))
            orden = ConBlancos(texto, hitos[i].lugar);
    donde = std::min(donde, orden);
    return {std::string(texto.substr(0, donde)), std::string(texto.substr(donde, orden - donde)),
            std::string(texto.substr(orden))};
}

std::vector<std::string> CamposDeSeleccion(std::string_view seleccion) {
    std::vector<std::string> campos;
    std::size_t desde = 0;
    std::size_t hasta = 0; // end of the element's expression: its AS, if it has one
    const auto cerrar = [&](std::size_t fin) {
        const auto limite = hasta > desde ? hasta : fin;
        campos.push_back(PrimerCampo(seleccion.substr(desde, limite - desde)));
    };
    for (const auto& h : Hitos(seleccion)) {
        if (Es(h.texto, "SELECT")) {
            desde = h.lugar + h.texto.size();
        } else if (Es(h.texto, "AS")) {
            hasta = h.lugar;
        } else if (h.texto == ",") {
            cerrar(h.lugar);
            desde = h.lugar + 1;
        } else if (Es(h.texto, "FROM")) {
            cerrar(h.lugar);
            break;
        }
    }
    return campos;
}

} // namespace pastorix
