#include "registers/datos/PatologiasSemental.h"

#include "store/Literales.h"

namespace pastorix {

namespace {

constexpr const char* kResultados[] = {"Negativa", "Positiva", "Dudosa"};
constexpr const char* kResultadosR[] = {"Negativa", "Positiva", "Dudosa", "ConvSp", "ConvBp"};

constexpr ColumnaLinea kSerologias[] = {
    {"ANatural", ClaseCampo::Numero},
    {"Edad", ClaseCampo::Numero},
    {"IBRsp", ClaseCampo::Texto, kResultados},
    {"IBRbp", ClaseCampo::Texto, kResultados},
    {"BVDsp", ClaseCampo::Texto, kResultados},
    {"BVDbp", ClaseCampo::Texto, kResultados},
    {"NeospSp", ClaseCampo::Texto, kResultados},
    {"NeospBp", ClaseCampo::Texto, kResultados},
};

constexpr ColumnaLinea kVacunas[] = {
    {"ANatural", ClaseCampo::Numero},
    {"VIBR"},
    {"VBVD"},
    {"VNEOSPORA"},
    {"IBR", ClaseCampo::Texto, kResultadosR},
    {"BVD", ClaseCampo::Texto, kResultadosR},
    {"NEOSPORA", ClaseCampo::Texto, kResultadosR},
};

constexpr const char* kAnimal = "Id_Animal";

} // namespace

const TablaPatologia& PatologiaSem() {
    static constexpr TablaPatologia d{"T_PatologiaSem", kSerologias, 1};
    return d;
}

const TablaPatologia& PatologiaSemR() {
    static constexpr TablaPatologia d{"T_PatologiaSemR", kVacunas, -1};
    return d;
}

std::vector<Linea> LeerPatologias(Conexion& c, const TablaPatologia& d, double idSemental) {
    Recordset rs(c, std::string("Select * FROM ") + d.tabla + " WHERE Id_Animal = " + NumeroSql(idSemental) +
                        " ORDER BY Anatural DESC");
    return LeerLineas(rs, d.columnas, OtrosCampos(rs, d.columnas, {kAnimal}));
}

void GuardarPatologias(Conexion& c, const TablaPatologia& d, double idSemental,
                       std::span<const Linea> lineas) {
    const std::string donde = std::string(" FROM ") + d.tabla + " WHERE Id_Animal = " + NumeroSql(idSemental);
    TodoONada(c, [&] {
        c.Execute("DELETE *" + donde);
        Recordset rs(c, "SELECT *" + donde);
        // Oldest first, as years are entered: rows of one year keep their order among themselves too.
        for (auto linea = lineas.rbegin(); linea != lineas.rend(); ++linea) {
            if (linea->celdas[0].empty())
                continue;
            rs.AddNew();
            rs[kAnimal] = idSemental;
            EscribirLinea(rs, *linea, d.columnas);
            rs.Update();
        }
    });
}

} // namespace pastorix
