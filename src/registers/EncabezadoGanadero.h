#pragma once

#include "store/Conexion.h"

#include <QWidget>

#include <array>
#include <functional>
#include <optional>

class QLabel;
class QToolButton;

namespace pastorix {

// The heading of an animal's sheet: code, name and locality of her farmer, and the icon that looks for another one.
class EncabezadoGanadero : public QWidget {
public:
    // `icono` is the search icon's number on the sheet.
    EncabezadoGanadero(Conexion& conexion, int icono, QWidget* padre = nullptr);

    // Shows a farmer; one who is gone shows his code alone. Throws ErrorAlmacen.
    void Poner(double idGanadero);
    void Limpiar();
    std::optional<double> Id() const { return m_id; }
    QString Codigo() const; // "" without a farmer
    QToolButton* Icono() const { return m_icono; }

    std::function<void()> alBuscar; // the icon was pressed

protected:
    void hideEvent(QHideEvent* evento) override;

private:
    Conexion& m_c;
    std::optional<double> m_id;
    std::array<QLabel*, 3> m_rotulos{}; // Et_Ganadero(0) code, (1) name, (2) locality
    QToolButton* m_icono;
};

} // namespace pastorix
