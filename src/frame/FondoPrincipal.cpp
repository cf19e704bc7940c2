#include "frame/FondoPrincipal.h"

#include "frame/Colores.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace pastorix {

namespace {

const QColor Verde(63, 143, 91);

// A hill across the width: heights at both ends and at the middle, as parts of the height.
QPainterPath Loma(const QRectF& z, double izquierda, double medio, double derecha) {
    QPainterPath loma(QPointF(z.left(), z.bottom()));
    loma.lineTo(z.left(), z.bottom() - z.height() * izquierda);
    loma.cubicTo(z.left() + z.width() * 0.3, z.bottom() - z.height() * medio, z.left() + z.width() * 0.6,
                 z.bottom() - z.height() * medio, z.right(), z.bottom() - z.height() * derecha);
    loma.lineTo(z.right(), z.bottom());
    loma.closeSubpath();
    return loma;
}

} // namespace

QBrush DegradadoDeFondo(const QPalette& paleta, const QRectF& zona) {
    const QColor fondo = paleta.color(QPalette::Window);
    QLinearGradient degradado(zona.topLeft(), zona.bottomLeft());
    degradado.setColorAt(0, fondo);
    degradado.setColorAt(1, Mezcla(fondo, Verde, 0.22));
    return degradado;
}

void FondoPrincipal::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    const QRectF zona = rect();
    pintor.fillRect(zona, DegradadoDeFondo(palette(), zona));
    const QColor fondo = palette().color(QPalette::Window);
    pintor.setPen(Qt::NoPen);
    pintor.fillPath(Loma(zona, 0.22, 0.40, 0.20), Mezcla(fondo, Verde, 0.24));
    pintor.fillPath(Loma(zona, 0.08, 0.12, 0.26), Mezcla(fondo, Verde, 0.34));
}

} // namespace pastorix
