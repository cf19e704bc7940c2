#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace pastorix {

// Numbers under which the store reports a failure; the message boxes print them. They are the ones that the users'
// notes and our support letters have carried for years, so they stay what they are.
enum class CodigoError : long {
    NoSePuedeAbrir = -2147467259, // file absent, not a database, wrong password, damaged
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

// A failure in plain Spanish (what()), with the words that only a technician wants to read beside it: a library's own message, its
// code, the statement. Boxes show those on demand.
class ErrorConDetalle : public std::runtime_error {
public:
    explicit ErrorConDetalle(const std::string& descripcion, std::string detalle = {})
        : std::runtime_error(descripcion)
        , m_detalle(std::move(detalle)) {}
    const std::string& Detalle() const { return m_detalle; }

private:
    std::string m_detalle;
};

// Every failure of the store.
class ErrorAlmacen : public ErrorConDetalle {
public:
    ErrorAlmacen(CodigoError codigo, const std::string& descripcion, std::string detalle = {}, int motor = 0)
        : ErrorConDetalle(descripcion, std::move(detalle))
        , m_codigo(codigo)
        , m_motor(motor) {}

    CodigoError Codigo() const { return m_codigo; }
    long Numero() const { return static_cast<long>(m_codigo); }
    int Motor() const {
        return m_motor;
    } // SQLite's extended result code, 0 for a failure that is not its own

    // The file itself fails (lock, disk, read-only, damage). No rule that passes over failures passes over this one.
    bool DelFichero() const;

private:
    CodigoError m_codigo;
    int m_motor;
};

} // namespace pastorix
