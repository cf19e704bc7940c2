#pragma once

#include "store/Conexion.h"

#include <QDialog>

namespace pastorix {

class CampoTexto;

// Removal of a farmer: date and reason go to his row at once. His cows stay as they are.
class DarBaja : public QDialog {
public:
    DarBaja(Conexion& c, double idGanadero, const QString& nombre, QWidget* padre = nullptr);

    QString Fecha() const; // as it was accepted
    QString Motivo() const;

private:
    void Aceptar();

    Conexion& m_c;
    double m_idGanadero;
    CampoTexto* m_fecha;
    CampoTexto* m_motivo;
};

} // namespace pastorix
