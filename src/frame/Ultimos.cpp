#include "frame/Ultimos.h"

#include "frame/Ajustes.h"

#include <QString>

namespace pastorix {

namespace {

const auto kRecientes = QStringLiteral(" recientes");
constexpr qsizetype kCuantosRecientes = 6;

QString Clave(const Conexion& conexion, std::string_view columnaClave) {
    auto fichero = QString::fromStdString(conexion.Fichero());
    for (const auto separador :
         {QLatin1Char('/'), QLatin1Char('\\')}) // they would part the settings into groups
        fichero.replace(separador, QLatin1Char('|'));
    return QStringLiteral("ultimos ") + fichero + QLatin1Char('/') +
           QString::fromUtf8(columnaClave.data(), static_cast<qsizetype>(columnaClave.size()));
}

} // namespace

std::vector<double> Recientes(const Conexion& conexion, std::string_view columnaClave) {
    std::vector<double> codigos;
    for (const auto& codigo : AjusteDeVentana(Clave(conexion, columnaClave) + kRecientes).toStringList())
        codigos.push_back(codigo.toDouble());
    return codigos;
}

double Ultimo(const Conexion& conexion, std::string_view columnaClave) {
    return AjusteDeVentana(Clave(conexion, columnaClave)).toDouble();
}

void RecordarUltimo(const Conexion& conexion, std::string_view columnaClave, double codigo) {
    if (codigo == 0)
        return;
    const auto clave = Clave(conexion, columnaClave);
    QStringList lista = AjusteDeVentana(clave + kRecientes).toStringList();
    const auto texto = QString::number(codigo, 'f', 0);
    lista.removeAll(texto);
    lista.prepend(texto);
    GuardarAjustesDeVentana(
        {{clave, codigo}, {clave + kRecientes, QStringList(lista.mid(0, kCuantosRecientes))}});
}

} // namespace pastorix
