#include "frame/Arranque.h"

#include "frame/ErrorInesperado.h"
#include "frame/Mensajes.h"
#include "frame/Mudanza.h"
#include "frame/calendario/Calendario.h"

#include <QDir>
#include <QFileInfo>

namespace pastorix {

namespace {

// A condition that has been told to the user and ends the program.
struct FinAvisado {};

const QString NombreBases = QStringLiteral("Base de Datos");
const QString NombreInformes = QStringLiteral("Informes");

void TomarCerrojo(Sesion& sesion) {
    const QString carpeta = sesion.rutas.Programa();
    if (!QFileInfo(carpeta).isDir())
        return; // nothing to share; the missing files are told in a moment
    auto cerrojo = std::make_unique<QLockFile>(carpeta + QStringLiteral("/pastorix.lock"));
    cerrojo->setStaleLockTime(0); // age alone is no reason: sessions last for days
    if (!cerrojo->tryLock(0)) {
        if (cerrojo->error() == QLockFile::LockFailedError) {
            Avisar(nullptr, TipoMensaje::Atencion, QStringLiteral("Atención"),
                   QStringLiteral("Pastorix ya está abierto en esta carpeta: ") +
                       QDir::toNativeSeparators(carpeta));
            throw FinAvisado{};
        }
        throw ErrorDeEjecucion(75, "Error de acceso a la ruta o al archivo: " +
                                       cerrojo->fileName().toStdString());
    }
    sesion.cerrojo = std::move(cerrojo);
}

void ColocarBases(const Rutas& rutas) {
    const QString programa = rutas.Programa();
    QStringList ficheros;
    for (const QString& base : BasesEntregadas()) {
        const QString fichero = BuscarSinCaja(programa, base);
        if (!QFileInfo(fichero).isFile()) {
            Avisar(nullptr, TipoMensaje::Critico, QStringLiteral("Atención"),
                   QStringLiteral("No es posible continuar no se encuentra el fichero: ") +
                       QDir::toNativeSeparators(programa + QLatin1Char('/') + base));
            throw FinAvisado{};
        }
        ficheros << fichero;
    }
    MudarACarpeta(programa, NombreBases, ficheros);
}

void ColocarInformes(const Rutas& rutas) {
    const QString programa = rutas.Programa();
    QStringList ficheros;
    const QDir carpeta(programa);
    for (const QString& informe : carpeta.entryList({QStringLiteral("*.rpt")}, QDir::Files | QDir::Hidden))
        ficheros << carpeta.filePath(informe);
    MudarACarpeta(programa, NombreInformes, ficheros);
}

void PrepararCarpetas(const Rutas& rutas) {
    DeshacerMudanza(rutas.Programa(), NombreBases);
    DeshacerMudanza(rutas.Programa(), NombreInformes);
    if (rutas.Programa() == CarpetaDelUsuario())
        RellenarCarpeta(rutas, CarpetaCompartida());
    if (!QFileInfo(rutas.BaseDeDatos()).isDir())
        ColocarBases(rutas);
    if (!QFileInfo(rutas.Informes()).isDir())
        ColocarInformes(rutas);
}

void DeclararOrigenes(Sesion& sesion) {
    DeclararOrigen(sesion, "OD_PRADALC", sesion.rutas.BasePrincipal());
    DeclararOrigen(sesion, "OD_PSTX", sesion.rutas.BasePrincipal());
    DeclararOrigen(sesion, "OD_TOROS", sesion.rutas.BaseToros());
}

void Inesperado(long numero, const char* descripcion) {
    AvisarErrorInesperado(nullptr, numero, QString::fromUtf8(descripcion));
}

void AvisarErrorDeAlmacen(const ErrorAlmacen& error) {
    constexpr long origenDesconocido = 3120;
    if (error.Codigo() == CodigoError::NoSePuedeAbrir || error.Numero() == origenDesconocido)
        AvisarErrorDeAcceso(nullptr, QString::fromUtf8(error.what()));
    else
        Inesperado(error.Numero(), error.what());
}

} // namespace

bool Arrancar(Sesion& sesion, const FuncionAvance& avance) {
    FijarAvisoDeErrorDeFecha(
        [](long numero, const std::string& texto) { Inesperado(numero, texto.c_str()); });
    try {
        TomarCerrojo(sesion);
        PrepararCarpetas(sesion.rutas);
        DeclararOrigenes(sesion);
        AbrirConexion(sesion, avance);
        sesion.TextosBoton = {"Añadir", "Modificar", "Eliminar", "Guardar", "Cancelar", "..."};
        sesion.VersionPrograma = "Pastorix (3.09)";
        return true;
    } catch (const FinAvisado&) {
    } catch (const ErrorAlmacen& error) {
        AvisarErrorDeAlmacen(error);
    } catch (const ErrorDeEjecucion& error) {
        Inesperado(error.Numero(), error.what());
    } catch (const std::exception& error) {
        constexpr long errorInterno = 51;
        Inesperado(errorInterno, error.what());
    }
    sesion.cerrojo.reset();
    return false;
}

} // namespace pastorix
