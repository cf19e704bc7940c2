#pragma once

#include "reports/figuras/GanaderoDeInforme.h"
#include "store/Recordset.h"

#include <string>
#include <string_view>

// The rows of X_Temp that the yearly behaviour of a herd and the histories of its cows have in common. `f` is the new row; the others are
// open on the columns named here.
namespace pastorix {

inline constexpr const char* kColumnasVaca = "T_Vacas.Id_Vaca, T_Vacas.Nombre, T_Vacas.NombreC, "
                                             "T_Vacas.Crotal, T_Vacas.FechaNac, T_Vacas.FechaDesecho, "
                                             "T_Vacas.Desecho";
inline constexpr const char* kColumnasParto =
    "T_Partos.Año_Ref, T_Partos.N_Parto, T_Partos.Fecha_Parto, T_Partos.Semental, T_Partos.OrigenTernero, "
    "T_Partos.PesoNac, T_Partos.Sexo, T_Partos.Cularidad, T_Partos.Muere, T_Partos.DifMamar, T_Partos.Cria, "
    "T_Partos.Suplem3m, T_Partos.DESTINOTERNERO, T_Partos.GDestete, T_Partos.DatosCompletos, "
    "T_Partos.FechaDestete, T_Partos.EdadDestete, T_Partos.PesoDestete, T_Partos.FechaPeso, T_Partos.Peso, "
    "T_Partos.CuartosPerdidos";
inline constexpr const char* kColumnasCubricion =
    "Id_Vaca, Año_Ref, N_Parto, Fecha_Parto, FinicioP, IPR_CP, IEPc, DescCausaPpal, DatosCompletos, "
    "FechaRealParto, FechaEspParto";

// The compound name, or else the plain one.
std::string NombreDeVaca(Recordset& vaca);
// "No" for records that are still open, "Sí" for all others.
const char* Completos(Recordset& registro);
// The date where it is one; a text that is none counts as nothing.
std::optional<Fecha> FechaSiVale(Recordset& rs, std::string_view columna);
// The date by a mask; Null where there is none.
Valor TextoFecha(Recordset& rs, std::string_view columna, std::string_view mascara);

// C1 farmer and place, C2 telephones.
void EscribirGanadero(Recordset& f, const GanaderoDeInforme& ganadero);
// C3 tag, C4 name.
void EscribirVaca(Recordset& f, Recordset& vaca);
// C5 to C17, F1, F2, N1, N3 of a calving; the weighing (F3, N2) is its report's own.
void EscribirParto(Recordset& f, Recordset& parto);
// C5 to C17, F1 to F4 of a mating record, with the calving that opened it, the condition scores and the newest service.
void EscribirCubricion(Conexion& c, Recordset& f, Recordset& vaca, Recordset& cubricion);

} // namespace pastorix
