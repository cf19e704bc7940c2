#include "registers/explotacion/DatosExplotacion.h"

#include "frame/ficha/TiraNavegacion.h"
#include "registers/explotacion/PaginaSistema.h"

#include <QGroupBox>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace pastorix {

DatosExplotacion::DatosExplotacion(Conexion& base)
    : m_base(base) {}

PaginaMateria* DatosExplotacion::Poner(PaginaMateria* pagina) {
    m_paginas.push_back(pagina);
    return pagina;
}

QWidget* DatosExplotacion::CrearIPR(QWidget* padre) {
    return Poner(new PaginaMateria(m_base, kHojaIPR, padre));
}

QWidget* DatosExplotacion::CrearManejo(QWidget* padre) {
    auto* tira = new TiraNavegacion(padre);
    const auto materia = [&](const DefinicionMateria& m) {
        return Poner(new PaginaMateria(m_base, m, tira));
    };
    tira->Añadir("invierno", QStringLiteral("Alimentación Invernal"), materia(kHojaAlimentacion));

    auto* vacunas = new QWidget(tira);
    auto* columna = new QVBoxLayout(vacunas);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(materia(kHojaVacunaciones), 3);
    const auto* estilo = vacunas->style();
    auto* fechas = new QGroupBox(QString::fromUtf8(kHojaFechasVacu.nombre), vacunas);
    auto* dentro = new QVBoxLayout(fechas);
    dentro->setContentsMargins(0, 0, 0, 0);
    dentro->addWidget(materia(kHojaFechasVacu));
    auto* margen = new QHBoxLayout;
    margen->addSpacing(estilo->pixelMetric(QStyle::PM_LayoutLeftMargin));
    margen->addWidget(fechas);
    margen->addSpacing(estilo->pixelMetric(QStyle::PM_LayoutRightMargin));
    columna->addLayout(margen, 2);
    tira->Añadir("vacunas", QStringLiteral("Vac&unaciones"), vacunas);

    tira->Añadir("abonado", QStringLiteral("Abon. &y Superf."), materia(kHojaSuperficie));
    tira->Añadir("sistema", QStringLiteral("Sistema de Producción"), Poner(new PaginaSistema(m_base, tira)));
    tira->Añadir("pastos", QStringLiteral("Pastos Comunales"), materia(kHojaPastos));
    return tira;
}

void DatosExplotacion::FijarGanadero(double idGanadero) {
    for (auto* pagina : m_paginas)
        pagina->FijarGanadero(idGanadero);
}

std::vector<PaginaMateria*> DatosExplotacion::Pendientes() const {
    std::vector<PaginaMateria*> pendientes;
    std::copy_if(m_paginas.begin(), m_paginas.end(), std::back_inserter(pendientes),
                 [](const auto* pagina) { return pagina->Pendiente(); });
    return pendientes;
}

} // namespace pastorix
