#pragma once

#include "frame/campos/ReglasDeCampo.h"

#include <QString>

namespace pastorix {

// The comma is dropped (0 comes back) when the text already has one; any other key passes.
int ComaUnica(const QString& texto, int tecla);

// What remains of a text when only the characters that the class takes are kept: the rule for keys.
QString Filtrado(const QString& texto, ClaseCampo clase);

// A text from elsewhere as the class writes it: one line without tabs for texts, thousands without their points and a decimal point as
// comma for numbers, strokes between the parts of a date.
struct Pegado {
    QString texto;
    QString
        otraLectura; // where a point can be either ("1.234" beside decimals): what it is as a thousands separator
    bool cabe = true; // false: the field cannot hold it (12,5 among whole numbers)
};
Pegado LeerPegado(const QString& texto, ClaseCampo clase);

} // namespace pastorix
