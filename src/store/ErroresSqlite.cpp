#include "store/ErroresSqlite.h"

#include "store/Lexico.h"

#include <sqlite3.h>

#include <algorithm>
#include <iterator>

namespace pastorix {

namespace {

struct Fila {
    int codigo;
    LecturaDeCodigo lectura;
};

// Extended codes that mean more to the user than their kind stand before it.
constexpr Fila kTabla[] = {
    {SQLITE_CONSTRAINT_UNIQUE, {CodigoError::Restriccion, "Ya hay un registro con esa clave"}},
    {SQLITE_CONSTRAINT_PRIMARYKEY, {CodigoError::Restriccion, "Ya hay un registro con esa clave"}},
    {SQLITE_CONSTRAINT_NOTNULL, {CodigoError::Restriccion, "Al registro le falta un dato obligatorio"}},
    {SQLITE_READONLY_DIRECTORY,
     {CodigoError::SoloLectura, "No se puede escribir en la carpeta de la base de datos"}},
    {SQLITE_READONLY_DBMOVED,
     {CodigoError::SoloLectura, "Alguien ha movido o borrado el fichero de la base de datos"}},
    {SQLITE_READONLY_ROLLBACK,
     {CodigoError::SoloLectura,
      "La base de datos quedó a medias en un cierre brusco y no se puede escribir en ella"}},
    {SQLITE_CONSTRAINT,
     {CodigoError::Restriccion, "El registro repite una clave o le falta un dato obligatorio"}},
    {SQLITE_BUSY, {CodigoError::Bloqueada, "Otro programa tiene bloqueada la base de datos"}},
    {SQLITE_LOCKED, {CodigoError::Bloqueada, "Otro programa tiene bloqueada la base de datos"}},
    {SQLITE_READONLY, {CodigoError::SoloLectura, "La base de datos es de solo lectura"}},
    {SQLITE_PERM, {CodigoError::SoloLectura, "La base de datos es de solo lectura"}},
    {SQLITE_FULL, {CodigoError::DiscoOFichero, "El disco está lleno"}},
    {SQLITE_IOERR, {CodigoError::DiscoOFichero, "El disco falla al leer o escribir la base de datos"}},
    {SQLITE_NOMEM, {CodigoError::DiscoOFichero, "No queda memoria en el equipo"}},
    {SQLITE_CORRUPT, {CodigoError::NoSePuedeAbrir, "La base de datos está dañada"}},
    {SQLITE_NOTADB, {CodigoError::NoSePuedeAbrir, "El fichero no es una base de datos"}},
    {SQLITE_CANTOPEN, {CodigoError::NoSePuedeAbrir, "No se puede abrir el fichero de la base de datos"}},
    {SQLITE_MISMATCH, {CodigoError::TipoInadecuado, "El valor no es del tipo de la columna"}},
    {SQLITE_TOOBIG, {CodigoError::TipoInadecuado, "El texto es demasiado largo"}},
};

} // namespace

LecturaDeCodigo LeerCodigo(int codigo) {
    for (const int buscado : {codigo, codigo & 0xFF})
        if (const auto* f = std::find_if(std::begin(kTabla), std::end(kTabla),
                                         [&](const Fila& x) { return x.codigo == buscado; });
            f != std::end(kTabla))
            return f->lectura;
    return {CodigoError::Sintaxis, "La base de datos no entiende la orden"};
}

std::string DetalleDeSqlite(sqlite3* base, int codigo, std::string_view sentencia) {
    std::string detalle = std::string(base ? sqlite3_errmsg(base) : sqlite3_errstr(codigo)) + " (SQLite " +
                          std::to_string(codigo) + ")";
    if (!sentencia.empty())
        detalle += "\n" + SentenciaVisible(sentencia);
    return detalle;
}

void LanzarError(sqlite3* base, int codigo, std::string_view sentencia) {
    const auto lectura = LeerCodigo(codigo);
    throw ErrorAlmacen(lectura.codigo, lectura.texto, DetalleDeSqlite(base, codigo, sentencia), codigo);
}

} // namespace pastorix
