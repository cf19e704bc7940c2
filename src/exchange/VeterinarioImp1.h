#pragma once

#include "exchange/VeterinarioImp.h"

class QTableWidget;

namespace pastorix {

// Which farmers of a veterinarian who joins enter the centre, and with which codes.
class VeterinarioImp1 : public QDialog {
    Q_OBJECT

public:
    VeterinarioImp1(Sesion& sesion, EstadoDeUnion& estado, QWidget* padre = nullptr);
    // Writes a code into the last column. False when the grid has no such farmer.
    bool Poner(const QString& codigo, const QString& central);
    // B_Aceptar: true when the package has been renumbered.
    bool Aceptar();

private:
    void Cargar();

    Sesion& m_sesion;
    EstadoDeUnion& m_estado;
    Conexion m_paquete;
    std::vector<GanaderoQueEntra> m_ganaderos;
    QTableWidget* m_rejilla;
};

} // namespace pastorix
