#pragma once

#include "frame/campos/Lineas.h"
#include "registers/datos/CiclosDeVaca.h"

#include <span>
#include <string>
#include <vector>

namespace pastorix {

// The services of a mating record: lines in the order of their number, rewritten as a whole after every change.

// Columns of the lines.
namespace servicio {
enum : std::size_t { Numero, Fecha, Semental, Prog, Tratam, FechaTratam, Tipo, NumeroInsem, Obs, IdSemental };
}
std::span<const ColumnaLinea> ColumnasDeServicio();
std::span<const char* const> Tratamientos();

inline constexpr std::size_t kServiciosEnRejilla = 4;

// All services of a cycle, by number. Throws ErrorAlmacen.
std::vector<Linea> LeerServicios(Conexion& c, const CicloDeVaca& ciclo);

// The lines that the grid holds: of more than four the first three and the last one.
std::vector<Linea> ServiciosEnRejilla(const std::vector<Linea>& todos);
// Numbers of those that it does not, which the next rewrite drops: "4, 5". "" for none.
std::string ServiciosSinSitio(const std::vector<Linea>& todos);

// Writes the lines that have a number in place of those in the table. Throws ErrorAlmacen, with the rows as they were.
void GuardarServicios(Conexion& c, const CicloDeVaca& ciclo, std::span<const Linea> lineas);

// Number proposed for a new service: the last one plus 1.
std::string SiguienteServicio(Conexion& c, const CicloDeVaca& ciclo);

// Running count of inseminations that goes with a kind of service. `linea` is the line in hand, nullptr for a new one. Natural services keep
// the count reached before them, and changing a line's kind moves its count by one. `tipo` is a text of the list of kinds.
std::string NumeroDeInseminacion(Conexion& c, const CicloDeVaca& ciclo, const std::string& tipo,
                                 const Linea* linea);

} // namespace pastorix
