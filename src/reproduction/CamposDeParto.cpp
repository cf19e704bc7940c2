#include "reproduction/CamposDeParto.h"

#include <array>
#include <string>
#include <vector>

namespace pastorix {

namespace {

using enum ClaseCampo;
constexpr auto kVacia = SiNoVale::Vacia;
namespace g = campo_parto;
namespace t = campo_ternero;

constexpr CampoFicha kCampos[] = {
    {g::NParto, "N_Parto", "&Nº de Parto", Numero, 4, 0, 0, 1, "", 0, kVacia},
    {g::AñoRef, "Año_Ref", "Año de &Ref.", Numero, 4, 0, 1, 1, "", 0, kVacia},
    {g::Fecha, "Fecha_Parto", "&Fecha de Parto", Fecha, 0, 1, 0, 1, "", 0, kVacia},
    {g::FechaCompra, nullptr, "F.Compra", Fecha, 10, 3, 0, 1, "Fecha de compra de la vaca", 0, kVacia,
     nullptr, true},
    {g::FechaBaja, nullptr, "F.Baja", Fecha, 10, 3, 1, 1, "Fecha de baja de la vaca", 0, kVacia, nullptr,
     true},
};
constexpr const char* kDificultades[] = {"Fácil", "Difícil", "MuyDif.", "Cesárea"};
constexpr const char* kNoSi[] = {"No", "Sí"};
constexpr const char* kSiNo[] = {"Sí", "No"};
constexpr const char* kGemelar[] = {"No", "2 Machos", "2 Hembras", "Macho y Hembra", "Parto 3"};
constexpr ComboFicha kCombos[] = {
    {"Cd_G(0)", "DifParto", "&Dificultad Parto", kDificultades, 1, 1},
    {"Cd_G(1)", "RetPlacenta", "Retención &Placenta", kNoSi, 2, 0},
    {"Cd_G(2)", "Gemelar", "&Gemelar", kGemelar, 2, 1},
};
constexpr MarcaFicha kMarcas[] = {{"Ch_DatosCompletos", "DatosCompletos", "", 0, 0, 1, 0}};

// One field of a calf, with its control's name on either page.
struct CampoDeTernero {
    int indice;
    const char* columna;
    const char* rotulo;
    ClaseCampo clase;
    int fila, columnaRejilla, ancho, hoja;
    std::array<const char*, 2> controles;
    bool derivado = false;
    bool ceroVacio = false;
    const char* nombreAccesible = "";
};

constexpr CampoDeTernero kCamposDeTernero[] = {
    {t::PesoNac, "PesoNac", "&Peso Nac.", DecimalPunto, 0, 1, 1, 0, {"Ct_T1(1)", "Ct_T1(25)"}, false, true},
    {t::RegSaneam, "RegSaneam", "Nº &Saneamiento", Texto, 0, 2, 1, 0, {"Ct_T1(20)", "Ct_T1(21)"}},
    {t::Semental, "Semental", "Semental Padre", Texto, 1, 0, 1, 0, {"Ct_Toro(0)", "Ct_Toro(1)"}},
    {t::IdSemental, "Id_Semental", "", Numero, 1, 4, 1, 0, {"Id_Toro(0)", "Id_Toro(1)"}},
    {t::FechaMuerte, "FechaMuerte", "Fecha &Muerte", Fecha, 3, 1, 1, 0, {"Ct_T1(2)", "Ct_T1(23)"}},
    {t::OtraCausaMuerte,
     "OtraCausaMuerte",
     "",
     Texto,
     3,
     3,
     1,
     0,
     {"Ct_T1(3)", "Ct_T1(24)"},
     false,
     false,
     "Otra causa de muerte"},
    {t::FVentaAD, "FVentaAD", "F. VentaAD", Fecha, 4, 1, 1, 0, {"Ct_Destino(0)", "Ct_Destino(1)"}},
    {t::FechaSecado, "FechaSecado", "Fecha Secado", Fecha, 4, 2, 1, 0, {"Ct_T1(11)", "Ct_T1(4)"}},
    {t::CuartosPerdidos,
     "CuartosPerdidos",
     "Cuartos Perdidos",
     Numero,
     4,
     3,
     1,
     0,
     {"Ct_T1(8)", "Ct_T1(29)"}},
    {t::FechaDestete, "FechaDestete", "Fecha D&estete", Fecha, 0, 0, 1, 1, {"Ct_T1(9)", "Ct_T1(41)"}},
    {t::FechaPeso, "FechaPeso", "Fec&ha Pesada", Fecha, 0, 1, 1, 1, {"Ct_T1(14)", "Ct_T1(16)"}},
    {t::Peso, "Peso", "Pes&o", DecimalPunto, 0, 2, 1, 1, {"Ct_T1(15)", "Ct_T1(17)"}, false, true},
    {t::PesoDestete,
     "PesoDestete",
     "Peso DesteteE",
     NumeroLibre,
     1,
     0,
     1,
     1,
     {"Ct_T1(10)", "Ct_T1(40)"},
     true,
     true},
    {t::EdadDestete,
     "EdadDestete",
     "Edad Destete (días)",
     NumeroLibre,
     1,
     1,
     1,
     1,
     {"Ct_T1(6)", "Ct_T1(27)"},
     true,
     true},
    {t::GDestete,
     "GDestete",
     "Gan. Destete (g/día)",
     NumeroLibre,
     1,
     2,
     1,
     1,
     {"Ct_T1(7)", "Ct_T1(28)"},
     true,
     true},
    {t::Observaciones, "ObsTernero", "Observaciones Ternero", Memo, 0, 0, 1, 2, {"Ct_T1(5)", "Ct_T1(30)"}},
};

constexpr const char* kSexos[] = {"Macho", "Hembra"};
constexpr const char* kMuere[] = {"No", "Perinatal", "Antes30d", "AntesD", "DespuésD", "NaceM"};
constexpr const char* kCausas[] = {"Debilidad",   "EnfDigest", "EnfRespirat", "PartoDist",
                                   "PartoNoAten", "Súbita",    "Otra"};
constexpr const char* kCria[] = {"DPrecoz", "Exterior", "Estab2t", "EstabVol", "OtraVaca", "Mamona"};
constexpr const char* kOrigenes[] = {"Propio", "Comprado"};
constexpr const char* kDestinos[] = {"VentaD", "VentaV", "VentaAD", "Recría", "Cebo", "Testaje"};
constexpr const char* kDifMamar[] = {"No", "Menos30d", "Más30d"};
constexpr const char* kCausasMamar[] = {"HipertLengua", "Deglución"};
constexpr const char* kCularidades[] = {"G-Normal", "G-Aculonado", "G-Culón", "Normal", "Aculonado", "Culón"};

struct ComboDeTernero {
    const char* columna;
    const char* rotulo;
    std::span<const char* const> lista;
    int fila, columnaRejilla;
    std::array<const char*, 2> controles;
    const char* itemDetallado = nullptr;
    int campoDetalle = -1;
};

constexpr ComboDeTernero kCombosDeTernero[] = {
    {"Sexo", "Se&xo", kSexos, 0, 0, {"Cd_T1(0)", "Cd_T1(13)"}},
    {"Cularidad", "Cu&laridad", kCularidades, 0, 3, {"Cd_T1(9)", "Cd_T1(16)"}},
    {"OrigenTernero", "Or&igen del Tern", kOrigenes, 1, 1, {"Cd_T1(5)", "Cd_T1(18)"}},
    {"Cria", "Cría", kCria, 1, 2, {"Cd_T1(3)", "Cd_T1(21)"}},
    {"Suplem3m", "Suplem +3m", kNoSi, 1, 3, {"Cd_T1(4)", "Cd_T1(19)"}},
    {"DifMamar", "DifMamar", kDifMamar, 2, 0, {"Cd_T1(7)", "Cd_T1(20)"}},
    {"CausaDmamar", "CausaDMamar", kCausasMamar, 2, 1, {"Cd_T1(8)", "Cd_T1(15)"}},
    {"AmamantaOtro", "Amamanta otro", kSiNo, 2, 2, {"Cd_T1(10)", "Cd_T1(14)"}},
    {"Muere", "M&uere", kMuere, 3, 0, {"Cd_T1(1)", "Cd_T1(12)"}},
    {"CausaMuerte", "Causa Muerte", kCausas, 3, 2, {"Cd_T1(2)", "Cd_T1(11)"}, "Otra", t::OtraCausaMuerte},
    {"DESTINOTERNERO", "&Destino", kDestinos, 4, 0, {"Cd_T1(6)", "Cd_T1(17)"}},
};

struct HojaDeUnTernero {
    std::vector<CampoFicha> campos;
    std::vector<ComboFicha> combos;
    DefinicionHoja hoja;

