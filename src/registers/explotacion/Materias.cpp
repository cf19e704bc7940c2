// The subjects on screen: what each grid is headed, where its lines are entered, what every control is called.
#include "registers/explotacion/Materias.h"

namespace pastorix {

namespace {

constexpr AspectoColumna kIPR[] = {
    {"Año Natural", 6, "Ct_IPR(0)"},
    {"IPRPrimNov", 10, "Ct_IPR(1)", false, 0, "Inicio del periodo reproductivo de primavera, novillas"},
    {"IPRInvNov", 10, "Ct_IPR(2)", false, 0, "Inicio del periodo reproductivo de invierno, novillas"},
    {"PartosAgrup", 12, "CD_IPRpa", false, 0, "Partos agrupados"},
};

constexpr AspectoColumna kAlimentacion[] = {
    {"Año Natural", 6, "Ct_AI(0)"},
    {"Inicio Periodo Invernal", 10, "Ct_AI(1)"},
    {"Fin Periodo Invernal", 10, "Ct_AI(2)"},
    {"Alimentación Vacas", 12, "Cd_AI(3)"},
    {"Alimentación Nov.", 12, "Cd_AI(4)", false, 0, "Alimentación de las novillas"},
    {"Alimentación Per. Inv.", 12, "Cd_AI(5)", false, 0, "Alimentación en el periodo invernal"},
};

constexpr AspectoColumna kSuperficie[] = {
    {"Año Natural", 6, "Ct_As(0)"},
    {"Has. no comunales", 8, "Ct_As(1)", false, 0, "Hectáreas no comunales"},
    {"Has. propias", 8, "Ct_As(2)", false, 0, "Hectáreas propias"},
    {"Has. abonadas", 8, "Ct_As(3)", false, 0, "Hectáreas abonadas"},
    {"Abonado N", 8, "Ct_As(4)", false, 0, "Abonado con nitrógeno"},
    {"Abonado P", 8, "Ct_As(5)", false, 0, "Abonado con fósforo"},
    {"Abonado K", 8, "Ct_As(6)", false, 0, "Abonado con potasio"},
    {"Abonado", 12, "Cd_As(7)"},
};

constexpr AspectoColumna kPastos[] = {
    {"Año Natural", 6, "Ct_Pc(0)"},
    {"PastosCom", 4, "Cd_PC(1)", false, 0, "Aprovecha pastos comunales"},
    {"Toros", 10, "Cd_PC(2)", false, 0, "Pastos comunales con toros o sin ellos"},
    {"DisponPC", 10, "Cd_PC(3)", false, 0, "Disponibilidad de los pastos comunales"},
    {"InicioPC", 10, "Ct_Pc(4)", false, 0, "Subida a los pastos comunales"},
    {"FinPC", 10, "Ct_Pc(5)", false, 0, "Bajada de los pastos comunales"},
    {"UGMenPC", 7, "Ct_Pc(6)", false, 0, "Unidades de ganado mayor en los pastos comunales"},
    {"SuplemPC", 4, "Cd_PC(7)", false, 0, "Suplementación en los pastos comunales"},
    {"AlimPC", 11, "Cd_PC(8)", false, 0, "Alimentación en los pastos comunales"},
    {"VenéreasPC", 4, "Cd_PC(9)", false, 0, "Enfermedades venéreas en los pastos comunales"},
};

constexpr AspectoColumna kVacunaciones[] = {
    {"Año Natural", 6, "Ct_Vacu(0)"},
    {"Proc.Respiratorios", 22, "Ct_Vacu(1)", false, 0, "Procesos respiratorios"},
    {"Proc.Digestivos", 22, "Ct_Vacu(2)", false, 0, "Procesos digestivos"},
    {"Proc.Reproductivos", 22, "Ct_Vacu(3)", false, 0, "Procesos reproductivos"},
    {"Parainmunidad", 22, "Ct_Vacu(4)"},
};

constexpr AspectoColumna kFechasVacu[] = {
    {"IBR", 10, "Ct_FVacu(0)", false, 0, "Rinotraqueítis infecciosa bovina: fecha de la vacuna"},
    {"BVD", 10, "Ct_FVacu(1)", false, 0, "Diarrea vírica bovina: fecha de la vacuna"},
    {"Mamitis", 10, "Ct_FVacu(2)"},
    {"Neospora", 10, "Ct_FVacu(3)"},
};

constexpr AspectoColumna kSistema[] = {
    {"AñoNat", 6, "Ct_TipoSP(0)", false, 0, "Año natural"},
    {"UGM", 5, nullptr, false, 0, "Unidades de ganado mayor, media del año"},
    {"PartosAgr.", 9, nullptr, false, 0, "Partos agrupados"},
    {"Abonado", 10},
    {"%HaAbon.", 6, nullptr, false, 0, "Hectáreas abonadas de cada cien no comunales"},
    {"CargaGNoC", 6, nullptr, false, 0, "Carga ganadera: UGM por hectárea no comunal"},
    {"DíasPC", 6, nullptr, false, 0, "Días en los pastos comunales"},
    {"AlimPC", 10, nullptr, false, 0, "Alimentación en los pastos comunales"},
    {"%UGMenPC", 6, nullptr, false, 0, "De cada cien UGM, las que suben a los pastos comunales"},
    {"DíasPI", 6, nullptr, false, 0, "Días del periodo invernal"},
    {"AlimPI", 10, nullptr, false, 0, "Alimentación en el periodo invernal"},
    {"TipoSP", 16, "Ct_TipoSP(1)", false, 0, "Tipo de sistema de producción"},
};

constexpr DefinicionLineas PorAños(const char* rejilla, const char* nombre, const Materia& materia,
                                   std::span<const AspectoColumna> aspectos) {
    DefinicionLineas d{rejilla, nombre, materia.columnas, aspectos};
    d.sinAño = "Debe indicar el año natual";
    d.repetido = "Ya existe una línea para el año natural ";
    d.eliminar = "Eliminar la línea para ";
    if (!materia.porAños)
        d.columnaAño = -1;
    return d;
}

const auto kLineasIPR = PorAños("GridIPR", "Inicio del periodo reproductivo por años", kMateriaIPR, kIPR);
const auto kLineasAlimentacion =
    PorAños("GridAI", "Alimentación invernal por años", kMateriaAlimentacion, kAlimentacion);
const auto kLineasSuperficie =
    PorAños("GridMAS", "Abonado y superficie por años", kMateriaSuperficie, kSuperficie);
const auto kLineasPastos = PorAños("GridPastosC", "Pastos comunales por años", kMateriaPastos, kPastos);
const auto kLineasVacunaciones =
    PorAños("GridVacu", "Vacunaciones por años", kMateriaVacunaciones, kVacunaciones);
const auto kLineasFechasVacu = PorAños("GridFVacu", "Fechas de vacunación", kMateriaFechasVacu, kFechasVacu);
const auto kLineasSistema =
    PorAños("GridSP", "Resumen y sistema de producción por años", kMateriaSistema, kSistema);

} // namespace

const DefinicionMateria kHojaIPR{
    "Inicio Periodo Reproductivo", kMateriaIPR, kLineasIPR, "Ct_ObsIPR", "B_GuardarIPR", "B_CancelarIPR"};
const DefinicionMateria kHojaAlimentacion{"Alimentación Invernal", kMateriaAlimentacion,
                                          kLineasAlimentacion,     "Ct_ObsAI",
                                          "B_GuardarObsAI",        "B_CancelarObsAI"};
const DefinicionMateria kHojaVacunaciones{"Vacunaciones", kMateriaVacunaciones, kLineasVacunaciones,
                                          "Ct_ObsVacu",   "B_GuardarObsVacu",   "B_CancelarObsVacu"};
const DefinicionMateria kHojaFechasVacu{"Fechas de vacunación", kMateriaFechasVacu, kLineasFechasVacu};
const DefinicionMateria kHojaSuperficie{"Abon. y Superf.", kMateriaSuperficie, kLineasSuperficie,
                                        "Ct_ObsAs",        "B_GuardarObsAs",   "B_CancelarObsAs"};
const DefinicionMateria kHojaSistema{"Sistema de Producción", kMateriaSistema, kLineasSistema, "Ct_ObsSP",
                                     "B_GuardarSP",           "B_CancelarSP"};
const DefinicionMateria kHojaPastos{"Pastos Comunales", kMateriaPastos,   kLineasPastos,
                                    "CT_ObsPC",         "B_GuardarObsPC", "B_CancelarObsPC"};

} // namespace pastorix
