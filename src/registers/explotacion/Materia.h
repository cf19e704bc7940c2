#pragma once

#include "frame/ficha/LineasEditables.h"
#include "store/Conexion.h"

#include <span>
#include <string>
#include <vector>

namespace pastorix {

// One subject of the farm's yearly data as data: its table, how its lines look, and the note kept on the farmer's row.
struct DefinicionMateria {
    const char* nombre; // as the user knows it
    const char* tabla;
    const char* orden; // column by which its rows are read
    const DefinicionLineas& lineas;
    const char* columnaNumero = nullptr; // gets the line's number, from 1
    const char* columnaNota = nullptr;   // of T_Ganaderos; without one the subject has no note and no buttons
    const char* campoNota = nullptr;
    const char* botonGuardar = nullptr;
    const char* botonCancelar = nullptr;
};

// The subjects, in the order in which the sheet shows them.
extern const DefinicionMateria kMateriaIPR;
extern const DefinicionMateria kMateriaAlimentacion;
extern const DefinicionMateria kMateriaVacunaciones;
extern const DefinicionMateria kMateriaFechasVacu;
extern const DefinicionMateria kMateriaSuperficie;
extern const DefinicionMateria kMateriaSistema;
extern const DefinicionMateria kMateriaPastos;

// What a subject holds of one farmer.
struct DatosMateria {
    std::vector<Linea> lineas;
    std::vector<Linea> ocultas; // rows that the grid does not show and that a save writes back all the same
    std::string nota;
};

// Reads a farmer's rows and note. Each line carries the columns of the table that have no place in the grid. A row without year is
// another sheet's and comes among the hidden ones. Throws ErrorAlmacen.
DatosMateria LeerMateria(Conexion& c, const DefinicionMateria& materia, double idGanadero);

// Rewrites a farmer's rows whole, as one durable unit: all of them go, the hidden ones and the lines are added in their order, the note is
// written. A hidden row gives way to a line of its year. Throws ErrorAlmacen on the first row that fails; what was done before it
// stays, so the lines have to be saved again.
void GuardarMateria(Conexion& c, const DefinicionMateria& materia, double idGanadero,
                    std::span<const Linea> lineas, std::span<const Linea> ocultas, const std::string& nota);

} // namespace pastorix
