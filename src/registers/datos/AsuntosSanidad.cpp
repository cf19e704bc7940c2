#include "registers/datos/AsuntosSanidad.h"

namespace pastorix {

namespace {

using enum ClaseCampo;

constexpr const char* kReservas[] = {"Fuerte", "Moderada", "Nula", "Engrasada"};
constexpr const char* kSerologia[] = {"Negativa", "Positiva", "Dudosa"};
constexpr const char* kSerologiaDeCiclo[] = {"Positiva", "Negativa", "ConvSp", "ConvBp"};

constexpr ColumnaLinea kCCNatural[] = {{"AñoNat", Numero}, {"CCmar", Decimal}, {"CCnov", Decimal}};

constexpr ColumnaLinea kCCDeCiclo[] = {{"AñoRef", Numero},      {"NumParto", Numero},
                                       {nullptr, Fecha},        {"CCParto", Decimal},
                                       {"CC90dPostP", Decimal}, {"MobReservas", Texto, kReservas},
                                       {nullptr, Fecha},        {"CC90dPrep", Decimal},
                                       {"CCmar", Decimal},      {"CCnov", Decimal}};

constexpr ColumnaLinea kIBRNatural[] = {{"AñoNat", Numero},           {"VIBR"}, {"IBRsp", Texto, kSerologia},
                                        {"IBRbp", Texto, kSerologia}, {"VBVD"}, {"BVDsp", Texto, kSerologia},
                                        {"BVDbp", Texto, kSerologia}};

constexpr ColumnaLinea kIBRDeCiclo[] = {{"AñoRef", Numero},
                                        {"NumParto", Numero},
                                        {nullptr, Fecha},
                                        {nullptr, Fecha},
                                        {"IBR", Texto, kSerologiaDeCiclo},
                                        {"BVD", Texto, kSerologiaDeCiclo}};

constexpr ColumnaLinea kNeosporaNatural[] = {
    {"AñoNat", Numero}, {"VNEOSP"}, {"NeospSp", Texto, kSerologia}, {"NeospBp", Texto, kSerologia}};

constexpr ColumnaLinea kNeosporaDeCiclo[] = {{"AñoRef", Numero},
                                             {"NumParto", Numero},
                                             {nullptr, Fecha},
                                             {nullptr, Fecha},
                                             {"Neospirosis", Texto, kSerologiaDeCiclo}};

constexpr ColumnaLinea kVacunas[] = {{"AñoNat", Numero}, {"VacMamitis"}, {"FechaVacu", Fecha}};

} // namespace

const AsuntoSanidad kCondicionCorporal{{"T_CCNATVACAS", kCCNatural},
                                       {"T_CCVacas", kCCDeCiclo, 6, DatoDeCiclo::FechaDestete},
                                       true,
                                       true,
                                       "ObsCC",
                                       false};

const AsuntoSanidad kIBRBVD{{"T_IBRBVD", kIBRNatural},
                            {"T_R_IBRBVD", kIBRDeCiclo, 3, DatoDeCiclo::UltimoServicio},
                            false,
                            false,
                            "ObsIBRBVD",
                            false};

const AsuntoSanidad kNeospora{{"T_NEOSPIROSIS", kNeosporaNatural},
                              {"T_R_NEOSPIROSIS", kNeosporaDeCiclo, 3, DatoDeCiclo::UltimoServicio},
                              false,
                              false,
                              "ObsNEOSPIROSIS",
                              true};

const TablaNatural kVacunasMamitis{"T_MAMIVACU", kVacunas};

} // namespace pastorix
