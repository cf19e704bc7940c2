#pragma once

#include "registers/datos/SituacionDeVaca.h"

#include <QWidget>

#include <functional>

class QLabel;
class QPushButton;
class QToolButton;

namespace pastorix {

// A line of the cow's heading: what is known of her at a glance, the way to the herd control's note, and to the next cow of the farm.
class FranjaSituacion : public QWidget {
public:
    explicit FranjaSituacion(QWidget* padre = nullptr);

    void Mostrar(const SituacionDeVaca& vaca);
    void Limpiar();              // no cow on the sheet
    void PermitirPasar(bool si); // to the next and former cow

    QWidget* Control() const; // what Tab goes to

    std::function<void()> alControl; // the button of the note
    std::function<void(int paso)>
        alPasar; // 1 the next cow, -1 the former one: buttons, Ctrl+PgDn and Ctrl+PgUp in the whole window

private:
    class Renglon;

    QToolButton* CrearPaso(int paso);

    QToolButton* m_anterior;
    QToolButton* m_siguiente;
    QLabel* m_baja;
    Renglon* m_reproduccion;
    QPushButton* m_control;
};

} // namespace pastorix
