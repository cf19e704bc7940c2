#include "store/Textos.h"

#include <QChar>
#include <QString>

#include <array>
#include <cstdint>

namespace pastorix {

namespace {

// Next code point of a UTF-8 text; a stray byte counts as a character of its own, so that nothing ever runs past the end.
char32_t Siguiente(std::string_view t, std::size_t& i) {
    const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(t[k]); };
    const unsigned char c = byte(i++);
    if (c < 0x80)
        return c;
    const int resto = c >= 0xF0 ? 3 : c >= 0xE0 ? 2 : c >= 0xC0 ? 1 : 0;
    if (resto == 0 || i + static_cast<std::size_t>(resto) > t.size())
        return 0x110000U + c;
    char32_t punto = c & (0x3FU >> resto);
    for (int k = 0; k < resto; ++k)
        punto = (punto << 6U) | (byte(i++) & 0x3FU);
    return punto;
}

struct Peso {
    std::uint32_t primario = 0;
    std::uint32_t acento = 0; // 0 for the bare letter
};

constexpr char32_t kTabla = 0x180; // Latin-1 and Latin Extended-A, all that Spanish names hold

Peso CalcularPeso(char32_t punto) {
    const char32_t minuscula = punto < 0x110000U ? QChar::toLower(punto) : punto;
    char32_t base = minuscula;
    if (minuscula != U'ñ' && minuscula < kTabla) {
        const QString partes = QChar::decomposition(minuscula);
        if (!partes.isEmpty() && partes.at(0).unicode() < 0x80 && partes.at(0).isLetter())
            base = partes.at(0).toLower().unicode();
    }
    Peso p;
    p.acento = base == minuscula ? 0 : static_cast<std::uint32_t>(minuscula);
    if (base >= U'0' && base <= U'9')
        p.primario = 0x1000 + base;
    else if (base >= U'a' && base <= U'z')
        p.primario = 0x2000 + (base - U'a') * 4;
    else if (base == U'ñ')
        p.primario = 0x2000 + (U'n' - U'a') * 4 + 2;
    else if (base < 0xC0)
        p.primario = base;
    else
        p.primario = 0x3000 + base;
    return p;
}

Peso PesoDe(char32_t punto) {
    static const auto tabla = [] {
        std::array<Peso, kTabla> t{};
        for (char32_t c = 0; c < kTabla; ++c)
            t[c] = CalcularPeso(c);
        return t;
    }();
    return punto < kTabla ? tabla[punto] : CalcularPeso(punto);
}

char32_t Plegado(char32_t punto) {
    if (punto < 0x80)
        return punto >= U'A' && punto <= U'Z' ? punto + 32 : punto;
    return punto < 0x110000U ? QChar::toLower(punto) : punto;
}

std::string Convertir(std::string_view texto, bool mayusculas) {
    const auto q = QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
    return (mayusculas ? q.toUpper() : q.toLower()).toStdString();
}

} // namespace

std::string Mayusculas(std::string_view texto) {
    return Convertir(texto, true);
}
std::string Minusculas(std::string_view texto) {
    return Convertir(texto, false);
}

bool IgualSinCaso(std::string_view a, std::string_view b) {
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < a.size() && j < b.size())
        if (Plegado(Siguiente(a, i)) != Plegado(Siguiente(b, j)))
            return false;
    return i == a.size() && j == b.size();
}

int CompararEspañol(std::string_view a, std::string_view b) {
    std::size_t i = 0;
    std::size_t j = 0;
    int acento = 0;
    while (i < a.size() && j < b.size()) {
        const Peso pa = PesoDe(Siguiente(a, i));
        const Peso pb = PesoDe(Siguiente(b, j));
        if (pa.primario != pb.primario)
            return pa.primario < pb.primario ? -1 : 1;
        if (acento == 0 && pa.acento != pb.acento)
            acento = pa.acento < pb.acento ? -1 : 1;
    }
    if (i < a.size())
        return 1;
    return j < b.size() ? -1 : acento;
}

std::u32string ClaveDeBusqueda(std::string_view texto) {
    std::u32string clave;
    clave.reserve(texto.size());
    for (std::size_t i = 0; i < texto.size();)
        clave += static_cast<char32_t>(PesoDe(Siguiente(texto, i)).primario);
    return clave;
}

bool Parecido(std::string_view patron, std::string_view texto) {
    // Greedy match with one point of return: the last % seen and the text position it was tried from.
    std::size_t p = 0;
    std::size_t t = 0;
    std::size_t pVuelta = std::string_view::npos;
    std::size_t tVuelta = 0;
    while (t < texto.size()) {
        if (p < patron.size() && patron[p] == '%') {
            pVuelta = ++p;
            tVuelta = t;
            continue;
        }
        if (p < patron.size()) {
            std::size_t p2 = p;
            std::size_t t2 = t;
            const char32_t cp = Siguiente(patron, p2);
            const char32_t ct = Siguiente(texto, t2);
            if (cp == U'_' || Plegado(cp) == Plegado(ct)) {
                p = p2;
                t = t2;
                continue;
            }
        }
        if (pVuelta == std::string_view::npos)
            return false;
        Siguiente(texto, tVuelta);
        p = pVuelta;
        t = tVuelta;
    }
    while (p < patron.size() && patron[p] == '%')
        ++p;
    return p == patron.size();
}

} // namespace pastorix
