#include "reproduction/datos/Causas.h"

#include <algorithm>

namespace pastorix {

namespace {

constexpr CausaDeDemora kCausas[] = {
    {5, "BVD", "BVD", 10},
    {6, "Aborto", "Aborto", 21},
    {7, "ControlRepNo", "ControlRepNo", 0},
    {8, "DesechoPrev", "DesechoPrevi", 0},
    {9, "Amamantam", "EfectoMamado", 11},
    {10, "Enfermedad", "Enfermendad", 12},
    {11, "EnfReprod", "EnfReprod", 13},
    {12, "IBR", "IBR", 14},
    {13, "ReactOvárNo", "IndNeg", 0},
    {14, "Metritis", "Metritis", 0},
    {15, "MovReservas", "MobReservas", 15},
    {16, "MortEmbrion", "MortEmb", 16},
    {17, "Repetidora", "Repetidora", 0},
    {18, "ToroBajaF", "TBF", 0},
    {19, "ToroAus2m", "TA2MIPR", 0},
    {20, "ToroAus>2m", "TA_2MIPR", 0},
    {21, "DemoraServIPR", "DemoraServIPR", 0},
    {22, ".", "Otra_Causa", 24},
    {23, "Neospora", "Neospirosis", 25},
    {kCausaLibre, "Libre", nullptr, 26},
    {25, "DemoraServ", "DemoraServ", 0},
};

} // namespace

std::span<const CausaDeDemora> CausasDeDemora() {
    return kCausas;
}

const CausaDeDemora* CausaDe(int indice) {
    const auto it = std::find_if(std::begin(kCausas), std::end(kCausas),
                                 [&](const auto& c) { return c.indice == indice; });
    return it == std::end(kCausas) ? nullptr : it;
}

std::string NombreDeCausa(int indice) {
    const auto* causa = CausaDe(indice);
    return causa ? causa->nombre : std::string();
}

std::string DescripcionDeCausa(int indice, const std::string& textoAcompañante) {
    const auto* causa = CausaDe(indice);
    if (!causa)
        return {};
    return causa->acompañante ? std::string(causa->nombre) + " " + textoAcompañante : causa->nombre;
}

} // namespace pastorix
