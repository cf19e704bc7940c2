#pragma once

class QDialog;
class QVBoxLayout;
class QWidget;

namespace pastorix {

// Windows that fit the screen they open on, and come back as they were left.

// A place inside a window's layout whose contents scroll where the screen is too small for them. Made first, it stands above what comes after.
QVBoxLayout* CuerpoDesplazable(QWidget& ventana, QVBoxLayout& todo);

// From now on the window opens in the size and at the place that it last had (by its object name, per user), within the screen; without one in
// its own size as far as that fits. Widths of table columns inside come back too.
void RecordarVentana(QWidget& ventana);

} // namespace pastorix
