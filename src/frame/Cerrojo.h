#pragma once

#include <QLockFile>
#include <QString>

#include <memory>

namespace pastorix {

// Takes the program's folder for this process: one program per folder. A living process of this computer is never put aside. A lock
// of another computer, or one that tells nothing (empty, rubbish), is put aside when the user, asked, wants to go on. nullptr when the
// folder is not to be had, which has been told. Throws ErrorDeEjecucion 75 when the lock file cannot be written.
std::unique_ptr<QLockFile> TomarCerrojo(const QString& carpeta);

} // namespace pastorix
