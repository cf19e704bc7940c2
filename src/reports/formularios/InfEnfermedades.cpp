#include "reports/formularios/InfEnfermedades.h"

#include "reports/figuras/Figuras.h"
#include "reports/formularios/CampoAno.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QKeyEvent>

namespace pastorix {

namespace {

// A choice that may be taken back with the Delete key.
class ComboDeCriterio : public QComboBox {
public:
    ComboDeCriterio(const QString& nombre, const QString& accesible, const QStringList& textos,
                    QWidget* padre)
        : QComboBox(padre) {
        setObjectName(nombre);
        setAccessibleName(accesible);
        setToolTip(QStringLiteral("Supr: ninguna"));
        setPlaceholderText(QStringLiteral("Ninguna"));
        addItems(textos);
        setCurrentIndex(-1);
    }

protected:
    void keyPressEvent(QKeyEvent* e) override {
        if (e->key() == Qt::Key_Delete)
            setCurrentIndex(-1);
        else
            QComboBox::keyPressEvent(e);
    }
};

// As a caller without a display names an item, in any letter case.
bool ElegirTexto(QComboBox& combo, const QString& texto) {
    combo.setCurrentIndex(combo.findText(texto, Qt::MatchFixedString));
    return combo.currentIndex() >= 0;
}

} // namespace

InfEnfermedades::InfEnfermedades(Sesion& sesion, ControlInforme& control, QWidget* padre)
    : FormularioDeInforme(sesion, control, "InfEnfermedades", QStringLiteral("Enfermedades Reproductivas"),
                          padre)
    , m_ganadero(new ComboGanaderos(Base(), " WHERE FechaBaja IS NULL", QStringLiteral("Cb_Ganadero"),
                                    QStringLiteral("Ninguno"), this))
    , m_año(new CampoAño(QStringLiteral("Ct_E"), QStringLiteral("Año de Referencia"), this))
    , m_prueba(new ComboDeCriterio(QStringLiteral("Cb_Con(0)"), QStringLiteral("Prueba"),
                                   {QStringLiteral("IBR"), QStringLiteral("BVD"), QStringLiteral("NEOSPORA")},
                                   this))
    , m_valor(new QLineEdit(this))
    , m_problematicas(new QCheckBox(QStringLiteral("Vacas &Problemáticas"), this)) {
    ElegirCon(*m_ganadero);
    PonerCampo(Campos(), QStringLiteral("&Ganadero"), 0, m_ganadero);
    PonerCampo(Campos(), QStringLiteral("Año de &Referencia"), 1, m_año);
    PonerCriterios();
    Exigir([this] { return m_ganadero->Elegido() != 0; }, "Debe seleccionar algún Ganadero");
    Exigir([this] { return m_año->text().size() == 4; }, "Debe indicar el año de Referencia");
    AdmitirCriterios();
    resize(fontMetrics().averageCharWidth() * 60, sizeHint().height());
}

void InfEnfermedades::PonerCriterios() {
    QStringList condiciones;
    for (int i = 0; i < 4; ++i)
        condiciones << QString::fromUtf8(TextoDe(static_cast<CondicionDePrueba>(i)).data());
    m_condicion = new ComboDeCriterio(QStringLiteral("Cb_Con(1)"), QStringLiteral("Condición del resultado"),
                                      condiciones, this);
    m_valor->setObjectName(QStringLiteral("Ct_Valor"));
    m_valor->setToolTip(QStringLiteral("El resultado ha de ser mayor que este número"));
    const auto dondeValor = [this] {
        m_valor->setEnabled(m_condicion->currentIndex() == static_cast<int>(CondicionDePrueba::MayorQue));
    };
    connect(m_condicion, &QComboBox::currentIndexChanged, this, dondeValor);
    dondeValor();
    m_problematicas->setObjectName(QStringLiteral("Ch_Problematicas"));
    m_problematicas->setToolTip(QStringLiteral("Más de 42 días hasta la concepción"));
    PonerCampo(Campos(), QStringLiteral("Criterios:  Prue&ba"), 2, m_prueba);
    PonerCampo(Campos(), QStringLiteral("C&ondición"), 3, m_condicion);
    PonerCampo(Campos(), QStringLiteral("&Valor"), 4, m_valor);
    Campos().addRow(QString(), m_problematicas);
}

void InfEnfermedades::AdmitirCriterios() {
    AdmitirOpcion("año", [this](const QString& v) {
        m_año->setText(v);
        return true;
    });
    AdmitirOpcion("prueba", [this](const QString& v) { return ElegirTexto(*m_prueba, v); });
    AdmitirOpcion("condicion", [this](const QString& v) { return ElegirTexto(*m_condicion, v); });
    AdmitirOpcion("valor", [this](const QString& v) {
        m_valor->setText(v);
        return true;
    });
    AdmitirOpcion("problematicas", [this](const QString&) {
        m_problematicas->setChecked(true);
        return true;
    });
}

QString InfEnfermedades::Criterios() const {
    QStringList partes;
    if (m_problematicas->isChecked())
        partes << QStringLiteral("Vacas Problemáticas");
    if (m_prueba->currentIndex() >= 0) {
        auto prueba = m_prueba->currentText() + QLatin1Char(' ') + m_condicion->currentText();
        if (m_condicion->currentIndex() == static_cast<int>(CondicionDePrueba::MayorQue))
            prueba += QLatin1Char(' ') + m_valor->text();
        partes << prueba;
    }
    return partes.join(QStringLiteral(" : "));
}

bool InfEnfermedades::Llenar(const FuncionAvance& avance) {
    const PeticionEnfermedades peticion{m_ganadero->Elegido(),
                                        m_año->text().toStdString(),
                                        static_cast<PruebaDeEnfermedad>(m_prueba->currentIndex()),
                                        static_cast<CondicionDePrueba>(m_condicion->currentIndex()),
                                        m_valor->text().toStdString(),
                                        m_problematicas->isChecked()};
    if (LlenarEnfermedades(Base(), peticion, avance))
        return true;
    Informar("No hay Cubriciones en el periodo indicado");
    return false;
}

HojaDeInforme InfEnfermedades::Hoja() const {
    HojaDeInforme hoja;
    hoja.titulo = windowTitle();
    hoja.fichero = QStringLiteral("enfermedades.RPT");
    const auto criterios = Criterios();
    hoja.parametros << QStringLiteral("AñoRef;") + m_año->text()
                    << QStringLiteral("Condicion;(") + m_año->text() +
                           (criterios.isEmpty() ? QString() : QStringLiteral(" / ") + criterios) +
                           QLatin1Char(')');
    return hoja;
}

QStringList InfEnfermedades::Sobre() const {
    return {m_ganadero->NombreElegido(), m_año->text()};
}

} // namespace pastorix
