#pragma once

#include "frame/ficha/LineasEditables.h"
#include "registers/datos/Materia.h"

namespace pastorix {

// A subject on screen: how its lines look, and what its controls are called.
struct DefinicionMateria {
    const char* nombre; // as the user knows it
    const Materia& materia;
    const DefinicionLineas& lineas;
    const char* campoNota = nullptr; // without a note the subject has no buttons either
    const char* botonGuardar = nullptr;
    const char* botonCancelar = nullptr;
};

// The subjects, in the order in which the sheet shows them.
extern const DefinicionMateria kHojaIPR;
extern const DefinicionMateria kHojaAlimentacion;
extern const DefinicionMateria kHojaVacunaciones;
extern const DefinicionMateria kHojaFechasVacu;
extern const DefinicionMateria kHojaSuperficie;
extern const DefinicionMateria kHojaSistema;
extern const DefinicionMateria kHojaPastos;

} // namespace pastorix
