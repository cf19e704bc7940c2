#include "reports/motor/LectorDeTablas.h"

#include "reports/motor/ErrorInforme.h"
#include "store/Errores.h"
#include "store/Recordset.h"

namespace pastorix {

TablaDatos LectorDeTablas::Leer(std::string_view nombre, std::string_view consulta) const {
    try {
        TablaDatos tabla;
        tabla.nombre = nombre;
        // The name comes from a layout, whose reader lets only letters, digits and underscore pass.
        Recordset rs(m_conexion,
                     consulta.empty() ? "SELECT * FROM " + std::string(nombre) : std::string(consulta),
                     Cursor::Estatico, Bloqueo::SoloLectura);
        for (int i = 0; i < rs.Campos(); ++i)
            tabla.columnas.push_back(rs.NombreCampo(i));
        for (; !rs.Eof(); rs.Siguiente()) {
            std::vector<Valor> fila;
            fila.reserve(tabla.columnas.size());
            for (int i = 0; i < rs.Campos(); ++i)
                fila.push_back(rs[i].Leer());
            tabla.filas.push_back(std::move(fila));
        }
        return tabla;
    } catch (const ErrorAlmacen& e) {
        const bool suya = e.Codigo() == CodigoError::Sintaxis ||
                          e.Codigo() == CodigoError::ColumnaDesconocida ||
                          e.Codigo() == CodigoError::TablaDesconocida;
        if (!suya)
            throw;
        if (!consulta.empty())
            throw ErrorInforme(CodigoInforme::DatosDesconocidos, e.what(), e.Detalle());
        throw ErrorInforme(CodigoInforme::DatosDesconocidos,
                           "La base de datos no tiene la tabla \"" + std::string(nombre) + "\"");
    }
}

} // namespace pastorix
