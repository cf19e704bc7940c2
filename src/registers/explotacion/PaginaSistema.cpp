#include "registers/explotacion/PaginaSistema.h"

#include "frame/Ciclo.h"
#include "frame/Mensajes.h"
#include "frame/ficha/Aspecto.h"
#include "registers/datos/Resumen.h"

#include <QLabel>
#include <QShowEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace pastorix {

PaginaSistema::PaginaSistema(Conexion& base, QWidget* padre)
    : PaginaMateria(base, kHojaSistema, padre) {
    auto* aviso = Explicacion(QStringLiteral("(Las cifras se calculan al abrir esta hoja, para los años que "
                                             "tienen línea en Inicio Periodo Reproductivo)"),
                              this);
    aviso->setWordWrap(true);
    static_cast<QVBoxLayout*>(layout())->insertWidget(0, aviso);
    Rejilla().alQuitar = [this](const Linea& linea) { m_quitado = linea.celdas[0]; };
    Rejilla().comprobar = [this](const Linea& linea) { return ComprobarAño(linea); };
}

// A year that is kept without a line here is there all the same.
bool PaginaSistema::ComprobarAño(const Linea& linea) {
    const auto& ocultas = Ocultas();
    if (std::none_of(ocultas.begin(), ocultas.end(),
                     [&](const Linea& oculta) { return oculta.celdas[0] == linea.celdas[0]; }))
        return true;
    pastorix::Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"),
                     QString::fromUtf8(Hoja().lineas.repetido) + QString::fromStdString(linea.celdas[0]));
    return false;
}

// The figures beside a type are those of its year: they are worked out again, and a year without any goes out of sight.
void PaginaSistema::DespuesDeGuardar() {
    m_quitado.reset();
    const auto antes = Ocultas().size();
    Cargar();
    if (Ocultas().size() > antes)
        pastorix::Avisar(
            this, TipoMensaje::Informacion, QStringLiteral("Información"),
            QStringLiteral(
                "El año queda guardado, pero no se ve en la tabla: no tiene línea en Inicio Periodo "
                "Reproductivo"));
}

DatosMateria PaginaSistema::Leer() {
    auto datos = LeerMateria(Base(), Hoja().materia, Ganadero());
    auto guardadas = std::move(datos.lineas);
    datos.lineas.clear();
    CicloTardio ciclo(window(), QStringLiteral("Obteniendo Información..."));
    const auto avance = [&](int linea, int total) {
        ciclo.Rotular(QStringLiteral("Obteniendo Información... %1").arg(linea));
        ciclo.Avance(linea, total);
    };
    for (const auto& año : LeerResumen(Base(), Ganadero(), avance)) {
        const auto celdas = año.Celdas();
        const bool repetido = !datos.lineas.empty() && datos.lineas.back().celdas[0] == año.año;
        if (repetido) { // the year's second row there: its figures once more, with the one type that a year has
            auto otra = datos.lineas.back();
            otra.celdas.assign(celdas.begin(), celdas.end());
            datos.lineas.push_back(std::move(otra));
            continue;
        }
        const auto suya = std::find_if(guardadas.begin(), guardadas.end(),
                                       [&](const Linea& l) { return l.celdas[0] == año.año; });
        Linea linea;
        if (suya != guardadas.end()) {
            linea = std::move(*suya);
            guardadas.erase(suya);
        }
        linea.celdas.assign(celdas.begin(), celdas.end());
        datos.lineas.push_back(std::move(linea));
    }
    std::move(guardadas.begin(), guardadas.end(), std::back_inserter(datos.ocultas));
    return datos;
}

// A year has one type, whichever of its lines it was entered in or removed from.
std::vector<Linea> PaginaSistema::PorGuardar() const {
    std::vector<Linea> lineas;
    for (const auto& linea : Rejilla().Lineas()) {
        if (linea.celdas[0] == m_quitado)
            continue;
        if (lineas.empty() || lineas.back().celdas[0] != linea.celdas[0])
            lineas.push_back(linea);
        else if (!Intacto(linea.leidos.empty() ? Valor() : linea.leidos.back(), linea.celdas.back()))
            lineas.back() = linea;
    }
    return lineas;
}

void PaginaSistema::showEvent(QShowEvent* evento) {
    const bool leida = Leida();
    PaginaMateria::showEvent(evento);
    // Other pages and sheets change the figures; what is being typed here matters more than they do.
    if (leida && !evento->spontaneous() && !Pendiente())
        Cargar();
}

} // namespace pastorix
