#pragma once

#include "reports/motor/Informe.h"

#include <QStringList>

namespace pastorix {

// Writes the rows behind a report as a workbook, one sheet per table with the headings of the layout, numbers and dates as such.
// Atomic: throws ErrorInforme(Escritura) and leaves an old file as it was.
void GuardarXlsx(const InformeTerminado& informe, const QString& fichero);

// Writes the same as a folder of text files, one per table: UTF-8 with byte order mark, semicolons, decimal comma. Makes the folder if
// need be; returns the files. Each file is written whole or not at all; throws ErrorInforme(Escritura).
QStringList GuardarCsv(const InformeTerminado& informe, const QString& carpeta);

// A cell as it is exported: a text that is a number becomes one where the layout formats the column as numbers.
Valor CeldaExportada(const Valor& valor, const HojaDatos::Columna& columna);

// Names for the sheets that every spreadsheet and file system takes: no forbidden signs, at most 31 letters, each different.
QStringList NombresDeHojas(const std::vector<HojaDatos>& hojas);

} // namespace pastorix
