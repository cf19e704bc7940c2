#include "access/MapaDeUso.h"

#include <algorithm>
#include <bit>
#include <string>

namespace pastorix::access {

namespace {

// Adds the page of every set bit; bit 0 stands for page `primera`.
void Añadir(Vista bits, std::uint64_t primera, std::uint32_t cuantas, std::vector<std::uint32_t>& mapa) {
    for (std::size_t i = 0; i < bits.size(); ++i) {
        for (unsigned byte = bits[i]; byte != 0; byte &= byte - 1) {
            const std::uint64_t pagina = primera + 8ULL * i + static_cast<unsigned>(std::countr_zero(byte));
            if (pagina >= cuantas)
                Cortar("faltan páginas de datos (la " + std::to_string(pagina) + "); el fichero tiene " +
                       std::to_string(cuantas));
            mapa.push_back(static_cast<std::uint32_t>(pagina));
        }
    }
}

} // namespace

std::vector<std::uint32_t> LeerMapaDeUso(const Paginas& paginas, PunteroFila donde) {
    const Lector fila = paginas.Datos(donde.Pagina()).Fila(donde.Fila()).bytes;
    if (fila.Largo() < 5)
        Dañar("un mapa de páginas es demasiado corto", donde.Pagina());
    std::vector<std::uint32_t> mapa;
    switch (fila.U8(0)) {
    case 0:
        Añadir(fila.Trozo(5, fila.Largo() - 5), fila.U32(1), paginas.Cuantas(), mapa);
        break;
    case 1: {
        const std::uint64_t bitsPorPagina = (paginas.DeFormato().pagina - 4) * 8ULL;
        std::vector<std::uint32_t> referidas;
        for (std::uint64_t e = 0; 5 + 4 * e <= fila.Largo(); ++e) {
            const std::uint32_t referida = fila.U32(1 + 4 * e);
            if (referida == 0)
                continue;
            if (std::find(referidas.begin(), referidas.end(), referida) != referidas.end())
                Dañar("un mapa de páginas repite una de sus partes", referida);
            referidas.push_back(referida);
            const Lector bits = paginas.Pagina(referida, TipoPagina::MapaDeBits);
            Añadir(bits.Trozo(4, bits.Largo() - 4), e * bitsPorPagina, paginas.Cuantas(), mapa);
        }
        break;
    }
    default:
        Dañar("un mapa de páginas es de una clase desconocida", donde.Pagina());
    }
    return mapa;
}

} // namespace pastorix::access
