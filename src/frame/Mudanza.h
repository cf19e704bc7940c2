#pragma once

#include <QString>
#include <QStringList>

namespace pastorix {

// Moves files that lie in the program's folder into a new folder there. The folder appears under its name only when all files are in
// it; until then they stand in one with another name, from which they come back by themselves: at once when a move fails, at the next
// start when the machine stopped in between. Nothing is ever overwritten. Throws ErrorDeEjecucion with everything back in its place.
void MudarACarpeta(const QString& programa, const QString& nombre, const QStringList& ficheros);

// Brings back what an interrupted move into that folder left half way; does nothing when there is none.
void DeshacerMudanza(const QString& programa, const QString& nombre);

} // namespace pastorix
