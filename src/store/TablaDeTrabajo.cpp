#include "store/TablaDeTrabajo.h"

namespace pastorix {

void VaciarTabla(Conexion& c, std::string_view tabla) {
    c.Execute("DELETE FROM " + std::string(tabla));
}

TablaDeTrabajo::TablaDeTrabajo(Conexion& c, std::string_view tabla)
    : m_c(c)
    , m_sentencia("SELECT * FROM " + std::string(tabla))
    , m_rs(Recordset::ParaAñadir(c, m_sentencia)) {}

Recordset& TablaDeTrabajo::Fila() {
    Escribir();
    m_rs.AddNew();
    m_pendiente = true;
    return m_rs;
}

void TablaDeTrabajo::Escribir() {
    if (m_pendiente)
        m_rs.Update();
    m_pendiente = false;
}

void TablaDeTrabajo::Cerrar() {
    Escribir();
    m_rs.Cerrar();
    for (int i = 0; i < 2; ++i)
        Recordset(m_c, m_sentencia).Cerrar();
}

} // namespace pastorix
