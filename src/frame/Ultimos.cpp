#include "frame/Ultimos.h"

#include "frame/Ajustes.h"

#include <QString>

namespace pastorix {

namespace {

QString Clave(const Conexion& conexion, std::string_view columnaClave) {
    auto fichero = QString::fromStdString(conexion.Fichero());
    for (const auto separador :
         {QLatin1Char('/'), QLatin1Char('\\')}) // they would part the settings into groups
        fichero.replace(separador, QLatin1Char('|'));
    return QStringLiteral("ultimos ") + fichero + QLatin1Char('/') +
           QString::fromUtf8(columnaClave.data(), static_cast<qsizetype>(columnaClave.size()));
}

} // namespace

double Ultimo(const Conexion& conexion, std::string_view columnaClave) {
    return AjusteDeVentana(Clave(conexion, columnaClave)).toDouble();
}

void RecordarUltimo(const Conexion& conexion, std::string_view columnaClave, double codigo) {
    if (codigo != 0)
        GuardarAjusteDeVentana(Clave(conexion, columnaClave), codigo);
}

} // namespace pastorix
