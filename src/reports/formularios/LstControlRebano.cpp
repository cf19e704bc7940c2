#include "reports/formularios/LstControlRebano.h"

#include "frame/calendario/Reloj.h"
#include "reports/figuras/Figuras.h"
#include "reports/formularios/SelectorGanadero.h"

#include <QCheckBox>
#include <QFormLayout>

namespace pastorix {

LstControlRebaño::LstControlRebaño(Sesion& sesion, ControlInforme& control, QWidget* padre)
    : FormularioDeInforme(sesion, control, "LstControlRebaño", QStringLiteral("Controles de Rebaño"), padre)
    , m_ganadero(new SelectorGanadero(Base(), Campos(), this))
    , m_check1(new QCheckBox(QStringLiteral("Vacas en Control &Reproductivo"), this)) {
    ElegirCon(*m_ganadero);
    m_check1->setObjectName(QStringLiteral("Check1"));
    Campos().addRow(QString(), m_check1);
    Exigir([this] { return !m_ganadero->Marcados().empty(); }, "Debe seleccionar algún Ganadero");
    AdmitirOpcion("control-reproductivo", [this](const QString&) {
        m_check1->setChecked(true);
        return true;
    });
    resize(fontMetrics().averageCharWidth() * 70, fontMetrics().height() * 24);
}

bool LstControlRebaño::Llenar(const FuncionAvance& avance) {
    return LlenarControlRebaño(Base(), m_ganadero->Marcados(), avance);
}

HojaDeInforme LstControlRebaño::Hoja() const {
    HojaDeInforme hoja;
    hoja.titulo = QStringLiteral(" Controles de Rebaño");
    hoja.fichero = QStringLiteral("ControlRebaño.rpt");
    if (m_check1->isChecked()) {
        hoja.formula = QStringLiteral("{X_Temp.C5} <= '%1'").arg(Hoy().Año());
        hoja.parametros << QStringLiteral(
                               "Criterio;Vacas en control reproductivo: año de referencia %1 o anterior")
                               .arg(Hoy().Año());
    }
    return hoja;
}

} // namespace pastorix
