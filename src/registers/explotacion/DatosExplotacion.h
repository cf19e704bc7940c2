#pragma once

#include "store/Conexion.h"

#include <vector>

class QWidget;

namespace pastorix {

class PaginaMateria;

// The farm's yearly data on the sheet of farmers: the pages of all subjects, laid out as two tabs. The widgets belong to their parents.
class DatosExplotacion {
public:
    explicit DatosExplotacion(Conexion& base);

    QWidget* CrearIPR(QWidget* padre);    // tab of the reproductive period
    QWidget* CrearManejo(QWidget* padre); // tab with the sub-sheets of management

    void FijarGanadero(double idGanadero);          // 0 for nobody
    std::vector<PaginaMateria*> Pendientes() const; // with something typed and not saved

private:
    PaginaMateria* Poner(PaginaMateria* pagina);

    Conexion& m_base;
    std::vector<PaginaMateria*> m_paginas;
};

} // namespace pastorix
