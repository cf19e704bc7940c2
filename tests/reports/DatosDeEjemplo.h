#pragma once

#include "reports/motor/FuenteDeTablas.h"

#include <initializer_list>
#include <string>
#include <vector>

// Tables in memory for the tests of the report engine, with made-up farms.
namespace ejemplo {

using Fila = std::vector<pastorix::Valor>;

// A table from its column names and rows; rows may be shorter than the columns, the rest is Null.
pastorix::TablaDatos Tabla(const std::string& nombre, std::vector<std::string> columnas,
                           std::vector<Fila> filas = {});

inline pastorix::Valor N(double n) {
    return n;
}
inline pastorix::Valor T(const char* t) {
    return std::string(t);
}
inline pastorix::Valor F(int d, int m, int a) {
    return *pastorix::Fecha::De(a, m, d);
}

// The scratch tables of the yearly technical report for so many farms; the second farm has no calvings.
pastorix::TablasEnMemoria IndicesTecnicos(int granjas);

// What the queries of the lists of people give; every fifth farmer has no veterinarian, every seventh no address, some have left.
pastorix::TablasEnMemoria Registros(int ganaderos);

} // namespace ejemplo
