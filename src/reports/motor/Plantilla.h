#pragma once

#include "reports/motor/Disposicion.h"

#include <string_view>

namespace pastorix {

// Which names mean something at a place of the layout.
struct Ambito {
    static constexpr int NingunAgregado = -2;
    static constexpr int CualquierAgregado = -1;

    bool pagina =
        false; // heading or foot of the page: page numbers, and any field, of the row the page begins with
    std::vector<int> abiertas;      // tables that have a current row here
    int agregados = NingunAgregado; // table whose rows may be counted and added up here
};

// Reads "Censo a {X_Temp1.C1}", "{X_Tmp7.N1:##0} %", "Página {Página} de {Páginas}", "{?AñoRef}", "{Suma(X_Temp1.N1)}".
// Two braces stand for one. What stands in brackets, "{X.C1}[ ({X.C2})]", is left out when its fields are blank. Throws ErrorInforme for an unknown name, a field of a table without a current row, or a bad mask.
Plantilla LeerPlantilla(std::string_view texto, const Disposicion& disposicion, const Ambito& ambito);

// A formula for si= and donde= at a place of the layout. Throws ErrorInforme.
Formula LeerCondicion(std::string_view texto, const Disposicion& disposicion, const Ambito& ambito);

enum class ClaseDeMascara { Ninguna, Numero, Fecha, Limpio };

// What a mask formats: digits and signs "##0.0"; d, m, y, h, n, s "dd/mm/yy"; or "limpio", a text without the hyphen or stroke that a
// missing part has left at its end or beginning ("Nombre - "). Throws ErrorInforme when it is none of them.
ClaseDeMascara ClaseDe(std::string_view mascara);

} // namespace pastorix
