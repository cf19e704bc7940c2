#pragma once

#include "frame/Sesion.h"

#include <span>

class QWidget;

namespace pastorix {

class ControlInforme;
class FormularioDeInforme;

// A report that a form makes, a line for each layout.
struct EntradaDeInforme {
    const char* nombre; // of the layout without ending, as the command line knows it
    const char* orden;  // of the main window; several layouts may come from one form
    const char*
        opciones;      // of the command line, as it is written in its help: those in brackets may be left out
    const char* queEs; // in a line
    FormularioDeInforme* (*crear)(Sesion&, ControlInforme&, QWidget*);
    const char* fija = nullptr; // option that this layout stands for, "name=value"
};

// In the order of the menu. The plain lists of the registers have no form and are ListadoMaestro's.
std::span<const EntradaDeInforme> CatalogoDeInformes();

} // namespace pastorix
