#pragma once

#include "registers/datos/LineaDeCiclos.h"

#include <QWidget>

#include <functional>
#include <vector>

namespace pastorix {

// A cow's cycles drawn on a time line: calvings, services, diagnosis, dry period, the expected end and the days between calvings, in red where
// they are too many. A click on a cycle opens its sheet; with the focus, arrows choose one and Enter opens it. What is drawn of the cycle chosen is
// told in words to screen readers, and by tooltip of the one under the mouse.
class LineaDeTiempo : public QWidget {
public:
    explicit LineaDeTiempo(QWidget* padre = nullptr);

    void Mostrar(std::vector<CicloEnElTiempo> ciclos, Fecha hoy);
    // The cycle chosen elsewhere: it is outlined here.
    void Elegir(double idCubricion);

    std::function<void(const CicloDeVaca&)> alAbrir;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {320, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    bool event(QEvent* evento) override;

private:
    struct Escala; // days to places
    Escala LaEscala() const;
    int CicloEn(double x) const; // -1 none
    void Situar(int ciclo);
    void PintarAños(QPainter& p, const Escala& e) const;
    void PintarCiclo(QPainter& p, const Escala& e, int i) const;
    void PintarHechos(QPainter& p, const Escala& e, const CicloEnElTiempo& c) const;
    void PintarHoy(QPainter& p, const Escala& e) const;
    void PintarLeyenda(QPainter& p) const;
    int AltoDeLinea() const;
    int Centro() const; // of the band of cycles

    std::vector<CicloEnElTiempo> m_ciclos; // those with a date
    std::size_t m_sinFechas = 0;
    Fecha m_hoy;
    int m_actual = -1;
};

} // namespace pastorix
