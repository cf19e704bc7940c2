#include "store/Diferencias.h"

#include "store/Catalogo.h"
#include "store/ErroresSqlite.h"
#include "store/Instruccion.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstring>
#include <map>

namespace pastorix {

namespace {

using Resumen = std::uint64_t;

Resumen Mezclar(Resumen h, Resumen x) {
    h ^= x + 0x9E3779B97F4A7C15ULL + (h << 6) + (h >> 2);
    h *= 0xFF51AFD7ED558CCDULL;
    return h ^ (h >> 33);
}

Resumen DeBytes(Resumen h, const void* bytes, std::size_t n) {
    const auto* p = static_cast<const char*>(bytes);
    h = Mezclar(h, n);
    for (; n > 0; n -= std::min<std::size_t>(n, 8), p += 8) {
        Resumen x = 0;
        std::memcpy(&x, p, std::min<std::size_t>(n, 8));
        h = Mezclar(h, x);
    }
    return h;
}

Resumen DeFila(sqlite3_stmt* s, int columnas) {
    Resumen h = 1;
    for (int i = 0; i < columnas; ++i) {
        const int tipo = sqlite3_column_type(s, i);
        h = Mezclar(h, static_cast<Resumen>(tipo));
        if (tipo == SQLITE_INTEGER) {
            h = Mezclar(h, static_cast<Resumen>(sqlite3_column_int64(s, i)));
        } else if (tipo == SQLITE_FLOAT) {
            const double d = sqlite3_column_double(s, i);
            h = DeBytes(h, &d, sizeof d);
        } else if (tipo != SQLITE_NULL) {
            const void* bytes = sqlite3_column_blob(s, i);
            h = DeBytes(h, bytes, static_cast<std::size_t>(sqlite3_column_bytes(s, i)));
        }
    }
    return h;
}

Valor Leer(sqlite3_stmt* s, int i, bool fecha) {
    switch (sqlite3_column_type(s, i)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return sqlite3_column_int64(s, i);
    case SQLITE_FLOAT:
        return sqlite3_column_double(s, i);
    default:
        break;
    }
    std::string texto(reinterpret_cast<const char*>(sqlite3_column_text(s, i)),
                      static_cast<std::size_t>(sqlite3_column_bytes(s, i)));
    if (fecha)
        if (const auto f = FechaDeIso(texto))
            return *f;
    return texto;
}

// The rows of one side, by the order in which they lie.
struct Lado {
    Conexion& conexion;
    std::string sql;
    int columnas = 0;
    int filtro = -1;
    const std::unordered_set<double>& de;

    template <typename F>
    void Recorrer(F&& hacer) const {
        Instruccion s(conexion.Manejador(), sql);
        for (std::size_t n = 0; s.Fila(); ++n) {
            if (filtro >= 0 && (sqlite3_column_type(s.Manejador(), filtro) == SQLITE_NULL ||
                                !de.contains(sqlite3_column_double(s.Manejador(), filtro))))
                continue;
            hacer(n, s.Manejador());
        }
    }

    std::vector<std::pair<Resumen, std::size_t>> Resumir() const {
        std::vector<std::pair<Resumen, std::size_t>> filas;
        Recorrer([&](std::size_t n, sqlite3_stmt* s) { filas.emplace_back(DeFila(s, columnas), n); });
        std::sort(filas.begin(), filas.end());
        return filas;
    }

    std::vector<std::vector<Valor>> Sacar(std::vector<std::size_t> lugares,
                                          const std::vector<bool>& fechas) const {
        std::vector<std::vector<Valor>> filas;
        if (lugares.empty())
            return filas;
        std::sort(lugares.begin(), lugares.end());
        auto siguiente = lugares.begin();
        Recorrer([&](std::size_t n, sqlite3_stmt* s) {
            if (siguiente == lugares.end() || n != *siguiente)
                return;
            ++siguiente;
            auto& fila = filas.emplace_back();
            for (int i = 0; i < columnas; ++i)
                fila.push_back(Leer(s, i, fechas[static_cast<std::size_t>(i)]));
        });
        return filas;
    }
};

const TablaCatalogo& Canonica(const Conexion& conexion, std::string_view tabla) {
    const auto* t = CatalogoCanonico(ClaseDeBase::Principal).Buscar(tabla);
    if (!t || !conexion.Esquema().Buscar(tabla))
        throw ErrorAlmacen(CodigoError::TablaDesconocida, "No existe la tabla " + std::string(tabla));
    return *t;
}

} // namespace

DiferenciasDeTabla CompararTabla(Conexion& antes, Conexion& despues, std::string_view tabla,
                                 const std::vector<std::string>& clave, std::string_view columna,
                                 const std::unordered_set<double>& de) {
    const auto& t = Canonica(antes, tabla);
    Canonica(despues, tabla);
    DiferenciasDeTabla d;
    std::string lista;
    std::vector<bool> fechas;
    for (const auto& c : t.columnas) {
        lista += (lista.empty() ? "" : ", ") + Entrecomillar(c.nombre);
        d.columnas.push_back(c.nombre);
        fechas.push_back(EsFecha(c.tipo));
    }
    const auto sql = "SELECT " + lista + " FROM " + Entrecomillar(t.nombre);
    const auto n = static_cast<int>(t.columnas.size());
    const int filtro = columna.empty() ? -1 : t.Buscar(columna);
    const Lado a{antes, sql, n, filtro, de};
    const Lado b{despues, sql, n, filtro, de};

    const auto deA = a.Resumir();
    const auto deB = b.Resumir();
    std::vector<std::size_t> soloA;
    std::vector<std::size_t> soloB;
    auto x = deA.begin();
    auto y = deB.begin();
    while (x != deA.end() || y != deB.end()) {
        if (y == deB.end() || (x != deA.end() && x->first < y->first)) {
            soloA.push_back((x++)->second);
        } else if (x == deA.end() || y->first < x->first) {
            soloB.push_back((y++)->second);
        } else {
            ++x, ++y, ++d.iguales;
        }
    }

    const auto claveDe = [&](const std::vector<Valor>& fila) {
        std::vector<Valor> k;
        k.reserve(clave.size());
        for (const auto& c : clave)
            k.push_back(fila[static_cast<std::size_t>(t.Buscar(c))]);
        return k;
    };
    std::multimap<std::vector<Valor>, std::size_t> sueltas; // those of before, by their key
    for (auto& fila : a.Sacar(std::move(soloA), fechas)) {
        sueltas.emplace(claveDe(fila), d.filas.size());
        d.filas.push_back({std::move(fila), {}});
    }
    for (auto& fila : b.Sacar(std::move(soloB), fechas)) {
        if (const auto it = sueltas.find(claveDe(fila)); it != sueltas.end()) {
            d.filas[it->second].despues = std::move(fila);
            sueltas.erase(it);
        } else {
            d.filas.push_back({{}, std::move(fila)});
        }
    }
    return d;
}

} // namespace pastorix
