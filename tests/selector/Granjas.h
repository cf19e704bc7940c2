#pragma once

#include "store/BaseDePrueba.h"

#include <string>

namespace prueba {

// Two farms with their people, the two reserved owners of bulls, a few cows and bulls.
struct Granjas : Base {
    Granjas() {
        using pastorix::Valor;
        const auto T = [](const char* t) { return Valor(std::string(t)); };
        Poner("T_Veterinarios", {{"Id_Veterinario", 2.0},
                                 {"NombreVet", T("Eva")},
                                 {"ApellidosVet", T("López")},
                                 {"Concejo", T("Tineo")},
                                 {"Usuario", T("elopez")},
                                 {"Id_Direccion", 4.0}});
        Poner("T_Direcciones", {{"Id_Direccion", 3.0}, {"Id_GV", 12.0}, {"Localidad", T("Navelgas")}});
        Poner("T_Direcciones", {{"Id_Direccion", 4.0}, {"Id_GV", 2.0}, {"Localidad", T("Luarca")}});
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
        Poner("T_Nucleos", {{"Id_Nucleo", 1.0}, {"DescNucleo", T("Occidente")}});
    }

    void Ganadero(double codigo, const char* nombre, const char* apellidos, const char* apodo,
                  pastorix::Valor vet = {}, pastorix::Valor direccion = {}) {
        Poner("T_Ganaderos", {{"Id_Ganadero", codigo},
                              {"Nombre", std::string(nombre)},
                              {"Apellidos", std::string(apellidos)},
                              {"Apodo", std::string(apodo)},
                              {"Id_Veterinario", vet},
                              {"Id_Direccion", direccion}});
    }
    void Vaca(double codigo, double ganadero, const char* nombre, const char* crotal, const char* nombreC,
              std::optional<pastorix::Fecha> baja) {
        Poner("T_Vacas", {{"Id_Vaca", codigo},
                          {"Id_Ganadero", ganadero},
                          {"Nombre", std::string(nombre)},
                          {"Crotal", std::string(crotal)},
                          {"NombreC", std::string(nombreC)},
                          {"FechaDesecho", baja ? pastorix::Valor(*baja) : pastorix::Valor()}});
    }
    void Toro(double codigo, double ganadero, const char* nombre, std::optional<pastorix::Fecha> baja) {
        Poner("T_Sementales", {{"Id_Semental", codigo},
                               {"Id_Ganadero", ganadero},
                               {"Nombre", std::string(nombre)},
                               {"NombreC", std::string(nombre) + "-C"},
                               {"RegGenealogico", std::string("G") + nombre},
                               {"RegSaneam", std::string("S") + nombre},
                               {"MG_PN", codigo / 2},
                               {"FechaBaja", baja ? pastorix::Valor(*baja) : pastorix::Valor()}});
    }

    // One field of each row, joined by "/".
    std::string Columna(const std::string& sentencia, const std::string& campo) {
        pastorix::Recordset rs(c, sentencia, pastorix::Cursor::Estatico, pastorix::Bloqueo::SoloLectura);
        std::string t;
        for (; !rs.Eof(); rs.Siguiente())
            t += (t.empty() ? "" : "/") + rs[campo].Texto();
        return t;
    }
};

} // namespace prueba
