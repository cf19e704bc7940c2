#include "pastorixctl/Ordenes.h"

#include "frame/Arranque.h"
#include "frame/Entrada.h"
#include "frame/Mensajes.h"
#include "frame/calendario/Reloj.h"
#include "reports/ListadoMaestro.h"
#include "reports/Lst_IndicesTecnicos.h"
#include "reports/motor/ControlInforme.h"
#include "reports/motor/Exportacion.h"
#include "reports/motor/LectorDeTablas.h"
#include "reports/motor/Pdf.h"

#include <QDir>

#include <cstdio>
#include <map>
#include <optional>

namespace pastorix::ctl {

namespace {

// The call's words, checked before anything is touched.
struct Peticion {
    QString informe;
    std::map<QString, QString> opciones; // "--ganadero" -> value

    explicit Peticion(const QStringList& argumentos) {
        static const QStringList conocidas{QStringLiteral("--carpeta"),  QStringLiteral("--base"),
                                           QStringLiteral("--ganadero"), QStringLiteral("--año"),
                                           QStringLiteral("--hoy"),      QStringLiteral("--pdf"),
                                           QStringLiteral("--xlsx"),     QStringLiteral("--csv")};
        for (qsizetype i = 0; i < argumentos.size(); ++i) {
            const auto& a = argumentos[i];
            if (!a.startsWith(QLatin1String("--"))) {
                if (!informe.isEmpty())
                    throw ErrorDeUso("Sobra: " + a.toStdString());
                informe = a;
            } else if (!conocidas.contains(a)) {
                throw ErrorDeUso("Opción desconocida: " + a.toStdString());
            } else if (++i == argumentos.size()) {
                throw ErrorDeUso("Falta el valor de " + a.toStdString());
            } else {
                opciones[a] = argumentos[i];
            }
        }
    }

    QString Opcion(const char* nombre) const {
        const auto it = opciones.find(QString::fromUtf8(nombre));
        return it == opciones.end() ? QString() : it->second;
    }
    QString Exigida(const char* nombre) const {
        const auto valor = Opcion(nombre);
        if (valor.isNull())
            throw ErrorDeUso(std::string("Falta ") + nombre);
        return valor;
    }
};

void FijarFecha(const QString& texto) {
    if (texto.isNull())
        return;
    const auto fecha = FechaDeIso(texto.toStdString());
    if (!fecha)
        throw ErrorDeUso("La fecha de --hoy no es AAAA-MM-DD: " + texto.toStdString());
    FijarHoy(*fecha);
}

// Starts and enters as the program does, without windows and without the yearly question.
void AbrirInstalacion(Sesion& sesion, const QString& carpeta, bool principal) {
    if (!QDir(carpeta).exists())
        throw ErrorDeOrden("No existe la carpeta: " + carpeta.toStdString());
    sesion.rutas = Rutas(QDir::cleanPath(QDir(carpeta).absolutePath()));
    InterfazDeEntrada sinVentanas;
    sesion.BaseElegida = principal ? 0 : 1;
    if (!Arrancar(sesion) || !EntrarEnBase(sesion, principal ? 0 : 1, {}, {}, sinVentanas))
        throw ErrorDeOrden("No se ha podido entrar en la base de datos");
}

bool CorrerIndices(const Peticion& p, Sesion& sesion, ControlInforme& control) {
    Lst_IndicesTecnicos formulario(sesion, control);
    formulario.PonerAño(p.Exigida("--año"));
    bool esNumero = false;
    const double ganadero = p.Exigida("--ganadero").toDouble(&esNumero);
    if (!esNumero)
        throw ErrorDeUso("El ganadero no es un número");
    if (!formulario.MarcarGanadero(ganadero))
        throw ErrorDeOrden("La lista de ganaderos no ofrece el código " +
                           p.Opcion("--ganadero").toStdString() + ": no existe o está de baja");
    return formulario.Aceptar();
}

void Entregar(const Peticion& p, const InformeTerminado& informe) {
    if (const auto f = p.Opcion("--pdf"); !f.isNull())
        GuardarPdf(informe, f);
    if (const auto f = p.Opcion("--xlsx"); !f.isNull())
        GuardarXlsx(informe, f);
    if (const auto f = p.Opcion("--csv"); !f.isNull())
        GuardarCsv(informe, f);
}

} // namespace

int Informe(const QStringList& argumentos) {
    const Peticion p(argumentos);
    const bool indices = p.informe == QLatin1String("IndTecnicos");
    const bool listado =
        p.informe == QLatin1String("Veterinarios") || p.informe == QLatin1String("Ganaderos");
    if (!indices && !listado)
        throw ErrorDeUso("Informe desconocido: " + p.informe.toStdString());
    const auto base = p.Exigida("--base");
    if (base != QLatin1String("personal") && base != QLatin1String("principal"))
        throw ErrorDeUso("--base es personal o principal");
    const auto carpeta = p.Exigida("--carpeta");
    if (indices) {
        p.Exigida("--ganadero");
        p.Exigida("--año");
    }
    FijarFecha(p.Opcion("--hoy"));

    // What the forms would show in boxes goes to stderr, and is why the command fails.
    bool avisado = false;
    InstalarRespondedor([&](const Mensaje& m) {
        avisado = true;
        std::fprintf(stderr, "%s: %s\n", qPrintable(m.titulo.trimmed()),
                     qPrintable(QString(m.texto).replace(QLatin1Char('\r'), QLatin1Char('\n'))));
        if (!m.detalle.isEmpty())
            std::fprintf(stderr, "%s\n", qPrintable(m.detalle));
        return Respuesta{};
    });
    std::optional<InformeTerminado> terminado;
    ControlInforme::InstalarDestino([&](InformeTerminado informe) { terminado = std::move(informe); });
    Sesion sesion;
    AbrirInstalacion(sesion, carpeta, base == QLatin1String("principal"));
    const LectorDeTablas tablas(sesion.conexion);
    ControlInforme control(tablas);
    if (indices)
        CorrerIndices(p, sesion, control);
    else
        ListadoMaestro(p.informe == QLatin1String("Veterinarios") ? 1 : 2, sesion, control, nullptr);
    if (!terminado || avisado)
        return 1;
    Entregar(p, *terminado);
    return 0;
}

} // namespace pastorix::ctl
