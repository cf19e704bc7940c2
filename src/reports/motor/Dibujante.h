#pragma once

#include "reports/motor/Pagina.h"

class QPainter;

namespace pastorix {

// Draws pages on anything a QPainter can draw on. The painter's origin is the top left corner of the sheet.
// escala: device units per millimetre.
void DibujarPagina(QPainter& pintor, const Paginas& paginas, std::size_t pagina, double escala);

// Draws a bar chart into a place given in millimetres; the painter is already scaled to millimetres.
void DibujarGrafico(QPainter& pintor, const QRectF& lugar, const DatosGrafico& datos);

} // namespace pastorix
