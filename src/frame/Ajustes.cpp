#include "frame/Ajustes.h"

#include <QSettings>

namespace pastorix {

namespace {

const QString Organizacion = QStringLiteral("PASTORIX");
const QString Aplicacion = QStringLiteral("PSTX");
const QString Ventanas = QStringLiteral("PSTX-ventanas");
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

QVariant AjusteDeVentana(const QString& clave) {
    return QSettings(Organizacion, Ventanas).value(clave);
}

void GuardarAjusteDeVentana(const QString& clave, const QVariant& valor) {
    GuardarAjustesDeVentana({{clave, valor}});
}

void GuardarAjustesDeVentana(const QVariantMap& valores) {
    QSettings almacen(Organizacion, Ventanas);
    for (auto it = valores.begin(); it != valores.end(); ++it)
        almacen.setValue(it.key(), it.value());
}

} // namespace pastorix
