#pragma once

#include "exchange/datos/Comun.h"
#include "store/Diferencias.h"

#include <optional>

// What would change if a package were taken: a comparison of two databases, without writing.
namespace pastorix {

// What changes in one table for one farmer.
struct CambioDeTabla {
    double ganadero = 0;
    std::string nombre; // the farmer's
    std::string tabla;
    long vienen = 0, seVan = 0, cambian = 0;
    std::vector<std::string> columnas;
    std::vector<FilaDistinta> filas;
};

struct Comparacion {
    std::vector<CambioDeTabla> cambios; // by farmer and table; without those in which nothing changes
    std::vector<std::string> avisos;    // what somebody should know of before, a clear line each
    std::vector<std::string> choques;   // keys that would be there twice: the merge is bound to fail
    long vienen = 0, seVan = 0, cambian = 0;
};

// The merge of a package into the central database, for the veterinarian with that login.
Comparacion CompararFusion(Conexion& central, Conexion& paquete, const std::string& usuario);
// Only the checks of it.
Comparacion ComprobarFusion(Conexion& central, Conexion& paquete, const std::string& usuario);

// A station's database that is replaced by a package, whole.
Comparacion CompararReemplazo(Conexion& base, Conexion& paquete);

// A catalogue of bulls taken into a database: shared farmers and their bulls.
Comparacion CompararToros(Conexion& base, Conexion& catalogo);

// The whole of it in lines: for a window, a terminal. `filas` is how many rows per table are told in full.
std::vector<std::string> Lineas(const Comparacion& c, std::size_t filas = 20);
// "T_Vacas 1200044: Nombre «Mora» → «Morica»"
std::string Texto(const CambioDeTabla& cambio, const FilaDistinta& fila);

} // namespace pastorix
