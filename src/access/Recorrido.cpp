#include "access/Recorrido.h"

#include "access/Celdas.h"
#include "access/MapaDeUso.h"

#include <algorithm>
#include <unordered_set>

namespace pastorix::access {

namespace {

// The pages of one table, and the rows of it that were reached through a pointer.
class PaginasDeTabla {
public:
    PaginasDeTabla(const Paginas& paginas, const Definicion& definicion)
        : m_paginas(paginas)
        , m_tabla(definicion.pagina)
        , m_propias(LeerMapaDeUso(paginas, definicion.mapa)) {}

    const std::vector<std::uint32_t>& Propias() const { return m_propias; }

    PaginaDeDatos Abrir(std::uint32_t numero) const {
        const PaginaDeDatos pagina = m_paginas.Datos(numero);
        if (pagina.Dueño() != m_tabla)
            Dañar("la página es de otra tabla", numero);
        return pagina;
    }

    // The row that a moved row points to. The engine makes one step; a few are followed.
    Lector Seguir(Lector fila) {
        constexpr int maxPasos = 4;
        for (int paso = 0; paso < maxPasos; ++paso) {
            const PunteroFila destino{fila.U32(0)};
            if (!std::binary_search(m_propias.begin(), m_propias.end(), destino.Pagina()))
                Dañar("una fila trasladada apunta fuera de su tabla", fila.Pagina());
            const FilaCruda nueva = Abrir(destino.Pagina()).Fila(destino.Fila());
            // Without the mark the row would come a second time, by itself.
            if ((nueva.marcas & filaOculta) == 0 || !m_alcanzadas.insert(destino.valor).second)
                Dañar("se llega dos veces a la misma fila", destino.Pagina());
            if ((nueva.marcas & filaTrasladada) == 0)
                return nueva.bytes;
            fila = nueva.bytes;
        }
        Dañar("una fila se ha trasladado demasiadas veces", fila.Pagina());
    }

private:
    const Paginas& m_paginas;
    std::uint32_t m_tabla;
    std::vector<std::uint32_t> m_propias;
    std::unordered_set<std::uint32_t> m_alcanzadas;
};

} // namespace

std::uint64_t RecorrerFilas(const Paginas& paginas, const Definicion& definicion, const Textos& textos,
                            ValoresLargos& largos, const std::function<void(std::span<const Celda>)>& fila) {
    PaginasDeTabla tabla(paginas, definicion);
    Celdas celdas(definicion, paginas.DeFormato(), textos, largos);
    std::uint64_t filas = 0;
    for (const std::uint32_t numero : tabla.Propias()) {
        const PaginaDeDatos pagina = tabla.Abrir(numero);
        for (unsigned r = 0; r < pagina.Filas(); ++r) {
            const FilaCruda cruda = pagina.Fila(r);
            if ((cruda.marcas & filaOculta) != 0)
                continue; // deleted, or comes through its pointer
            fila(celdas.Leer((cruda.marcas & filaTrasladada) != 0 ? tabla.Seguir(cruda.bytes) : cruda.bytes));
            ++filas;
        }
    }
    return filas;
}

} // namespace pastorix::access
