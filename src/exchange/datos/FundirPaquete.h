#pragma once

#include "exchange/datos/Comun.h"

namespace pastorix {

// The farmers whose records a package brings: those with TorosComun 'No', by code. Shared ones and those without a word there are not.
std::vector<double> GanaderosDelPaquete(Conexion& paquete);

// The package holds no farmer that could be merged.
class PaqueteSinGanaderos : public ErrorDeIntercambio {
public:
    PaqueteSinGanaderos()
        : ErrorDeIntercambio("No hay Ganaderos en la Base de datos de Importación") {}
};

// Merges a package into a working copy of the central database: whatever the copy holds of the package's farmers goes, and the package's
// rows come, whole tables of them, whoever's they be. `usuario` is the station whose rows of the log are replaced. What was done before a
// failure stays in the copy, which is worth nothing then. Throws PaqueteSinGanaderos before it writes; ErrorAlmacen.
void FundirPaquete(Conexion& paquete, Conexion& copia, const std::string& usuario, const Progreso& progreso);

} // namespace pastorix
