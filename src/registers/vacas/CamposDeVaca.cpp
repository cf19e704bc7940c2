#include "registers/vacas/CamposDeVaca.h"

namespace pastorix {

namespace {

using enum ClaseCampo;
using namespace hoja_vaca;

constexpr CampoFicha kCampos[] = {
    {0, "Id_Vaca", "Códig&o Vaca", Codigo, 0, 0, 0, 1, "", Cabecera},
    {1, "Nombre", "&Nombre Vaca", Texto, 0, 0, 1, 1, "", Cabecera},
    {7, "Crotal", "Cro&tal", Texto, 0, 0, 2, 1, "", Cabecera},
    {21, nullptr, "Baja", Fecha, 10, 0, 3, 1, "Fecha de baja de la vaca", Cabecera, SiNoVale::TalCual,
     nullptr, true},

    {8, "FechaNac", "&Fecha Nacimiento", Fecha, 0, 0, 0, 1, "", General, SiNoVale::Vacia},
    {20, "FechaCompra", "Fecha de Com&pra", Fecha, 0, 0, 1, 1, "", General, SiNoVale::Vacia},
    {34, "CrotalANT", "Crotal Ant.", Texto, 0, 0, 2},
    {4, "NombreC", "Nom&bre-C", Texto, 0, 2, 0},
    {5, "RegGenealogico", "Reg. Genealóg&ico", Texto, 0, 2, 1},
    {6, "RegSaneam", "Reg. &Saneamiento", Texto, 0, 2, 2},
    {9, "NombrePadre", "Pa&dre", Texto, 0, 4, 0, 1, "Nombre del padre"},
    {10, "RegGenPadre", "Reg. Gen. Padre", Texto, 0, 4, 1},
    {11, "RegSanPadre", "Reg. San. Padre", Texto, 0, 4, 2},
    {12, "NombreMadre", "Madre", Texto, 0, 5, 0, 1, "Nombre de la madre"},
    {13, "RegGenMadre", "Reg. Gen. Madre", Texto, 0, 5, 1},
    {14, "RegSanMAdre", "Reg. San. Madre", Texto, 0, 5, 2},
    {15, "Calificacion", "Calificación Morf.", ConSigno, 15, 7, 0},
    {16, "MG_PN", "MG-Peso Nacimiento", ConSigno, 15, 7, 1},
    {17, "MG_PD", "MG-Peso Destete", ConSigno, 15, 7, 2},
    {18, "MG_GD", "MG-Gan. Diaria", ConSigno, 15, 8, 1},
    {19, "MG_DP", "MG-Dif. Parto", ConSigno, 15, 8, 2},

    {31, "FechaDesecho", "Fec&ha de Baja", Fecha, 0, 0, 0, 1, "", Desecho, SiNoVale::Vacia},
    {3, nullptr, "Año de Ref.", Numero, 4, 0, 2, 1, "", Desecho, SiNoVale::TalCual, nullptr, true},
    {22, "ObsDesecho", "Observaciones", Memo, 0, 1, 0, 3, "", Desecho},
    {32, "cDesecho", "Comentario", Memo, 0, 2, 0, 3, "Comentario sobre la baja", Desecho},

    {33, "Patologia", "Patología", Memo, 0, 0, 0, 1, "", Patologia},

    {2, "CPT", "Cuartos Perdidos Total", Numero, 2, 0, 0, 1, "", Mamitis},
};

constexpr const char* kRazas[] = {"A.Valles", "A.Montaña", "AV*AM1",   "AV*AM2",
                                  "AV*Otra1", "AV*Otra2",  "AM*Otra1", "AM*Otra2"};
constexpr const char* kRazasCruce[] = {"Parda", "Frisona", "Limousin"};
constexpr const char* kCularidades[] = {"G-Normal", "G-Aculonado", "G-Culón", "Normal", "Aculonado", "Culón"};
constexpr const char* kCausasDeBaja[] = {"BajaProducc", "CuartosPerd", "Enfermedad", "Muerte",     "Otra",
                                         "Reproducc",   "Temperamen",  "Tipo",       "VentaOport", "Vieja"};

constexpr ComboFicha kCombos[] = {
    {"CD_Raza", "Raza", "Ra&za", kRazas, 1, 0, General},
    {"CD_RazaCruce", "RazaCruce", "Raza Cr&uce", kRazasCruce, 1, 1, General},
    {"CD_Cularidad", "Cularidad", "Cu&laridad", kCularidades, 1, 2, General},
    {"CD_Desecho", "Desecho", "Causa de Baja", kCausasDeBaja, 0, 1, Desecho, true},
};

} // namespace

const DefinicionFicha kFichaDeVaca{"Vacas",
                                   {"CT_Estandar", "T_Vacas", kCampos, kCombos},
                                   "Id_Vaca",
                                   "Debe incluir como mínimo el Ganadero, el Código y el Nombre del animal",
                                   1};

} // namespace pastorix
