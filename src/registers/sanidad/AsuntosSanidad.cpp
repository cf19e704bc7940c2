#include "registers/sanidad/AsuntosSanidad.h"

namespace pastorix {

namespace {

using enum ClaseCampo;

constexpr const char* kReservas[] = {"Fuerte", "Moderada", "Nula", "Engrasada"};
constexpr const char* kSerologia[] = {"Negativa", "Positiva", "Dudosa"};
constexpr const char* kSerologiaDeCiclo[] = {"Positiva", "Negativa", "ConvSp", "ConvBp"};

constexpr int kFecha = 8;
constexpr int kNota = 5; // a condition score

constexpr ColumnaLinea kCCNatural[] = {{"AñoNat", "AñoNat", Numero, 5, "Ct_CCNat(0)"},
                                       {"CCmar", "C.C.mar", Decimal, kNota, "Ct_CCNat(1)"},
                                       {"CCnov", "C.C.nov", Decimal, kNota, "Ct_CCNat(2)"}};

constexpr ColumnaLinea kCCDeCiclo[] = {{"AñoRef", "AñoRef", Numero, 5},
                                       {"NumParto", "Nº Parto", Numero, 5},
                                       {nullptr, "F.Parto", Fecha, kFecha},
                                       {"CCParto", "CC Parto", Decimal, kNota, "Ct_CC(0)"},
                                       {"CC90dPostP", "CC90dPostP", Decimal, kNota, "Ct_CC(1)"},
                                       {"MobReservas", "MovReservas", Texto, 10, "Cd_CC", kReservas},
                                       {nullptr, "F.Destete", Fecha, kFecha},
                                       {"CC90dPrep", "CC90dPreP", Decimal, kNota, "Ct_CC(2)"},
                                       {"CCmar", "C.C.mar", Decimal, kNota, "Ct_CC(3)"},
                                       {"CCnov", "C.C.nov", Decimal, kNota, "Ct_CC(4)"}};

constexpr ColumnaLinea kIBRNatural[] = {{"AñoNat", "AñoNat", Numero, 5, "Ct_E"},
                                        {"VIBR", "V. IBR", Texto, kFecha, "Cd_VIBR", {}, true},
                                        {"IBRsp", "IBRsp", Texto, 8, "Cd_IBRsp", kSerologia},
                                        {"IBRbp", "IBRbp", Texto, 8, "Cd_IBRbp", kSerologia},
                                        {"VBVD", "V. BVD", Texto, kFecha, "Cd_VBVD", {}, true},
                                        {"BVDsp", "BVDsp", Texto, 8, "Cd_BVDsp", kSerologia},
                                        {"BVDbp", "BVDbp", Texto, 8, "Cd_BVDbp", kSerologia}};

constexpr ColumnaLinea kIBRDeCiclo[] = {{"AñoRef", "AñoRef", Numero, 5},
                                        {"NumParto", "Nº Parto", Numero, 5},
                                        {nullptr, "F. Parto", Fecha, kFecha},
                                        {nullptr, "F. Últ.Servicio", Fecha, kFecha},
                                        {"IBR", "IBR", Texto, 8, "Cd_IBR", kSerologiaDeCiclo},
                                        {"BVD", "BVD", Texto, 8, "Cd_BVD", kSerologiaDeCiclo}};

constexpr ColumnaLinea kNeosporaNatural[] = {{"AñoNat", "AñoNat", Numero, 5, "Ct_Lep"},
                                             {"VNEOSP", "V.Neosp", Texto, kFecha, "Cd_VLep", {}, true},
                                             {"NeospSp", "NeospSp", Texto, 8, "Cd_LepSp", kSerologia},
                                             {"NeospBp", "NeospBp", Texto, 8, "Cd_LepBp", kSerologia}};

constexpr ColumnaLinea kNeosporaDeCiclo[] = {
    {"AñoRef", "Año Ref.", Numero, 5},
    {"NumParto", "Nº Parto", Numero, 5},
    {nullptr, "Fecha Parto", Fecha, kFecha},
    {nullptr, "F. Último Servicio", Fecha, kFecha},
    {"Neospirosis", "Neospora", Texto, 8, "CT_LEPR", kSerologiaDeCiclo}};

constexpr ColumnaLinea kVacunas[] = {{"AñoNat", "AñoNat", Numero, 5, "Ct_CP(3)"},
                                     {"VacMamitis", "Vacunación", Texto, kFecha, "CB_VMamitis", {}, true},
                                     {"FechaVacu", "F.Vacuna", Fecha, kFecha, "Ct_CP(4)"}};

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
