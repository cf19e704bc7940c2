#include "registers/datos/Crotales.h"

#include "store/Literales.h"
#include "store/Recordset.h"
#include "store/Textos.h"

#include <algorithm>

namespace pastorix {

namespace {

// The last four characters of a UTF-8 text.
std::string Final(const std::string& crotal) {
    std::size_t i = crotal.size();
    for (int quedan = kCrotalMinimo; i > 0 && quedan > 0;)
        if ((static_cast<unsigned char>(crotal[--i]) & 0xC0U) != 0x80U)
            --quedan;
    return crotal.substr(i);
}

struct Marcada {
    double idVaca;
    std::string crotal;
};

} // namespace

std::vector<std::string> CrotalesCoincidentes(Conexion& c, const std::string& crotal, double idVaca) {
    std::vector<std::string> otros;
    for (Recordset rs(c, "Select * FROM T_Vacas WHERE Crotal = " + TextoSql(crotal)); !rs.Eof();
         rs.Siguiente())
        if (rs["Id_Vaca"].Numero() != idVaca)
            otros.push_back(rs["Crotal"].Texto());
    return otros;
}

std::optional<double> VacaDeCrotal(Conexion& c, const std::string& crotal) {
    Recordset rs(c, "Select Id_Vaca FROM T_Vacas WHERE Crotal = " + TextoSql(crotal));
    return rs.Eof() ? std::nullopt : std::optional(rs["Id_Vaca"].Numero());
}

std::optional<double> VecinaPorCrotal(Conexion& c, const std::string& crotal, double idVaca, int paso) {
    std::vector<Marcada> vacas;
    Recordset rs(c, "Select Id_Vaca, Crotal FROM T_Vacas WHERE Crotal LIKE " + TextoSql("%" + Final(crotal)) +
                        " ORDER BY Crotal");
    for (; !rs.Eof(); rs.Siguiente())
        vacas.push_back({rs["Id_Vaca"].Numero(), rs["Crotal"].Texto()});
    if (vacas.empty())
        return std::nullopt;
    auto aqui = std::find_if(vacas.begin(), vacas.end(), [&](const Marcada& v) {
        return v.idVaca == idVaca && IgualSinCaso(v.crotal, crotal);
    });
    if (aqui == vacas.end())
        aqui = std::find_if(vacas.begin(), vacas.end(),
                            [&](const Marcada& v) { return IgualSinCaso(v.crotal, crotal); });
    if (aqui == vacas.end())
        return paso > 0 ? vacas.front().idVaca : vacas.back().idVaca;
    const auto lugar = (aqui - vacas.begin()) + paso;
    if (lugar < 0 || lugar >= static_cast<std::ptrdiff_t>(vacas.size()))
        return std::nullopt;
    return vacas[static_cast<std::size_t>(lugar)].idVaca;
}

} // namespace pastorix
