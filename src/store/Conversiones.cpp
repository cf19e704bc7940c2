#include "store/Conversiones.h"

#include "store/Errores.h"

#include <algorithm>
#include <cmath>

namespace pastorix {

namespace {

std::size_t Caracteres(std::string_view t) {
    return static_cast<std::size_t>(std::count_if(
        t.begin(), t.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

} // namespace

void ExigirAnchura(std::string_view texto, const ColumnaTabla& c) {
    const auto anchura = static_cast<std::size_t>(c.anchura);
    if (anchura > 0 && texto.size() > anchura && Caracteres(texto) > anchura)
        throw ErrorAlmacen(CodigoError::TipoInadecuado, "El texto es demasiado largo; caben " +
                                                            std::to_string(c.anchura) + " caracteres (" +
                                                            c.nombre + ": " + std::string(texto) + ")");
}

Valor Convertido(Valor v, const ColumnaTabla& c) {
    const auto fallar = [&](const std::string& que) {
        throw ErrorAlmacen(CodigoError::TipoInadecuado, que + " (" + c.nombre + ": " + TextoDe(v) + ")");
    };
    const auto* texto = std::get_if<std::string>(&v);
    if (EsNulo(v))
        return c.tipo == TipoColumna::SiNo ? Valor(std::int64_t{0}) : v;
    switch (c.tipo) {
    case TipoColumna::Texto:
    case TipoColumna::Memo:
        if (!texto)
            v = TextoDe(v);
        ExigirAnchura(std::get<std::string>(v), c);
        return v;
    case TipoColumna::Fecha:
    case TipoColumna::FechaHora:
        // A text that is no date is kept as it was typed.
        if (texto)
            if (const auto f = FechaDeTexto(*texto))
                return *f;
        return v;
    case TipoColumna::Doble:
    case TipoColumna::Largo:
    case TipoColumna::SiNo: {
        double n = NumeroDe(v);
        if (texto && !NumeroDeTexto(*texto, n))
            fallar("El texto no es un número");
        if (c.tipo == TipoColumna::Doble)
            return n;
        if (std::abs(n) > 9.0e15)
            fallar("El número es demasiado grande");
        return static_cast<std::int64_t>(std::nearbyint(n)); // halves to even
    }
    case TipoColumna::Otro:
        break;
    }
    return v;
}

} // namespace pastorix
