#pragma once

#include <QWidget>

namespace pastorix {

// What the main window shows while no form is open: a quiet meadow in the colours of the desktop.
class FondoPrincipal : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* evento) override;
};

// The colour gradient of the program's first windows, from the palette: hardly more than a tint, light on dark desktops.
QBrush DegradadoDeFondo(const QPalette& paleta, const QRectF& zona);

} // namespace pastorix
