#pragma once

#include <QString>

namespace pastorix {

// A look at a database or a package that somebody opened from a folder of his desktop: what it is, whether it is sound, what is in it. The
// file is only read, as one from a stranger. True when the program is to start, so that it can be imported there.
bool MirarFichero(const QString& fichero);

} // namespace pastorix
