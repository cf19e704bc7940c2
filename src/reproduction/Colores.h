#pragma once

#include <QApplication>
#include <QColor>
#include <QPalette>
#include <QWidget>

namespace pastorix {

// The colours that mean something on the sheets of a cycle.
inline const QColor kRojo{255, 25, 25};          // too late, or the principal cause
inline const QColor kRojoCompletos{255, 50, 50}; // complete data
inline const QColor kPalido{255, 255, 192};      // a figure that is fine

// A control's text in a colour; an invalid colour brings the palette's back.
inline void PintarTexto(QWidget& w, const QColor& color) {
    auto paleta = QApplication::palette(&w);
    if (color.isValid())
        for (const auto papel : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
            paleta.setColor(papel, color);
    w.setPalette(paleta);
}

// A field's ground in a colour, with a text that can be read on it.
inline void PintarFondo(QWidget& w, const QColor& color) {
    auto paleta = QApplication::palette(&w);
    if (color.isValid()) {
        paleta.setColor(QPalette::Base, color);
        paleta.setColor(QPalette::Text, Qt::black);
    }
    w.setPalette(paleta);
}

} // namespace pastorix
