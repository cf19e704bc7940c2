#include "access/Paginas.h"

#include "access/Rc4.h"

#include <array>

namespace pastorix::access {

PaginaDeDatos::PaginaDeDatos(const Lector& pagina, const Formato& formato)
    : m_pagina(pagina)
    , m_formato(&formato)
    , m_filas(pagina.U16(formato.numeroFilas)) {}

void PaginaDeDatos::Comprobar() const {
    const std::uint64_t finTabla = m_formato->tablaFilas + 2ULL * m_filas;
    if (finTabla > m_pagina.Largo())
        Dañar("la tabla de filas no cabe en su página", m_pagina.Pagina());
    std::uint64_t fin = m_pagina.Largo();
    for (unsigned r = 0; r < m_filas; ++r) {
        const unsigned principio = Entrada(r) & 0x1FFFU;
        if (principio < finTabla || principio > fin)
            Dañar("la fila " + std::to_string(r) + " invade otra", m_pagina.Pagina());
        fin = principio;
    }
}

FilaCruda PaginaDeDatos::Fila(unsigned numero) const {
    if (numero >= m_filas)
        Dañar("se busca la fila " + std::to_string(numero) + ", que no existe", m_pagina.Pagina());
    const unsigned entrada = Entrada(numero);
    const std::uint64_t principio = entrada & 0x1FFFU;
    const std::uint64_t fin = numero == 0 ? m_pagina.Largo() : Entrada(numero - 1) & 0x1FFFU;
    return {m_pagina.Parte(principio, fin - principio), entrada & (filaTrasladada | filaOculta)};
}

Paginas::Paginas(std::vector<std::uint8_t> contenido, const Cabecera& cabecera)
    : m_contenido(std::move(contenido))
    , m_formato(cabecera.formato)
    , m_cuantas(static_cast<std::uint32_t>(m_contenido.size() / m_formato->pagina))
    , m_comprobadas(m_cuantas) {
    if (cabecera.llave == 0)
        return;
    // The stream starts afresh on each page; the header page is not encoded.
    for (std::uint32_t n = 1; n < m_cuantas; ++n) {
        const std::uint32_t llave = cabecera.llave ^ n;
        Rc4({static_cast<std::uint8_t>(llave), static_cast<std::uint8_t>(llave >> 8),
             static_cast<std::uint8_t>(llave >> 16), static_cast<std::uint8_t>(llave >> 24)},
            std::span(m_contenido).subspan(n * m_formato->pagina, m_formato->pagina));
    }
}

Lector Paginas::Pagina(std::uint32_t numero, TipoPagina tipo) const {
    if (numero == 0)
        Dañar("un enlace apunta a la cabecera del fichero");
    if (numero >= m_cuantas)
        Dañar("se apunta a la página " + std::to_string(numero) + ", que no existe; hay " +
              std::to_string(m_cuantas));
    const Lector pagina(Vista(m_contenido).subspan(numero * m_formato->pagina, m_formato->pagina), numero);
    if (pagina.U8(0) != static_cast<std::uint8_t>(tipo))
        Dañar("la página no es de la clase que se espera", numero);
    return pagina;
}

PaginaDeDatos Paginas::Datos(std::uint32_t numero) const {
    const PaginaDeDatos pagina(Pagina(numero, TipoPagina::Datos), *m_formato);
    if (!m_comprobadas[numero]) {
        pagina.Comprobar();
        m_comprobadas[numero] = true;
    }
    return pagina;
}

} // namespace pastorix::access
