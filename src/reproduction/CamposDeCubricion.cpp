#include "reproduction/CamposDeCubricion.h"

#include "reproduction/datos/Causas.h"

#include <array>
#include <string>
#include <vector>

namespace pastorix {

namespace {

using enum ClaseCampo;
using namespace hoja_cubricion;
namespace c = campo_cubricion;

constexpr auto kVacia = SiNoVale::Vacia;

constexpr CampoFicha kCampos[] = {
    {c::NParto, "N_Parto", "&Nº Parto", Numero, 4, 0, 0, 1, "", General, kVacia},
    {c::FechaParto, "Fecha_Parto", "&Fecha del Parto", Fecha, 0, 0, 1, 1, "", General, kVacia},
    {2, "FinicioP", "F.Inicio Pastoreo", Fecha, 0, 0, 2, 1, "", General, kVacia},
    {3, "Controles", "Co&ntroles", Texto, 0, 0, 3, 1, "", General},
    {c::D40PostParto, "d40PostParto", "40 días Post Parto", Fecha, 0, 1, 0, 1, "", General, kVacia, nullptr,
     true},
    {c::FechaIPR, "FechaIPR", "Fecha &I.P.R.", Fecha, 0, 1, 1, 1, "", General, kVacia, "Ct_FechaIPR", false,
     "Inicio del periodo reproductivo de la vaca"},
    {c::IPR_CP, "IPR_CP", "IPR-CP", NumeroLibre, 8, 1, 2, 1, "", General, kVacia, nullptr, true,
     "Días del inicio del periodo reproductivo a la cubrición fecundante"},
    {27, "TotalControles", "Total Ctrl.", Numero, 4, 1, 3, 1, "Total de controles", General, kVacia},
    {5, "N_TtoInd", "Nº Trat. Ind.", Numero, 4, 3, 0, 1, "Número de tratamientos de inducción", General,
     kVacia},
    {7, "FechaDGRectal", "FechaDGRectal", Fecha, 0, 3, 1, 1, "", General, kVacia, nullptr, false,
     "Fecha del diagnóstico de gestación por palpación rectal"},
    {c::FechaDG22, "FechaDG22dias", "FechaDG22d", Fecha, 0, 3, 2, 1, "", General, kVacia, nullptr, true,
     "Fecha del diagnóstico a los 22 días del último servicio"},
    {20, "Progesterona", "Pro&gesterona (mg/ml)", Texto, 0, 3, 3, 1, "", General},

    {c::FechaEspParto, "FechaEspParto", "FechaEspParto", Fecha, 0, 0, 1, 1, "", Resultado, kVacia, nullptr,
     true, "Fecha esperada del parto"},
    {c::FechaRealParto, "FechaRealParto", "Fecha&RealParto", Fecha, 0, 0, 2, 1, "", Resultado, kVacia,
     nullptr, false, "Fecha del parto que cerró el ciclo"},
    {c::IEP, "IEP", "IEP", NumeroLibre, 8, 0, 3, 1, "", Resultado, kVacia, nullptr, true,
     "Intervalo entre partos, en días"},
    {c::IEPc, "IEPc", "IEPe", NumeroLibre, 8, 1, 0, 1, "", Resultado, kVacia, nullptr, true,
     "Intervalo entre partos esperado, en días"},
    {c::DemoraPreñez, "DemoraPreñez", "Demora Preñez", NumeroLibre, 8, 1, 1, 1, "", Resultado, kVacia,
     nullptr, true},
    {c::TotalServicios, "TotalServicios", "Total Serv.", Numero, 4, 1, 2, 1, "Total de servicios", Resultado,
     kVacia},
    {c::TotalInsem, "TotalInsem", "Total Insem", Numero, 4, 1, 3, 1, "Total de inseminaciones", Resultado,
     kVacia},

    {c::BVD, nullptr, "", Texto, 0, 0, 1, 1, "Resultado de BVD", Causas, kVacia, nullptr, true},
    {21, "Num_Abortos", "", NumeroLibre, 8, 1, 1, 1, "Nº de Abortos", Causas, kVacia},
    {c::Amamantamiento, nullptr, "", Texto, 0, 4, 1, 1, "Días del secado al primer servicio", Causas, kVacia,
     nullptr, true},
    {12, "DescEnfermedad", "", Texto, 0, 5, 1, 1, "Descripción de la enfermedad", Causas},
    {13, "DescEnfReprod", "", Texto, 0, 6, 1, 1, "Descripción de la enfermedad reproductiva", Causas},
    {c::IBR, nullptr, "", Texto, 0, 7, 1, 1, "Resultado de IBR", Causas, kVacia, nullptr, true},
    {c::MovReservas, nullptr, "", Texto, 0, 10, 1, 1, "Movilización de reservas", Causas, kVacia, nullptr,
     true},
    {16, "N_ME", "", NumeroLibre, 8, 0, 3, 1, "Nº ME", Causas, kVacia, nullptr, false,
     "Número de muertes embrionarias"},
    {24, "Txt_Otra_Causa", "", Texto, 0, 6, 3, 1, "Otra causa", Causas},
    {c::Neospora, nullptr, "", Texto, 0, 7, 3, 1, "Resultado de Neospora", Causas, kVacia, nullptr, true},
    {26, nullptr, "", Texto, 200, 8, 3, 1, "Texto libre", Causas},
    {c::DescCausa, "DescCausaPpal", "Descripción de la Causa Princi&pal", Texto, 0, 11, 0, 4, "", Causas},
};

constexpr const char* kNoSi[] = {"No", "Sí"};
constexpr const char* kEstados[] = {"Preñada", "Vacía"};

constexpr ComboFicha kCombos[] = {
    {"Cd_E(4)", "Anestro", "&Anestro", kNoSi, 2, 0, General},
    {"Cd_E(5)", "AbortoIndNov", "AbortoInd", kNoSi, 2, 1, General, false, "Aborto inducido de la novilla"},
    {"Cd_E(6)", "PerdidaCP", "PérdidaCP", kNoSi, 2, 2, General, false, "Pérdida del cuerpo lúteo"},
    {"Cd_E(7)", "ReactOvarica", "React.Ovarica", kNoSi, 2, 3, General},
    {"Cd_E(3)", "Estado", "&Estado", kEstados, 0, 0, Resultado},
};

// The flags of the causes, in two columns of eleven and ten, and the one of complete data, which its sheet places itself.
struct Marcas {
    std::vector<std::string> nombres;
    std::vector<MarcaFicha> tabla;

    Marcas() {
        const auto causas = CausasDeDemora();
        nombres.reserve(causas.size());
        tabla.push_back({"Ch_DatosCompletos", "DatosCompletos", "", 0, 0, -1, kMarcaCompletos});
        constexpr int kFilas = 11;
        int lugar = 0;
        for (const auto& causa : causas) {
            nombres.push_back("Ch_E(" + std::to_string(causa.indice) + ")");
            tabla.push_back({nombres.back().c_str(), causa.columna, causa.nombre, lugar % kFilas,
                             lugar / kFilas * 2, Causas, causa.indice});
            ++lugar;
        }
    }
};

} // namespace

const DefinicionHoja& HojaDeCubricion() {
    static const Marcas marcas;
    static const DefinicionHoja hoja{"Ct_E", "T_Cubriciones", kCampos, kCombos, marcas.tabla};
    return hoja;
}

} // namespace pastorix
