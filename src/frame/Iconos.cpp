#include "frame/Iconos.h"

#include <QFile>

// Outside the namespace, as Qt asks: a resource of a static library is not there until it is named.
static void CargarRecurso() {
    Q_INIT_RESOURCE(iconos);
}

namespace pastorix {

QIcon Icono(const char* nombre) {
    CargarRecurso();
    const QString ruta = QStringLiteral(":/pastorix/") + QLatin1String(nombre) + QStringLiteral(".svg");
    return QFile::exists(ruta) ? QIcon(ruta) : QIcon();
}

QCursor CursorMano() {
    return QCursor(Qt::PointingHandCursor);
}

} // namespace pastorix
