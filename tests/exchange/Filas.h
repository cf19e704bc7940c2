#pragma once

#include "BaseDePrueba.h"

namespace prueba {

inline std::string Filas(Conexion& c, const std::string& sentencia) {
    return Base::Texto(c, sentencia);
}

// An office: veterinarians elopez (2) and svaldes (3), the owner of the shared bulls, farmers 12 and 40 of the one and 57 of the other. Rows without
// owner, and rows of animals that are gone, stand in between.
inline const char* const kOficina =
    "INSERT INTO Claves VALUES ('CENTRAL', 'oficina', 'CENTRAL');"
    "INSERT INTO Historial VALUES ('CENTRAL', '2026-11-20 09:00:00', 'x'), ('elopez', '2026-11-20 10:00:00', "
    "'y'), (NULL, NULL, 'z');"
    "INSERT INTO T_Veterinarios (Id_Veterinario, NombreVet, ApellidosVet, Usuario, Id_Direccion) VALUES (1, "
    "'VALNOR', '', 'VALNOR', NULL),"
    " (2, 'Eva', 'López', 'elopez', 5), (3, 'Sofía', 'Valdés', 'svaldes', 6);"
    "INSERT INTO T_Ganaderos (Id_Ganadero, Nombre, Apellidos, Apodo, Id_Veterinario, TorosComun, "
    "Id_Direccion) VALUES"
    " (1, 'Centro', 'IA', 'Toros IA', 2, 'Sí', NULL), (12, 'Nicolás', 'Suárez', '', 2, 'No', 1), (40, 'Ana', "
    "'Nieto', '', 2, NULL, NULL),"
    " (57, 'José', 'Riesgo', '', 3, 'No', 2);"
    "INSERT INTO T_Direcciones (Id_Direccion, Id_GV, Direccion, FAX, Email) VALUES (1, 12, 'Calle 1', 'f', "
    "'e'), (2, 57, 'Calle 2', '', ''),"
    " (5, 2, 'de Eva', '', ''), (6, 3, 'de Sofía', '', ''), (9, 8888, 'de nadie', '', '');"
    "INSERT INTO T_Vacas (Id_Vaca, Id_Ganadero, NombreC) VALUES (12001, 12, 'Mora'), (12002, 12, 'Linda'), "
    "(40001, 40, 'Sola'),"
    " (57001, 57, 'Rubia'), (57002, 57, 'Parda'), (99, NULL, 'de nadie');"
    "INSERT INTO T_Cubriciones (Id_Cubricion, Id_Vaca, Año_Ref, N_Parto) VALUES (1, 12001, 2025, 1), (1, "
    "57001, 2025, 1), (3, 99, 2025, 1), (4, 777, 2025, 1);"
    "INSERT INTO T_Partos (Id_Parto, Id_Vaca, N_Parto, Id_Semental, Semental) VALUES (1, 12001, 1, 12901, "
    "'Sultán'), (1, 57001, 1, 1, 'Cuco'), (4, 777, 1, 1, 'Cuco');"
    "INSERT INTO T_Servicios (Id_Vaca, Año_Ref, N_Parto, N_Servicio, Id_Semental, Semental) VALUES (12001, "
    "2025, 1, 1, 1, 'Cuco'), (57001, 2025, 1, 1, 57901, 'Duque'),"
    " (777, 2025, 1, 1, 1, 'Cuco');"
    "INSERT INTO T_Mamitis (Id_Vaca, Id_Teto) VALUES (12001, 1), (57001, 1), (777, 1);"
    "INSERT INTO T_Sementales (Id_Semental, Id_Ganadero, NombreC, Crotal) VALUES (1, 1, 'Cuco', 'C1'), "
    "(12901, 12, 'Sultán', 'C2'), (57901, 57, 'Duque', 'C3');"
    "INSERT INTO T_PatologiaSem (Id_Animal, ANatural) VALUES (1, 2025), (12901, 2025), (57901, 2025), (888, "
    "2025);"
    "INSERT INTO T_PatologiaSemR (Id_Animal, ANatural) VALUES (1, 2025), (12901, 2025), (57901, 2025), (888, "
    "2025);"
    "INSERT INTO T_IPR (Id_Ganadero, AñoNatural) VALUES (1, 2025), (12, 2025), (40, 2025), (57, 2025), "
    "(NULL, 2025);"
    "INSERT INTO T_MAMIVACU (Id_Ganadero, Id_Vaca, AñoNat) VALUES (12, 12001, 2025), (57, 57001, 2025), "
    "(NULL, 12002, 2025);"
    "INSERT INTO T_CCNATVACAS (Id_Ganadero, Id_Vaca, AñoNat) VALUES (12, 12001, 2025), (57, 57001, 2025);"
    "INSERT INTO T_CCVacas (Id_Ganadero, Id_Vaca, AñoRef, NumParto) VALUES (12, 12001, 2025, 1), (57, 57001, "
    "2025, 1);"
    "INSERT INTO T_Cebo (Id_Cebo, Id_Ganadero, Id_Parto) VALUES (1, 12, 1), (1, 57, 1), (2, 57, NULL);";

// A database of an office, in a folder of its own.
struct Oficina : Base {
    Oficina() { Sql(c, kOficina); }
};

} // namespace prueba
