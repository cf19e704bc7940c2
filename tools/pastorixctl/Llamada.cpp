#include "pastorixctl/Llamada.h"

#include "frame/Arranque.h"
#include "frame/Entrada.h"
#include "frame/calendario/Reloj.h"

#include <QDir>

#include <cstdio>

namespace pastorix::ctl {

Llamada::Llamada(const QStringList& argumentos, std::initializer_list<const char*> conValor,
                 std::initializer_list<const char*> sinValor, int palabras) {
    const auto esta = [](std::initializer_list<const char*> lista, const QString& a) {
        for (const char* x : lista)
            if (a == QString::fromUtf8(x))
                return true;
        return false;
    };
    for (qsizetype i = 0; i < argumentos.size(); ++i) {
        const auto& a = argumentos[i];
        if (!a.startsWith(QLatin1String("--"))) {
            if (!palabra.isEmpty() || palabras == 0)
                throw ErrorDeUso("Sobra: " + a.toStdString());
            palabra = a;
        } else if (esta(sinValor, a)) {
            opciones[a] = QString();
        } else if (!esta(conValor, a)) {
            throw ErrorDeUso("Opción desconocida: " + a.toStdString());
        } else if (++i == argumentos.size()) {
            throw ErrorDeUso("Falta el valor de " + a.toStdString());
        } else {
            opciones[a] = argumentos[i];
        }
    }
}

bool Llamada::Hay(const char* nombre) const {
    return opciones.contains(QString::fromUtf8(nombre));
}

QString Llamada::Opcion(const char* nombre) const {
    const auto it = opciones.find(QString::fromUtf8(nombre));
    return it == opciones.end() ? QString() : it->second;
}

QString Llamada::Exigida(const char* nombre) const {
    auto valor = Opcion(nombre);
    if (valor.isNull())
        throw ErrorDeUso(std::string("Falta ") + nombre);
    return valor;
}

bool Llamada::EsPrincipal() const {
    const auto base = Exigida("--base");
    if (base != QLatin1String("personal") && base != QLatin1String("principal"))
        throw ErrorDeUso("--base es personal o principal");
    return base == QLatin1String("principal");
}

void FijarFecha(const QString& texto) {
    if (texto.isNull())
        return;
    const auto fecha = FechaDeIso(texto.toStdString());
    if (!fecha)
        throw ErrorDeUso("La fecha de --hoy no es AAAA-MM-DD: " + texto.toStdString());
    FijarHoy(*fecha);
}

void AbrirInstalacion(Sesion& sesion, const QString& carpeta, bool principal, const QString& usuario) {
    if (!QDir(carpeta).exists())
        throw ErrorDeOrden("No existe la carpeta: " + carpeta.toStdString());
    sesion.rutas = Rutas(QDir::cleanPath(QDir(carpeta).absolutePath()));
    InterfazDeEntrada sinVentanas;
    sesion.BaseElegida = principal ? 0 : 1;
    if (!Arrancar(sesion) || !EntrarEnBase(sesion, principal ? 0 : 1, usuario, {}, sinVentanas))
        throw ErrorDeOrden("No se ha podido entrar en la base de datos");
}

void Imprimir(const Mensaje& mensaje) {
    auto texto = mensaje.texto;
    texto.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    std::fprintf(stderr, "%s: %s\n", qPrintable(mensaje.titulo.trimmed()), qPrintable(texto));
    for (const auto& mas : {mensaje.causa, conDetalle ? mensaje.detalle : QString()})
        if (!mas.isEmpty())
            std::fprintf(stderr, "%s\n", qPrintable(mas));
}

} // namespace pastorix::ctl
