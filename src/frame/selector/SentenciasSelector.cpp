#include "frame/selector/SentenciasSelector.h"

#include "store/Literales.h"

namespace pastorix {

namespace {

std::string DelGanadero(const char* campo, std::optional<double> ganadero) {
    return ganadero ? std::string(" AND ") + campo + " = " + NumeroSql(*ganadero) : std::string();
}

} // namespace

SentenciaDeLista SentenciaGanaderos(VeterinarioDeLista veterinario) {
    const std::string nombre = veterinario == VeterinarioDeLista::NombreYApellidos
                                   ? "T_Veterinarios.NombreVet & ' ' & T_Veterinarios.ApellidosVet & chr(13)"
                                   : "T_Veterinarios.NombreVet & chr(13)";
    return {"SELECT " + nombre +
                " & '(' & T_Veterinarios.Concejo & ')' As NombreVet, T_Direcciones.Localidad, "
                "T_Ganaderos.Apodo, T_Ganaderos.Nombre, T_Ganaderos.Apellidos, T_Ganaderos.Id_Ganadero "
                "FROM (T_Ganaderos LEFT JOIN T_Veterinarios ON T_Ganaderos.Id_Veterinario = "
                "T_Veterinarios.Id_Veterinario) LEFT JOIN T_Direcciones ON (T_Ganaderos.Id_Direccion = "
                "T_Direcciones.Id_Direccion) AND (T_Ganaderos.Id_Ganadero = T_Direcciones.Id_GV)",
            {},
            " ORDER BY T_Veterinarios.NombreVet, T_Direcciones.Localidad, T_Ganaderos.Apodo"};
}

SentenciaDeLista SentenciaVacas(std::optional<double> ganadero) {
    return {"SELECT T_Vacas.Id_Ganadero, T_Ganaderos.Apellidos, T_Ganaderos.Nombre, T_Ganaderos.Apodo, "
            "T_Vacas.Id_Vaca, T_Vacas.RegGenealogico, T_Vacas.RegSaneam, T_Vacas.Nombre AS Vaca, "
            "T_Vacas.Crotal,T_Vacas.CrotalANT , T_Vacas.NombreC, T_Vacas.FechaDesecho FROM T_Vacas, "
            "T_Ganaderos ",
            " WHERE T_Vacas.Id_Ganadero = T_Ganaderos.Id_Ganadero" +
                DelGanadero("T_Vacas.Id_Ganadero", ganadero),
            " ORDER BY T_Ganaderos.Apodo,T_Vacas.Nombre "};
}

SentenciaDeLista SentenciaVacasTodas() {
    auto sentencia = SentenciaVacas();
    sentencia.orden = " ORDER BY T_Vacas.Id_Ganadero, T_Vacas.NombreC";
    return sentencia;
}

SentenciaDeLista SentenciaSementales(std::optional<double> ganadero) {
    return {"SELECT T_Sementales.Id_Ganadero, T_Ganaderos.Apellidos, T_Ganaderos.Nombre, T_Ganaderos.Apodo, "
            "T_Sementales.Id_Semental, T_Sementales.RegGenealogico, T_Sementales.RegSaneam, "
            "T_Sementales.Nombre AS Semental, T_Sementales.Crotal, T_Sementales.NombreC, "
            "T_Sementales.FechaBaja FROM T_Sementales, T_Ganaderos",
            " WHERE T_Sementales.Id_Ganadero = T_Ganaderos.Id_Ganadero" +
                DelGanadero("T_Sementales.Id_Ganadero", ganadero),
            " ORDER BY T_Ganaderos.Nombre, T_Ganaderos.Apellidos, T_Sementales.NombreC"};
}

SentenciaDeLista SentenciaSementalesPorCodigo() {
    return {"SELECT T_Sementales.Id_Ganadero, T_Ganaderos.Apellidos, T_Ganaderos.Nombre, "
            "T_Sementales.Id_Semental, T_Sementales.Nombre AS Semental FROM T_Sementales, T_Ganaderos",
            " WHERE T_Sementales.Id_Ganadero = T_Ganaderos.Id_Ganadero", " ORDER BY Id_Semental"};
}

SentenciaDeLista SentenciaMeritos() {
    return {"SELECT T_Sementales.Id_Ganadero, T_Sementales.NombreC, T_Sementales.RegGenealogico, "
            "T_Sementales.FechaNac, T_Sementales.NombrePadre, T_Sementales.NombreMadre, "
            "T_Sementales.Calificacion, T_Sementales.MG_PN, T_Sementales.FiabPN, T_Sementales.MG_PD, "
            "T_Sementales.FiabPD, T_Sementales.MG_GD, T_Sementales.FiabGD, T_Sementales.MG_DP, "
            "T_Sementales.FiabDP, T_Sementales.Id_Semental From T_Sementales",
            {},
            " ORDER BY T_Sementales.Id_Ganadero, T_Sementales.NombreC"};
}

SentenciaDeLista SentenciaVeterinarios(bool conUsuario) {
    return {std::string("SELECT T_Veterinarios.Id_Veterinario, T_Veterinarios.NombreVet, "
                        "T_Veterinarios.ApellidosVet, T_Direcciones.Localidad") +
                (conUsuario ? ", T_Veterinarios.Usuario" : "") +
                " FROM T_Veterinarios LEFT JOIN T_Direcciones ON (T_Veterinarios.Id_Veterinario = "
                "T_Direcciones.Id_GV) AND (T_Veterinarios.Id_Direccion = T_Direcciones.Id_Direccion)",
            {},
            " ORDER BY LOCALIDAD"};
}

SentenciaDeLista SentenciaNucleos() {
    return {"SELECT T_Nucleos.Id_Nucleo, T_Nucleos.DescNucleo, T_Nucleos.Controlador, T_Nucleos.Localidad "
            "FROM T_Nucleos",
            {},
            " ORDER BY DescNucleo"};
}

SentenciaDeLista SentenciaXSelector(bool conBajas) {
    return {"SELECT Apodo, Id_Semental, RegGen, RegSan, Semental, Crotal, SementalC FROM X_Selector",
            conBajas ? "" : " WHERE Baja = 0", " ORDER BY ID"};
}

} // namespace pastorix
