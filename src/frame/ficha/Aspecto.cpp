#include "frame/ficha/Aspecto.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPlainTextEdit>
#include <QShortcut>

namespace pastorix {

QLabel* Titular(const QString& texto, QWidget* padre) {
    auto* rotulo = new QLabel(texto, padre);
    auto fuente = rotulo->font();
    fuente.setBold(true);
    rotulo->setFont(fuente);
    return rotulo;
}

QLabel* Explicacion(const QString& texto, QWidget* padre) {
    auto* rotulo = new QLabel(texto, padre);
    auto fuente = rotulo->font();
    fuente.setItalic(true);
    rotulo->setFont(fuente);
    return rotulo;
}

QColor ColorDeReparo(const QPalette& paleta) {
    return paleta.color(QPalette::Base).lightness() > 127 ? QColor(176, 0, 32) : QColor(255, 138, 128);
}

void DarTecla(QAbstractButton& boton, const QKeySequence& tecla) {
    const auto nombre = tecla.toString(QKeySequence::NativeText);
    boton.setToolTip(QStringLiteral("%1 (%2)").arg(boton.toolTip(), nombre));
    boton.setAccessibleDescription(nombre);
    QObject::connect(new QShortcut(tecla, &boton), &QShortcut::activated, &boton, &QAbstractButton::click);
}

bool EsRuedaAjena(const QObject* objeto, const QEvent& evento) {
    if (evento.type() != QEvent::Wheel)
        return false;
    const auto* combo = qobject_cast<const QComboBox*>(objeto);
    return combo && !combo->hasFocus();
}

void PasarAlSiguiente(QWidget& ventana, const QWidget* boton) {
    auto* foco = ventana.focusWidget();
    if (!foco)
        return;
    const auto esParada = [&](QWidget* w) {
        const bool entra = qobject_cast<QLineEdit*>(w) || qobject_cast<QComboBox*>(w) ||
                           qobject_cast<QCheckBox*>(w) || qobject_cast<QPlainTextEdit*>(w) ||
                           qobject_cast<QAbstractItemView*>(w) || w == boton;
        return entra && ventana.isAncestorOf(w) && w->isVisible() && w->isEnabled() &&
               (w->focusPolicy() & Qt::TabFocus) && !w->focusProxy();
    };
    for (auto* w = foco->nextInFocusChain(); w != foco; w = w->nextInFocusChain())
        if (esParada(w))
            return w->setFocus(Qt::TabFocusReason);
}

} // namespace pastorix