    explicit HojaDeUnTernero(std::size_t ternero) {
        for (const auto& c : kCamposDeTernero)
            campos.push_back({c.indice, c.columna, c.rotulo, c.clase, c.indice == t::CuartosPerdidos ? 2 : 0,
                              c.fila, c.columnaRejilla, c.ancho, c.nombreAccesible, c.hoja, kVacia,
                              c.controles[ternero], c.derivado, "", c.ceroVacio});
        for (const auto& c : kCombosDeTernero)
            combos.push_back({c.controles[ternero], c.columna, c.rotulo, c.lista, c.fila, c.columnaRejilla, 0,
                              false, "", c.itemDetallado, c.campoDetalle});
        hoja = {"Ct_T1", "T_Partos", campos, combos};
    }
};

} // namespace

const DefinicionHoja& HojaDeParto() {
    static constexpr DefinicionHoja hoja{"Ct_G", "T_Partos", kCampos, kCombos, kMarcas};
    return hoja;
}

const DefinicionHoja& HojaDeTernero(int ternero) {
    static const std::array<HojaDeUnTernero, 2> hojas{HojaDeUnTernero(0), HojaDeUnTernero(1)};
    return hojas[static_cast<std::size_t>(ternero)].hoja;
}

const CombosDeTernero& CombosDe(int ternero) {
    static constexpr std::array<CombosDeTernero, 2> combos{
        CombosDeTernero{"Cd_T1(0)", "Cd_T1(5)", "Cd_T1(6)"},
        CombosDeTernero{"Cd_T1(13)", "Cd_T1(18)", "Cd_T1(17)"}};
    return combos[static_cast<std::size_t>(ternero)];
}

} // namespace pastorix
