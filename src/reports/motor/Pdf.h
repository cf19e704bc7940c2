#pragma once

#include "reports/motor/Informe.h"

class QPrinter;

namespace pastorix {

// Writes the pages of a report as PDF.
// Throws ErrorInforme(Escritura) and leaves an old file as it was.
void GuardarPdf(const InformeTerminado& informe, const QString& fichero);

// Draws the pages on a printer set up by the user, or into the PDF file that he chose in its place: the chosen range, in the
// report's own size if the sheet holds it. Throws ErrorInforme(Escritura) when the printer does not take them.
void Imprimir(const InformeTerminado& informe, QPrinter& impresora);

} // namespace pastorix
