#include "reports/motor/Disposicion.h"

#include "reports/motor/ErrorInforme.h"
#include "store/Textos.h"

namespace pastorix {

double Disposicion::AltoUtil() const {
    return altoPagina - arriba - abajo - (cabeceraPagina ? cabeceraPagina->alto : 0) -
           (piePagina ? piePagina->alto : 0);
}

int Disposicion::BuscarTabla(std::string_view nombre) const {
    for (std::size_t i = 0; i < tablas.size(); ++i) {
        if (IgualSinCaso(tablas[i].nombre, nombre))
            return static_cast<int>(i);
    }
    return -1;
}

int Disposicion::BuscarColumna(int tabla, std::string_view nombre) const {
    const auto& columnas = tablas[static_cast<std::size_t>(tabla)].columnas;
    for (std::size_t i = 0; i < columnas.size(); ++i) {
        if (IgualSinCaso(columnas[i].nombre, nombre))
            return static_cast<int>(i);
    }
    return -1;
}

Nombres Disposicion::NombresDeclarados() const {
    Nombres nombres;
    nombres.campo = [this](std::string_view nombre) {
        const std::size_t punto = nombre.find('.');
        if (punto == std::string_view::npos)
            throw ErrorInforme(CodigoInforme::Formula,
                               "El campo \"" + std::string(nombre) + "\" no está escrito como Tabla.Columna");
        const std::string_view deTabla = nombre.substr(0, punto);
        const int tabla = BuscarTabla(deTabla);
        if (tabla < 0)
            throw ErrorInforme(CodigoInforme::Formula,
                               "La tabla \"" + std::string(deTabla) + "\" no está declarada en el informe");
        const int columna = BuscarColumna(tabla, nombre.substr(punto + 1));
        if (columna < 0)
            throw ErrorInforme(CodigoInforme::Formula,
                               "La columna \"" + std::string(nombre) + "\" no está declarada en el informe");
        return RefCampo{tabla, columna};
    };
    nombres.parametro = [this](std::string_view nombre) {
        for (std::size_t i = 0; i < parametros.size(); ++i) {
            if (IgualSinCaso(parametros[i].nombre, nombre))
                return static_cast<int>(i);
        }
        throw ErrorInforme(CodigoInforme::Parametro,
                           "El parámetro \"" + std::string(nombre) + "\" no está declarado en el informe");
    };
    return nombres;
}

} // namespace pastorix
