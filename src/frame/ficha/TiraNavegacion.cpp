#include "frame/ficha/TiraNavegacion.h"

#include "frame/Iconos.h"

#include <QHBoxLayout>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace pastorix {

TiraNavegacion::TiraNavegacion(QWidget* padre, bool baja)
    : QWidget(padre)
    , m_baja(baja)
    , m_fila(new QHBoxLayout)
    , m_subfichas(new QStackedWidget(this)) {
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    m_fila->addStretch();
    todo->addLayout(m_fila);
    todo->addWidget(m_subfichas, 1);
}

int TiraNavegacion::Añadir(const char* icono, const QString& rotulo, QWidget* subficha) {
    const int indice = m_subfichas->addWidget(subficha);
    // Icon and label are one button: one thing to press, to reach with Tab and to hear of.
    auto* boton = new QToolButton(this);
    boton->setObjectName(QStringLiteral("IconoNav(%1)").arg(indice));
    boton->setIcon(Icono(icono));
    boton->setIconSize(m_baja ? QSize(18, 18) : QSize(28, 28));
    boton->setText(rotulo);
    boton->setToolButtonStyle(m_baja ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonTextUnderIcon);
    boton->setCheckable(true);
    boton->setAutoExclusive(true);
    boton->setAutoRaise(true);
    boton->setFocusPolicy(Qt::TabFocus);
    boton->setCursor(CursorMano());
    connect(boton, &QToolButton::clicked, this, [this, indice] { Pasar(indice); });
    m_fila->insertWidget(indice, boton);
    m_botones.push_back(boton);
    if (indice == 0)
        Mostrar(0);
    return indice;
}

void TiraNavegacion::Pasar(int indice) {
    if (indice != Actual() && alCambiar)
        alCambiar(indice);
    Mostrar(indice);
}

void TiraNavegacion::Mostrar(int indice) {
    m_subfichas->setCurrentIndex(indice);
    m_botones[static_cast<std::size_t>(indice)]->setChecked(true);
}

int TiraNavegacion::Actual() const {
    return m_subfichas->currentIndex();
}

} // namespace pastorix
