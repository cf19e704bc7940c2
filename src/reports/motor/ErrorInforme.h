#pragma once

#include "store/Errores.h"

#include <string>
#include <utility>

namespace pastorix {

// Numbers under which the report engine reports a failure; the report forms print them before the text.
enum class CodigoInforme : long {
    FicheroAusente = 60101,    // layout file that is not there or cannot be read
    Disposicion = 60102,       // malformed layout; the text carries file and line
    DatosDesconocidos = 60103, // the database lacks a table or column that the layout uses
    Formula = 60104,           // malformed selection formula
    Parametro = 60105,         // parameter field that is malformed, not declared or missing
    Limite = 60106,            // more rows or pages than any report of this program can have
    Escritura = 60107,         // file that cannot be written
    Orden = 60108,             // the report control was told something it does not do
};

// Every failure of the report engine. what() is the description in Spanish (UTF-8).
class ErrorInforme : public ErrorConDetalle {
public:
    ErrorInforme(CodigoInforme codigo, const std::string& descripcion, std::string detalle = {})
        : ErrorConDetalle(descripcion, std::move(detalle))
        , m_codigo(codigo) {}

    CodigoInforme Codigo() const { return m_codigo; }
    long Numero() const { return static_cast<long>(m_codigo); }

private:
    CodigoInforme m_codigo;
};

} // namespace pastorix
