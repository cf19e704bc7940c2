#pragma once

#include "reports/FormularioDeInforme.h"

namespace pastorix {

// Yearly technical report of one farmer: census, calvings, weaning, fattening, intervals, mortality and losses.
class Lst_IndicesTecnicos : public FormularioDeInforme {
public:
    Lst_IndicesTecnicos(Sesion& sesion, ControlInforme& control, QWidget* padre = nullptr);

protected:
    bool Validar() override;
    void Llenar(const FuncionAvance& avance) override;
    void Lanzar(ControlInforme& control) override;
};

} // namespace pastorix
