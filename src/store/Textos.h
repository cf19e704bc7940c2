#pragma once

#include <string>
#include <string_view>

namespace pastorix {

// Texts are UTF-8. Comparisons of the databases ignore case, that of ñ and accented letters too, and tell accents apart.

std::string Mayusculas(std::string_view texto);
std::string Minusculas(std::string_view texto);
bool IgualSinCaso(std::string_view a, std::string_view b);

// Spanish order: blanks and signs, digits, letters with ñ after n; an accent decides only between words that are otherwise equal
// (cana, caña after canz; papa before papá); case never decides. Negative, 0 or positive; 0 exactly for texts equal without case.
int CompararEspañol(std::string_view a, std::string_view b);

// A text as it is searched for: what differs in case and accents alone gives the same, and ñ is a letter of its own. Parts of a text give parts of it.
std::u32string ClaveDeBusqueda(std::string_view texto);

// LIKE of the databases: % any run of characters, _ one character, without regard to case.
bool Parecido(std::string_view patron, std::string_view texto);

} // namespace pastorix
