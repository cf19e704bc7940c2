#pragma once

#include <QString>
#include <QVariant>
#include <QVariantMap>

namespace pastorix {

// The per-user settings of application "PSTX", section "Registro": the version markers "Version_0" and "Version_1", and "Modo".

// The setting of that name; the default when there is none.
QString GetSetting(const QString& clave, const QString& defecto = {});

// Writes a setting at once; false when the store cannot be written.
bool SaveSetting(const QString& clave, const QString& valor);

// How the user left the program's windows: sizes, widths, what was chosen last. Kept in a file of its own, so that it can be thrown away.
QVariant AjusteDeVentana(const QString& clave);
void GuardarAjusteDeVentana(const QString& clave, const QVariant& valor);
// Several of one window: the file is written once.
void GuardarAjustesDeVentana(const QVariantMap& valores);

} // namespace pastorix
