#pragma once

#include "reports/motor/Disposicion.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace pastorix {

// The layouts that are compiled into the program, by the names under which the forms ask for them ("IndTecnicos.rpt").
QStringList DisposicionesIncluidas();

// The text of one of them, found without regard to letter case.
std::optional<QByteArray> DisposicionIncluida(const QString& nombre);

// A layout from a file; what it includes comes from the same folder, or else from the program. Throws ErrorInforme(FicheroAusente)
// with the path when it cannot be read.
Disposicion LeerDisposicionDeFichero(const std::string& fichero);

struct DisposicionHallada {
    Disposicion disposicion;
    QString aviso; // why the built-in layout serves, in Spanish; empty when the file does
};

// The layout of a report: the file when it begins as ours, malformed or not; when it is missing, cannot be read or is somebody else's (old
// installations bring binary files of the same names), the built-in one of the same name. The path's letter case does not matter.
// Throws ErrorInforme(Disposicion) for a file of ours with a mistake in it, ErrorInforme(FicheroAusente) when there is neither.
DisposicionHallada BuscarDisposicion(const QString& ruta);

} // namespace pastorix
