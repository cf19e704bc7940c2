#pragma once

#include "reports/motor/Lineas.h"

#include <optional>

namespace pastorix {

// Takes the words of one layout line one after another; whatever nobody took is an error at the end, so that a misspelt option is
// told and not passed over. All members throw ErrorInforme(Disposicion) with file and line.
class Argumentos {
public:
    Argumentos(const LineaLeida& linea, const std::string& fichero);

    const std::string& Orden() const { return m_linea.palabras.front().texto; } // the first word of the line
    int Linea() const { return m_linea.numero; }

    // The next word that stands by itself; quoted says which kind it must be.
    std::string Nombre(const char* que);
    std::string Texto(const char* que);
    std::optional<std::string> TextoSiHay();
    bool QuedaNombre() const;
    double Numero(const char* que, double minimo, double maximo);

    // key=value, and bare words that switch something on. Ask for these after the words that have a place.
    std::optional<std::string> Opcion(std::string_view clave);
    std::optional<double> OpcionNumero(std::string_view clave, double minimo, double maximo);
    bool Bandera(std::string_view palabra);

    void Terminar() const;
    [[noreturn]] void Fallo(const std::string& texto) const;

private:
    int Siguiente() const; // next word without key that nobody took, -1
    double LeerNumero(const std::string& texto, std::string_view que, double minimo, double maximo) const;

    const LineaLeida& m_linea;
    const std::string& m_fichero;
    std::vector<bool> m_usadas;
};

// Cuts "a,b,c" at the separator; empty pieces stay.
std::vector<std::string> Separar(std::string_view texto, char separador);

} // namespace pastorix
