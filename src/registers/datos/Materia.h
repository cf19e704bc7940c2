#pragma once

#include "frame/campos/Lineas.h"
#include "store/Conexion.h"

#include <span>
#include <string>
#include <vector>

namespace pastorix {

// One subject of the farm's yearly data: its table, and the note kept on the farmer's row. Lines of a subject by years have the year in their
// first column; others are numbered from 1 in the column Ln.
struct Materia {
    const char* tabla;
    std::span<const ColumnaLinea> columnas;
    bool porAños;
    const char* columnaNota; // of T_Ganaderos; nullptr: none
};

// The subjects, in the order in which the sheet shows them.
extern const Materia kMateriaIPR;
extern const Materia kMateriaAlimentacion;
extern const Materia kMateriaVacunaciones;
extern const Materia kMateriaFechasVacu;
extern const Materia kMateriaSuperficie;
extern const Materia kMateriaSistema;
extern const Materia kMateriaPastos;

// What a subject holds of one farmer.
struct DatosMateria {
    std::vector<Linea> lineas;
    std::vector<Linea> ocultas; // rows that the grid does not show and that a save writes back all the same
    std::string nota;
};

// Reads a farmer's rows and note. Each line carries the columns of the table that have no place in the grid. A row without year is
// another sheet's and comes among the hidden ones. Throws ErrorAlmacen.
DatosMateria LeerMateria(Conexion& c, const Materia& materia, double idGanadero);

// Rewrites a farmer's rows as one durable unit, whole or not at all: all of them go, the hidden ones and the lines are added in their order,
// the note is written. A hidden row gives way to a line of its year. Throws ErrorAlmacen, with the rows as they were.
void GuardarMateria(Conexion& c, const Materia& materia, double idGanadero, std::span<const Linea> lineas,
                    std::span<const Linea> ocultas, const std::string& nota);

} // namespace pastorix
