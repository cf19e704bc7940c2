#include "reports/formularios/LstHistorico.h"

#include "frame/Iconos.h"
#include "frame/Mensajes.h"
#include "frame/selector/Selector.h"
#include "frame/selector/SentenciasSelector.h"
#include "reports/figuras/Figuras.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <QToolButton>

namespace pastorix {

const DefinicionHistorico kLstHtsEAR_DR{"LstHtsEAR_DR", "Histórico Reproductivo por Vaca", "Hts_R.rpt",
                                        LlenarHistoricoReproductivo};
const DefinicionHistorico kLstHtsPxV{"LstHtsPxV", "Histórico Productivo por Vaca", "HTS_P.rpt",
                                     LlenarHistoricoProductivo};

LstHistorico::LstHistorico(const DefinicionHistorico& definicion, Sesion& sesion, ControlInforme& control,
                           QWidget* padre)
    : FormularioDeInforme(sesion, control, definicion.nombre, QString::fromUtf8(definicion.titulo), padre)
    , m_definicion(definicion)
    , m_ganadero(new ComboGanaderos(Base(), " WHERE FechaBaja IS NULL", QStringLiteral("Cd_Ganaderos"),
                                    QStringLiteral("Ninguno"), this))
    , m_crotal(new QLineEdit(this))
    , m_nombre(new QLineEdit(this))
    , m_vivas(new QRadioButton(QStringLiteral("&Sólo Vacas vivas"), this)) {
    ElegirCon(*m_ganadero);
    m_crotal->setObjectName(QStringLiteral("Ct_Estandar(0)"));
    m_crotal->setMaxLength(50);
    connect(m_crotal, &QLineEdit::editingFinished, this, &LstHistorico::ComprobarCrotal);
    connect(m_crotal, &QLineEdit::textEdited, m_nombre, &QLineEdit::clear);
    m_nombre->setObjectName(QStringLiteral("Ct_Estandar(1)"));
    m_nombre->setAccessibleName(QStringLiteral("Nombre de la vaca"));
    m_nombre->setReadOnly(true);
    m_nombre->setFocusPolicy(Qt::NoFocus);
    auto* buscar = new QToolButton(this);
    buscar->setObjectName(QStringLiteral("IconoBusDato"));
    buscar->setIcon(Icono("buscar"));
    buscar->setToolTip(QStringLiteral("Seleccionar"));
    buscar->setAccessibleName(QStringLiteral("Seleccionar la vaca"));
    connect(buscar, &QToolButton::clicked, this, &LstHistorico::BuscarVaca);
    auto* todas = new QRadioButton(QStringLiteral("&Todas las Vacas"), this);
    todas->setObjectName(QStringLiteral("Op_E(0)"));
    m_vivas->setObjectName(QStringLiteral("Op_E(1)"));
    todas->setChecked(true);

    PonerCampo(Campos(), QStringLiteral("&Ganadero"), 0, m_ganadero);
    PonerCampo(Campos(), QStringLiteral("C&rotal"), 1, m_crotal);
    auto* vaca = new QHBoxLayout;
    vaca->addWidget(m_nombre);
    vaca->addWidget(buscar);
    Campos().addRow(QStringLiteral("Vaca"), vaca);
    Campos().addRow(QString(), todas);
    Campos().addRow(QString(), m_vivas);
    m_ganadero->setFocus();

    Exigir([this] { return !m_crotal->text().isEmpty() || m_ganadero->Elegido() != 0; },
           "Si no indica una Vaca, Seleccione un Ganadero");
    AdmitirOpcion("crotal", [this](const QString& v) {
        m_crotal->setText(v);
        return true;
    });
    AdmitirOpcion("vivas", [this](const QString&) {
        m_vivas->setChecked(true);
        return true;
    });
    resize(fontMetrics().averageCharWidth() * 60, sizeHint().height());
}

void LstHistorico::BuscarVaca() {
    const double ganadero = m_ganadero->Elegido();
    const auto vaca = Selector::Elegir(
        Base(), TipoSelector::VacasDeHistoricoEAR,
        SentenciaVacas(ganadero == 0 ? std::nullopt : std::optional(ganadero)).Completa(), this);
    if (!vaca || vaca->clave == 0)
        return;
    m_crotal->setText(QString::fromStdString(TextoDe(vaca->De("Crotal"))));
    m_nombre->setText(QString::fromStdString(TextoDe(vaca->De("NombreC"))));
}

void LstHistorico::ComprobarCrotal() {
    const auto crotal = m_crotal->text();
    m_nombre->clear();
    if (crotal.isEmpty())
        return;
    try {
        Recordset rs(Base(), "SELECT NombreC FROM T_Vacas WHERE Crotal = " + TextoSql(crotal.toStdString()),
                     Cursor::Estatico, Bloqueo::SoloLectura);
        if (!rs.Eof()) {
            m_nombre->setText(QString::fromStdString(rs[0].Texto()));
            return;
        }
    } catch (const ErrorAlmacen& e) {
        AvisarFallo(this, QStringLiteral("Atención"), e);
        return;
    }
    m_crotal->clear();
    Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"),
           QStringLiteral("No existe ninguna vaca con el Crotal: ") + crotal);
}

bool LstHistorico::Llenar(const FuncionAvance& avance) {
    return m_definicion.llenar(
        Base(), {m_crotal->text().toStdString(), m_ganadero->Elegido(), m_vivas->isChecked()}, avance);
}

HojaDeInforme LstHistorico::Hoja() const {
    HojaDeInforme hoja;
    hoja.titulo = QString::fromUtf8(m_definicion.titulo);
    hoja.fichero = QString::fromUtf8(m_definicion.fichero);
    if (m_vivas->isChecked())
        hoja.parametros << QStringLiteral("Criterio;Sólo vacas vivas");
    hoja.conVeterinario = m_crotal->text().isEmpty();
    return hoja;
}

QStringList LstHistorico::Sobre() const {
    return {m_crotal->text().isEmpty() ? m_ganadero->NombreElegido() : m_crotal->text()};
}

} // namespace pastorix
