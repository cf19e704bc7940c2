#pragma once

#include "reports/motor/Tira.h"

namespace pastorix {

// Cuts a flow of strips into pages: repeats headings, keeps together what belongs together, splits only what is taller than a page.
class Paginador {
public:
    // Height of the body of a page (mm), and where it begins on the page.
    Paginador(double altoUtil, double izquierda, double arriba);

    // Throws ErrorInforme(Limite) when the report has more pages than anyone reads.
    void Colocar(Flujo flujo);

    std::vector<Pagina>& Hojas() { return m_paginas; }
    std::vector<Paginas::Entrada>& Indice() { return m_indice; }
    NumeroDePagina NumeroDe(std::size_t pagina) const;
    // Row that a page begins with, null for an empty one.
    const Contexto* ContextoDe(std::size_t pagina) const { return m_contextos[pagina]; }

private:
    struct Cursor {
        std::size_t pagina = 0;
        double y = 0;
    };
    void ColocarFlujo(Flujo& flujo, Cursor& cursor);
    void ColocarTira(Tira& tira, Cursor& cursor);
    void ColocarColumnas(Tira& tira, Cursor& cursor);
    void PonerTrozos(std::vector<Trozo>&& trozos, const Contexto* contexto, double alto, Cursor& cursor);
    void PaginaNueva(const Tira& tira, Cursor& cursor);
    bool Cabe(double alto, const Cursor& cursor) const;
    static double AltoEncadenado(const Flujo& flujo, std::size_t i, std::size_t rango, double hueco);
    double AltoJunto(const Flujo& flujo, std::size_t i, std::size_t& rango) const;

    double m_alto;
    double m_izquierda;
    double m_arriba;
    std::vector<Pagina> m_paginas{1};
    std::vector<const Contexto*> m_contextos{nullptr};
    std::vector<Paginas::Entrada> m_indice;
    std::vector<std::size_t> m_comienzos{0}; // pages with which the numbering of a group begins
};

} // namespace pastorix
