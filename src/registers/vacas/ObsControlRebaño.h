#pragma once

#include "store/Conexion.h"

#include <QDialog>

class QComboBox;

namespace pastorix {

class CampoMemo;

// The note and the planned check of a cow for the herd control list of the farm visit.
class ObsControlRebaño : public QDialog {
public:
    ObsControlRebaño(Conexion& c, double idVaca, QWidget* padre = nullptr);

private:
    void Cargar();
    void Aceptar();

    Conexion& m_c;
    double m_idVaca;
    CampoMemo* m_nota;
    QComboBox* m_chequeo;
};

} // namespace pastorix
