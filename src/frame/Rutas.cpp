#include "frame/Rutas.h"

#include "frame/calendario/ErrorDeEjecucion.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace pastorix {

namespace {

bool TieneAlgunaBase(const QString& carpeta) {
    if (QFileInfo(BuscarSinCaja(carpeta, QStringLiteral("Base de Datos"))).isDir())
        return true;
    for (const QString& base : BasesEntregadas())
        if (QFileInfo(BuscarSinCaja(carpeta, base)).isFile())
            return true;
    return false;
}

// Copies through a temporary file, so that a copy that breaks off leaves nothing under the final name.
void Copiar(const QString& origen, const QString& destino) {
    QFile entrada(origen);
    QSaveFile salida(destino);
    const auto exigir = [&](bool bien, const QString& causa) {
        if (!bien)
            throw ErrorDeEjecucion(75, "Error de acceso a la ruta o al archivo: " + destino.toStdString() +
                                           " (" + causa.toStdString() + ")");
    };
    exigir(entrada.open(QIODevice::ReadOnly), entrada.errorString());
    exigir(salida.open(QIODevice::WriteOnly), salida.errorString());
    constexpr qint64 trozo = 1 << 20;
    while (!entrada.atEnd()) {
        const QByteArray bytes = entrada.read(trozo);
        exigir(!bytes.isEmpty(), entrada.errorString());
        exigir(salida.write(bytes) == bytes.size(), salida.errorString());
    }
    exigir(salida.commit(), salida.errorString());
}

void CopiarSiFalta(const QString& origen, const QString& carpeta, const QString& nombre) {
    const QString destino = BuscarSinCaja(carpeta, nombre);
    if (QFileInfo(origen).isFile() && !QFileInfo::exists(destino))
        Copiar(origen, destino);
}

} // namespace

QString BuscarSinCaja(const QString& carpeta, const QString& nombre) {
    const QString tal = carpeta + QLatin1Char('/') + nombre;
    if (QFileInfo::exists(tal))
        return tal;
    const QStringList entradas =
        QDir(carpeta).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QString& entrada : entradas)
        if (entrada.compare(nombre, Qt::CaseInsensitive) == 0)
            return carpeta + QLatin1Char('/') + entrada;
    return tal;
}

QStringList BasesEntregadas() {
    return {QStringLiteral("BD_PradalC.mdb"), QStringLiteral("BD_PradalP.mdb"), QStringLiteral("Toros.mdb")};
}

QString CarpetaDelUsuario() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/pastorix");
}

QString CarpetaCompartida() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/pastorix"));
}

Rutas Rutas::Buscar() {
    const QString impuesta = qEnvironmentVariable("PASTORIX_HOME");
    if (!impuesta.isEmpty())
        return Rutas(QDir::cleanPath(QDir(impuesta).absolutePath()));
    const QString ejecutable = QCoreApplication::applicationDirPath();
    return Rutas(TieneAlgunaBase(ejecutable) ? ejecutable : CarpetaDelUsuario());
}

void RellenarCarpeta(const Rutas& rutas, const QString& compartida) {
    const QDir origen(compartida);
    if (!origen.exists())
        return;
    if (!QDir().mkpath(rutas.Programa()))
        throw ErrorDeEjecucion(75,
                               "Error de acceso a la ruta o al archivo: " + rutas.Programa().toStdString());
    if (!QFileInfo(rutas.BaseDeDatos()).isDir())
        for (const QString& base : BasesEntregadas())
            CopiarSiFalta(BuscarSinCaja(compartida, base), rutas.Programa(), base);
    if (!QFileInfo(rutas.Informes()).isDir())
        for (const QString& informe : origen.entryList({QStringLiteral("*.rpt")}, QDir::Files))
            CopiarSiFalta(origen.filePath(informe), rutas.Programa(), informe);
    CopiarSiFalta(BuscarSinCaja(compartida, QStringLiteral("manual.pdf")), rutas.Programa(),
                  QStringLiteral("manual.pdf"));
}

} // namespace pastorix
