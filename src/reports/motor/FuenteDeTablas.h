#pragma once

#include "store/Valor.h"

#include <string>
#include <string_view>
#include <vector>

namespace pastorix {

// One table as the engine reads it: all rows, in the order in which they were written.
struct TablaDatos {
    std::string nombre;
    std::vector<std::string> columnas;
    std::vector<std::vector<Valor>> filas; // one Valor per column

    // Position of a column, without regard to case; -1 when there is none.
    int Columna(std::string_view nombreColumna) const;
};

// Where reports take their tables from: the session's connection, or memory in tests.
class FuenteDeTablas {
public:
    virtual ~FuenteDeTablas() = default;
    // The whole table; or, where a statement is given, its rows under that name. Throws ErrorInforme(DatosDesconocidos) when there is no
    // such table, or the statement names what is not there.
    virtual TablaDatos Leer(std::string_view nombre, std::string_view consulta = {}) const = 0;
};

// Tables held in memory: tests, demonstrations, fuzzing. It runs no statements: their rows are put in under their name.
class TablasEnMemoria : public FuenteDeTablas {
public:
    void Poner(TablaDatos tabla);
    TablaDatos Leer(std::string_view nombre, std::string_view consulta = {}) const override;

private:
    std::vector<TablaDatos> m_tablas;
};

} // namespace pastorix
