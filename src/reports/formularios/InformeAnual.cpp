#include "reports/formularios/InformeAnual.h"

#include "reports/formularios/CampoAno.h"
#include "reports/formularios/SelectorGanadero.h"

#include <QFormLayout>

namespace pastorix {

InformeAnual::InformeAnual(const DefinicionAnual& definicion, Sesion& sesion, ControlInforme& control,
                           QWidget* padre)
    : FormularioDeInforme(sesion, control, definicion.nombre, QString::fromUtf8(definicion.titulo), padre)
    , m_definicion(definicion)
    , m_ganadero(new SelectorGanadero(Base(), Campos(), this))
    , m_año(new CampoAño(QStringLiteral("Ct_E"), QString::fromUtf8(definicion.rotuloAño), this)) {
    ElegirCon(*m_ganadero);
    // "Año &Referencia": the mnemonic of the last word leaves Alt+A to the button.
    auto rotulo = QString::fromUtf8(definicion.rotuloAño);
    rotulo.insert(rotulo.lastIndexOf(QLatin1Char(' ')) + 1, QLatin1Char('&'));
    PonerCampo(Campos(), rotulo, 2, m_año);
    const auto exigirAño = [this] {
        Exigir([this] { return m_año->text().size() == 4; }, m_definicion.mensajeAño);
    };
    if (definicion.añoPrimero)
        exigirAño();
    Exigir([this] { return !m_ganadero->Marcados().empty(); }, "Debe seleccionar algún Ganadero");
    if (!definicion.añoPrimero)
        exigirAño();
    AdmitirOpcion("año", [this](const QString& v) {
        m_año->setText(v);
        return true;
    });
    resize(fontMetrics().averageCharWidth() * 70, fontMetrics().height() * 24);
}

bool InformeAnual::Llenar(const FuncionAvance& avance) {
    if (m_definicion.llenar(Base(), {m_ganadero->Marcados(), m_año->text().toStdString()}, avance))
        return true;
    Informar(m_definicion.nadaQueInformar);
    return false;
}

HojaDeInforme InformeAnual::Hoja() const {
    HojaDeInforme hoja;
    hoja.titulo = QString::fromUtf8(m_definicion.tituloVentana);
    hoja.fichero = QString::fromUtf8(m_definicion.fichero);
    if (m_definicion.parametros)
        hoja.parametros = m_definicion.parametros(m_año->text());
    hoja.conVeterinario = m_definicion.conVeterinario;
    return hoja;
}

QStringList InformeAnual::Sobre() const {
    return {m_ganadero->NombreElegido(), m_año->text()};
}

} // namespace pastorix
