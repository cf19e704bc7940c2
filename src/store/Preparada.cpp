#include "store/Preparada.h"

#include "store/Errores.h"
#include "store/Lexico.h"
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
    , m_traduccion(std::move(traduccion)) {
    const auto& sql = m_traduccion.sql;
    const int codigo = sqlite3_prepare_v3(base, sql.c_str(), static_cast<int>(sql.size() + 1),
                                          SQLITE_PREPARE_PERSISTENT, &m_sentencia, nullptr);
    if (codigo != SQLITE_OK)
        LanzarError(base, codigo, sentencia);
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

Preparada::~Preparada() {
    sqlite3_finalize(m_sentencia);
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

void LanzarError(sqlite3* base, int codigo, std::string_view sentencia) {
    const char* detalle = base ? sqlite3_errmsg(base) : sqlite3_errstr(codigo);
    const auto lanzar = [&](CodigoError c, const std::string& texto) {
        throw ErrorAlmacen(c, texto + " (" + detalle + ")", SentenciaVisible(sentencia));
    };
    switch (codigo & 0xFF) {
    case SQLITE_CONSTRAINT:
        lanzar(CodigoError::Restriccion, "El registro repite una clave o le falta un dato obligatorio");
        break;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        lanzar(CodigoError::Bloqueada, "Otro programa tiene bloqueada la base de datos");
        break;
    case SQLITE_READONLY:
    case SQLITE_PERM:
        lanzar(CodigoError::SoloLectura, "La base de datos es de solo lectura");
        break;
    case SQLITE_FULL:
        lanzar(CodigoError::DiscoOFichero, "El disco está lleno");
        break;
    case SQLITE_IOERR:
        lanzar(CodigoError::DiscoOFichero, "Error al leer o escribir la base de datos");
        break;
    case SQLITE_CORRUPT:
        lanzar(CodigoError::NoSePuedeAbrir, "La base de datos está dañada");
        break;
    case SQLITE_NOTADB:
        lanzar(CodigoError::NoSePuedeAbrir, "El fichero no es una base de datos");
        break;
    case SQLITE_CANTOPEN:
        lanzar(CodigoError::NoSePuedeAbrir, "No se puede abrir el fichero de la base de datos");
        break;
    case SQLITE_MISMATCH:
        lanzar(CodigoError::TipoInadecuado, "El valor no es del tipo de la columna");
        break;
    default:
        break;
    }
    lanzar(CodigoError::Sintaxis, "La sentencia no se puede ejecutar");
    std::abort(); // not reached: lanzar always throws
}

void EjecutarDirecto(sqlite3* base, const std::string& sql) {
    if (const int codigo = sqlite3_exec(base, sql.c_str(), nullptr, nullptr, nullptr); codigo != SQLITE_OK)
        LanzarError(base, codigo, sql);
}

void Enlazar(sqlite3_stmt* s, int lugar, const Valor& v) {
    struct Visita {
        sqlite3_stmt* s;
        int lugar;
        void operator()(std::monostate) const { sqlite3_bind_null(s, lugar); }
        void operator()(std::int64_t n) const { sqlite3_bind_int64(s, lugar, n); }
        void operator()(double n) const { sqlite3_bind_double(s, lugar, n); }
        void operator()(Fecha f) const { Texto(FechaIso(f)); }
        void operator()(const std::string& t) const { Texto(t); }
        void Texto(const std::string& t) const {
            sqlite3_bind_text64(s, lugar, t.data(), t.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
        }
    };
    std::visit(Visita{s, lugar}, v);
}

} // namespace pastorix
