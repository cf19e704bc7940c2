#pragma once

#include "frame/Sesion.h"

#include <QDialog>

#include <array>
#include <string>
#include <vector>

namespace pastorix {

// Which farmer went to which veterinarian: veterinarian's name, farmer's name and surname, farmers without a veterinarian first.
std::vector<std::array<std::string, 3>> RelacionDeDistribucion(Conexion& conexion);

// That list in a grid. Escape closes it; there is nothing else to do here.
class ControlEquipos : public QDialog {
    Q_OBJECT

public:
    ControlEquipos(const std::vector<std::array<std::string, 3>>& filas, QWidget* padre);
};

// Reads the list and shows it, the parent disabled meanwhile; a failing statement is told in a box.
void MostrarControlEquipos(Sesion& sesion, QWidget* padre);

} // namespace pastorix
