#include "frame/Ajustes.h"

#include <QSettings>

namespace pastorix {

namespace {

const QString Organizacion = QStringLiteral("PASTORIX");
const QString Aplicacion = QStringLiteral("PSTX");
QString Nombre(const QString& clave) {
    return QStringLiteral("Registro/") + clave;
}
} // namespace

QString GetSetting(const QString& clave, const QString& defecto) {
    return QSettings(Organizacion, Aplicacion).value(Nombre(clave), defecto).toString();
}

bool SaveSetting(const QString& clave, const QString& valor) {
    QSettings almacen(Organizacion, Aplicacion);
    almacen.setValue(Nombre(clave), valor);
    almacen.sync();
    return almacen.status() == QSettings::NoError;
}

} // namespace pastorix
