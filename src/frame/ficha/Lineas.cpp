#include "frame/ficha/Lineas.h"

namespace pastorix {

double Linea::Numero(std::size_t columna) const {
    double n = 0;
    NumeroDeTexto(celdas[columna], n);
    return n;
}

std::vector<Linea> LeerLineas(Recordset& rs, std::span<const ColumnaLinea> columnas,
                              std::span<const char* const> otras) {
    std::vector<Linea> lineas;
    for (rs.Primero(); !rs.Eof(); rs.Siguiente()) {
        auto& linea = lineas.emplace_back();
        for (const auto& c : columnas) {
            linea.leidos.push_back(c.columna ? rs[c.columna].Leer() : Valor());
            linea.celdas.push_back(TextoDe(linea.leidos.back()));
        }
        for (const char* otra : otras)
            linea.otras.emplace_back(otra, rs[otra].Leer());
    }
    return lineas;
}

void EscribirLinea(Recordset& rs, const Linea& linea, std::span<const ColumnaLinea> columnas) {
    for (std::size_t i = 0; i < columnas.size(); ++i) {
        if (!columnas[i].columna)
            continue;
        const auto& celda = linea.celdas[i];
        if (i < linea.leidos.size() && TextoDe(linea.leidos[i]) == celda)
            rs[columnas[i].columna] = linea.leidos[i];
        else
            rs[columnas[i].columna] = celda.empty() ? Valor() : Valor(celda);
    }
    for (const auto& [columna, valor] : linea.otras)
        rs[columna] = valor;
}

} // namespace pastorix
