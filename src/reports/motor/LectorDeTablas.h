#pragma once

#include "reports/motor/FuenteDeTablas.h"

namespace pastorix {

class Conexion;

// Tables of an open connection. The only place where the engine touches the store.
class LectorDeTablas : public FuenteDeTablas {
public:
    // The connection must be open whenever Leer is called, and outlive the reader.
    explicit LectorDeTablas(Conexion& conexion)
        : m_conexion(conexion) {}

    TablaDatos Leer(std::string_view nombre, std::string_view consulta = {}) const override;

protected:
    Conexion& Base() const { return m_conexion; }

private:
    Conexion& m_conexion;
};

} // namespace pastorix
