#pragma once

#include "reports/motor/Bandas.h"

#include <deque>

namespace pastorix {

// Walks the layout over the rows and yields the strips in order, before they are cut into pages.
class Compositor {
public:
    Compositor(const Disposicion& disposicion, const Conjuntos& conjuntos, const Evaluador& evaluador,
               Bandas& bandas);

    // The strips refer to rows and headings that the composer owns: it must outlive them.
    // Throws ErrorInforme(Limite) when the layout multiplies rows beyond any report.
    Flujo Componer();

private:
    // Where the walk stands.
    struct Lugar {
        const Contexto* contexto = nullptr;
        const Repetida* cabeceras = nullptr;
        double x = 0;
        double ancho = 0;
        bool impar = false;
        int nivel = 0;           // groups of the index around
        bool conPaginas = false; // within a group whose pages are numbered by themselves
    };
    using Filas = std::vector<std::size_t>;

    void Nodos(const std::vector<Nodo>& nodos, const Lugar& lugar, Flujo& flujo);
    void UnaSeccion(const Seccion& seccion, const Lugar& lugar, Flujo& flujo);
    void UnGrupo(const Seccion& seccion, std::size_t nivel, const Filas& filas, const Lugar& lugar,
                 Flujo& flujo);
    // Notes that a group begins, and returns where what is in it stands.
    Lugar Empezar(const Lugar& lugar, const QString& indice, bool paginaNueva, Flujo& flujo) const;
    void Columnas(const Nodo& nodo, const Lugar& lugar, Flujo& flujo);
    Filas FilasDe(const Seccion& seccion, const Lugar& lugar);
    QString TextoDeIndice(const Grupo& grupo, const Contexto* contexto) const;
    std::vector<Filas> Agrupar(const Grupo& grupo, const Filas& filas) const;
    void PonerBanda(const Banda& banda, const Lugar& lugar, Flujo& flujo);
    // A heading: printed now, and again on every page where what follows goes on. Returns where what follows stands.
    Lugar PonerCabecera(const Banda& banda, const Lugar& lugar, Flujo& flujo);
    void PonerPie(const Banda& banda, const Lugar& lugar, Flujo& flujo);
    void Poner(Tira tira, const Lugar& lugar, Flujo& flujo);
    const Contexto* Entrar(const Lugar& lugar, int tabla, std::size_t fila, const Filas* filas);

    const Disposicion& m_disposicion;
    const Conjuntos& m_conjuntos;
    const Evaluador& m_evaluador;
    Bandas& m_bandas;
    std::deque<Contexto> m_contextos;
    std::deque<Repetida> m_repetidas;
    std::deque<Filas> m_filas;
    std::size_t m_pasos = 0;
};

} // namespace pastorix
