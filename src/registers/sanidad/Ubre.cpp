#include "registers/sanidad/Ubre.h"

#include <QAbstractButton>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

namespace pastorix {

namespace {

constexpr int kLado = 96; // of a quarter as it would like to be
constexpr int kLadoMinimo = 56;
constexpr int kSeparacion = 4; // between quarters

// Between two colours, so that the drawing keeps to whatever palette there is.
QColor Mezcla(const QColor& a, const QColor& b, double parte) {
    const auto entre = [parte](float x, float y) {
        return static_cast<float>(x + (y - x) * static_cast<float>(parte));
    };
    return QColor::fromRgbF(entre(a.redF(), b.redF()), entre(a.greenF(), b.greenF()),
                            entre(a.blueF(), b.blueF()));
}

bool EsOscura(const QPalette& paleta) {
    return paleta.color(QPalette::Base).lightness() < 128;
}

} // namespace

// One quarter: a button that is down when the teat is lost.
class CuartoDeUbre : public QAbstractButton {
public:
    CuartoDeUbre(std::size_t cuarto, QWidget* padre)
        : QAbstractButton(padre)
        , m_cuarto(cuarto) {
        setObjectName(QStringLiteral("ImgNulo(%1)").arg(cuarto + 1));
        setCheckable(true);
        setAttribute(Qt::WA_Hover);
        setCursor(Qt::PointingHandCursor);
        setFocusPolicy(cuarto == 0 ? Qt::StrongFocus : Qt::ClickFocus);
        Nombrar({});
    }

    void Nombrar(const QString& nombre) {
        m_nombre = nombre;
        setAccessibleName(isChecked() ? nombre + QStringLiteral(", perdido") : nombre);
        setToolTip(nombre + QStringLiteral("\nClic o Espacio: cuarto perdido"));
    }
    void Marcar(bool si) {
        setChecked(si);
        Nombrar(m_nombre);
    }

    std::function<void()> alAlternar;
    std::function<void(std::size_t)> alMover; // the quarter that an arrow asks for
    std::function<void()> alEnfocar;

protected:
    void nextCheckState() override { alAlternar(); }

    void keyPressEvent(QKeyEvent* evento) override {
        const std::size_t fila = m_cuarto / 2 * 2;
        switch (evento->key()) {
        case Qt::Key_Left:
            return alMover(fila);
        case Qt::Key_Right:
            return alMover(fila + 1);
        case Qt::Key_Up:
            return alMover(m_cuarto % 2);
        case Qt::Key_Down:
            return alMover(m_cuarto % 2 + 2);
        default:
            QAbstractButton::keyPressEvent(evento);
        }
    }
    void focusInEvent(QFocusEvent* evento) override {
        QAbstractButton::focusInEvent(evento);
        alEnfocar();
    }

    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        const auto& paleta = palette();
        const auto fondo = paleta.color(QPalette::Base);
        const auto tinta = paleta.color(QPalette::Text);
        const auto foco = paleta.color(QPalette::Highlight);
        const bool resalta = isEnabled() && underMouse();
        p.setBrush(Mezcla(fondo, resalta ? foco : tinta, resalta ? 0.22 : 0.10));
        p.setPen(QPen(hasFocus() ? foco : Mezcla(fondo, tinta, 0.45), hasFocus() ? 2.5 : 1.2));
        p.drawPath(Lobulo());
        const auto teto = Teto();
        p.setPen(QPen(Mezcla(fondo, tinta, 0.60), 1.4));
        p.setBrush(Mezcla(fondo, tinta, 0.28));
        p.drawEllipse(teto);
        p.setBrush(Mezcla(fondo, tinta, 0.55)); // its tip
        p.setPen(Qt::NoPen);
        p.drawEllipse(teto.center(), teto.width() * 0.14, teto.width() * 0.14);
        if (isChecked())
            DibujarMarca(p, teto);
    }

private:
    // Round towards the outside, almost square where the quarters meet.
    QPainterPath Lobulo() const {
        const QRectF r = QRectF(rect()).adjusted(2, 2, -2, -2);
        const double grande = qMin(r.width(), r.height()) * 0.62;
        const double chica = qMin(r.width(), r.height()) * 0.12;
        const auto radio = [&](std::size_t esquina) { return m_cuarto == esquina ? grande : chica; };
        const auto arco = [](QPainterPath& camino, double x, double y, double lado, double desde) {
            camino.arcTo(x, y, lado * 2, lado * 2, desde, -90);
        };
        QPainterPath camino(QPointF(r.left(), r.top() + radio(0)));
        arco(camino, r.left(), r.top(), radio(0), 180);
        arco(camino, r.right() - radio(1) * 2, r.top(), radio(1), 90);
        arco(camino, r.right() - radio(3) * 2, r.bottom() - radio(3) * 2, radio(3), 0);
        arco(camino, r.left(), r.bottom() - radio(2) * 2, radio(2), -90);
        camino.closeSubpath();
        return camino;
    }

