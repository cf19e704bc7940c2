// Paints the program's icon in the sizes that desktops ask for: SVG, folder, sizes in pixels.
#include "store/LocaleNumerico.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char** argv) {
    const QGuiApplication aplicacion(argc, argv);
    pastorix::FijarLocaleNumerico();
    const auto argumentos = QCoreApplication::arguments();
    QSvgRenderer dibujo(argumentos.value(1));
    if (!dibujo.isValid() || argumentos.size() < 4) {
        std::fputs("Uso: pastorix_iconos DIBUJO CARPETA PUNTOS...\n", stderr);
        return 2;
    }
    for (const auto& puntos : argumentos.mid(3)) {
        QImage imagen(puntos.toInt(), puntos.toInt(), QImage::Format_ARGB32_Premultiplied);
        imagen.fill(Qt::transparent);
        QPainter pintor(&imagen);
        dibujo.render(&pintor);
        pintor.end();
        const auto fichero = argumentos.at(2) + QLatin1Char('/') + puntos + QStringLiteral(".png");
        if (!imagen.save(fichero)) {
            std::fprintf(stderr, "No se puede escribir %s\n", qPrintable(fichero));
            return 1;
        }
    }
    return 0;
}
