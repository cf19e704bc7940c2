#pragma once

#include <QColor>
#include <QString>

class QAbstractButton;
class QEvent;
class QKeySequence;
class QLabel;
class QObject;
class QPalette;
class QWidget;

namespace pastorix {

// A heading within a sheet: what the controls below it are about.
QLabel* Titular(const QString& texto, QWidget* padre);

// A line of explanation: in italics and in the full colour of texts, for the one of disabled things cannot be read.
QLabel* Explicacion(const QString& texto, QWidget* padre);

// The colour of a text that will not be stored as it stands, on the palette's base: dark red on light, light red on dark.
QColor ColorDeReparo(const QPalette& paleta);

// A key that presses a button at once, as long as the button is in sight; its tooltip says so. (The toolkit's own key of a button waits for the
// picture of the pressed button, a tenth of a second.)
void DarTecla(QAbstractButton& boton, const QKeySequence& tecla);

// The wheel over a combo that has not the focus: it scrolls past, and changes nothing that nobody is looking at. For event filters.
bool EsRuedaAjena(const QObject* objeto, const QEvent& evento);

// On to the next place in the window where something is entered, as Enter does: fields, lists, grids, and the button given. Icons, tabs and
// other buttons have keys of their own.
void PasarAlSiguiente(QWidget& ventana, const QWidget* boton = nullptr);

} // namespace pastorix
