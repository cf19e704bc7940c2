#pragma once

#include <stdexcept>
#include <string>

namespace pastorix {

// A failed calculation, under the number that the message boxes have always shown for it. what() is in Spanish.
class ErrorDeEjecucion : public std::runtime_error {
public:
    ErrorDeEjecucion(long numero, const std::string& descripcion)
        : std::runtime_error(descripcion)
        , m_numero(numero) {}

    static ErrorDeEjecucion Desbordamiento() { return {6, "Desbordamiento"}; }
    static ErrorDeEjecucion DivisionPorCero() { return {11, "División por cero"}; }
    static ErrorDeEjecucion TiposDistintos() { return {13, "No coinciden los tipos"}; }

    long Numero() const { return m_numero; }

private:
    long m_numero;
};

} // namespace pastorix
