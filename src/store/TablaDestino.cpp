#include "store/TablaDestino.h"

#include "store/Textos.h"
#include "store/Valor.h"

#include <sqlite3.h>

#include <algorithm>
#include <cmath>

namespace pastorix {

namespace {

using access::Tipo;

ColumnaTabla ColumnaPara(const access::Columna& c) {
    ColumnaTabla columna{c.nombre, {}, TipoColumna::Otro, 0, false};
    switch (c.tipo) {
    case Tipo::SiNo:
        columna.tipo = TipoColumna::SiNo;
        columna.declaracion = "YESNO";
        columna.noNula = true;
        break;
    case Tipo::Byte:
    case Tipo::Entero:
    case Tipo::Largo:
        columna.tipo = TipoColumna::Largo;
        columna.declaracion = "INTEGER";
        break;
    case Tipo::Moneda:
    case Tipo::Simple:
    case Tipo::Doble:
    case Tipo::Decimal:
        columna.tipo = TipoColumna::Doble;
        columna.declaracion = "DOUBLE";
        break;
    case Tipo::FechaHora:
        columna.tipo = TipoColumna::FechaHora;
        columna.declaracion = "TEXT_DATETIME";
        break;
    case Tipo::Texto:
        columna.tipo = TipoColumna::Texto;
        columna.anchura = c.longitud;
        columna.declaracion = "TEXT(" + std::to_string(c.longitud) + ")";
        break;
    case Tipo::Memo:
        columna.tipo = TipoColumna::Memo;
        columna.declaracion = "TEXT_MEMO";
        break;
    case Tipo::Guid:
        columna.tipo = TipoColumna::Texto;
        columna.anchura = 38;
        columna.declaracion = "TEXT(38)";
        break;
    case Tipo::Binario:
    case Tipo::Ole:
    case Tipo::Otro:
        columna.declaracion = "BLOB";
        break;
    }
    return columna;
}

// The file keeps milliseconds; the program keeps whole seconds, the nearest.
Fecha FechaDe(access::Momento m) {
    const int segundo = (m.milisegundo + 500) / 1000;
    return segundo >= 86400 ? Fecha{m.dia + 1, 0} : Fecha{m.dia, segundo};
}

} // namespace

TablaDestino::TablaDestino(sqlite3* base, const TablaCatalogo& canonica)
    : m_base(base)
    , m_canonica(canonica) {}

bool TablaDestino::Reconocer(const access::Columna& columna) {
    const int lugar = m_canonica.Buscar(columna.nombre);
    if (lugar < 0)
        return false;
    const auto& c = m_canonica.columnas[static_cast<std::size_t>(lugar)];
    m_destinos.push_back({c.nombre, c.tipo, c.noNula});
    return true;
}

void TablaDestino::Ampliar(const access::Columna& columna) {
    const auto c = ColumnaPara(columna);
    EjecutarDirecto(m_base, "ALTER TABLE " + Entrecomillar(m_canonica.nombre) + " ADD COLUMN " +
                                Entrecomillar(c.nombre) + " " + DeclaracionCompleta(c));
    Añadir(columna);
}

void TablaDestino::Añadir(const access::Columna& columna) {
    const auto c = ColumnaPara(columna);
    m_destinos.push_back({c.nombre, c.tipo, c.noNula});
}

std::vector<std::string> TablaDestino::SinOrigen() const {
    std::vector<std::string> lista;
    for (const auto& c : m_canonica.columnas)
        if (std::none_of(m_destinos.begin(), m_destinos.end(),
                         [&](const Destino& d) { return d.nombre == c.nombre; }))
            lista.push_back(c.nombre);
    return lista;
}

void TablaDestino::Preparar() {
    std::string columnas;
    std::string marcas;
    for (const auto& d : m_destinos) {
        columnas += (columnas.empty() ? "" : ", ") + Entrecomillar(d.nombre);
        marcas += marcas.empty() ? "?" : ", ?";
    }
    m_insercion = Instruccion(m_base, "INSERT INTO " + Entrecomillar(m_canonica.nombre) + " (" + columnas +
                                          ") VALUES (" + marcas + ")");
}

void TablaDestino::Escribir(std::span<const access::Celda> fila) {
    for (std::size_t i = 0; i < m_destinos.size(); ++i) {
        const auto& d = m_destinos[i];
        const int lugar = static_cast<int>(i) + 1;
        if (std::holds_alternative<std::monostate>(fila[i])) {
            if (d.noNula)
                sqlite3_bind_int(m_insercion.Manejador(), lugar, 0);
            else
                sqlite3_bind_null(m_insercion.Manejador(), lugar);
        } else if (!EnlazarCelda(lugar, fila[i], d.tipo)) {
            ++m_raros[d.nombre];
        }
    }
    m_insercion.Correr();
}

void TablaDestino::EnlazarTexto(int lugar, const std::string& texto) {
    sqlite3_bind_text64(m_insercion.Manejador(), lugar, texto.data(), texto.size(), SQLITE_TRANSIENT,
                        SQLITE_UTF8);
}

bool TablaDestino::EnlazarCelda(int lugar, const access::Celda& celda, TipoColumna tipo) {
    if (const auto* bytes = std::get_if<access::Bytes>(&celda)) {
        sqlite3_bind_blob64(m_insercion.Manejador(), lugar, bytes->data(), bytes->size(), SQLITE_TRANSIENT);
        return tipo == TipoColumna::Otro;
    }
    switch (tipo) {
    case TipoColumna::Doble:
    case TipoColumna::Largo:
        return EnlazarNumeroEn(lugar, celda);
    case TipoColumna::Fecha:
    case TipoColumna::FechaHora:
        return EnlazarFechaEn(lugar, celda);
    case TipoColumna::SiNo:
        if (const auto* b = std::get_if<bool>(&celda)) {
            sqlite3_bind_int(m_insercion.Manejador(), lugar, *b ? -1 : 0);
            return true;
        }
        if (const auto* n = std::get_if<std::int64_t>(&celda)) {
            sqlite3_bind_int(m_insercion.Manejador(), lugar, *n != 0 ? -1 : 0);
            return true;
        }
        if (const auto* n = std::get_if<double>(&celda)) {
            sqlite3_bind_int(m_insercion.Manejador(), lugar, *n != 0 ? -1 : 0);
            return true;
        }
        return EnlazarTextoEn(lugar, celda);
    default:
        return EnlazarTextoEn(lugar, celda);
    }
}

bool TablaDestino::EnlazarTextoEn(int lugar, const access::Celda& celda) {
    if (const auto* t = std::get_if<std::string>(&celda)) {
        // The row outlives the statement's run: no copy.
        sqlite3_bind_text64(m_insercion.Manejador(), lugar, t->data(), t->size(), SQLITE_STATIC, SQLITE_UTF8);
        return true;
    }
    if (const auto* b = std::get_if<bool>(&celda))
        EnlazarTexto(lugar, *b ? "-1" : "0");
    else if (const auto* n = std::get_if<std::int64_t>(&celda))
        EnlazarTexto(lugar, std::to_string(*n));
    else if (const auto* d = std::get_if<double>(&celda))
        EnlazarTexto(lugar, TextoNumero(*d));
    else if (const auto* m = std::get_if<access::Momento>(&celda))
        EnlazarTexto(lugar, FormatoFecha(FechaDe(*m), "dd/mm/yyyy"));
    return false;
}

bool TablaDestino::EnlazarNumeroEn(int lugar, const access::Celda& celda) {
    if (const auto* n = std::get_if<std::int64_t>(&celda)) {
        sqlite3_bind_int64(m_insercion.Manejador(), lugar, *n);
        return true;
    }
    if (const auto* d = std::get_if<double>(&celda)) {
        sqlite3_bind_double(m_insercion.Manejador(), lugar, *d);
        return true;
    }
    if (const auto* b = std::get_if<bool>(&celda)) {
        sqlite3_bind_int(m_insercion.Manejador(), lugar, *b ? -1 : 0);
        return true;
    }
    if (const auto* m = std::get_if<access::Momento>(&celda)) {
        EnlazarTexto(lugar, FormatoFecha(FechaDe(*m), "dd/mm/yyyy"));
        return false;
    }
    // Currency and decimals come as exact texts, which the column turns into numbers; of other texts those do that read as one.
    const auto& t = std::get<std::string>(celda);
    double n = 0;
    const bool esNumero = NumeroDeTexto(t, n);
    if (esNumero && t.find_first_of(", ") != std::string::npos)
        sqlite3_bind_double(m_insercion.Manejador(), lugar, n);
    else
        EnlazarTexto(lugar, t);
    return esNumero;
}

bool TablaDestino::EnlazarFechaEn(int lugar, const access::Celda& celda) {
    if (const auto* m = std::get_if<access::Momento>(&celda)) {
        EnlazarTexto(lugar, FechaIso(FechaDe(*m)));
        return true;
    }
    const auto* t = std::get_if<std::string>(&celda);
    const auto fecha = t ? FechaDeTexto(*t) : std::nullopt;
    if (!fecha)
        return EnlazarTextoEn(lugar, celda), false;
    EnlazarTexto(lugar, FechaIso(*fecha));
    return true;
}

std::uint64_t TablaDestino::Contar() const {
    Instruccion s(m_base, "SELECT count(*) FROM " + Entrecomillar(m_canonica.nombre));
    s.Fila();
    return static_cast<std::uint64_t>(s.Entero(0));
}

std::vector<std::string> TablaDestino::Curiosidades() const {
    std::vector<std::string> lista;
    for (const auto& [columna, veces] : m_raros)
        lista.push_back("En " + m_canonica.nombre + "." + columna + " hay " + std::to_string(veces) +
                        " valores de otra clase que la de la columna; quedan como estaban");
    return lista;
}

std::string TablaDestino::SqlDeCreacion(const access::Tabla& tabla) {
    TablaCatalogo t;
    t.nombre = tabla.nombre;
    for (const auto& c : tabla.columnas)
        t.columnas.push_back(ColumnaPara(c));
    return SqlDeCreacion(t);
}

std::string TablaDestino::SqlDeCreacion(const TablaCatalogo& tabla) {
    std::string columnas;
    for (const auto& c : tabla.columnas)
        columnas += (columnas.empty() ? "" : ", ") + Entrecomillar(c.nombre) + " " + DeclaracionCompleta(c);
    return "CREATE TABLE " + Entrecomillar(tabla.nombre) + " (" + columnas + ")";
}

std::string TablaDestino::DeclaracionCompleta(const ColumnaTabla& columna) {
    auto d = columna.declaracion;
    if (EsTexto(columna.tipo))
        d += " COLLATE NOCASE";
    if (columna.tipo == TipoColumna::SiNo)
        d += " NOT NULL DEFAULT 0";
    return d;
}

} // namespace pastorix
