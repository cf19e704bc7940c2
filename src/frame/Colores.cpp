#include "frame/Colores.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace pastorix {

namespace {

double Luminancia(const QColor& color) {
    const auto canal = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * canal(color.redF()) + 0.7152 * canal(color.greenF()) + 0.0722 * canal(color.blueF());
}

class Pistas : public QObject {
public:
    explicit Pistas(QApplication& aplicacion)
        : QObject(&aplicacion) {
        aplicacion.installEventFilter(this);
        Poner();
    }

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() == QEvent::ApplicationPaletteChange && objeto == parent())
            Poner();
        return false;
    }

private:
    static void Poner() {
        auto paleta =
            QApplication::palette(); // knows which of its roles were set: the others stay the desktop's
        const auto color = Atenuado(paleta.color(QPalette::Text), paleta.color(QPalette::Base));
        if (paleta.color(QPalette::PlaceholderText) == color)
            return;
        paleta.setColor(QPalette::PlaceholderText, color);
        QApplication::setPalette(paleta);
    }
};

} // namespace

double Contraste(const QColor& a, const QColor& b) {
    const double x = Luminancia(a);
    const double y = Luminancia(b);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

QColor Mezcla(const QColor& color, const QColor& otro, double parte) {
    const auto canal = [&](int a, int b) { return static_cast<int>(a + (b - a) * parte); };
    return {canal(color.red(), otro.red()), canal(color.green(), otro.green()),
            canal(color.blue(), otro.blue())};
}

QColor Atenuado(const QColor& texto, const QColor& fondo) {
    constexpr double kBastante = 5; // alternate rows are a shade darker than the background
    double parte = 0.5;
    while (parte > 0 && Contraste(Mezcla(texto, fondo, parte), fondo) < kBastante)
        parte -= 0.05;
    return parte > 0 ? Mezcla(texto, fondo, parte) : texto;
}

void CuidarPistas(QApplication& aplicacion) {
    new Pistas(aplicacion);
}

} // namespace pastorix
