#include "registers/sementales/DefinicionSementales.h"

namespace pastorix {

namespace {

using C = ClaseCampo;

constexpr CampoFicha kCampos[] = {
    {0, "Id_Semental", "Códig&o", C::Codigo, 0, 0, 0},
    {1, "Nombre", "&Nombre", C::Texto, 0, 0, 1},
    {2, "NombreC", "Nombre Comp&uesto", C::Texto, 0, 0, 2},

    {3, "RegGenealogico", "Reg. Genealóg&ico", C::Texto, 0, 1, 0, 1, "", 1},
    {4, "RegSaneam", "Reg. &Saneamiento", C::Texto, 0, 1, 1, 1, "", 1},
    {5, "Crotal", "Cro&tal", C::Texto, 0, 1, 2, 1, "", 1},
    {6, "FechaNac", "&Fecha de Nacimiento", C::Fecha, 10, 2, 0, 1, "", 1, SiNoVale::Conserva},
    {18, "FechaAlta", "Fec&ha de Alta", C::Fecha, 10, 2, 1, 1, "", 1, SiNoVale::Conserva},
    {7, "NombrePadre", "Pa&dre", C::Texto, 0, 4, 0, 1, "", 1},
    {8, "RegGenPadre", "Reg. Genealógico", C::Texto, 0, 4, 1, 1, "Reg. Genealógico del padre", 1},
    {9, "RegSanPadre", "Reg. Saneamiento", C::Texto, 0, 4, 2, 1, "Reg. Saneamiento del padre", 1},
    {10, "NombreMadre", "Madre", C::Texto, 0, 5, 0, 1, "", 1},
    {11, "RegGenMadre", "Reg. Genealógico", C::Texto, 0, 5, 1, 1, "Reg. Genealógico de la madre", 1},
    {12, "RegSanMAdre", "Reg. Saneamiento", C::Texto, 0, 5, 2, 1, "Reg. Saneamiento de la madre", 1},
    {13, "Calificacion", "Calificación", C::Texto, 0, 7, 0, 1, "", 1},
    {14, "MG_PN", "MG Peso Nacimiento", C::ConSigno, 12, 8, 0, 1, "", 1},
    {24, "FiabPN", "Fiabilidad", C::Decimal, 12, 8, 1, 1, "Fiabilidad del peso al nacimiento", 1},
    {15, "MG_PD", "MG Peso Destete", C::ConSigno, 12, 9, 0, 1, "", 1},
    {25, "FiabPD", "Fiabilidad", C::Decimal, 12, 9, 1, 1, "Fiabilidad del peso al destete", 1},
    {16, "MG_GD", "MG Ganancia Diaria", C::ConSigno, 12, 10, 0, 1, "", 1},
    {26, "FiabGD", "Fiabilidad", C::Decimal, 12, 10, 1, 1, "Fiabilidad de la ganancia diaria", 1},
    {17, "MG_DP", "MG Dificultad Parto", C::ConSigno, 12, 11, 0, 1, "", 1},
    {27, "FiabDP", "Fiabilidad", C::Decimal, 12, 11, 1, 1, "Fiabilidad de la dificultad de parto", 1},

    {kObsPatologia, "ObsPatologia", "Obser&vaciones", C::Memo, 0, 0, 0, 1, "Observaciones de patologías", 2},

    {19, "FechaBaja", "Fecha de &Baja", C::Fecha, 10, 0, 0, 1, "", 3, SiNoVale::Vacia},
    {kOtraCausa, "OtraCausa", "Otra Causa", C::Texto, 0, 2, 0, 1, "", 3, SiNoVale::TalCual, "CtextoBaja"},
    {kObsBaja, "ObsBaja", "Observaciones", C::Memo, 0, 3, 0, 1, "Observaciones de la baja", 3},
};

constexpr const char* kRazas[] = {"A. Valles", "A. Montaña"};
constexpr const char* kCularidades[] = {"G-Normal", "G-Aculonado", "G-Culón", "Normal", "Aculonado", "Culón"};
constexpr const char* kSiNo[] = {"Sí", "No"};
constexpr const char* kOrigenes[] = {"Compra", "Cría"};
constexpr const char* kCausas[] = {"Baja Fertilidad", "Consanguinidad", "Mala Descendencia", "Enfermedad",
                                   "Muerte",          "Temperamento",   "Venta Oportunidad", "Otra"};

constexpr ComboFicha kCombos[] = {
    {"CD_Raza", "Raza", "Ra&za", kRazas, 0, 0, 1},
    {"CD_Cularidad", "Cularidad", "Cu&laridad", kCularidades, 0, 1, 1},
    {"ToroP", "ToroP", "Toro &Probado", kSiNo, 0, 2, 1},
    {"CB_Origen", "Origen", "Origen", kOrigenes, 2, 2, 1},
    {"CD_CBaja", "CBaja", "Causa de la Ba&ja", kCausas, 1, 0, 3, false, "", "Otra", kOtraCausa}};

} // namespace

const DefinicionFicha& DefinicionSementales() {
    static constexpr DefinicionFicha d{"Sementales",
                                       {"CT_Estandar", "T_Sementales", kCampos, kCombos},
                                       "Id_Semental",
                                       "Debe incluir como mínimo el Código y el Nombre",
                                       1,
                                       18};
    return d;
}

} // namespace pastorix
