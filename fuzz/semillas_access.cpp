#include "EscritorAccess.h"

#include <fstream>
#include <string>

using namespace pastorix::access;
using namespace pastorix::access::ayudas;

namespace {

// A table with every column type and every state of a row, as small as it can be.
TablaNueva Pequeña(int version, bool mapaPorReferencia) {
    TablaNueva tabla{"T", {}, {}};
    FilaNueva fila;
    for (const int tipo : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 15, 16, 17}) {
        const Tipo t{static_cast<std::uint8_t>(tipo)};
        const bool fija = tipo < 9, largo = t == Tipo::Memo || t == Tipo::Ole;
        tabla.columnas.push_back({"c" + std::to_string(tipo), t, fija, largo ? 0 : fija ? 8 : 17, -1, 3});
        fila.celdas.emplace_back(largo ? Bytes(version == 3 ? 1200 : 2200, 'x') : Bytes(fija ? 8 : 17, 0x40));
    }
    for (const Estado estado : {Estado::Viva, Estado::Borrada, Estado::Trasladada}) {
        fila.estado = estado;
        tabla.filas.push_back(fila);
    }
    tabla.filas[1].celdas[10] = tabla.filas[1].celdas[11] = Bytes{0xFF, 0xFE, 'a', 0, 0xAC, 0x20, 0, 'b'};
    tabla.mapaPorReferencia = mapaPorReferencia;
    return tabla;
}

} // namespace

int main(int argc, char** argv) {
    const std::string carpeta = argc > 1 ? argv[1] : ".";
    for (const int version : {3, 4}) {
        for (const bool otra : {false, true}) {
            const Plano plano = Escribir({.version = version,
                                          .llave = otra ? 0x1234567U : 0U,
                                          .clave = "clave",
                                          .tablas = {Pequeña(version, otra)}});
            std::ofstream salida(carpeta + "/jet" + std::to_string(version) + (otra ? "-cifrada" : "") +
                                     ".mdb",
                                 std::ios::binary);
            salida.write(reinterpret_cast<const char*>(plano.contenido.data()),
                         static_cast<std::streamsize>(plano.contenido.size()));
        }
    }
}
