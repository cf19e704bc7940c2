#include "store/Catalogo.h"

#include "store/BasePropia.h"
#include "store/EsquemaIncrustado.h"
#include "store/Instruccion.h"
#include "store/Textos.h"

#include <algorithm>
#include <cstdlib>

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

TablaCatalogo LeerTabla(sqlite3* base, const std::string& nombre) {
    TablaCatalogo tabla;
    tabla.nombre = nombre;
    Instruccion columnas(base, "PRAGMA table_info(" + Entrecomillar(nombre) + ")");
    while (columnas.Fila()) {
        ColumnaTabla c;
        c.nombre = columnas.Texto(1);
        c.declaracion = columnas.Texto(2);
        c.tipo = TipoDeDeclaracion(c.declaracion);
        if (c.tipo == TipoColumna::Texto)
            c.anchura = std::atoi(c.declaracion.c_str() + 5);
        c.noNula = columnas.Entero(3) != 0;
        tabla.columnas.push_back(std::move(c));
    }
    Instruccion clave(base, "PRAGMA index_info(" + Entrecomillar("clave_" + nombre) + ")");
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
        Instruccion tablas(
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
        const auto base = AbrirBasePropia(":memory:", Modo::Nueva);
        EjecutarDirecto(base.get(), std::string(SqlDeEsquema(c)));
        return Catalogo::DeBase(base.get());
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
