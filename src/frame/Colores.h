#pragma once

#include <QColor>

class QApplication;

namespace pastorix {

// Contrast of two colours, 1 to 21, by the rule of the web's accessibility guidelines; texts want 4.5 at least.
double Contraste(const QColor& a, const QColor& b);

// The one colour with that part of the other in it, 0 to 1.
QColor Mezcla(const QColor& color, const QColor& otro, double parte);

// A text colour that steps back on its background and can still be read.
QColor Atenuado(const QColor& texto, const QColor& fondo);

// What stands in an empty field as a hint is drawn in such a colour, in whatever colours the desktop has now and later.
void CuidarPistas(QApplication& aplicacion);

} // namespace pastorix
