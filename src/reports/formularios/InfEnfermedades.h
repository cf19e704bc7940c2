#pragma once

#include "reports/formularios/FormularioDeInforme.h"

class QCheckBox;
class QLineEdit;

namespace pastorix {

class CampoAño;

// Reproductive diseases of a farmer's reference year, by the result of a test if one is chosen.
class InfEnfermedades : public FormularioDeInforme {
public:
    InfEnfermedades(Sesion& sesion, ControlInforme& control, QWidget* padre = nullptr);

protected:
    bool Llenar(const FuncionAvance& avance) override;
    HojaDeInforme Hoja() const override;
    QStringList Sobre() const override;

private:
    void PonerCriterios();
    void AdmitirCriterios();
    QString Criterios() const; // "" when none is set

    ComboGanaderos* m_ganadero;
    CampoAño* m_año;
    QComboBox* m_prueba;    // Cb_Con(0)
    QComboBox* m_condicion; // Cb_Con(1)
    QLineEdit* m_valor;     // Ct_Valor
    QCheckBox* m_problematicas;
};

} // namespace pastorix
