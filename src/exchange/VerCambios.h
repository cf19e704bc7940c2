#pragma once

#include "exchange/datos/Comparacion.h"

#include <QDialog>

class QTableWidget;
class QTreeWidget;

namespace pastorix {

// "Qué va a cambiar": farmers, their tables and rows, and any row in both versions side by side.
class VerCambios : public QDialog {
    Q_OBJECT

public:
    explicit VerCambios(Comparacion comparacion, QWidget* padre = nullptr);

private:
    void Llenar();
    void MostrarFila();

    Comparacion m_comparacion;
    QTreeWidget* m_arbol;
    QTableWidget* m_fila;
};

} // namespace pastorix
