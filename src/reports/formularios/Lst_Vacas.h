#pragma once

#include "reports/formularios/FormularioDeInforme.h"

class QCheckBox;
class QLineEdit;

namespace pastorix {

class CampoAño;

// The cows that a farmer had in a reference year.
class Lst_Vacas : public FormularioDeInforme {
public:
    Lst_Vacas(Sesion& sesion, ControlInforme& control, QWidget* padre = nullptr);

protected:
    bool Llenar(const FuncionAvance& avance) override;
    HojaDeInforme Hoja() const override;
    QStringList Sobre() const override;

private:
    void PonerFecha();

    ComboGanaderos* m_ganadero;
    CampoAño* m_año;
    QCheckBox* m_aFecha;   // Option1
    QLineEdit* m_fecha;    // Ct_FechaCenso
    QCheckBox* m_novillas; // Check1
    QCheckBox* m_toros;    // Check2
};

} // namespace pastorix
