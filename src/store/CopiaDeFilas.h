#pragma once

#include "store/Conexion.h"
#include "store/Instruccion.h"

#include <functional>
#include <string>
#include <string_view>

namespace pastorix {

// Adds rows of one database to a table of another, by position: the tables of both stand in canonical order, so that position is name.
// Values go over as they lie in the file, whatever their type; the table itself is not read. Columns of the receiver that the program
// does not know take nothing, unless the sender has the same one in the same place.
class CopiaDeFilas {
public:
    // Throws ErrorAlmacen(TablaDesconocida).
    CopiaDeFilas(Conexion& destino, std::string_view tabla);

    // Copies what a query on `origen`, another connection, gives; returns the number of rows. `avance` is told of the rows done, now and
    // then. One durable unit, or a part of the group at hand. Throws ErrorAlmacen: ColumnaDesconocida, before any row, where a column
    // stands elsewhere; Restriccion at a key that is taken.
    long Copiar(Conexion& origen, std::string_view consulta, const std::function<void(long)>& avance = {});

private:
    void Preparar(std::size_t columnas);

    Conexion& m_destino;
    std::string m_tabla;
    std::size_t m_exigidas; // columns that must come over
    std::size_t m_columnas = 0;
    Instruccion m_alta;
};

inline long CopiarFilas(Conexion& origen, std::string_view consulta, Conexion& destino,
                        std::string_view tabla, const std::function<void(long)>& avance = {}) {
    return CopiaDeFilas(destino, tabla).Copiar(origen, consulta, avance);
}

} // namespace pastorix
