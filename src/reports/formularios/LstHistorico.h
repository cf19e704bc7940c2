#pragma once

#include "reports/formularios/FormularioDeInforme.h"

class QLineEdit;
class QRadioButton;

namespace pastorix {

struct PeticionHistorico;

// What the histories of calvings and of matings do not share.
struct DefinicionHistorico {
    const char* nombre; // of the form
    const char* titulo; // of form and window
    const char* fichero;
    bool (*llenar)(Conexion&, const PeticionHistorico&, const std::function<void(int, int)>&);
};
extern const DefinicionHistorico kLstHtsEAR_DR;
extern const DefinicionHistorico kLstHtsPxV;

// The career of the cow with an ear tag, or of all cows of a farmer; the tag wins, whoever's the cow is.
class LstHistorico : public FormularioDeInforme {
public:
    LstHistorico(const DefinicionHistorico& definicion, Sesion& sesion, ControlInforme& control,
                 QWidget* padre);

protected:
    bool Llenar(const FuncionAvance& avance) override;
    HojaDeInforme Hoja() const override;
    QStringList Sobre() const override;

private:
    void BuscarVaca();      // IconoBusDato
    void ComprobarCrotal(); // the tag was left

    const DefinicionHistorico& m_definicion;
    ComboGanaderos* m_ganadero;
    QLineEdit* m_crotal; // Ct_Estandar(0)
    QLineEdit* m_nombre; // Ct_Estandar(1), shown only
    QRadioButton* m_vivas;
};

} // namespace pastorix
