#include "store/Literales.h"

#include "store/Lexico.h"
#include "store/Valor.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace pastorix {

std::string NumeroSql(double n) {
    std::array<char, 400> buffer{};
    const auto [fin, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), n, std::chars_format::fixed);
    return std::string(buffer.data(), error == std::errc{} ? fin : buffer.data());
}

std::string TextoSql(std::string_view texto) {
    std::string literal = "'";
    literal += texto;
    // The mark stands where the apostrophe would have ended the literal; the lexer refuses the statement for it.
    std::replace(literal.begin() + 1, literal.end(), '\'', kMarcaApostrofo);
    literal += '\'';
    return literal;
}

std::string FechaSql2(Fecha fecha) {
    return "#" + FormatoFecha(fecha, "mm/dd/yy") + "#";
}
std::string FechaSql4(Fecha fecha) {
    return "#" + FormatoFecha(fecha, "mm/dd/yyyy") + "#";
}
std::string MomentoSql(Fecha fecha) {
    return "{ts '" + FormatoFecha(fecha, "yyyy-mm-dd") + " 00:00:00'}";
}

} // namespace pastorix
