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

    void reject() override; // not over a note that nobody has saved

private:
    void Cargar();
    void Aceptar();

    Conexion& m_c;
    double m_idVaca;
    CampoMemo* m_nota;
    QComboBox* m_chequeo;
    int m_leido = 0; // item as read
};

} // namespace pastorix
