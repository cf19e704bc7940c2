#include "frame/Manual.h"

#include "frame/Mensajes.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace pastorix {

void AbrirManual(QWidget* padre, const Rutas& rutas) {
    AbrirManual(padre, rutas.Manual());
}

void AbrirManual(QWidget* padre, const QString& manual) {
    if (QFileInfo(manual).isFile() && QDesktopServices::openUrl(QUrl::fromLocalFile(manual)))
        return;
    Avisar(padre, TipoMensaje::Atencion, QStringLiteral("Atención"),
           QStringLiteral("No es posible abrir el documento: ") + QDir::toNativeSeparators(manual) +
               QStringLiteral("\r\nCompruebe el funcionamiento de su visor de ficheros PDF"));
}

} // namespace pastorix
