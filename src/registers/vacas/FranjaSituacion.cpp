#include "registers/vacas/FranjaSituacion.h"

#include "frame/Iconos.h"
#include "frame/ficha/Aspecto.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace pastorix {

// A line of text that is cut off where there is no room. (Wrapped, it would make the whole sheet scroll: a label whose height depends on its
// width does.)
class FranjaSituacion::Renglon : public QLabel {
public:
    explicit Renglon(QWidget* padre)
        : QLabel(padre) {
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }
    void Poner(const QString& texto) {
        m_texto = texto;
        setAccessibleName(texto);
        setToolTip(texto);
        Recortar();
    }

protected:
    void resizeEvent(QResizeEvent* evento) override {
        QLabel::resizeEvent(evento);
        Recortar();
    }

private:
    void Recortar() { setText(fontMetrics().elidedText(m_texto, Qt::ElideRight, width())); }

    QString m_texto;
};

FranjaSituacion::FranjaSituacion(QWidget* padre)
    : QWidget(padre)
    , m_anterior(CrearPaso(-1))
    , m_siguiente(CrearPaso(1))
    , m_baja(Titular({}, this))
    , m_reproduccion(new Renglon(this))
    , m_control(new QPushButton(Icono("hoja"), {}, this)) {
    m_baja->setObjectName(QStringLiteral("Et_Baja"));
    m_reproduccion->setObjectName(QStringLiteral("Et_Situacion"));
    for (QLabel* rotulo : {m_baja, static_cast<QLabel*>(m_reproduccion)}) {
        rotulo->setTextFormat(Qt::PlainText);
        rotulo->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    m_control->setObjectName(QStringLiteral("B_ControlRebaño"));
    m_control->setAutoDefault(false);
    connect(m_control, &QPushButton::clicked, this, [this] {
        if (alControl)
            alControl();
    });
    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(0, 0, 0, 0);
    for (QWidget* w : {static_cast<QWidget*>(m_anterior), static_cast<QWidget*>(m_siguiente),
                       static_cast<QWidget*>(m_baja)})
        fila->addWidget(w);
    fila->addWidget(m_reproduccion, 1);
    fila->addWidget(m_control);
    Limpiar();
}

QWidget* FranjaSituacion::Control() const {
    return m_control;
}

QToolButton* FranjaSituacion::CrearPaso(int paso) {
    auto* boton = new QToolButton(this);
    const bool adelante = paso > 0;
    boton->setObjectName(adelante ? QStringLiteral("B_VacaSiguiente") : QStringLiteral("B_VacaAnterior"));
    boton->setArrowType(adelante ? Qt::RightArrow : Qt::LeftArrow);
    boton->setAutoRaise(true);
    boton->setFocusPolicy(Qt::NoFocus); // it has a key
    const auto nombre = adelante ? QStringLiteral("Vaca siguiente del ganadero")
                                 : QStringLiteral("Vaca anterior del ganadero");
    boton->setAccessibleName(nombre);
    boton->setToolTip(nombre);
    DarTecla(*boton, QKeySequence(Qt::CTRL | (adelante ? Qt::Key_PageDown : Qt::Key_PageUp)));
    connect(boton, &QToolButton::clicked, this, [this, paso] {
        if (alPasar)
            alPasar(paso);
    });
    return boton;
}

void FranjaSituacion::PermitirPasar(bool si) {
    m_anterior->setVisible(si); // and its key with it
    m_siguiente->setVisible(si);
}

void FranjaSituacion::Mostrar(const SituacionDeVaca& vaca) {
    const auto texto = [](const std::string& t) { return QString::fromStdString(t); };
    m_baja->setText(texto(BajaEnPalabras(vaca)));
    if (vaca.deBaja) {
        auto paleta = palette();
        paleta.setColor(QPalette::WindowText, ColorDeReparo(paleta));
        m_baja->setPalette(paleta);
    }
    m_baja->setVisible(vaca.deBaja);
    m_reproduccion->Poner(texto(ReproduccionEnPalabras(vaca)));
    const auto control = texto(ControlEnPalabras(vaca));
    m_control->setText(control.isEmpty() ? QStringLiteral("Sin nota ni chequeo") : control);
    m_control->setToolTip(vaca.nota.empty() ? QStringLiteral("Controles de Rebaño (Ctrl+E)")
                                            : texto(vaca.nota));
    m_control->setAccessibleName(QStringLiteral("Controles de Rebaño: ") + m_control->text());
    m_control->setVisible(true);
}

void FranjaSituacion::Limpiar() {
    Mostrar({});
    m_control->setVisible(false);
}

} // namespace pastorix
