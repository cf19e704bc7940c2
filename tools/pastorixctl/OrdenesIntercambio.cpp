#include "pastorixctl/Llamada.h"

#include "exchange/Exportar.h"
#include "exchange/Historial.h"
#include "exchange/ImportarDC.h"
#include "exchange/PasoGanaderos.h"
#include "exchange/ServidorDS.h"
#include "exchange/TorosComunes.h"
#include "store/Ficheros.h"
#include "store/Recordset.h"

#include <QDir>
#include <QFileInfo>

#include <cstdio>
#include <iostream>

// The routes of the exchange, through the forms' own code.
namespace pastorix::ctl {

namespace {

// Boxes go to stderr. A question is answered with what changes nothing, but for --si and for what only warns.
void ResponderEnTexto(bool si) {
    InstalarRespondedor([si](const Mensaje& m) {
        Imprimir(m);
        Respuesta r;
        if (m.clase == Mensaje::Clase::Pregunta) {
            r.si = si || m.titulo == QString::fromUtf8(kTituloDeAviso);
            std::fprintf(stderr, "%s\n", r.si ? "(Sí)" : "(No; con --si se contesta que sí)");
        }
        return r;
    });
}

// What all routes have in common: installation, date, answers.
void Empezar(const Llamada& p, Sesion& sesion, bool principal, const QString& usuario = {}) {
    FijarFecha(p.Opcion("--hoy"));
    ResponderEnTexto(p.Hay("--si"));
    AbrirInstalacion(sesion, p.Exigida("--carpeta"), principal, usuario);
}

void SerCentral(Sesion& sesion) {
    sesion.ModoSesion = "CENTRAL";
    sesion.UsuarioSesion = "CENTRAL";
}

QString CarpetaDe(const Llamada& p, const char* opcion) {
    const auto carpeta = p.Exigida(opcion);
    if (!QDir(carpeta).exists())
        throw ErrorDeOrden("No existe la carpeta: " + carpeta.toStdString());
    return QDir(carpeta).absolutePath();
}

int Estado(bool hecho) {
    return hecho ? 0 : 1;
}

void ImprimirCambios(const Comparacion& c) {
    for (const auto& linea : Lineas(c))
        std::cout << linea << "\n";
}

std::vector<std::pair<QString, QString>> Parejas(const QString& texto) {
    std::vector<std::pair<QString, QString>> parejas;
    for (const auto& pareja : texto.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const auto partes = pareja.split(QLatin1Char(':'));
        bool bien = partes.size() == 2;
        for (const auto& parte : partes) {
            bool esNumero = false;
            parte.toULongLong(&esNumero);
            bien = bien && esNumero;
        }
        if (!bien)
            throw ErrorDeUso("--ganaderos es VIEJO:NUEVO,...: " + texto.toStdString());
        parejas.emplace_back(partes[0], partes[1]);
    }
    return parejas;
}

bool ExportarUno(Sesion& sesion, const QString& usuario, const QString& destino) {
    Exportar f(sesion);
    if (!f.MarcarUsuario(usuario))
        throw ErrorDeOrden("No hay ningún veterinario con el usuario " + usuario.toStdString());
    f.PonerCarpeta(destino);
    return f.Aceptar();
}

} // namespace

int OrdenExportar(const QStringList& argumentos) {
    const Llamada p(argumentos, {"--carpeta", "--usuario", "--destino", "--hoy"}, {"--si"});
    const auto usuario = p.Exigida("--usuario");
    const auto destino = CarpetaDe(p, "--destino");
    Sesion sesion;
    Empezar(p, sesion, true);
    SerCentral(sesion);
    if (usuario != QLatin1String("todos"))
        return Estado(ExportarUno(sesion, usuario, destino));
    QStringList todos;
    Recordset rs(sesion.conexion, "SELECT * FROM T_Veterinarios WHERE NombreVet <> 'VALNOR' ORDER BY Usuario",
                 Cursor::Keyset, Bloqueo::SoloLectura);
    for (; !rs.Eof(); rs.Siguiente())
        if (!rs["Usuario"].Texto().empty())
            todos << QString::fromStdString(rs["Usuario"].Texto());
    rs.Cerrar();
    bool bien = true;
    for (const auto& u : todos)
        bien = ExportarUno(sesion, u, destino) && bien;
    return Estado(bien);
}

int OrdenImportar(const QStringList& argumentos) {
    const Llamada p(argumentos,
                    {"--carpeta", "--usuario", "--origen", "--codigo", "--acceso", "--ganaderos", "--hoy"},
                    {"--simular", "--si"});
    const auto usuario = p.Exigida("--usuario");
    const auto parejas = Parejas(p.Opcion("--ganaderos"));
    const auto origen = CarpetaDe(p, "--origen");
    Sesion sesion;
    Empezar(p, sesion, true);
    SerCentral(sesion);
    ImportarDC f(sesion);
    f.PonerCarpeta(origen);
    f.PonerUsuario(usuario);
    if (p.Hay("--simular")) {
        ImprimirCambios(f.Simular());
        return 0;
    }
    f.ResponderALaUnion({p.Opcion("--codigo"), p.Opcion("--acceso"), parejas});
    return Estado(f.Aceptar());
}

int OrdenEnviar(const QStringList& argumentos) {
    const Llamada p(argumentos, {"--carpeta", "--usuario", "--destino", "--hoy"}, {"--si"});
    const auto destino = CarpetaDe(p, "--destino");
    Sesion sesion;
    Empezar(p, sesion, true, p.Opcion("--usuario"));
    ExportarDS f(sesion);
    f.PonerCarpeta(destino);
    return Estado(f.Aceptar());
}

int OrdenRecibir(const QStringList& argumentos) {
    const Llamada p(argumentos, {"--carpeta", "--usuario", "--origen", "--hoy"}, {"--simular", "--si"});
    const auto origen = CarpetaDe(p, "--origen");
    Sesion sesion;
    Empezar(p, sesion, true, p.Opcion("--usuario"));
    ImportarDS f(sesion);
    f.PonerCarpeta(origen);
    if (p.Hay("--simular")) {
        ImprimirCambios(f.Simular());
        return 0;
    }
    return Estado(f.Aceptar());
}

int OrdenExportarToros(const QStringList& argumentos) {
    const Llamada p(argumentos, {"--carpeta", "--destino", "--hoy"}, {"--si"});
    const auto destino = CarpetaDe(p, "--destino");
    Sesion sesion;
    Empezar(p, sesion, true);
    SerCentral(sesion);
    Exp_TC f(sesion);
    f.PonerCarpeta(destino);
    return Estado(f.Aceptar());
}

int OrdenImportarToros(const QStringList& argumentos) {
    const Llamada p(argumentos, {"--carpeta", "--origen", "--base", "--hoy"}, {"--simular", "--si"});
    const bool principal = p.EsPrincipal();
    const auto origen = CarpetaDe(p, "--origen");
    Sesion sesion;
    Empezar(p, sesion, principal);
    Imp_TC f(sesion);
    f.PonerCarpeta(origen);
    if (p.Hay("--simular")) {
        ImprimirCambios(f.Simular());
        return 0;
    }
    return Estado(f.Aceptar());
}

int OrdenPasar(const QStringList& argumentos) {
    const Llamada p(argumentos, {"--carpeta", "--base", "--ganadero", "--hoy"}, {"--si"});
    const bool principal = p.EsPrincipal();
    bool esNumero = false;
    const double ganadero = p.Exigida("--ganadero").toDouble(&esNumero);
    if (!esNumero)
        throw ErrorDeUso("El ganadero no es un número");
    Sesion sesion;
    Empezar(p, sesion, principal);
    PasoGanaderos f(sesion, principal ? QStringLiteral(" Paso a Pastorix Personal")
                                      : QStringLiteral(" Paso a Pastorix"));
    if (!f.MarcarGanadero(ganadero))
        throw ErrorDeOrden("La lista no ofrece el ganadero " + p.Opcion("--ganadero").toStdString() +
                           ": no existe o no está de baja");
    return Estado(f.Aceptar());
}

int OrdenHistorial(const QStringList& argumentos) {
    const Llamada p(argumentos, {"--carpeta", "--base", "--hoy"}, {"--vaciar", "--si"});
    const bool principal = p.EsPrincipal();
    Sesion sesion;
    Empezar(p, sesion, principal);
    Historial f(sesion);
    if (p.Hay("--vaciar")) {
        f.Vaciar();
        return Estado(f.Filas().empty());
    }
    for (const auto& t : f.Filas())
        std::cout << t.equipo << "\t" << (t.fecha ? FormatoFecha(*t.fecha, "dd/mm/yyyy\thh:nn:ss") : "\t")
                  << "\t" << t.operacion << "\n";
    return 0;
}

int OrdenCompactar(const QStringList& argumentos) {
    const Llamada p(argumentos, {"--carpeta", "--base", "--hoy"}, {"--si"});
    const bool principal = p.EsPrincipal();
    Sesion sesion;
    Empezar(p, sesion, principal);
    return Estado(CompactarEnSesion(sesion, nullptr));
}

int OrdenRestaurar(const QStringList& argumentos) {
    const Llamada p(argumentos, {"--carpeta", "--base", "--copia", "--hoy"}, {"--si"});
    const bool principal = p.EsPrincipal();
    const auto copia = p.Exigida("--copia");
    if (!QFileInfo(copia).isFile())
        throw ErrorDeOrden("No existe el fichero: " + copia.toStdString());
    Sesion sesion;
    Empezar(p, sesion, principal);
    return Estado(
        RestaurarEnSesion(sesion, Ruta(QFileInfo(copia).absoluteFilePath().toStdString()), nullptr));
}

} // namespace pastorix::ctl
