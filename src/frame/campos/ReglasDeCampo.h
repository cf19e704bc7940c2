#pragma once

#include "store/Recordset.h"
#include "store/Valor.h"

#include <string_view>

namespace pastorix {

// What may be typed into a field of a sheet.
enum class ClaseCampo {
    Codigo, // digits; the record's key as the user sees it
    Texto,
    Fecha,        // digits and "/"
    Decimal,      // digits and one comma
    DecimalPunto, // the same; a point becomes the comma
    ConSigno,     // as Decimal, and a minus sign in front
    Numero,       // digits
    NumeroLibre,  // anything; it counts when it is a number
    Memo,         // text of several lines
};

inline bool EsNumerica(ClaseCampo clase) {
    return clase == ClaseCampo::Decimal || clase == ClaseCampo::DecimalPunto ||
           clase == ClaseCampo::ConSigno || clase == ClaseCampo::Numero || clase == ClaseCampo::NumeroLibre;
}

// What a save does with a date or number that is none.
enum class SiNoVale {
    TalCual,  // as typed: the store keeps a text that is no date, and refuses one that is no number
    Conserva, // the column keeps what it had, also when the field is empty
    Vacia,    // the column becomes Null
};

// True when a text still reads as the value that it was shown from: then nobody touched it, and the value goes back as it is, with the digits,
// the century and the type that the text does not show. The one place of this rule.
bool Intacto(const Valor& leido, std::string_view texto);

// What a control's text stands for in its column, given what the column held: that very value when the text is untouched or does not
// count, Null when it is empty, else the text.
Valor ValorDe(std::string_view texto, const Valor& leido, ClaseCampo clase = ClaseCampo::Texto,
              SiNoVale siNoVale = SiNoVale::TalCual);

// Assigns a control's text to the field of the current row by that rule.
void EscribirTexto(Campo campo, std::string_view texto, ClaseCampo clase = ClaseCampo::Texto,
                   SiNoVale siNoVale = SiNoVale::TalCual);
// The same for the item of a list: a stored text that differs in case only stays.
void EscribirElegido(Campo campo, std::string_view item);

} // namespace pastorix
