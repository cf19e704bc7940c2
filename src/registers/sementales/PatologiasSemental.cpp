#include "registers/sementales/PatologiasSemental.h"

#include "store/Literales.h"

#include <algorithm>

namespace pastorix {

namespace {

constexpr const char* kResultados[] = {"Negativa", "Positiva", "Dudosa"};
constexpr const char* kResultadosR[] = {"Negativa", "Positiva", "Dudosa", "ConvSp", "ConvBp"};

constexpr ColumnaLinea kSerologias[] = {
    {"ANatural", "Año Nat.", ClaseCampo::Numero, 8, "Ct_ANatural"},
    {"Edad", "Edad", ClaseCampo::Numero, 5},
    {"IBRsp", "IBR sp", ClaseCampo::Texto, 13, "Cb_IBR(0)", kResultados},
    {"IBRbp", "IBR bp", ClaseCampo::Texto, 13, "Cb_IBR(1)", kResultados},
    {"BVDsp", "BVD sp", ClaseCampo::Texto, 13, "Cb_IBR(2)", kResultados},
    {"BVDbp", "BVD bp", ClaseCampo::Texto, 13, "Cb_IBR(3)", kResultados},
    {"NeospSp", "Neosp. sp", ClaseCampo::Texto, 13, "Cb_IBR(4)", kResultados},
    {"NeospBp", "Neosp. bp", ClaseCampo::Texto, 13, "Cb_IBR(5)", kResultados},
};

constexpr ColumnaLinea kVacunas[] = {
    {"ANatural", "Año Nat.", ClaseCampo::Numero, 8, "Ct_ANaturalR"},
    {"VIBR", "V.IBR", ClaseCampo::Texto, 13, "Cb_IBN(0)", {}, true},
    {"VBVD", "V.BVD", ClaseCampo::Texto, 13, "Cb_IBN(1)", {}, true},
    {"VNEOSPORA", "V.Neospora", ClaseCampo::Texto, 13, "Cb_IBN(2)", {}, true},
    {"IBR", "IBR", ClaseCampo::Texto, 13, "Cb_IBN(3)", kResultadosR},
    {"BVD", "BVD", ClaseCampo::Texto, 13, "Cb_IBN(4)", kResultadosR},
    {"NEOSPORA", "Neospora", ClaseCampo::Texto, 13, "Cb_IBN(5)", kResultadosR},
};

constexpr ListaDeVacunas kListas[] = {{1, "IBR"}, {2, "BVD"}, {3, "NEOSPORA"}};

constexpr const char* kAnimal = "Id_Animal";

} // namespace

const DefinicionPatologia& PatologiaSem() {
    static constexpr DefinicionPatologia d{"GridPatologia", "Serologías por año natural", "T_PatologiaSem",
                                           kSerologias, 1};
    return d;
}

const DefinicionPatologia& PatologiaSemR() {
    static constexpr DefinicionPatologia d{"GridPatologiaR", "Vacunas y resultados por año natural",
                                           "T_PatologiaSemR", kVacunas, -1};
    return d;
}

std::span<const ListaDeVacunas> ListasDeVacunas() {
    return kListas;
}

std::vector<std::string> FechasDeVacuna(Conexion& c, double idGanadero, const char* origen) {
    std::vector<std::string> fechas;
    for (Recordset rs(c, "SELECT * FROM T_FechasVacu WHERE Id_Ganadero = " + NumeroSql(idGanadero) +
                             " ORDER BY Ln");
         !rs.Eof(); rs.Siguiente()) {
        const auto fecha = rs[origen].Texto();
        if (!fecha.empty() && std::find(fechas.begin(), fechas.end(), fecha) == fechas.end())
            fechas.push_back(fecha);
    }
    return fechas;
}

std::vector<Linea> LeerPatologias(Conexion& c, const DefinicionPatologia& d, double idSemental) {
    Recordset rs(c, std::string("Select * FROM ") + d.tabla + " WHERE Id_Animal = " + NumeroSql(idSemental) +
                        " ORDER BY Anatural DESC");
    return LeerLineas(rs, d.columnas, OtrosCampos(rs, d.columnas, {kAnimal}));
}

void GuardarPatologias(Conexion& c, const DefinicionPatologia& d, double idSemental,
                       std::span<const Linea> lineas) {
    const std::string donde = std::string(" FROM ") + d.tabla + " WHERE Id_Animal = " + NumeroSql(idSemental);
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
}

} // namespace pastorix
