#include "registers/datos/CodigoDeVaca.h"

#include "frame/calendario/ErrorDeEjecucion.h"
#include "store/Literales.h"
#include "store/Recordset.h"

namespace pastorix {

std::string CodigoDeVaca(Conexion& c, double idGanadero) {
    constexpr std::size_t kCifrasDePrefijo = 6;
    const auto id = NumeroSql(idGanadero);
    const double siguiente =
        SiguienteId(c, "Select Id_Vaca FROM T_Vacas WHERE Id_Ganadero = " + id + " ORDER BY Id_Vaca");
    if (idGanadero <= siguiente)
        return TextoNumero(siguiente);
    const auto prefijo = TextoNumero(idGanadero);
    if (prefijo.size() > kCifrasDePrefijo)
        throw ErrorDeEjecucion(5, "No se puede proponer el código de la vaca: el del ganadero (" + prefijo +
                                      ") tiene más de 6 cifras");
    return prefijo + std::string(kCifrasDePrefijo - prefijo.size(), '0') + "1";
}

} // namespace pastorix
