#include "registers/datos/CebosDeGanadero.h"

#include "store/Literales.h"

namespace pastorix {

std::string SentenciaCebos(double idGanadero) {
    return "SELECT T_Cebo.Id_Cebo, T_Cebo.AñoRef, T_Cebo.Origen, T_Vacas.Nombre AS Madre, T_Cebo.Sexo, "
           "T_Cebo.Saneamiento, "
           "T_Cebo.FechaNac, T_Cebo.FechaCebo, T_Cebo.FechaSacrif, T_Cebo.FechaMuerte, T_Cebo.KgCanal "
           "FROM T_Cebo LEFT JOIN T_Vacas ON T_Cebo.Id_Vaca = T_Vacas.Id_Vaca WHERE T_Cebo.Id_Ganadero = " +
           NumeroSql(idGanadero) + " ORDER BY T_Cebo.AñoRef DESC, T_Cebo.Id_Cebo DESC";
}

} // namespace pastorix
