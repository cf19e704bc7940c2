#include "reports/motor/DisposicionesIncluidas.h"

#include "frame/Rutas.h"
#include "reports/motor/ErrorInforme.h"
#include "reports/motor/LectorDisposicion.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

// Outside the namespace, as Qt asks: a resource of a static library is not there until it is named.
static void CargarLayouts() {
    Q_INIT_RESOURCE(layouts);
}

namespace pastorix {

namespace {

QDir Incluidas() {
    CargarLayouts();
    return QDir(QStringLiteral(":/pastorix/layouts"));
}

// A built-in layout includes built-in ones.
std::optional<std::string> Incluible(const std::string& nombre) {
    const auto texto = DisposicionIncluida(QString::fromStdString(nombre));
    return texto ? std::optional(texto->toStdString()) : std::nullopt;
}

// What a file includes: a file of ours beside it, or the built-in one of that name.
Incluibles JuntoA(const QString& ruta) {
    return [carpeta = QFileInfo(ruta).path()](const std::string& nombre) {
        QFile fichero(BuscarSinCaja(carpeta, QString::fromStdString(nombre)));
        if (fichero.open(QIODevice::ReadOnly)) {
            std::string texto = fichero.read(BytesDeDisposicion).toStdString();
            if (EmpiezaComoDisposicion(texto))
                return std::optional(std::move(texto));
        }
        return Incluible(nombre);
    };
}

// The file if it begins as ours; otherwise why it does not serve.
std::optional<Disposicion> DeFichero(const QString& ruta, QString& porque) {
    QFile fichero(ruta);
    const QString nombre = QFileInfo(ruta).fileName();
    if (!fichero.exists()) {
        porque = QStringLiteral("en Informes no hay %1").arg(nombre);
        return std::nullopt;
    }
    if (!fichero.open(QIODevice::ReadOnly)) {
        porque = QStringLiteral("no se puede leer el %1 de Informes (%2)").arg(nombre, fichero.errorString());
        return std::nullopt;
    }
    const QByteArray texto = fichero.read(BytesDeDisposicion);
    if (!EmpiezaComoDisposicion(texto.toStdString())) {
        porque = QStringLiteral("el %1 de Informes es de otro programa").arg(nombre);
        return std::nullopt;
    }
    return LeerDisposicion(texto.toStdString(), ruta.toStdString(), JuntoA(ruta));
}

} // namespace

QStringList DisposicionesIncluidas() {
    return Incluidas().entryList(QDir::Files);
}

std::optional<QByteArray> DisposicionIncluida(const QString& nombre) {
    for (const QString& incluida : DisposicionesIncluidas()) {
        QFile fichero(Incluidas().filePath(incluida));
        if (incluida.compare(nombre, Qt::CaseInsensitive) == 0 && fichero.open(QIODevice::ReadOnly))
            return fichero.readAll();
    }
    return std::nullopt;
}

Disposicion LeerDisposicionDeFichero(const std::string& fichero) {
    const QString ruta = QString::fromStdString(fichero);
    QFile entrada(ruta);
    if (!entrada.open(QIODevice::ReadOnly))
        throw ErrorInforme(CodigoInforme::FicheroAusente, "No se encuentra o no se puede leer el informe " +
                                                              fichero + " (" +
                                                              entrada.errorString().toStdString() + ")");
    return LeerDisposicion(entrada.read(BytesDeDisposicion).toStdString(), fichero, JuntoA(ruta));
}

DisposicionHallada BuscarDisposicion(const QString& ruta) {
    const QFileInfo datos(ruta);
    const QString fichero = BuscarSinCaja(datos.path(), datos.fileName());
    QString porque;
    if (auto suya = DeFichero(fichero, porque))
        return {std::move(*suya), {}};
    const auto texto = DisposicionIncluida(datos.fileName());
    if (!texto)
        throw ErrorInforme(CodigoInforme::FicheroAusente,
                           "No hay ningún diseño para el informe: " + porque.toStdString());
    return {LeerDisposicion(texto->toStdString(), datos.fileName().toStdString(), Incluible),
            QStringLiteral("Diseño incluido en el programa: ") + porque};
}

} // namespace pastorix
