#pragma once

#include "reports/formularios/FormularioDeInforme.h"

namespace pastorix {

// The bulls of one farmer or of all of them, in two models. The layouts read the register itself.
class Lst_Toros : public FormularioDeInforme {
public:
    Lst_Toros(Sesion& sesion, ControlInforme& control, QWidget* padre = nullptr);

protected:
    bool Llenar(const FuncionAvance&) override { return true; }
    HojaDeInforme Hoja() const override;

private:
    ComboGanaderos* m_ganadero;
    QComboBox* m_modelo; // Combo2
};

} // namespace pastorix
