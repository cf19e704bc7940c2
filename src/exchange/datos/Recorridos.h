#pragma once

#include <span>

// The order in which the tables are gone through, and the per cents that are shown on the way.
namespace pastorix {

enum class ClaseDePaso {
    Tabla,        // rows by their Id_Ganadero
    HijosDeVacas, // tables without a farmer, by their cow
    Ganaderos,    // farmers with their addresses
    HijosDeToros, // pathologies, by their bull
};

inline constexpr int kSinProgreso = -1;

// A step of the reduction of a copy of the central database to a package.
struct PasoDeSalida {
    ClaseDePaso clase;
    const char* tabla;
    int despues;
};
std::span<const PasoDeSalida> PasosDeSalida();

// A step of the merge of a package.
struct PasoDeEntrada {
    ClaseDePaso clase;
    const char* tabla;
    const char* orden; // of the source query
    bool soloSuyos;    // the source is limited to the package's farmers; else the whole table comes
    int trasBorrar;
    int trasCopiar;
};
std::span<const PasoDeEntrada> PasosDeEntrada();

// Tables that hang from a cow and have no farmer; from a bull.
std::span<const char* const> TablasDeVaca();
std::span<const char* const> TablasDeToro();

} // namespace pastorix
