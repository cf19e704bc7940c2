#include "reports/formularios/Lst_Vacas.h"

#include "frame/Mensajes.h"
#include "frame/calendario/Calendario.h"
#include "frame/calendario/Reloj.h"
#include "reports/figuras/Figuras.h"
#include "reports/formularios/CampoAno.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QRegularExpressionValidator>

namespace pastorix {

Lst_Vacas::Lst_Vacas(Sesion& sesion, ControlInforme& control, QWidget* padre)
    : FormularioDeInforme(sesion, control, "Lst_Vacas", QStringLiteral("Vacas"), padre)
    , m_ganadero(new ComboGanaderos(Base(), " WHERE Id_Ganadero > 1", QStringLiteral("Combo1"),
                                    QStringLiteral("Ninguno"), this))
    , m_año(new CampoAño(QStringLiteral("Ct_AñoRef"), QStringLiteral("Año"), this))
    , m_aFecha(new QCheckBox(QStringLiteral("Censo a fec&ha:"), this))
    , m_fecha(new QLineEdit(this))
    , m_novillas(new QCheckBox(QStringLiteral("Incluir &Novillas 1ª Cubrición"), this))
    , m_toros(new QCheckBox(QStringLiteral("Incluir &Toros"), this)) {
    ElegirCon(*m_ganadero);
    m_año->setText(QString::number(Hoy().Año()));
    m_novillas->setObjectName(QStringLiteral("Check1"));
    m_toros->setObjectName(QStringLiteral("Check2"));
    PonerCampo(Campos(), QStringLiteral("Seleccionar &Ganadero"), 0, m_ganadero);
    PonerCampo(Campos(), QStringLiteral("Añ&o"), 1, m_año);
    PonerFecha();
    Campos().addRow(QString(), m_novillas);
    Campos().addRow(QString(), m_toros);
    const auto exigir = [this](std::function<bool()> cumple, const char* mensaje, QWidget* campo) {
        Exigir(std::move(cumple), [this, mensaje, campo] {
            Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"), QString::fromUtf8(mensaje));
            campo->setFocus();
        });
    };
    exigir([this] { return m_año->text().size() == 4; }, "Debe Indicar el Año de Referencia", m_año);
    exigir([this] { return m_ganadero->Elegido() != 0; }, "Debe Indicar el Ganadero", m_ganadero);
    exigir([this] { return !m_aFecha->isChecked() || EsFechaValida(m_fecha->text().toStdString()); },
           "La fecha del censo no es válida", m_fecha);
    AdmitirOpcion("año", [this](const QString& v) {
        m_año->setText(v);
        return true;
    });
    AdmitirOpcion("novillas", [this](const QString&) {
        m_novillas->setChecked(true);
        return true;
    });
    AdmitirOpcion("toros", [this](const QString&) {
        m_toros->setChecked(true);
        return true;
    });
    resize(fontMetrics().averageCharWidth() * 60, sizeHint().height());
}

void Lst_Vacas::PonerFecha() {
    m_aFecha->setObjectName(QStringLiteral("Option1"));
    m_fecha->setObjectName(QStringLiteral("Ct_FechaCenso"));
    m_fecha->setAccessibleName(QStringLiteral("Fecha del censo"));
    m_fecha->setMaxLength(10);
    m_fecha->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9/]*")), m_fecha));
    m_fecha->setEnabled(false);
    connect(m_aFecha, &QCheckBox::toggled, m_fecha, &QLineEdit::setEnabled);
    Campos().addRow(m_aFecha, m_fecha);
}

bool Lst_Vacas::Llenar(const FuncionAvance& avance) {
    return LlenarVacas(Base(),
                       {m_ganadero->Elegido(), m_año->text().toStdString(), m_novillas->isChecked(),
                        m_aFecha->isChecked() ? m_fecha->text().toStdString() : std::string()},
                       avance);
}

HojaDeInforme Lst_Vacas::Hoja() const {
    HojaDeInforme hoja;
    hoja.titulo = QStringLiteral(" Vacas ");
    hoja.fichero = m_toros->isChecked() ? QStringLiteral("rTVacas.rpt") : QStringLiteral("rVacas.rpt");
    hoja.parametros << QStringLiteral("Titulo; (%1)").arg(m_año->text());
    QStringList criterio;
    if (m_aFecha->isChecked())
        criterio << QStringLiteral("Censo a ") + m_fecha->text();
    criterio << (m_novillas->isChecked() ? QStringLiteral("Vacas, y novillas en primera cubrición")
                                         : QStringLiteral("Vacas paridas"));
    hoja.parametros << QStringLiteral("Criterio;") + criterio.join(QStringLiteral(" · "));
    if (m_toros->isChecked()) // those that were there on any day of it
        hoja.parametros << QStringLiteral("Desde;01/12/%1").arg(m_año->text().toInt() - 1);
    hoja.deLista = true;
    return hoja;
}

QStringList Lst_Vacas::Sobre() const {
    return {m_ganadero->NombreElegido(), m_año->text()};
}

} // namespace pastorix
