// Figures of the pages that can be asked where they come from, by mouse and by keyboard.
#include "reports/motor/VistaPaginas.h"

#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <limits>

namespace pastorix {

namespace {
constexpr double MismaLinea = 2.0; // mm
constexpr double PesoLateral = 3;  // of a step aside, against one in the direction of the key
} // namespace

bool VistaPaginas::PreguntarCifras() {
    for (std::size_t k = 0; k < m_paginas.paginas.size(); ++k) {
        const std::size_t p = (static_cast<std::size_t>(m_actual) + k) % m_paginas.paginas.size();
        const auto& trozos = m_paginas.paginas[p].trozos;
        for (std::size_t t = 0; t < trozos.size(); ++t) {
            const auto* texto = std::get_if<TextoColocado>(&trozos[t]);
            if (!texto || texto->figura < 0)
                continue;
            m_cifra = {static_cast<int>(p), t};
            Mostrar(m_cifra);
            viewport()->update();
            setFocus();
            return true;
        }
    }
    return false;
}

// To the nearest figure in the direction of the arrow, on this page or the next; the mark stays where there is none.
void VistaPaginas::MoverCifra(int tecla) {
    const bool aLoLargo = tecla == Qt::Key_Left || tecla == Qt::Key_Right;
    const double sentido = tecla == Qt::Key_Right || tecla == Qt::Key_Down ? 1 : -1;
    const auto centro = [this](const Hallazgo& h) {
        const QPointF c = LugarEnPagina(h).center();
        return QPointF(c.x(), c.y() + h.pagina * m_paginas.tamaño.height());
    };
    const QPointF desde = centro(m_cifra);
    Hallazgo mejor;
    double menor = std::numeric_limits<double>::infinity();
    const int ultima = static_cast<int>(m_paginas.paginas.size()) - 1;
    for (int p = std::max(0, m_cifra.pagina - 1); p <= std::min(ultima, m_cifra.pagina + 1); ++p) {
        const auto& trozos = m_paginas.paginas[static_cast<std::size_t>(p)].trozos;
        for (std::size_t t = 0; t < trozos.size(); ++t) {
            const auto* texto = std::get_if<TextoColocado>(&trozos[t]);
            if (!texto || texto->figura < 0)
                continue;
            const QPointF paso = (centro({p, t}) - desde) * sentido;
            const double delante = aLoLargo ? paso.x() : paso.y();
            const double alLado = std::abs(aLoLargo ? paso.y() : paso.x());
            if (delante <= 0.5 || (aLoLargo ? alLado > MismaLinea : delante <= MismaLinea))
                continue;
            const double lejos = delante + PesoLateral * alLado / (aLoLargo ? 1 : 10);
            if (lejos < menor) {
                menor = lejos;
                mejor = {p, t};
            }
        }
    }
    if (mejor.pagina < 0)
        return;
    m_cifra = mejor;
    setAccessibleDescription(Texto(m_cifra).texto);
    Mostrar(m_cifra);
    viewport()->update();
}

VistaPaginas::Hallazgo VistaPaginas::CifraEn(const QPoint& punto) const {
    const int pagina = static_cast<int>((verticalScrollBar()->value() + punto.y()) / AltoDePaso());
    if (pagina < 0 || pagina >= static_cast<int>(m_paginas.paginas.size()))
        return {};
    const auto& trozos = m_paginas.paginas[static_cast<std::size_t>(pagina)].trozos;
    for (std::size_t t = 0; t < trozos.size(); ++t) {
        const auto* texto = std::get_if<TextoColocado>(&trozos[t]);
        if (texto && texto->figura >= 0 && LugarEnVentana({pagina, t}).contains(punto))
            return {pagina, t};
    }
    return {};
}

void VistaPaginas::Elegir(const Hallazgo& cifra) {
    m_cifra = cifra;
    viewport()->update();
    const TextoColocado& texto = Texto(cifra);
    Q_EMIT CifraElegida(texto.figura, texto.texto);
}

// While figures are asked Escape ends that, and does not close the window.
bool VistaPaginas::event(QEvent* evento) {
    if (evento->type() == QEvent::ShortcutOverride && m_cifra.pagina >= 0 &&
        static_cast<QKeyEvent*>(evento)->key() == Qt::Key_Escape) {
        evento->accept();
        return true;
    }
    return QAbstractScrollArea::event(evento);
}

} // namespace pastorix
