#pragma once

#include "reports/motor/Disposicion.h"
#include "reports/motor/FuenteDeTablas.h"

#include <map>
#include <string>
#include <unordered_map>
#include <vector>

namespace pastorix {

// The rows that a report runs over: every table that stands by itself together with the tables joined to it (a row without partner
// keeps blanks on that side), filtered by the selection formula and put in the order of the layout.
class Conjuntos {
public:
    // Reads the tables and joins them. Throws ErrorInforme: a table or column that the database lacks is told with the line of the
    // layout that asks for it; an error of the source passes through.
    Conjuntos(const Disposicion& disposicion, const FuenteDeTablas& fuente, const std::string& formula);

    // Rows of the joined set of that root table.
    std::size_t Filas(int raiz) const;
    // Value of a field in one row of the set it belongs to.
    const Valor& Celda(RefCampo campo, std::size_t fila) const;
    // Rows of the set whose columns equal the values, in order. Null equals nothing; numbers written as text equal the number.
    std::vector<std::size_t> Buscar(const std::vector<Lazo>& lazos,
                                    const std::vector<const Valor*>& valores) const;

private:
    struct Tabla {
        TablaDatos datos;
        std::vector<int> columnas; // declared column -> column of the data
        std::size_t hueco = 0;     // place of its row numbers in the rows of the set
    };
    struct Conjunto {
        std::vector<int> tablas; // root first
        std::size_t n = 0;       // rows
        std::vector<int> filas;  // n x tablas.size(): row of each table, -1 for no partner
    };
    using Indice = std::unordered_map<std::string, std::vector<std::size_t>>;

    void LeerTabla(const FuenteDeTablas& fuente, int tabla);
    void Unir(Conjunto& conjunto, int tabla);
    void Seleccionar(const std::string& formula);
    void Ordenar(int raiz);
    void Quedarse(Conjunto& conjunto, const std::vector<std::size_t>& orden);
    const Indice& IndiceDe(RefCampo campo) const;

    const Disposicion& m_disposicion;
    std::vector<Tabla> m_tablas;
    std::map<int, Conjunto> m_conjuntos; // by root table
    mutable std::map<std::pair<int, int>, Indice> m_indices;
};

// Equality by which rows are tied and joined.
bool SeAtan(const Valor& a, const Valor& b);

// Order of two values of one column: Null first, numbers and dates by size, texts in Spanish order without case.
int CompararValores(const Valor& a, const Valor& b);

} // namespace pastorix
