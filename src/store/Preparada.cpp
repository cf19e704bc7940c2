#include "store/Preparada.h"

#include "store/Textos.h"

#include <sqlite3.h>

#include <bit>

namespace pastorix {

namespace {

// ASCII letters lose their case and everything else is hashed as it stands, but for the case bit of the two-byte letters (Ñ and the
// accented vowels): enough to spread, equality is tested in full.
std::uint32_t Huella(std::string_view nombre) {
    std::uint32_t h = 2166136261U;
    for (const char c : nombre)
        h = (h ^ (static_cast<unsigned char>(c) | 0x20U)) * 16777619U;
    return h;
}

// Names are nearly always ASCII with one ñ: a byte comparison settles almost all of them.
bool MismoNombre(std::string_view a, std::string_view b) {
    return a == b || IgualSinCaso(a, b);
}

} // namespace

Preparada::Preparada(sqlite3* base, std::shared_ptr<const Catalogo> catalogo, Traduccion traduccion,
                     const std::string& sentencia)
    : m_catalogo(std::move(catalogo))
    , m_traduccion(std::move(traduccion))
    , m_sentencia(base, m_traduccion.sql, sentencia, true) {
    const auto& salida = m_traduccion.salida;
    m_porNombre.assign(std::bit_ceil(salida.size() * 2 + 1), {0, -1});
    for (std::size_t i = 0; i < salida.size(); ++i) {
        if (Columna(salida[i].nombre) >= 0)
            continue;
        const auto h = Huella(salida[i].nombre);
        auto lugar = h & (m_porNombre.size() - 1);
        while (m_porNombre[lugar].second >= 0)
            lugar = (lugar + 1) & (m_porNombre.size() - 1);
        m_porNombre[lugar] = {h, static_cast<int>(i)};
    }
}

int Preparada::Columna(std::string_view nombre) const {
    const auto& salida = m_traduccion.salida;
    if (const auto punto = nombre.find('.'); punto != std::string_view::npos) {
        for (std::size_t i = 0; i < salida.size(); ++i)
            if (salida[i].tabla && IgualSinCaso(salida[i].tabla->nombre, nombre.substr(0, punto)) &&
                IgualSinCaso(salida[i].nombre, nombre.substr(punto + 1)))
                return static_cast<int>(i);
        return -1;
    }
    const auto h = Huella(nombre);
    for (auto lugar = h & (m_porNombre.size() - 1); m_porNombre[lugar].second >= 0;
         lugar = (lugar + 1) & (m_porNombre.size() - 1)) {
        const auto& [huella, i] = m_porNombre[lugar];
        if (huella == h && MismoNombre(salida[static_cast<std::size_t>(i)].nombre, nombre))
            return i;
    }
    return -1;
}

Corrida::Corrida(sqlite3_stmt* s, const std::vector<Valor>& valores)
    : m_s(s) {
    int lugar = 0;
    for (const auto& v : valores)
        Enlazar(s, ++lugar, v);
}

Corrida::~Corrida() {
    sqlite3_reset(m_s);
}

int Corrida::Paso() {
    return sqlite3_step(m_s);
}

} // namespace pastorix
