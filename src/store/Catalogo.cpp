#include "store/Catalogo.h"

#include "store/Errores.h"
#include "store/EsquemaIncrustado.h"
#include "store/Textos.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace pastorix {

namespace {

TipoColumna TipoDeDeclaracion(std::string_view d) {
    if (d.starts_with("TEXT("))
        return TipoColumna::Texto;
    if (d == "TEXT_MEMO")
        return TipoColumna::Memo;
    if (d == "TEXT_DATE")
        return TipoColumna::Fecha;
    if (d == "TEXT_DATETIME")
        return TipoColumna::FechaHora;
    if (d == "DOUBLE")
        return TipoColumna::Doble;
    if (d == "INTEGER")
        return TipoColumna::Largo;
    if (d == "YESNO")
        return TipoColumna::SiNo;
    return TipoColumna::Otro;
}

struct Consulta {
    sqlite3_stmt* s = nullptr;
    Consulta(sqlite3* base, const std::string& sql) {
        if (sqlite3_prepare_v2(base, sql.c_str(), -1, &s, nullptr) != SQLITE_OK)
            throw ErrorAlmacen(CodigoError::NoSePuedeAbrir,
                               std::string("No se puede leer el esquema de la base de datos: ") +
                                   sqlite3_errmsg(base));
    }
    ~Consulta() { sqlite3_finalize(s); }
    Consulta(const Consulta&) = delete;
    Consulta& operator=(const Consulta&) = delete;
    bool Fila() { return sqlite3_step(s) == SQLITE_ROW; }
    std::string Texto(int i) const {
        const auto* t = sqlite3_column_text(s, i);
        return t ? reinterpret_cast<const char*>(t) : "";
    }
};

TablaCatalogo LeerTabla(sqlite3* base, const std::string& nombre) {
    TablaCatalogo tabla;
    tabla.nombre = nombre;
    Consulta columnas(base, "PRAGMA table_info(" + Entrecomillar(nombre) + ")");
    while (columnas.Fila()) {
        ColumnaTabla c;
        c.nombre = columnas.Texto(1);
        c.declaracion = columnas.Texto(2);
        c.tipo = TipoDeDeclaracion(c.declaracion);
        if (c.tipo == TipoColumna::Texto)
            c.anchura = std::atoi(c.declaracion.c_str() + 5);
        c.noNula = sqlite3_column_int(columnas.s, 3) != 0;
        tabla.columnas.push_back(std::move(c));
    }
    Consulta clave(base, "PRAGMA index_info(" + Entrecomillar("clave_" + nombre) + ")");
    while (clave.Fila())
        tabla.clave.push_back(clave.Texto(2));
    return tabla;
}

} // namespace

int CodigoDeTipo(TipoColumna tipo) {
    switch (tipo) {
    case TipoColumna::Doble:
        return 5;
    case TipoColumna::Largo:
        return 3;
    case TipoColumna::Texto:
        return 202;
    case TipoColumna::Memo:
        return 203;
    case TipoColumna::Fecha:
    case TipoColumna::FechaHora:
        return 135;
    case TipoColumna::SiNo:
        return 11;
    case TipoColumna::Otro:
        break;
    }
    return 204;
}

int TablaCatalogo::Buscar(std::string_view columna) const {
    for (std::size_t i = 0; i < columnas.size(); ++i)
        if (IgualSinCaso(columnas[i].nombre, columna))
            return static_cast<int>(i);
    return -1;
}

Catalogo Catalogo::DeBase(sqlite3* base) {
    Catalogo c;
    std::vector<std::string> nombres;
    {
        Consulta tablas(
            base,
            "SELECT name FROM sqlite_schema WHERE type='table' AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\' "
            "AND name <> '_pastorix' ORDER BY rowid");
        while (tablas.Fila())
            nombres.push_back(tablas.Texto(0));
    }
    for (const auto& n : nombres)
        c.m_tablas.push_back(LeerTabla(base, n));
    return c;
}

const TablaCatalogo* Catalogo::Buscar(std::string_view tabla) const {
    const auto it = std::find_if(m_tablas.begin(), m_tablas.end(),
                                 [&](const TablaCatalogo& t) { return IgualSinCaso(t.nombre, tabla); });
    return it == m_tablas.end() ? nullptr : &*it;
}

std::string_view SqlDeEsquema(ClaseDeBase clase) {
    return clase == ClaseDeBase::Principal ? kSqlPrincipal : kSqlToros;
}

const Catalogo& CatalogoCanonico(ClaseDeBase clase) {
    const auto leer = [](ClaseDeBase c) {
        sqlite3* base = nullptr;
        sqlite3_open(":memory:", &base);
        const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> cierre(base, &sqlite3_close);
        sqlite3_exec(base, std::string(SqlDeEsquema(c)).c_str(), nullptr, nullptr, nullptr);
        return Catalogo::DeBase(base);
    };
    static const Catalogo principal = leer(ClaseDeBase::Principal);
    static const Catalogo toros = leer(ClaseDeBase::Toros);
    return clase == ClaseDeBase::Principal ? principal : toros;
}

std::string Entrecomillar(std::string_view nombre) {
    std::string t = "\"";
    for (const char c : nombre) {
        if (c == '"')
            t += '"';
        t += c;
    }
    return t + '"';
}

} // namespace pastorix
