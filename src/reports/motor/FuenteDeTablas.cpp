#include "reports/motor/FuenteDeTablas.h"

#include "reports/motor/ErrorInforme.h"
#include "store/Textos.h"

#include <algorithm>

namespace pastorix {

int TablaDatos::Columna(std::string_view nombreColumna) const {
    for (std::size_t i = 0; i < columnas.size(); ++i) {
        if (IgualSinCaso(columnas[i], nombreColumna))
            return static_cast<int>(i);
    }
    return -1;
}

void TablasEnMemoria::Poner(TablaDatos tabla) {
    std::erase_if(m_tablas, [&](const TablaDatos& t) { return IgualSinCaso(t.nombre, tabla.nombre); });
    m_tablas.push_back(std::move(tabla));
}

TablaDatos TablasEnMemoria::Leer(std::string_view nombre, std::string_view) const {
    for (const TablaDatos& tabla : m_tablas) {
        if (IgualSinCaso(tabla.nombre, nombre))
            return tabla;
    }
    throw ErrorInforme(CodigoInforme::DatosDesconocidos,
                       "La base de datos no tiene la tabla \"" + std::string(nombre) + "\"");
}

} // namespace pastorix
