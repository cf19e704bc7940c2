#pragma once

#include "reports/motor/Informe.h"

#include <QStringList>

namespace pastorix {

// Writes the rows behind a report as a workbook, one sheet per table with the headings of the layout, numbers and dates as such.
// Atomic: throws ErrorInforme(Escritura) and leaves an old file as it was.
void GuardarXlsx(const InformeTerminado& informe, const QString& fichero);

// Writes the same as a folder of text files, one per table: UTF-8 with byte order mark, semicolons, decimal comma. Makes the folder if
// need be; returns the files. Throws ErrorInforme(Escritura) and leaves old files as they were.
QStringList GuardarCsv(const InformeTerminado& informe, const QString& carpeta);

// Gives every column values of one kind, whatever mixture the tables hold: numbers where the layout formats it as numbers and dates where
// as dates if all its texts can be read so; else what it holds if that is of one kind; else texts. Blank texts become Null.
void UnTipoPorColumna(HojaDatos& hoja);

// A text as the name of a file, without the signs that some file system or spreadsheet forbids; may come out empty.
QString NombreDeFichero(const QString& texto);

// Names for the sheets that every spreadsheet and file system takes: no forbidden signs, at most 31 letters, each different.
QStringList NombresDeHojas(const std::vector<HojaDatos>& hojas);

} // namespace pastorix
