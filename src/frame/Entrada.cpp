#include "frame/Entrada.h"

#include "frame/AvisosDeBase.h"
#include "frame/ErrorInesperado.h"
#include "frame/Mensajes.h"
#include "frame/PuestaAlDia.h"
#include "frame/calendario/ErrorDeEjecucion.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>

#include <initializer_list>
#include <string>

namespace pastorix {

namespace {

// Runs one step of the entry; its failure does not keep the next from running. Only a failure of the file itself (lock, disk,
// read-only) is told, below the text; false then.
template <typename F>
bool SinFallo(InterfazDeEntrada& interfaz, const char* texto, F&& paso) {
    try {
        paso();
    } catch (const ErrorAlmacen& error) {
        if (!error.DelFichero())
            return true;
        Avisar(interfaz.Ventana(), TipoMensaje::Atencion, QStringLiteral("Atención"),
               QString::fromUtf8(texto), QString::fromUtf8(error.what()), DetalleDe(error));
        return false;
    } catch (const ErrorDeEjecucion&) { // a data source that is not taken
    }
    return true;
}

void MostrarVarias(InterfazDeEntrada& interfaz, std::initializer_list<const char*> ordenes, bool visible) {
    for (const char* orden : ordenes)
        interfaz.Mostrar(QString::fromUtf8(orden), visible);
}

void PonerVersion(Sesion& sesion, InterfazDeEntrada& interfaz) {
    sesion.VersionPrograma = "PASTORIX.    (3.09)";
    interfaz.FijarTitulo(QString::fromStdString(sesion.VersionPrograma));
}

bool EnBase(const Sesion& sesion, const QString& fichero) {
    const OrigenDeDatos* origen = sesion.origenes.Buscar("OD_PRADALC");
    return origen && origen->fichero == fichero.toStdString() && sesion.conexion.Abierta();
}

HacerAvance AvancesDe(InterfazDeEntrada& interfaz) {
    return [&interfaz](const QString& texto) { return interfaz.AvanceSiTarda(texto); };
}

// Points OD_PRADALC at the file and opens the connection on it. False when it does not open; the cause has been told.
bool CambiarDeBase(Sesion& sesion, const QString& fichero, std::string_view nombreEnError,
                   InterfazDeEntrada& interfaz) {
    SinFallo(interfaz, "", [&] { DeclararOrigen(sesion, "OD_PRADALC", fichero, nombreEnError); });
    const auto abrir = [&] {
        try {
            AbrirConexion(sesion, interfaz.AvanceSiTarda(QStringLiteral("Preparando la base de datos...")));
            AvisarColumnasAñadidas(sesion, interfaz.Ventana());
            return true;
        } catch (const std::exception& error) {
            AvisarErrorDeAcceso(interfaz.Ventana(), error);
            return false;
        }
    };
    return abrir() || (OfrecerCopia(sesion, fichero, interfaz.Ventana(), AvancesDe(interfaz)) && abrir());
}

// Looks for damage. False when the file does not let itself be looked at, which has been told.
bool Vigilar(Sesion& sesion, InterfazDeEntrada& interfaz) {
    const bool hecho = SinFallo(interfaz, "No se ha podido comprobar la base de datos",
                                [&] { VigilarBase(sesion, interfaz.Ventana(), AvancesDe(interfaz)); });
    interfaz.MostrarSoloLectura(sesion.conexion.SoloLectura());
    return hecho && sesion.conexion.Abierta();
}

bool EntrarEnPrincipal(Sesion& sesion, InterfazDeEntrada& interfaz) {
    PonerVersion(sesion, interfaz);
    MostrarVarias(interfaz,
                  {"Mnu_ControlCli", "Sep4", "Mnu_Importar", "Mnu_Exportar", "Mnu_ExpTD", "Mnu_BorrarBackup"},
                  true);
    interfaz.Activar(QStringLiteral("MnuT1"), false);
    // The start has opened the main database. After an attempt at the personal one the connection is elsewhere.
    const QString principal = sesion.rutas.BasePrincipal();
    return EnBase(sesion, principal) || CambiarDeBase(sesion, principal, "OD_PRADALC", interfaz);
}

bool EntrarEnPersonal(Sesion& sesion, InterfazDeEntrada& interfaz) {
    PonerVersion(sesion, interfaz);
    MostrarVarias(interfaz,
                  {"Mnu_Importar", "Mnu_Exportar", "Mnu_BorrarBackup", "Sep4", "Mnu_ExpTD", "Mnu_ControlCli"},
                  false);
    interfaz.Activar(QStringLiteral("MnuT2"), false);
    interfaz.Mostrar(QStringLiteral("Mnu_ImpTD"), true);
    interfaz.Activar(QStringLiteral("Mnu_Veterinarios"), true);
    interfaz.ActivarBoton(3, true);
    interfaz.ActivarBoton(4, true);
    interfaz.FijarPanel(QStringLiteral(" Modo: (Base de Datos Personal)"));
    return CambiarDeBase(sesion, sesion.rutas.BasePersonal(), "OD_PRADALP", interfaz);
}

bool HayFilas(Conexion& conexion, const std::string& sentencia) {
    return !Recordset(conexion, sentencia).Eof();
}

// The mode of that user and password, "" for none.
std::string BuscarModo(Conexion& conexion, const QString& usuario, const QString& clave) {
    if ((usuario.toUpper() == QLatin1String("VETERINARIO") || usuario.isEmpty()) && clave.isEmpty())
        return "VETERINARIO";
    if (clave.isEmpty())
        return HayFilas(conexion,
                        "Select * FROM T_Veterinarios WHERE Usuario = " + TextoSql(usuario.toStdString()))
                   ? "VETERINARIO"
                   : "";
    const bool central = !usuario.isEmpty() &&
                         HayFilas(conexion, "Select * FROM Claves WHERE NIVEL = 'CENTRAL' AND Usuario = " +
                                                TextoSql(usuario.toStdString()) +
                                                " AND Clave = " + TextoSql(clave.toStdString()));
    return central ? "CENTRAL" : "";
}

void PonerModoVeterinario(Sesion& sesion, const QString& usuario, InterfazDeEntrada& interfaz) {
    const bool anonimo = usuario.isEmpty();
    interfaz.FijarPanel(QStringLiteral(" Modo: ") + (anonimo ? QStringLiteral("VETERINARIO") : usuario));
    interfaz.Activar(QStringLiteral("Mnu_Veterinarios"), anonimo);
    interfaz.ActivarBoton(3, anonimo);
    sesion.UsuarioSesion = usuario.toStdString();
    MostrarVarias(interfaz, {"Mnu_ControlCli", "Mnu_ExpTD"}, false);
    interfaz.Mostrar(QStringLiteral("Mnu_ImpTD"), true);
    interfaz.ActivarBoton(4, false);
}

void PonerModoCentral(Sesion& sesion, InterfazDeEntrada& interfaz) {
    interfaz.FijarPanel(QStringLiteral(" Modo: BASE DE DATOS CENTRAL"));
    sesion.UsuarioSesion = "CENTRAL";
    MostrarVarias(interfaz, {"Mnu_ControlCli", "Mnu_ExpTD", "Mnu_ImpTD"}, true);
}

void CrearSiFalta(const QString& carpeta) {
    if (!QFileInfo(carpeta).isDir())
        QDir().mkpath(carpeta);
}

void AbrirAños(Sesion& sesion, InterfazDeEntrada& interfaz) {
    if (!interfaz.PreguntarAñosNaturales())
        return;
    const FuncionAvance avance = interfaz.EmpezarAvance(QStringLiteral("Inicializando Aplicación..."));
    const auto fin = qScopeGuard([&] { interfaz.TerminarAvance(); });
    SinFallo(interfaz, "No se han podido abrir todas las filas del año natural",
             [&] { InicializarAñosNaturales(sesion.conexion, avance); });
}

} // namespace

bool ComprobarSesion(Sesion& sesion, const QString& usuario, const QString& clave,
                     InterfazDeEntrada& interfaz) {
    sesion.ModoSesion.clear();
    // A statement that fails for what was typed (an apostrophe) finds nobody.
    if (!SinFallo(interfaz, "No se ha podido comprobar el usuario",
                  [&] { sesion.ModoSesion = BuscarModo(sesion.conexion, usuario, clave); }))
        return false;
    if (sesion.ModoSesion.empty()) {
        Avisar(interfaz.Ventana(), TipoMensaje::Informacion, QStringLiteral("Adios"),
               QStringLiteral("Usuario No Autorizado"));
        return false;
    }
    if (sesion.ModoSesion == "VETERINARIO")
        PonerModoVeterinario(sesion, usuario, interfaz);
    else
        PonerModoCentral(sesion, interfaz);
    return true;
}

bool EntrarEnBase(Sesion& sesion, int indice, const QString& usuario, const QString& clave,
                  InterfazDeEntrada& interfaz) {
    sesion.BaseElegida = indice == 0 ? 0 : 1;
    if (!(indice == 0 ? EntrarEnPrincipal(sesion, interfaz) : EntrarEnPersonal(sesion, interfaz)))
        return false;
    if (!Vigilar(sesion, interfaz) || !ComprobarSesion(sesion, usuario, clave, interfaz))
        return false;
    CrearSiFalta(sesion.rutas.Temp());
    CrearSiFalta(sesion.rutas.BackUp());
    if (sesion.conexion.SoloLectura())
        return true;
    SinFallo(interfaz, "No se ha podido poner al día la base de datos; se intentará en la próxima entrada",
             [&] {
                 PasarVersion(sesion.conexion, sesion.BaseElegida);
                 Reparar(sesion.conexion);
             });
    AbrirAños(sesion, interfaz);
    return true;
}

bool UsuarioLibre(Conexion& conexion, std::string_view nombre) {
    return !HayFilas(conexion,
                     "Select Usuario FROM Claves WHERE Nivel = 'CENTRAL' AND Usuario = " + TextoSql(nombre));
}

} // namespace pastorix
