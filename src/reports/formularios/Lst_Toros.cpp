#include "reports/formularios/Lst_Toros.h"

#include "store/Literales.h"

#include <QFormLayout>

namespace pastorix {

Lst_Toros::Lst_Toros(Sesion& sesion, ControlInforme& control, QWidget* padre)
    : FormularioDeInforme(sesion, control, "Lst_Toros", QStringLiteral("Sementales"), padre)
    , m_ganadero(new ComboGanaderos(Base(), {}, QStringLiteral("Combo1"), QStringLiteral("Todos"), this))
    , m_modelo(new QComboBox(this)) {
    ElegirCon(*m_ganadero, false);
    m_ganadero->setToolTip(QStringLiteral("Supr: todos los ganaderos"));
    m_modelo->setObjectName(QStringLiteral("Combo2"));
    m_modelo->setAccessibleName(QStringLiteral("Modelo del informe"));
    m_modelo->addItems({QStringLiteral("Índices Genéticos"), QStringLiteral("Altas y Bajas")});
    PonerCampo(Campos(), QStringLiteral("Seleccionar &Ganadero"), 0, m_ganadero);
    PonerCampo(Campos(), QStringLiteral("&Modelo del Infome:"), 1, m_modelo);
    AdmitirOpcion("modelo", [this](const QString& v) {
        m_modelo->setCurrentIndex(v.toInt());
        return true;
    });
    resize(fontMetrics().averageCharWidth() * 60, sizeHint().height());
}

HojaDeInforme Lst_Toros::Hoja() const {
    HojaDeInforme hoja;
    const double ganadero = m_ganadero->Elegido();
    hoja.titulo = QStringLiteral(" Sementales");
    hoja.fichero =
        m_modelo->currentIndex() == 0 ? QStringLiteral("Sementales.rpt") : QStringLiteral("Toros.rpt");
    hoja.deLista = ganadero == 0;
    hoja.bandera125 = ganadero != 0;
    hoja.conVeterinario = ganadero != 0;
    if (ganadero != 0) {
        hoja.titulo += QStringLiteral(": ") + m_ganadero->NombreElegido();
        hoja.formula =
            QStringLiteral("{T_Sementales.Id_Ganadero}=") + QString::fromStdString(NumeroSql(ganadero));
    }
    return hoja;
}

} // namespace pastorix
