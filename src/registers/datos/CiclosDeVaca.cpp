#include "registers/datos/CiclosDeVaca.h"

#include "store/Literales.h"
#include "store/Recordset.h"

namespace pastorix {

std::optional<int> EnteroDe(const Campo& campo) {
    return campo.Nulo() ? std::nullopt : std::optional(static_cast<int>(campo.Entero()));
}

std::string DondeCiclo(const CicloDeVaca& ciclo, const char* año, const char* parto) {
    const auto igual = [](const std::optional<int>& n) {
        return n ? " = " + NumeroSql(*n) : std::string(" Is Null");
    };
    return " WHERE Id_Vaca = " + NumeroSql(ciclo.idVaca) + " AND " + año + igual(ciclo.añoRef) + " AND " +
           parto + igual(ciclo.nParto);
}

std::vector<CicloDeVaca> CubricionesDeVaca(Conexion& c, double idVaca) {
    std::vector<CicloDeVaca> ciclos;
    for (Recordset rs(c, "SELECT * FROM T_Cubriciones WHERE T_Cubriciones.Id_Vaca = " + NumeroSql(idVaca) +
                             " ORDER BY Año_Ref DESC, N_PARTO DESC");
         !rs.Eof(); rs.Siguiente())
        ciclos.push_back({idVaca,
                          rs["Id_Cubricion"].Numero(),
                          EnteroDe(rs["Año_Ref"]),
                          EnteroDe(rs["N_Parto"]),
                          {},
                          rs["DatosCompletos"].Entero() != 0});
    return ciclos;
}

std::vector<CicloDeVaca> PartosDeVaca(Conexion& c, double idVaca) {
    std::vector<CicloDeVaca> ciclos;
    for (Recordset rs(c, "SELECT * FROM T_Partos WHERE Id_Vaca = " + NumeroSql(idVaca) +
                             " ORDER BY N_Parto DESC");
         !rs.Eof(); rs.Siguiente()) {
        const auto parto = EnteroDe(rs["N_Parto"]);
        if (parto && !ciclos.empty() && ciclos.back().nParto == parto)
            continue; // the second twin
        ciclos.push_back({idVaca, 0, EnteroDe(rs["Año_Ref"]), parto, rs["Fecha_Parto"].Texto(),
                          rs["DatosCompletos"].Entero() != 0});
    }
    return ciclos;
}

void EliminarParto(Conexion& c, const CicloDeVaca& ciclo) {
    const auto donde = DondeCiclo(ciclo);
    for (Recordset rs(c, "SELECT * FROM T_Partos" + donde); !rs.Eof(); rs.Siguiente())
        if (!rs["Id_Cebo"].Nulo())
            c.Execute("DELETE FROM T_Cebo WHERE ID_Cebo = " + NumeroSql(rs["Id_Cebo"].Numero()) +
                      " AND Id_vaca = " + NumeroSql(ciclo.idVaca));
    c.Execute("DELETE FROM T_Partos" + donde);
}

void EliminarCubricion(Conexion& c, const CicloDeVaca& ciclo) {
    for (const char* tabla : {"T_Cubriciones", "T_Servicios"})
        c.Execute(std::string("DELETE FROM ") + tabla + DondeCiclo(ciclo));
    for (const char* tabla : {"T_CCVACAS", "T_R_IBRBVD", "T_R_NEOSPIROSIS"})
        c.Execute(std::string("DELETE FROM ") + tabla + DondeCiclo(ciclo, "AñoRef", "NumParto"));
}

std::string UltimoAñoDeVaca(Conexion& c, double idVaca) {
    return ValorDeCampo(c, "SELECT Año_Ref FROM T_Cubriciones Where Id_Vaca = " + NumeroSql(idVaca) +
                               " ORDER BY Año_Ref DESC");
}

} // namespace pastorix
