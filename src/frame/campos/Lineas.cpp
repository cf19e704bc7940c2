#include "frame/campos/Lineas.h"

#include "store/Textos.h"

#include <algorithm>

namespace pastorix {

double Linea::Numero(std::size_t columna) const {
    double n = 0;
    NumeroDeTexto(celdas[columna], n);
    return n;
}

std::vector<std::string> OtrosCampos(const Recordset& rs, std::span<const ColumnaLinea> columnas,
                                     std::initializer_list<std::string_view> propias) {
    std::vector<std::string> otros;
    for (int i = 0; i < rs.Campos(); ++i) {
        const auto campo = rs.NombreCampo(i);
        const auto es = [&](std::string_view nombre) { return IgualSinCaso(campo, nombre); };
        if (std::none_of(propias.begin(), propias.end(), es) &&
            std::none_of(columnas.begin(), columnas.end(),
                         [&](const ColumnaLinea& c) { return c.columna && es(c.columna); }))
            otros.push_back(campo);
    }
    return otros;
}

std::vector<Linea> LeerLineas(Recordset& rs, std::span<const ColumnaLinea> columnas,
                              std::span<const std::string> otras) {
    std::vector<Linea> lineas;
    for (rs.Primero(); !rs.Eof(); rs.Siguiente()) {
        auto& linea = lineas.emplace_back();
        for (const auto& c : columnas) {
            linea.leidos.push_back(c.columna ? rs[c.columna].Leer() : Valor());
            linea.celdas.push_back(TextoDe(linea.leidos.back()));
        }
        for (const auto& otra : otras)
            linea.otras.emplace_back(otra, rs[otra].Leer());
    }
    return lineas;
}

Valor ValorDeCelda(const Linea& linea, std::size_t columna) {
    return ValorDe(linea.celdas[columna], columna < linea.leidos.size() ? linea.leidos[columna] : Valor());
}

void EscribirLinea(Recordset& rs, const Linea& linea, std::span<const ColumnaLinea> columnas) {
    for (std::size_t i = 0; i < columnas.size(); ++i) {
        if (!columnas[i].columna)
            continue;
        auto campo = rs[columnas[i].columna];
        if (i < linea.leidos.size() && Intacto(linea.leidos[i], linea.celdas[i]))
            campo.Reponer(linea.leidos[i]);
        else
            campo = ValorDeCelda(linea, i);
    }
    for (const auto& [columna, valor] : linea.otras)
        rs[columna].Reponer(valor);
}

} // namespace pastorix
