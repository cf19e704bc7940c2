#include "frame/Mudanza.h"

#include "frame/calendario/ErrorDeEjecucion.h"
#include "store/Ficheros.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace pastorix {

namespace {

QString EnCamino(const QString& programa, const QString& nombre) {
    return programa + QLatin1Char('/') + nombre + QStringLiteral(".nueva");
}

[[noreturn]] void Fallar(const QString& ruta, const QString& causa = {}) {
    QString texto =
        QStringLiteral("Error de acceso a la ruta o al archivo: ") + QDir::toNativeSeparators(ruta);
    if (!causa.isEmpty())
        texto += QStringLiteral(" (") + causa + QLatin1Char(')');
    throw ErrorDeEjecucion(75, texto.toStdString());
}

} // namespace

void DeshacerMudanza(const QString& programa, const QString& nombre) {
    const QDir carpeta(EnCamino(programa, nombre));
    if (!carpeta.exists())
        return;
    for (const QString& fichero : carpeta.entryList(QDir::Files | QDir::Hidden))
        QFile::rename(carpeta.filePath(fichero),
                      programa + QLatin1Char('/') + fichero); // never replaces a file
    QDir(programa).rmdir(carpeta.dirName());                  // only if empty
}

void MudarACarpeta(const QString& programa, const QString& nombre, const QStringList& ficheros) {
    const QString camino = EnCamino(programa, nombre);
    if (!QDir().mkpath(camino))
        Fallar(camino);
    for (const QString& fichero : ficheros) {
        QFile mudado(fichero);
        if (!mudado.rename(camino + QLatin1Char('/') + QFileInfo(fichero).fileName())) {
            const QString causa = mudado.errorString();
            DeshacerMudanza(programa, nombre);
            Fallar(fichero, causa);
        }
    }
    const QString destino = programa + QLatin1Char('/') + nombre;
    if (!QDir().rename(camino, destino)) {
        DeshacerMudanza(programa, nombre);
        Fallar(destino);
    }
    SincronizarCarpeta(Ruta(destino.toStdString()));
    SincronizarCarpeta(Ruta(programa.toStdString()));
}

} // namespace pastorix
