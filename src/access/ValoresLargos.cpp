#include "access/ValoresLargos.h"

#include <algorithm>

namespace pastorix::access {

namespace {
constexpr std::uint64_t largoCabeza = 12;
constexpr std::uint32_t enLaFila = 0x80000000, enUnaPagina = 0x40000000, mascaraLargo = 0x3FFFFFFF;
} // namespace

Vista ValoresLargos::Leer(const Lector& celda, const Vuelta& vuelta, std::vector<std::uint8_t>& hueco) {
    if (celda.Largo() < largoCabeza)
        Dañar("un texto largo no tiene cabeza", celda.Pagina());
    const std::uint32_t cabeza = celda.U32(0);
    const std::uint64_t largo = cabeza & mascaraLargo;
    if (largo > m_paginas.Bytes())
        Dañar("un texto largo dice ser mayor que el fichero", celda.Pagina());
    if ((cabeza & enLaFila) != 0)
        return celda.Trozo(largoCabeza, largo);
    if (largo == 0)
        return {};
    const PunteroFila donde{celda.U32(4)};
    if ((cabeza & enUnaPagina) != 0)
        return Parte(donde, vuelta).Trozo(0, largo);
    return Cadena(donde, largo, vuelta, hueco);
}

Lector ValoresLargos::Parte(PunteroFila donde, const Vuelta& vuelta) {
    const PaginaDeDatos pagina = m_paginas.Datos(donde.Pagina());
    if (pagina.Dueño() != dueñoValoresLargos)
        Dañar("un texto largo apunta a una página que no es de textos largos", donde.Pagina());
    const FilaCruda fila = pagina.Fila(donde.Fila());
    if (fila.marcas != 0)
        Dañar("un texto largo apunta a una fila borrada o trasladada", donde.Pagina());
    const auto [uso, nuevo] = m_usos.try_emplace(donde.valor);
    if (!nuevo && (uso->second.tabla != vuelta.tabla || uso->second.numero == vuelta.numero))
        Dañar("dos textos largos comparten la fila " + std::to_string(donde.Fila()), donde.Pagina());
    uso->second = vuelta;
    return fila.bytes;
}

Vista ValoresLargos::Cadena(PunteroFila primera, std::uint64_t largo, const Vuelta& vuelta,
                            std::vector<std::uint8_t>& hueco) {
    hueco.clear();
    for (PunteroFila donde = primera; hueco.size() < largo;) {
        if (donde.valor == 0)
            Dañar("un texto largo acaba antes de tiempo");
        const Lector parte = Parte(donde, vuelta);
        const Vista trozo = parte.Trozo(4, std::max<std::uint64_t>(parte.Largo(), 4) - 4);
        hueco.insert(hueco.end(), trozo.begin(), trozo.end());
        donde.valor = parte.U32(0);
    }
    return Vista(hueco).first(static_cast<std::size_t>(largo));
}

} // namespace pastorix::access
