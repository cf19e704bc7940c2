#pragma once

#include "store/Catalogo.h"
#include "store/Valor.h"

#include <string_view>

namespace pastorix {

// What a column keeps of an assigned value: typed numbers and dates become numbers and dates. Throws ErrorAlmacen(TipoInadecuado) for a
// text that is no number in a number column, or one that is too long.
Valor Convertido(Valor v, const ColumnaTabla& c);

// Throws ErrorAlmacen(TipoInadecuado) for a text that does not fit the column.
void ExigirAnchura(std::string_view texto, const ColumnaTabla& c);

} // namespace pastorix
