// The subjects as tables: what each grid shows, what may be typed, what every control is called.
#include "registers/explotacion/Materia.h"

namespace pastorix {

namespace {

using enum ClaseCampo;

constexpr const char* kNoSi[] = {"No", "Sí"};
constexpr const char* kGrado[] = {"Bueno", "Aceptable", "Deficiente"};
constexpr const char* kGradoAlimPC[] = {"Buena", "Aceptable", "Deficiente"};
constexpr const char* kPartosAgrup[] = {"No", "Inv.", "InvOtoño"};
constexpr const char* kToros[] = {"Con Toros", "Sin Toros"};
constexpr const char* kDisponibilidad[] = {"Escasa", "Moderada", "Buena"};

constexpr ColumnaLinea kIPR[] = {
    {"AñoNatural", "Año Natural", Numero, 6, "Ct_IPR(0)"},
    {"IPRPrimNov", "IPRPrimNov", Fecha, 10, "Ct_IPR(1)"},
    {"IPRInvNov", "IPRInvNov", Fecha, 10, "Ct_IPR(2)"},
    {"PartosAgrup", "PartosAgrup", Texto, 12, "CD_IPRpa", kPartosAgrup},
};

constexpr ColumnaLinea kAlimentacion[] = {
    {"AñoNatural", "Año Natural", Numero, 6, "Ct_AI(0)"},
    {"InicioPI", "Inicio Periodo Invernal", Fecha, 10, "Ct_AI(1)"},
    {"FinPI", "Fin Periodo Invernal", Fecha, 10, "Ct_AI(2)"},
    {"AlimVacas", "Alimentación Vacas", Texto, 12, "Cd_AI(3)", kGrado},
    {"AlimNov", "Alimentación Nov.", Texto, 12, "Cd_AI(4)", kGrado},
    {"AlimPI", "Alimentación Per. Inv.", Texto, 12, "Cd_AI(5)", kGrado},
};

constexpr ColumnaLinea kSuperficie[] = {
    {"AñoNatural", "Año Natural", Numero, 6, "Ct_As(0)"},
    {"HasNoCom", "Has. no comunales", ConSigno, 8, "Ct_As(1)"},
    {"HasPropias", "Has. propias", ConSigno, 8, "Ct_As(2)"},
    {"HasAbonadas", "Has. abonadas", ConSigno, 8, "Ct_As(3)"},
    {"AbonadoN", "Abonado N", ConSigno, 8, "Ct_As(4)"},
    {"AbonadoP", "Abonado P", ConSigno, 8, "Ct_As(5)"},
    {"AbonadoK", "Abonado K", ConSigno, 8, "Ct_As(6)"},
    {"Abonado", "Abonado", Texto, 12, "Cd_As(7)", kGrado},
};

constexpr ColumnaLinea kPastos[] = {
    {"AñoNatural", "Año Natural", Numero, 6, "Ct_Pc(0)"},
    {"PastosCom", "PastosCom", Texto, 4, "Cd_PC(1)", kNoSi},
    {"AprovPC", "Toros", Texto, 10, "Cd_PC(2)", kToros},
    {"DisponPC", "DisponPC", Texto, 10, "Cd_PC(3)", kDisponibilidad},
    {"InicioPC", "InicioPC", Fecha, 10, "Ct_Pc(4)"},
    {"FinPC", "FinPC", Fecha, 10, "Ct_Pc(5)"},
    {"novvacaspc", "UGMenPC", ConSigno, 7, "Ct_Pc(6)"},
    {"SuplemPC", "SuplemPC", Texto, 4, "Cd_PC(7)", kNoSi},
    {"AlimPC", "AlimPC", Texto, 11, "Cd_PC(8)", kGradoAlimPC},
    {"Venereas", "VenéreasPC", Texto, 4, "Cd_PC(9)", kNoSi},
};

constexpr ColumnaLinea kVacunaciones[] = {
    {"AñoNatural", "Año Natural", Numero, 6, "Ct_Vacu(0)"},
    {"ProcRespiratorios", "Proc.Respiratorios", Texto, 22, "Ct_Vacu(1)"},
    {"ProcDigestivos", "Proc.Digestivos", Texto, 22, "Ct_Vacu(2)"},
    {"ProcReproductivos", "Proc.Reproductivos", Texto, 22, "Ct_Vacu(3)"},
    {"Paramunidad", "Parainmunidad", Texto, 22, "Ct_Vacu(4)"},
};

constexpr ColumnaLinea kFechasVacu[] = {
    {"IBR", "IBR", Fecha, 10, "Ct_FVacu(0)"},
    {"BVD", "BVD", Fecha, 10, "Ct_FVacu(1)"},
    {"MAMITIS", "Mamitis", Fecha, 10, "Ct_FVacu(2)"},
    {"NEOSPORA", "Neospora", Fecha, 10, "Ct_FVacu(3)"},
};

// The year and the type are the subject's own; what stands between them is worked out from the other subjects.
constexpr ColumnaLinea kSistema[] = {
    {"AñoNatural", "AñoNat", Numero, 6, "Ct_TipoSP(0)"},
    {nullptr, "UGM", Numero, 5},
    {nullptr, "PartosAgr.", Texto, 9},
    {nullptr, "Abonado", Texto, 10},
    {nullptr, "%HaAbon.", Numero, 6},
    {nullptr, "CargaGNoC", Numero, 6},
    {nullptr, "DíasPC", Numero, 6},
    {nullptr, "AlimPC", Texto, 10},
    {nullptr, "%UGMenPC", Numero, 6},
    {nullptr, "DíasPI", Numero, 6},
    {nullptr, "AlimPI", Texto, 10},
    {"TipoSP", "TipoSP", Texto, 16, "Ct_TipoSP(1)"},
};

constexpr DefinicionLineas PorAños(const char* rejilla, const char* nombre,
                                   std::span<const ColumnaLinea> columnas) {
    DefinicionLineas d{rejilla, nombre, columnas};
    d.sinAño = "Debe indicar el año natual";
    d.repetido = "Ya existe una línea para el año natural ";
    d.eliminar = "Eliminar la línea para ";
    return d;
}

constexpr DefinicionLineas PorOrden(const char* rejilla, const char* nombre,
                                    std::span<const ColumnaLinea> columnas) {
    auto d = PorAños(rejilla, nombre, columnas);
    d.columnaAño = -1;
    return d;
}

constexpr auto kLineasIPR = PorAños("GridIPR", "Inicio del periodo reproductivo por años", kIPR);
constexpr auto kLineasAlimentacion = PorAños("GridAI", "Alimentación invernal por años", kAlimentacion);
constexpr auto kLineasSuperficie = PorAños("GridMAS", "Abonado y superficie por años", kSuperficie);
constexpr auto kLineasPastos = PorAños("GridPastosC", "Pastos comunales por años", kPastos);
constexpr auto kLineasVacunaciones = PorAños("GridVacu", "Vacunaciones por años", kVacunaciones);
constexpr auto kLineasFechasVacu = PorOrden("GridFVacu", "Fechas de vacunación", kFechasVacu);
constexpr auto kLineasSistema = PorAños("GridSP", "Resumen y sistema de producción por años", kSistema);

} // namespace

const DefinicionMateria kMateriaIPR{
    "Inicio Periodo Reproductivo",
    "T_IPR",
    "AñoNatural",
    kLineasIPR,
    nullptr,
    "ObsIPR",
    "Ct_ObsIPR",
    "B_GuardarIPR",
    "B_CancelarIPR",
};
const DefinicionMateria kMateriaAlimentacion{
    "Alimentación Invernal",
    "T_AlimentacionInvernal",
    "AñoNatural",
    kLineasAlimentacion,
    nullptr,
    "ObsAI",
    "Ct_ObsAI",
    "B_GuardarObsAI",
    "B_CancelarObsAI",
};
const DefinicionMateria kMateriaVacunaciones{
    "Vacunaciones",    "T_Vacunaciones", "AñoNatural",       kLineasVacunaciones, nullptr,
    "ObsVacunaciones", "Ct_ObsVacu",     "B_GuardarObsVacu", "B_CancelarObsVacu",
};
const DefinicionMateria kMateriaFechasVacu{
    "Fechas de vacunación", "T_FechasVacu", "Ln", kLineasFechasVacu, "Ln",
};
const DefinicionMateria kMateriaSuperficie{
    "Abon. y Superf.", "T_AbonadoSuperficie", "AñoNatural", kLineasSuperficie,
    nullptr,           "ObsAbonoSuperficie",  "Ct_ObsAs",   "B_GuardarObsAs",
    "B_CancelarObsAs",
};
const DefinicionMateria kMateriaSistema{
    "Sistema de Producción",
    "T_SistemaProduccion",
    "AñoNatural",
    kLineasSistema,
    nullptr,
    "ObsSP",
    "Ct_ObsSP",
    "B_GuardarSP",
    "B_CancelarSP",
};
const DefinicionMateria kMateriaPastos{
    "Pastos Comunales", "T_PastosComunales", "AñoNatural",      kLineasPastos, nullptr, "ObsPC",
    "CT_ObsPC",         "B_GuardarObsPC",    "B_CancelarObsPC",
};

} // namespace pastorix
