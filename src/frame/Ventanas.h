#pragma once

#include <QString>

class QVBoxLayout;
class QWidget;

namespace pastorix {

// Windows that fit the screen they open on, and come back as they were left.

// A place inside a window's layout whose contents scroll where the screen is too small for them. Made first, it stands above what comes after.
QVBoxLayout* CuerpoDesplazable(QWidget& ventana, QVBoxLayout& todo);

// From now on the window opens in the size that it last had, per user, within the screen; without a former time in its own size as far as that
// fits. Widths of table columns inside come back too. `clave` stands for the window's object name where one class shows many things.
void RecordarVentana(QWidget& ventana, const QString& clave = {});
// The same for a window that was maximized by its user, and comes back so.
void RecordarVentanaMaximizada(QWidget& ventana);

} // namespace pastorix
