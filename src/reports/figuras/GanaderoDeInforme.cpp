#include "reports/figuras/GanaderoDeInforme.h"

#include "store/Literales.h"

namespace pastorix {

std::string GanaderoDeInforme::NombreYLugar() const {
    return nombre + " " + apellidos + " - " + localidad;
}

Valor GanaderoDeInforme::TextoTelefonos(Telefonos regla) const {
    const auto f = TextoDe(fijo);
    const auto m = TextoDe(movil);
    if (regla == Telefonos::MovilNoNulo)
        return EsNulo(movil) ? f : f + " / " + m;
    if (regla == Telefonos::MovilSiHay)
        return m.empty() ? f : f + " / " + m;
    if (f.empty() && m.empty())
        return {};
    return f + (f.empty() || m.empty() ? "" : " / ") + m;
}

std::string FiltroGanaderos(const std::vector<double>& ganaderos) {
    std::string sql;
    for (const double g : ganaderos)
        sql += (sql.empty() ? " AND (T_Ganaderos.Id_Ganadero = " : " OR T_Ganaderos.Id_Ganadero = ") +
               NumeroSql(g);
    return sql.empty() ? sql : sql + ")";
}

std::vector<GanaderoDeInforme> LeerGanaderos(Conexion& c, const std::vector<double>& ganaderos) {
    std::vector<GanaderoDeInforme> leidos;
    Recordset rs(c,
                 "SELECT T_Ganaderos.Id_Ganadero, T_Ganaderos.Nombre AS NombreG, T_Ganaderos.Apellidos AS "
                 "ApellidosG, T_Direcciones.TelefonoP, T_Direcciones.TelefonoM, T_Direcciones.Localidad "
                 "FROM T_Direcciones RIGHT JOIN T_Ganaderos ON (T_Direcciones.Id_GV = "
                 "T_Ganaderos.Id_Ganadero) AND (T_Direcciones.Id_Direccion = T_Ganaderos.Id_Direccion) "
                 "WHERE Id_Ganadero is not null" +
                     FiltroGanaderos(ganaderos) + " ORDER BY T_Ganaderos.Nombre, T_Ganaderos.Apellidos",
                 Cursor::Estatico, Bloqueo::SoloLectura);
    for (; !rs.Eof(); rs.Siguiente())
        leidos.push_back({rs["Id_Ganadero"].Numero(), rs["NombreG"].Texto(), rs["ApellidosG"].Texto(),
                          rs["Localidad"].Texto(), rs["TelefonoP"].Leer(), rs["TelefonoM"].Leer()});
    return leidos;
}

GanaderoDeInforme LeerGanadero(Conexion& c, double ganadero) {
    const auto leidos = LeerGanaderos(c, {ganadero});
    if (!leidos.empty())
        return leidos.front();
    GanaderoDeInforme ninguno;
    ninguno.id = ganadero;
    return ninguno;
}

} // namespace pastorix
