#include "frame/Aplicacion.h"

#include "frame/Colores.h"
#include "frame/Iconos.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace pastorix {

void PrepararAplicacion(QApplication& aplicacion) {
    QApplication::setOrganizationName(QStringLiteral("PASTORIX"));
    QApplication::setApplicationName(QStringLiteral("pastorix"));
    QApplication::setDesktopFileName(QStringLiteral("pastorix"));
    QApplication::setWindowIcon(Icono("pastorix"));
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));

    CuidarPistas(aplicacion);
    auto* traductor = new QTranslator(&aplicacion);
    if (traductor->load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(traductor);
}

} // namespace pastorix
