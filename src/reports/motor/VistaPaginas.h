#pragma once

#include "reports/motor/Pagina.h"

#include <QAbstractScrollArea>
#include <QCache>
#include <QPixmap>

namespace pastorix {

// The pages of a report one below the other, white on the window's ground. Only what is in sight is drawn, at the resolution of
// the screen. Keyboard: arrows and page keys scroll, Ctrl with Home and End goes to the ends, Ctrl with + - 0 zooms.
class VistaPaginas : public QAbstractScrollArea {
    Q_OBJECT
public:
    enum class Ajuste { Libre, Ancho, Pagina };

    // The pages must outlive the view.
    explicit VistaPaginas(const Paginas& paginas, QWidget* padre = nullptr);

    int PaginaActual() const { return m_actual; } // from 0
    void IrA(int pagina);

    double Zoom() const { return m_zoom; } // 1 is the size on paper
    void PonerZoom(double zoom);
    void PonerAjuste(Ajuste ajuste);
    Ajuste AjusteActual() const { return m_ajuste; }

    // Goes to the next text (or the one before) that holds the words, without regard to case and accents, round the ends. False when no
    // page has it. An empty text takes the mark away.
    bool Buscar(const QString& texto, bool atras = false);

Q_SIGNALS:
    void PaginaCambiada(int pagina);
    void ZoomCambiado(double zoom);

protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

private:
    struct Hallazgo {
        int pagina = -1;
        std::size_t trozo = 0;
    };
    double Escala() const; // pixels per millimetre
    QSizeF TamañoDePagina() const;
    QRectF LugarDe(int pagina) const; // in the viewport
    double AltoDePaso() const;
    void Recolocar(bool guardarSitio);
    void PonerActual();
    void PonerActual(int pagina);
    void DibujarUna(QPainter& pintor, int pagina);
    QRectF LugarDelHallazgo() const; // mm on its page
    void MostrarHallazgo();

    const Paginas& m_paginas;
    double m_zoom = 1;
    Ajuste m_ajuste = Ajuste::Ancho;
    int m_actual = 0;
    QCache<int, QPixmap> m_dibujadas;
    double m_escalaDibujada = 0;
    Hallazgo m_hallazgo;
    QPoint m_arrastre;
    bool m_arrastrando = false;
};

} // namespace pastorix
