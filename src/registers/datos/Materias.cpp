// The subjects as tables of columns. How they look stands with their pages.
#include "registers/datos/Materia.h"

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
    {"AñoNatural", Numero},
    {"IPRPrimNov", Fecha},
    {"IPRInvNov", Fecha},
    {"PartosAgrup", Texto, kPartosAgrup},
};

constexpr ColumnaLinea kAlimentacion[] = {
    {"AñoNatural", Numero},       {"InicioPI", Fecha},        {"FinPI", Fecha},
    {"AlimVacas", Texto, kGrado}, {"AlimNov", Texto, kGrado}, {"AlimPI", Texto, kGrado},
};

constexpr ColumnaLinea kSuperficie[] = {
    {"AñoNatural", Numero}, {"HasNoCom", ConSigno}, {"HasPropias", ConSigno}, {"HasAbonadas", ConSigno},
    {"AbonadoN", ConSigno}, {"AbonadoP", ConSigno}, {"AbonadoK", ConSigno},   {"Abonado", Texto, kGrado},
};

constexpr ColumnaLinea kPastos[] = {
    {"AñoNatural", Numero},
    {"PastosCom", Texto, kNoSi},
    {"AprovPC", Texto, kToros},
    {"DisponPC", Texto, kDisponibilidad},
    {"InicioPC", Fecha},
    {"FinPC", Fecha},
    {"novvacaspc", ConSigno},
    {"SuplemPC", Texto, kNoSi},
    {"AlimPC", Texto, kGradoAlimPC},
    {"Venereas", Texto, kNoSi},
};

constexpr ColumnaLinea kVacunaciones[] = {
    {"AñoNatural", Numero}, {"ProcRespiratorios"}, {"ProcDigestivos"}, {"ProcReproductivos"}, {"Paramunidad"},
};

constexpr ColumnaLinea kFechasVacu[] = {
    {"IBR", Fecha},
    {"BVD", Fecha},
    {"MAMITIS", Fecha},
    {"NEOSPORA", Fecha},
};

// The year and the type are the subject's own; what stands between them is worked out from the other subjects.
constexpr ColumnaLinea kSistema[] = {
    {"AñoNatural", Numero}, {nullptr, Numero}, {nullptr},         {nullptr},
    {nullptr, Numero},      {nullptr, Numero}, {nullptr, Numero}, {nullptr},
    {nullptr, Numero},      {nullptr, Numero}, {nullptr},         {"TipoSP"},
};

} // namespace

const Materia kMateriaIPR{"T_IPR", kIPR, true, "ObsIPR"};
const Materia kMateriaAlimentacion{"T_AlimentacionInvernal", kAlimentacion, true, "ObsAI"};
const Materia kMateriaVacunaciones{"T_Vacunaciones", kVacunaciones, true, "ObsVacunaciones"};
const Materia kMateriaFechasVacu{"T_FechasVacu", kFechasVacu, false, nullptr};
const Materia kMateriaSuperficie{"T_AbonadoSuperficie", kSuperficie, true, "ObsAbonoSuperficie"};
const Materia kMateriaSistema{"T_SistemaProduccion", kSistema, true, "ObsSP"};
const Materia kMateriaPastos{"T_PastosComunales", kPastos, true, "ObsPC"};

} // namespace pastorix
