#pragma once

#include "store/BaseDePrueba.h"

#include <string>

namespace prueba {

// Two farms with their people, the two reserved owners of bulls, a few cows and bulls.
struct Granjas : Base {
    Granjas() {
        Poner("T_Veterinarios", "Id_Veterinario=2, NombreVet=Eva, ApellidosVet=López, Concejo=Tineo, "
                                "Usuario=elopez, Id_Direccion=4");
        Poner("T_Direcciones", "Id_Direccion=3, Id_GV=12, Localidad=Navelgas");
        Poner("T_Direcciones", "Id_Direccion=4, Id_GV=2, Localidad=Luarca");
        Ganadero(1, "Toros IA", "", "Toros IA");
        Ganadero(12, "Nicolás", "Ñuño", "Casa Pola", 2.0, 3.0);
        Ganadero(57, "Olga", "Cuesta", "La Braña");
        Ganadero(900, "Otros", "", "Otros Toros");
        Vaca(1200001, 12, "Luna", "ES0300004512", "Luna-Culón", {});
        Vaca(1200002, 12, "Luna Nueva", "ES0300004513", "Luna Nueva", F("01/03/2024"));
        Vaca(1200003, 12, "Ñora", "45", "Ñora", {});
        Vaca(57000001, 57, "Estrella", "ES0300001245", "Estrella", F("15/03/2024"));
        Toro(12001, 12, "Ares", {});
        Toro(12002, 12, "Brezo", F("02/02/2020"));
        Toro(900001, 900, "Ajeno", {});
        Toro(3, 1, "Imán", {});
        Toro(4, 1, "Jara", F("05/05/2019"));
        Poner("T_Nucleos", "Id_Nucleo=1, DescNucleo=Occidente");
    }

    void Ganadero(double codigo, const char* nombre, const char* apellidos, const char* apodo, Valor vet = {},
                  Valor direccion = {}) {
        Poner("T_Ganaderos", "Id_Ganadero, Nombre, Apellidos, Apodo, Id_Veterinario, Id_Direccion", codigo,
              std::string(nombre), std::string(apellidos), std::string(apodo), vet, direccion);
    }
    void Vaca(double codigo, double ganadero, const char* nombre, const char* crotal, const char* nombreC,
              std::optional<Fecha> baja) {
        Poner("T_Vacas", "Id_Vaca, Id_Ganadero, Nombre, Crotal, NombreC, FechaDesecho", codigo, ganadero,
              std::string(nombre), std::string(crotal), std::string(nombreC), baja ? Valor(*baja) : Valor());
    }
    void Toro(double codigo, double ganadero, const char* nombre, std::optional<Fecha> baja) {
        Poner("T_Sementales",
              "Id_Semental, Id_Ganadero, Nombre, NombreC, RegGenealogico, RegSaneam, MG_PN, FechaBaja",
              codigo, ganadero, std::string(nombre), std::string(nombre) + "-C", std::string("G") + nombre,
              std::string("S") + nombre, codigo / 2, baja ? Valor(*baja) : Valor());
    }

    // One field of each row, joined by "/".
    std::string Columna(const std::string& sentencia, const std::string& campo) {
        Recordset rs(c, sentencia, Cursor::Estatico, Bloqueo::SoloLectura);
        std::string t;
        for (; !rs.Eof(); rs.Siguiente())
            t += (t.empty() ? "" : "/") + rs[campo].Texto();
        return t;
    }
};

} // namespace prueba
