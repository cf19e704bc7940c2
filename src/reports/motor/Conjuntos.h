#pragma once

#include "reports/motor/Disposicion.h"
#include "reports/motor/FuenteDeTablas.h"

#include <map>
#include <string>
#include <unordered_map>
#include <vector>

namespace pastorix {

// The rows that a report runs over: those of its tables, less what the selection formula leaves out.
class Conjuntos {
public:
    // Reads the tables. Throws ErrorInforme: a table or column that the database lacks is told with the line of the layout that asks
    // for it; an error of the source passes through.
    Conjuntos(const Disposicion& disposicion, const FuenteDeTablas& fuente, const std::string& formula);

    std::size_t Filas(int tabla) const {
        return m_tablas[static_cast<std::size_t>(tabla)].datos.filas.size();
    }
    const Valor& Celda(RefCampo campo, std::size_t fila) const;
    // Rows of the table of the ties whose columns equal the values, in order. Null equals nothing; numbers written as text equal the
    // number.
    std::vector<std::size_t> Buscar(const std::vector<Lazo>& lazos,
                                    const std::vector<const Valor*>& valores) const;

private:
    struct Tabla {
        TablaDatos datos;
        std::vector<int> columnas; // declared column -> column of the data
    };
    using Indice = std::unordered_map<std::string, std::vector<std::size_t>>;

    Tabla LeerTabla(const FuenteDeTablas& fuente, const TablaUsada& usada) const;
    void Seleccionar(const std::string& formula);
    const Indice& IndiceDe(RefCampo campo) const;

    const Disposicion& m_disposicion;
    std::vector<Tabla> m_tablas;
    mutable std::map<std::pair<int, int>, Indice> m_indices;
};

// Equality by which rows are tied.
bool SeAtan(const Valor& a, const Valor& b);

} // namespace pastorix
