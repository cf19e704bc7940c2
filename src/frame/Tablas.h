#pragma once

class QTableView;
class QTableWidget;

namespace pastorix {

// How all tables of the program behave.

// Read-only rows of one text line, one chosen at a time; the last column takes the room that is left, Tab goes on to the next control. Ctrl+C too.
void VestirTabla(QTableView& tabla);

// Ctrl+C copies the current row, Ctrl+Shift+C the whole table with its headings, as texts between tabulators: what a spreadsheet takes. Both
// stand in the table's context menu.
void CopiarConTeclas(QTableView& tabla);

// A click on a heading sorts the rows by it, in Spanish order. For tables whose own order says nothing; once they are filled.
void OrdenarPorTitulos(QTableWidget& tabla);

} // namespace pastorix
