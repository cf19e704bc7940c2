#pragma once

#include "frame/ficha/Lineas.h"

#include <span>
#include <string>
#include <vector>

namespace pastorix {

// One of the two tables of a bull's yearly health records, as a grid shows it. Column 0 is the natural year.
struct DefinicionPatologia {
    const char* rejilla; // object name of the grid
    const char* nombre;  // accessible name
    const char* tabla;
    std::span<const ColumnaLinea> columnas;
    int columnaEdad; // the derived age; -1 none
};

const DefinicionPatologia& PatologiaSem();  // serologies of two samples
const DefinicionPatologia& PatologiaSemR(); // vaccines, and the results that follow from them

// Its columns whose items are the farm's vaccination dates, and the column of T_FechasVacu that each one takes them from.
struct ListaDeVacunas {
    std::size_t columna;
    const char* origen;
};
std::span<const ListaDeVacunas> ListasDeVacunas();

// Dates of a farm's vaccinations against one disease, dd/mm/yy, in the order of its lines; blank and repeated ones left out.
std::vector<std::string> FechasDeVacuna(Conexion& c, double idGanadero, const char* origen);

// A bull's lines, newest year first, with the columns that the grid does not show.
std::vector<Linea> LeerPatologias(Conexion& c, const DefinicionPatologia& d, double idSemental);

// Writes all lines in place of those in the table; one without a year is left out. Throws ErrorAlmacen.
void GuardarPatologias(Conexion& c, const DefinicionPatologia& d, double idSemental,
                       std::span<const Linea> lineas);

} // namespace pastorix
