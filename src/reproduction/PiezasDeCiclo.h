#pragma once

#include <QKeySequence>
#include <QString>

#include <functional>

class QCheckBox;
class QHBoxLayout;
class QPushButton;

namespace pastorix {

// What the sheets of matings and calvings have in common.

// The mark of complete data, which the user sets: it says in red that they are.
void RotularCompletos(QCheckBox& marca);

// One of the buttons below a sheet. Its key comes besides the underlined letter of its text, and does at once what the button does.
struct BotonDePie {
    const char* nombre;
    const char* icono;
    const char* texto;
    const char* ayuda;
    QKeySequence tecla = {};
};
QPushButton* PonerBoton(QHBoxLayout& pie, const BotonDePie& boton, std::function<void()> orden);

} // namespace pastorix
