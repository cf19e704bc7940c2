#pragma once

#include "reports/motor/Medidor.h"
#include "reports/motor/Tira.h"

namespace pastorix {

// Fills bands: evaluates texts, breaks and measures them, grows the band, and yields a strip of primitives.
class Bandas {
public:
    Bandas(const Conjuntos& conjuntos, const Evaluador& evaluador, Medidor& medidor);

    // x is where the band begins, right of the left margin (mm); ancho is its width. impar says that it is every second row.
    Tira Hacer(const Banda& banda, const Contexto* contexto, double x, double ancho, bool impar = false,
               const NumeroDePagina& n = {});

    // The keys of the figures that were placed.
    QStringList& Figuras() { return m_figuras; }

private:
    struct Medido;
    Medido Medir(const Elemento& elemento, const Contexto* contexto, const NumeroDePagina& n);
    void Encoger(Medido& m, const QString& linea, double ancho);
    void PonerTexto(Tira& tira, const Medido& medido, double x, double crece) const;
    void PonerGrafico(Tira& tira, const Medido& medido, double x, const Contexto* contexto);
    int AñadirFigura(const QString& clave);
    void PonerCaja(Tira& tira, const Medido& medido, double x, double crece) const;
    std::shared_ptr<const DatosGrafico> Grafico(const Elemento& elemento, const Contexto* contexto);

    const Conjuntos& m_conjuntos;
    const Evaluador& m_evaluador;
    Medidor& m_medidor;
    QStringList m_figuras;
};

} // namespace pastorix
