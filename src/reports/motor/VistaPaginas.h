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

    // Begins to go from figure to figure with the arrows: Enter asks the marked one, Escape ends it. False when no page has figures that can be
    // asked.
    bool PreguntarCifras();

Q_SIGNALS:
    void PaginaCambiada(int pagina);
    void ZoomCambiado(double zoom);
    // A figure was asked: position of its key in the pages, and its text.
    void CifraElegida(int figura, const QString& impreso);

protected:
    bool event(QEvent* evento) override;
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
    const TextoColocado& Texto(const Hallazgo& donde) const;
    QRectF LugarEnPagina(const Hallazgo& donde) const; // mm on its page
    QRectF LugarEnVentana(const Hallazgo& donde) const;
    void Resaltar(QPainter& pintor, const Hallazgo& donde, const QColor& color) const;
    void Mostrar(const Hallazgo& donde);
    void MoverCifra(int tecla);
    Hallazgo CifraEn(const QPoint& punto) const;
    void Elegir(const Hallazgo& cifra);

    const Paginas& m_paginas;
    double m_zoom = 1;
    Ajuste m_ajuste = Ajuste::Ancho;
    int m_actual = 0;
    QCache<int, QPixmap> m_dibujadas;
    double m_escalaDibujada = 0;
    Hallazgo m_hallazgo;
    Hallazgo m_cifra; // marked while figures are asked by keyboard
    QPoint m_arrastre;
    QPoint m_pulsado;
    bool m_arrastrando = false;
};

} // namespace pastorix