    QRectF Teto() const {
        const double lado = qMin(width(), height());
        const double radio = lado * 0.17;
        const double haciaDentro = lado * 0.05;
        const QPointF centro(width() / 2.0 + (m_cuarto % 2 == 0 ? haciaDentro : -haciaDentro),
                             height() / 2.0 + (m_cuarto < 2 ? haciaDentro : -haciaDentro));
        return {centro.x() - radio, centro.y() - radio, radio * 2, radio * 2};
    }

    void DibujarMarca(QPainter& p, const QRectF& teto) const {
        const double exceso = teto.width() * 0.22;
        const auto aspa = teto.adjusted(-exceso, -exceso, exceso, exceso);
        const double grosor = teto.width() * 0.16;
        const auto rojo = EsOscura(palette()) ? QColor(0xff, 0x5c, 0x5c) : QColor(0xc6, 0x1f, 0x1f);
        for (const auto& [color, ancho] :
             {std::pair{palette().color(QPalette::Base), grosor * 1.9}, std::pair{rojo, grosor}}) {
            p.setPen(QPen(color, ancho, Qt::SolidLine, Qt::RoundCap));
            p.drawLine(aspa.topLeft(), aspa.bottomRight());
            p.drawLine(aspa.topRight(), aspa.bottomLeft());
        }
    }

    std::size_t m_cuarto;
    QString m_nombre;
};

Ubre::Ubre(QWidget* padre)
    : QWidget(padre) {
    setObjectName(QStringLiteral("Ubre"));
    setAccessibleName(QStringLiteral("Cuartos de la ubre"));
    QSizePolicy lugar(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setSizePolicy(lugar);
    for (std::size_t i = 0; i < m_cuartos.size(); ++i) {
        auto* cuarto = m_cuartos[i] = new CuartoDeUbre(i, this);
        cuarto->alAlternar = [this, i] { Alternar(i); };
        cuarto->alMover = [this](std::size_t otro) { m_cuartos[otro]->setFocus(Qt::OtherFocusReason); };
        cuarto->alEnfocar = [this, cuarto] { // the one that Tab comes back to
            for (auto* otro : m_cuartos)
                otro->setFocusPolicy(otro == cuarto ? Qt::StrongFocus : Qt::ClickFocus);
        };
    }
}

void Ubre::Poner(std::size_t cuarto, const QString& nombre, bool marcado) {
    m_cuartos[cuarto]->Nombrar(nombre);
    m_cuartos[cuarto]->Marcar(marcado);
}

bool Ubre::Marcado(std::size_t cuarto) const {
    return m_cuartos[cuarto]->isChecked();
}

void Ubre::Alternar(std::size_t cuarto) {
    if (puedeTocar && !puedeTocar())
        return;
    m_cuartos[cuarto]->Marcar(!Marcado(cuarto));
    if (alTocar)
        alTocar();
}

QSize Ubre::sizeHint() const {
    return {kLado * 2 + kSeparacion, kLado * 2 + kSeparacion};
}

QSize Ubre::minimumSizeHint() const {
    return {kLadoMinimo * 2 + kSeparacion, kLadoMinimo * 2 + kSeparacion};
}

void Ubre::resizeEvent(QResizeEvent*) {
    const int lado = (qMin(qMin(width(), height()), kLado * 3) - kSeparacion) / 2;
    const int x = (width() - lado * 2 - kSeparacion) / 2;
    const int y = (height() - lado * 2 - kSeparacion) / 2;
    for (int i = 0; i < 4; ++i)
        m_cuartos[static_cast<std::size_t>(i)]->setGeometry(x + i % 2 * (lado + kSeparacion),
                                                            y + i / 2 * (lado + kSeparacion), lado, lado);
}

} // namespace pastorix
