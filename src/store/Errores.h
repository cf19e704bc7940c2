#pragma once

#include <stdexcept>
#include <string>

namespace pastorix {

// Numbers under which the store reports a failure; the message boxes print them. They are the ones that the users'
// notes and our support letters have carried for years, so they stay what they are.
enum class CodigoError : long {
    NoSePuedeAbrir = -2147467259, // file absent, not a database, wrong password, damaged, locked
    Sintaxis = -2147217900,       // malformed or unsupported statement
    TablaDesconocida = -2147217865,
    ColumnaDesconocida = -2147217904,
    Restriccion = -2147217873,    // key taken, column already there
    TipoInadecuado = -2147217913, // a text that is no number into a number column, a text too long
    SinFilaActual = 3021,         // field read or assigned with no current row
    ObjetoCerrado = 3704,         // connection or recordset that is not open
    SoloLectura = 3251,           // recordset opened read-only, or file that cannot be written
    OrigenNoCreado = 60010,       // data source that could not be declared
    Bloqueada = -2147217843,      // another program holds the file
    DiscoOFichero = -2147217887,  // disk full, input or output error
};

// Every failure of the store. what() is the description in Spanish; Sentencia() the statement it happened in, if any.
class ErrorAlmacen : public std::runtime_error {
public:
    ErrorAlmacen(CodigoError codigo, const std::string& descripcion, std::string sentencia = {});

    CodigoError Codigo() const { return m_codigo; }
    long Numero() const { return static_cast<long>(m_codigo); }
    const std::string& Sentencia() const { return m_sentencia; }

private:
    CodigoError m_codigo;
    std::string m_sentencia;
};

} // namespace pastorix
