#include "reproduction/datos/Cubricion.h"

#include "reproduction/datos/Cadena.h"
#include "store/Literales.h"
#include "store/Recordset.h"

namespace pastorix {

namespace {

Recordset Abrir(Conexion& c, const std::string& sentencia) {
    return {c, sentencia, Cursor::Estatico, Bloqueo::SoloLectura};
}

std::string DeSanidad(Conexion& c, const char* columna, const char* tabla, const CicloDeVaca& ciclo) {
    return ValorDeCampo(c, std::string("SELECT ") + columna + " FROM " + tabla +
                               DondeCiclo(ciclo, "AÑOREF", "NUMPARTO"));
}

} // namespace

std::string SentenciaCubricion(const CicloDeVaca& ciclo) {
    return "Select * FROM T_Cubriciones" + DondeCiclo(ciclo);
}

SanidadDeCiclo LeerSanidadDeCiclo(Conexion& c, const CicloDeVaca& ciclo) {
    auto rs = Abrir(c, "SELECT BVD, IBR FROM T_R_IBRBVD" + DondeCiclo(ciclo, "AÑOREF", "NUMPARTO"));
    SanidadDeCiclo s;
    if (!rs.Eof()) {
        s.bvd = rs["BVD"].Texto();
        s.ibr = rs["IBR"].Texto();
    }
    s.movReservas = DeSanidad(c, "MobReservas", "T_CCVacas", ciclo);
    s.neospora = DeSanidad(c, "Neospirosis", "T_R_NEOSPIROSIS", ciclo);
    return s;
}

std::optional<Fecha> FechaSecadoDeCiclo(Conexion& c, const CicloDeVaca& ciclo) {
    auto rs = Abrir(c, "Select FechaSecado FROM T_Partos" + DondeCiclo(ciclo));
    return rs.Eof() ? std::nullopt : rs[0].FechaValor();
}

std::string DificultadDeCiclo(Conexion& c, const CicloDeVaca& ciclo) {
    return ValorDeCampo(c, "Select DifParto FROM T_Partos" + DondeCiclo(ciclo));
}

std::vector<FechaOfrecida> FechasIPROfrecidas(Conexion& c, const CicloDeVaca& ciclo, double idGanadero,
                                              std::optional<Fecha> primeraFechaIPR) {
    std::vector<FechaOfrecida> fechas{{"Fecha Parto+60d", primeraFechaIPR ? TextoDe(*primeraFechaIPR) : ""},
                                      {"Prim.Nov", ""},
                                      {"Inv.Nov", ""}};
    if (ciclo.añoRef)
        if (auto rs = Abrir(c, "Select * FROM T_IPR  Where Id_Ganadero = " + NumeroSql(idGanadero) +
                                   " AND AñoNatural = " + NumeroSql(*ciclo.añoRef));
            !rs.Eof()) {
            fechas[1].fecha = rs["IPRPrimNov"].Texto();
            fechas[2].fecha = rs["IPRInvNov"].Texto();
        }
    // Sorted in the scratch table, where the order of the databases holds: nothing before everything.
    EnGrupo(c, [&] {
        c.Execute("DELETE FROM X_Temp");
        Recordset lineas(c, "Select C1, F1 FROM X_Temp");
        for (const auto& f : fechas) {
            lineas.AddNew();
            lineas["C1"] = f.nombre;
            lineas["F1"] = f.fecha.empty() ? Valor() : Valor(f.fecha);
            lineas.Update();
        }
        fechas.clear();
        for (auto rs = Abrir(c, "Select C1, F1 FROM X_Temp ORDER BY F1"); !rs.Eof(); rs.Siguiente())
            fechas.push_back({rs[0].Texto(), rs[1].Texto()});
    });
    return fechas;
}

void LlevarAParidad(Conexion& c, const CicloDeVaca& ciclo, std::optional<int> paridad) {
    const auto mover = [&](const char* tabla, const char* año, const char* parto) {
        for (Recordset rs(c, std::string("SELECT * FROM ") + tabla + DondeCiclo(ciclo, año, parto));
             !rs.Eof(); rs.Siguiente()) {
            rs[parto] = EnteroONulo(paridad);
            rs.Update();
        }
    };
    mover("T_Servicios", "Año_Ref", "N_Parto");
    for (const char* tabla : {"T_CCVacas", "T_R_IBRBVD", "T_R_NEOSPIROSIS"})
        mover(tabla, "AñoRef", "NumParto");
}

bool AltaCubricion(Conexion& c, const CicloDeVaca& ciclo, std::optional<Fecha> fechaParto) {
    return EnGrupo(c, [&] {
        Recordset rs(c, SentenciaCubricion(ciclo));
        if (!rs.Eof())
            return false;
        const double id = SiguienteId(c, "Select Id_Cubricion FROM T_Cubriciones ORDER BY Id_Cubricion");
        rs.AddNew();
        rs["Id_Cubricion"] = id;
        rs["Id_Vaca"] = ciclo.idVaca;
        rs["N_Parto"] = EnteroONulo(ciclo.nParto);
        rs["Año_Ref"] = EnteroONulo(ciclo.añoRef);
        if (fechaParto)
            rs["Fecha_Parto"] = *fechaParto;
        rs.Update();
        return true;
    });
}

} // namespace pastorix
