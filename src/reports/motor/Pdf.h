#pragma once

#include "reports/motor/Informe.h"

class QPrinter;

namespace pastorix {

// Writes the pages of a report as PDF, by a temporary file that takes the place of the old one only when it is complete.
// Throws ErrorInforme(Escritura) and leaves an old file as it was.
void GuardarPdf(const InformeTerminado& informe, const QString& fichero);

// Draws the pages on a printer set up by the user: the chosen range, sheets in the report's own size and posture.
// Throws ErrorInforme(Escritura) when the printer does not take them.
void Imprimir(const InformeTerminado& informe, QPrinter& impresora);

} // namespace pastorix
