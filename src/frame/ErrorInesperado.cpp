#include "frame/ErrorInesperado.h"

#include "frame/Mensajes.h"

#include <QStringList>

namespace pastorix {

QString TextoErrorInesperado(long numero, const QString& descripcion) {
    constexpr int guiones = 124;
    const QStringList lineas{
        QStringLiteral("Se ha producido un error inesperado. Consulte al administrador de la aplicación"),
        QString(guiones, QLatin1Char('-')),
        QStringLiteral("Código de error: ") + QString::number(numero),
        QStringLiteral("Descripción: ") + descripcion,
    };
    return lineas.join(QLatin1Char('\r'));
}

void AvisarErrorInesperado(QWidget* padre, long numero, const QString& descripcion, const QString& detalle) {
    Avisar(padre, TipoMensaje::Atencion, QStringLiteral(" Error inesperado"),
           TextoErrorInesperado(numero, descripcion), {}, detalle);
}

void AvisarErrorDeAcceso(QWidget* padre, const std::exception& causa) {
    Avisar(padre, TipoMensaje::Atencion, QStringLiteral(" Error de acceso"),
           QStringLiteral("El origen ODBC o la clave de acceso a la Base de datos es incorrecta"),
           QString::fromUtf8(causa.what()), DetalleDe(causa));
}

} // namespace pastorix
