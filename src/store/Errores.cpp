#include "store/Errores.h"

namespace pastorix {

bool ErrorAlmacen::DelFichero() const {
    return m_codigo == CodigoError::Bloqueada || m_codigo == CodigoError::SoloLectura ||
           m_codigo == CodigoError::DiscoOFichero || m_codigo == CodigoError::NoSePuedeAbrir;
}

} // namespace pastorix
