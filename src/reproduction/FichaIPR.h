#pragma once

#include "frame/Sesion.h"
#include "frame/ficha/HojaDeCampos.h"

#include <QDialog>

#include <optional>

namespace pastorix {

// The farm's start of reproduction outside the farmer's sheet: one row of T_IPR, of which four dates and a free text are this sheet's. The yearly
// lines are the farmer's own.
class FichaIPR : public QDialog {
public:
    // Of a given farmer, who is then fixed, or empty.
    explicit FichaIPR(Sesion& sesion, std::optional<double> idGanadero = {}, QWidget* padre = nullptr);

private:
    void BuscarGanadero();
    void Mostrar(double codigo);
    void Aceptar();

    Sesion& m_sesion;
    HojaDeCampos* m_hoja;
    double m_mostrado = 0; // farmer on the sheet
};

} // namespace pastorix
