#include "registers/explotacion/PaginaSistema.h"

#include "frame/Ciclo.h"
#include "frame/Mensajes.h"
#include "registers/explotacion/Resumen.h"

#include <QLabel>
#include <QShowEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace pastorix {

PaginaSistema::PaginaSistema(Conexion& base, QWidget* padre)
    : PaginaMateria(base, kMateriaSistema, padre) {
    auto* aviso = new QLabel(QStringLiteral("(Las cifras se calculan al abrir esta hoja, para los años que "
                                            "tienen línea en Inicio Periodo Reproductivo)"),
                             this);
    aviso->setEnabled(false);
    aviso->setWordWrap(true);
    static_cast<QVBoxLayout*>(layout())->insertWidget(0, aviso);
    Rejilla().comprobar = [this](const Linea& linea) { return ComprobarAño(linea); };
}

// A year that is kept without a line here is there all the same.
bool PaginaSistema::ComprobarAño(const Linea& linea) {
    const auto& ocultas = Ocultas();
    if (std::none_of(ocultas.begin(), ocultas.end(),
                     [&](const Linea& oculta) { return oculta.celdas[0] == linea.celdas[0]; }))
        return true;
    pastorix::Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"),
                     QString::fromUtf8(Materia().lineas.repetido) + QString::fromStdString(linea.celdas[0]));
    return false;
}

// The figures beside a type are those of its year: they are worked out again, and a year without any goes out of sight.
void PaginaSistema::DespuesDeGuardar() {
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
    auto datos = LeerMateria(Base(), Materia(), Ganadero());
    auto guardadas = std::move(datos.lineas);
    datos.lineas.clear();
    CicloTardio ciclo(window(), QStringLiteral("Obteniendo Información..."));
    const auto avance = [&](int linea, int total) {
        ciclo.Rotular(QStringLiteral("Obteniendo Información... %1").arg(linea));
        ciclo.Avance(linea, total);
    };
    for (const auto& año : LeerResumen(Base(), Ganadero(), avance)) {
        const auto celdas = año.Celdas();
        if (!datos.lineas.empty() && datos.lineas.back().celdas[0] == año.año)
            continue; // the year's second row there; here a year has one type
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

void PaginaSistema::showEvent(QShowEvent* evento) {
    const bool leida = Leida();
    PaginaMateria::showEvent(evento);
    // Other pages and sheets change the figures; what is being typed here matters more than they do.
    if (leida && !evento->spontaneous() && !Pendiente())
        Cargar();
}

} // namespace pastorix
