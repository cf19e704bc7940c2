#pragma once

#include <QColor>
#include <QFont>
#include <QPaintDevice>
#include <QPainter>
#include <QTextDocument>
#include <QTextLayout>

#include <memory>

namespace pastorix::manual {

inline const QColor Verde(0x2d, 0x55, 0x45);
inline const QColor VerdeClaro(0xee, 0xf3, 0xf0);
inline const QColor Gris(0x66, 0x70, 0x6b);
inline const QColor Raya(0xc9, 0xd1, 0xcc);

// How a text is set: size in points, leading in times the letter's own height.
struct Estilo {
    double tamaño = 10.5;
    bool negrita = false;
    QColor color = QColor(0x22, 0x22, 0x22);
    double interlinea = 1.17;
    Qt::Alignment alinear = Qt::AlignLeft;
};

// The manual's letter in that size.
QFont Letra(const Estilo& estilo);

// A text set to a width of device units, ready to be measured and drawn line by line.
class TextoCompuesto {
public:
    TextoCompuesto(QPaintDevice& papel, const QString& html, double ancho, const Estilo& estilo);

    int Lineas() const;
    double AltoDeLinea(int linea) const;
    double Alto() const;
    // Draws one line, or all of them, with its upper left corner there.
    void DibujarLinea(QPainter& pintor, int linea, QPointF sitio) const;
    void Dibujar(QPainter& pintor, QPointF sitio) const;

private:
    QTextLine Linea(int linea) const;

    std::shared_ptr<QTextDocument> m_texto;
    double m_interlinea;
};

} // namespace pastorix::manual
