#pragma once

#include <cstddef>

// Where the two treated versions of the file format keep their fields. All values are bytes, positions count from the start
// of the page, of the joined definition or of the column descriptor.
namespace pastorix::access {

struct Formato {
    int version;
    std::size_t pagina; // size of a page

    // Header page: the masked area begins at 0x18 in both.
    std::size_t enmascarados, bytesClave;

    // Data page.
    std::size_t numeroFilas, tablaFilas;

    // Table definition, and the sizes of the blocks behind its fixed part.
    std::size_t filas, tipoTabla, maxColumnas, columnas, indicesLogicos, indicesReales, mapaPropio, finFijo;
    std::size_t entradaIndice, descriptor, indiceReal, indiceLogico, largoNombre;

    // Column descriptor.
    std::size_t numero, lugar, escala, marcas, lugarFijo, longitud;

    // Row: width of the column count at its head.
    std::size_t cuenta;

    bool EsJet4() const { return version == 4; }
};

inline constexpr Formato Jet3{
    .version = 3,
    .pagina = 2048,
    .enmascarados = 126,
    .bytesClave = 20,
    .numeroFilas = 8,
    .tablaFilas = 10,
    .filas = 12,
    .tipoTabla = 20,
    .maxColumnas = 21,
    .columnas = 25,
    .indicesLogicos = 27,
    .indicesReales = 31,
    .mapaPropio = 35,
    .finFijo = 43,
    .entradaIndice = 8,
    .descriptor = 18,
    .indiceReal = 39,
    .indiceLogico = 20,
    .largoNombre = 1,
    .numero = 1,
    .lugar = 3,
    .escala = 12,
    .marcas = 13,
    .lugarFijo = 14,
    .longitud = 16,
    .cuenta = 1,
};

inline constexpr Formato Jet4{
    .version = 4,
    .pagina = 4096,
    .enmascarados = 128,
    .bytesClave = 40,
    .numeroFilas = 12,
    .tablaFilas = 14,
    .filas = 16,
    .tipoTabla = 40,
    .maxColumnas = 41,
    .columnas = 45,
    .indicesLogicos = 47,
    .indicesReales = 51,
    .mapaPropio = 55,
    .finFijo = 63,
    .entradaIndice = 12,
    .descriptor = 25,
    .indiceReal = 52,
    .indiceLogico = 28,
    .largoNombre = 2,
    .numero = 5,
    .lugar = 7,
    .escala = 12,
    .marcas = 15,
    .lugarFijo = 21,
    .longitud = 23,
    .cuenta = 2,
};

} // namespace pastorix::access
