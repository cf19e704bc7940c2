#pragma once

#include "registers/datos/VacaEnMano.h"

#include <optional>
#include <string>

class QWidget;

namespace pastorix {

class Principal;

// The doors to the sheets of a cow's cycles, for the sheets that lead there. Each comes back when its sheet is closed; what fails is told.

void AbrirCubricion(Principal& marco, QWidget* padre, const VacaEnMano& vaca, const CicloDeVaca& ciclo);
void AbrirParto(Principal& marco, QWidget* padre, const VacaEnMano& vaca, const CicloDeVaca& ciclo);

// What one sheet hands over to the other: the cycle that it proposes, and what the new record takes.
struct PropuestaDeCiclo {
    std::optional<int> añoRef;
    std::optional<int> nParto;
    std::optional<Fecha> fecha; // calving: that opened the cycle of a mating, or that is to be added
    std::string semental;       // sire of the calving
    const char* titulo = "";    // of the dialog; "" its own
};

// The quick additions: year and parity are asked for, the record is added unless it is there, and its sheet opens.
void AñadirCubricion(Principal& marco, QWidget* padre, const VacaEnMano& vaca,
                     const PropuestaDeCiclo& propuesta = {});
void AñadirParto(Principal& marco, QWidget* padre, const VacaEnMano& vaca,
                 const PropuestaDeCiclo& propuesta = {});

} // namespace pastorix
