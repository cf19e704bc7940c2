#include "registers/Listas.h"

#include "frame/selector/Selector.h"

namespace pastorix {

namespace {

std::optional<double> Clave(const std::optional<Eleccion>& eleccion) {
    return eleccion ? std::optional(eleccion->clave) : std::nullopt;
}

} // namespace

std::optional<double> ElegirVeterinario(Sesion& sesion, QWidget* padre) {
    return Clave(Selector::Elegir(
        sesion.conexion,
        ListaDelLlamador(
            TipoSelector::Veterinarios,
            "SELECT T_Veterinarios.Id_Veterinario, T_Veterinarios.NombreVet, T_Veterinarios.ApellidosVet, "
            "T_Direcciones.Localidad FROM T_Veterinarios LEFT JOIN T_Direcciones ON "
            "(T_Veterinarios.Id_Veterinario = T_Direcciones.Id_GV) AND (T_Veterinarios.Id_Direccion = "
            "T_Direcciones.Id_Direccion) ORDER BY LOCALIDAD",
            " Selector de Veterinarios", {"Código", "Nombre", "Apellidos", "Localidad"}),
        padre));
}

std::optional<double> ElegirGanadero(Sesion& sesion, QWidget* padre) {
    return Clave(Selector::Elegir(sesion.conexion, TipoSelector::Ganaderos, {}, padre));
}

} // namespace pastorix
