#include "frame/Arranque.h"

#include "frame/AvisosDeBase.h"
#include "frame/Cerrojo.h"
#include "frame/Entrega.h"
#include "frame/ErrorInesperado.h"
#include "frame/Mensajes.h"
#include "frame/Mudanza.h"
#include "frame/calendario/Calendario.h"
#include "store/Ficheros.h"
#include "store/Reemplazo.h"

#include <QDir>
#include <QFileInfo>

namespace pastorix {

namespace {

using PedirBases = std::function<bool(const Rutas&)>;

// A condition that has been told to the user and ends the program.
struct FinAvisado {};

const QString NombreBases = QStringLiteral("Base de Datos");
const QString NombreInformes = QStringLiteral("Informes");

void Ocupar(Sesion& sesion) {
    const QString carpeta = sesion.rutas.Programa();
    if (!QFileInfo(carpeta).isDir())
        return; // nothing to share; the missing files are told in a moment
    sesion.cerrojo = TomarCerrojo(carpeta);
    if (!sesion.cerrojo)
        throw FinAvisado{};
}

// What a conversion or a copy left that was killed. The folder is ours alone.
void Limpiar(const Rutas& rutas) {
    for (const QString& base : {rutas.BasePrincipal(), rutas.BasePersonal(), rutas.BaseToros()})
        QuitarSegundosNombres(Ruta(base.toStdString()), Ruta(rutas.BackUp().toStdString()));
    for (const QString& carpeta : {rutas.Programa(), rutas.BaseDeDatos(), rutas.BackUp(), rutas.Temp()})
        LimpiarTemporales(Ruta(carpeta.toStdString()));
}

// An import that was killed, or that failed and was not tried again, leaves its copies. The databases themselves are whole: one takes the
// other's place at a stroke.
void AvisarDeLoInacabado(const Rutas& rutas) {
    QDir temp(rutas.Temp());
    const auto restos = temp.entryList({QStringLiteral("Imp_Cli_*.mdb*"), QStringLiteral("xPradalC.mdb*"),
                                        QStringLiteral("xImportar*.mdb*")},
                                       QDir::Files, QDir::Name);
    if (restos.isEmpty())
        return;
    for (const auto& resto : restos)
        temp.remove(resto);
    Avisar(
        nullptr, TipoMensaje::Informacion, QStringLiteral("Información"),
        QStringLiteral("Una importación quedó sin terminar (%1). La base de datos está entera, como antes de "
                       "ella o con ella hecha. Si no consta en el historial, repítala: no se pierde nada.")
            .arg(restos.join(QStringLiteral(", "))));
}

void ColocarBases(const Rutas& rutas, const PedirBases& pedirBases) {
    const QString& programa = rutas.Programa();
    QStringList ficheros;
    for (const QString& base : BasesEntregadas()) {
        const QString fichero = BuscarSinCaja(programa, base);
        if (!QFileInfo(fichero).isFile()) {
            Avisar(nullptr, TipoMensaje::Critico, QStringLiteral("Atención"),
                   QStringLiteral("No es posible continuar no se encuentra el fichero: ") +
                       QDir::toNativeSeparators(programa + QLatin1Char('/') + base));
            const bool ninguna = BasesQueFaltan(programa) == BasesEntregadas();
            if (ninguna && pedirBases && pedirBases(rutas))
                return ColocarBases(rutas, {});
            throw FinAvisado{};
        }
        ficheros << fichero;
    }
    MudarACarpeta(programa, NombreBases, ficheros);
}

void ColocarInformes(const Rutas& rutas) {
    const QString& programa = rutas.Programa();
    QStringList ficheros;
    const QDir carpeta(programa);
    for (const QString& informe : carpeta.entryList({QStringLiteral("*.rpt")}, QDir::Files | QDir::Hidden))
        ficheros << carpeta.filePath(informe);
    MudarACarpeta(programa, NombreInformes, ficheros);
}

void PrepararCarpetas(const Rutas& rutas, const PedirBases& pedirBases) {
    DeshacerMudanza(rutas.Programa(), NombreBases);
    DeshacerMudanza(rutas.Programa(), NombreInformes);
    if (rutas.Programa() == CarpetaDelUsuario())
        RellenarCarpeta(rutas, CarpetaCompartida());
    if (!QFileInfo(rutas.BaseDeDatos()).isDir())
        ColocarBases(rutas, pedirBases);
    if (!QFileInfo(rutas.Informes()).isDir())
        ColocarInformes(rutas);
}

void DeclararOrigenes(Sesion& sesion) {
    DeclararOrigen(sesion, "OD_PRADALC", sesion.rutas.BasePrincipal());
    DeclararOrigen(sesion, "OD_PSTX", sesion.rutas.BasePrincipal());
    DeclararOrigen(sesion, "OD_TOROS", sesion.rutas.BaseToros());
}

void Inesperado(long numero, const std::exception& error) {
    AvisarErrorInesperado(nullptr, numero, QString::fromUtf8(error.what()), DetalleDe(error));
}

void AvisarErrorDeAlmacen(const ErrorAlmacen& error) {
    constexpr long origenDesconocido = 3120;
    if (error.Codigo() == CodigoError::NoSePuedeAbrir || error.Numero() == origenDesconocido)
        AvisarErrorDeAcceso(nullptr, error);
    else
        Inesperado(error.Numero(), error);
}

// A database that is beyond opening may come back from a safety copy.
void AbrirPrincipal(Sesion& sesion, const FuncionAvance& avance) {
    try {
        AbrirConexion(sesion, avance);
    } catch (const ErrorAlmacen& error) {
        AvisarErrorDeAlmacen(error);
        if (!OfrecerCopia(sesion, sesion.rutas.BasePrincipal(), nullptr,
                          [&](const QString&) { return avance; }))
            throw FinAvisado{};
        AbrirConexion(sesion, avance);
    }
}

} // namespace

bool Arrancar(Sesion& sesion, const FuncionAvance& avance, const PedirBases& pedirBases) {
    FijarAvisoDeErrorDeFecha([](long numero, const std::string& texto) {
        AvisarErrorInesperado(nullptr, numero, QString::fromStdString(texto));
    });
    try {
        Ocupar(sesion);
        if (sesion.cerrojo) {
            Limpiar(sesion.rutas);
            AvisarDeLoInacabado(sesion.rutas);
        }
        PrepararCarpetas(sesion.rutas, pedirBases);
        if (!sesion.cerrojo)
            Ocupar(sesion); // its folder has only now been made
        DeclararOrigenes(sesion);
        AbrirPrincipal(sesion, avance);
        AvisarColumnasAñadidas(sesion, nullptr);
        sesion.TextosBoton = {"Añadir", "Modificar", "Eliminar", "Guardar", "Cancelar", "..."};
        sesion.VersionPrograma = "Pastorix (3.09)";
        return true;
    } catch (const FinAvisado&) {
    } catch (const ErrorAlmacen& error) {
        AvisarErrorDeAlmacen(error);
    } catch (const ErrorDeEjecucion& error) {
        Inesperado(error.Numero(), error);
    } catch (const std::exception& error) {
        constexpr long errorInterno = 51;
        Inesperado(errorInterno, error);
    }
    sesion.cerrojo.reset();
    return false;
}

} // namespace pastorix
