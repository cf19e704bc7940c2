#pragma once

#include "store/Recordset.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace pastorix {

// Scratch tables are emptied by each report and filled row by row.
void VaciarTabla(Conexion& c, std::string_view tabla);

// A scratch table open for output. Every row is written when the next one begins or the table is closed; columns that nobody
// assigned stay Null, which the layouts print blank.
class TablaDeTrabajo {
public:
    TablaDeTrabajo(Conexion& c, std::string_view tabla);

    // Adds a row; returns it for the columns to be assigned.
    Recordset& Fila();
    // Writes the last row and closes. The query is then opened and closed twice more, which lets every reader see the rows: a habit
    // of the old platform that costs nothing and stays.
    void Cerrar();

private:
    void Escribir();

    Conexion& m_c;
    std::string m_sentencia;
    Recordset m_rs;
    bool m_pendiente = false;
};

} // namespace pastorix
