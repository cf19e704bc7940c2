#include "reports/motor/Escritura.h"

#include "reports/motor/ErrorInforme.h"
#include "store/Errores.h"
#include "store/Ficheros.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <deque>

namespace pastorix {

namespace {

// Where the file lies: what a link leads to, not the link. What rename would pass over is looked at here: it replaces a file that
// nobody may write.
QString Lugar(const QString& fichero) {
    const QFileInfo datos(fichero);
    if (!QFileInfo(datos.absolutePath()).isDir())
        NoSePuedeEscribir(fichero, "no existe la carpeta");
    if (datos.isDir())
        NoSePuedeEscribir(fichero, "hay una carpeta con ese nombre");
    if (datos.exists() && !datos.isWritable())
        NoSePuedeEscribir(fichero, "el fichero es de solo lectura");
    return datos.exists() ? datos.canonicalFilePath() : datos.absoluteFilePath();
}

// Unbuffered: what the system refuses is told by the call that it refuses.
void Escribir(const QString& temporal, const FicheroEntero& fichero, const QString& lugar) {
    QFile salida(temporal);
    errno = 0;
    bool bien = salida.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered) &&
                salida.write(fichero.bytes) == fichero.bytes.size();
    const int error = errno;
    if (bien && QFileInfo(lugar).isFile())
        salida.setPermissions(QFile::permissions(lugar)); // where the file system has such things
    salida.close();
    bien = bien && salida.error() == QFileDevice::NoError;
    if (!bien) {
        const auto causa = CausaDelSistema({error, std::generic_category()});
        NoSePuedeEscribir(fichero.nombre, causa.empty() ? salida.errorString().toStdString() : causa);
    }
    SincronizarFichero(Ruta(temporal.toStdString()));
}

} // namespace

void NoSePuedeEscribir(const QString& fichero, const std::string& causa) {
    throw ErrorInforme(CodigoInforme::Escritura,
                       "No se puede escribir el fichero " + fichero.toStdString() + " (" + causa + ")." +
                           (QFileInfo(fichero).isFile() ? " El que había queda como estaba." : ""));
}

void EscribirFicheros(const std::vector<FicheroEntero>& ficheros) {
    std::deque<FicheroTemporal> temporales;
    std::vector<QString> lugares;
    try {
        for (const FicheroEntero& fichero : ficheros) {
            lugares.push_back(Lugar(fichero.nombre));
            temporales.emplace_back(NombreTemporal(Ruta(lugares.back().toStdString())));
            Escribir(QString::fromStdString(TextoDeRuta(temporales.back().Nombre())), fichero,
                     lugares.back());
        }
        for (std::size_t i = 0; i < ficheros.size(); ++i)
            PonerEnSuSitio(temporales[i].Nombre(), Ruta(lugares[i].toStdString()));
    } catch (const ErrorAlmacen& e) {
        throw ErrorInforme(CodigoInforme::Escritura, e.what());
    }
}

} // namespace pastorix
