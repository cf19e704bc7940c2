#include "store/Errores.h"

#include <utility>

namespace pastorix {

ErrorAlmacen::ErrorAlmacen(CodigoError codigo, const std::string& descripcion, std::string sentencia)
    : std::runtime_error(sentencia.empty() ? descripcion : descripcion + "\n" + sentencia)
    , m_codigo(codigo)
    , m_sentencia(std::move(sentencia)) {}

} // namespace pastorix
