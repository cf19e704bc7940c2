#include "frame/Rutas.h"

#include "frame/calendario/ErrorDeEjecucion.h"
#include "store/Ficheros.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
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

void CopiarSiFalta(const QString& origen, const QString& carpeta, const QString& nombre) {
    const QString destino = BuscarSinCaja(carpeta, nombre);
    if (QFileInfo(origen).isFile() && !QFileInfo::exists(destino))
        CopiarFichero(Ruta(origen.toStdString()), Ruta(destino.toStdString()));
}

} // namespace

QString BuscarSinCaja(const QString& carpeta, const QString& nombre) {
    return QString::fromStdString(
        TextoDeRuta(EntradaSinCaso(Ruta(carpeta.toStdString()), nombre.toStdString())));
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
