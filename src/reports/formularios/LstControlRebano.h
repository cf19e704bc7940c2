#pragma once

#include "reports/formularios/FormularioDeInforme.h"

class QCheckBox;

namespace pastorix {

class SelectorGanadero;

// The sheet that goes along to the barn: every live cow of a farmer.
class LstControlRebaño : public FormularioDeInforme {
public:
    LstControlRebaño(Sesion& sesion, ControlInforme& control, QWidget* padre = nullptr);

protected:
    bool Llenar(const FuncionAvance& avance) override;
    HojaDeInforme Hoja() const override;

private:
    SelectorGanadero* m_ganadero;
    QCheckBox* m_check1; // cows under reproductive control only
};

} // namespace pastorix
