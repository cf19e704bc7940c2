#include "reports/indices/IndicesTec.h"

#include "frame/calendario/Formatos.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <utility>

namespace pastorix {

namespace {

Recordset Leer(Conexion& c, const std::string& sql) {
    return {c, sql, Cursor::Keyset, Bloqueo::SoloLectura};
}

std::string TextoDeCuenta(const Animales& animales) {
    return std::to_string(animales.size());
}

int MesesDeCalendario(Fecha desde, Fecha hasta) {
    return (hasta.Año() - desde.Año()) * 12 + hasta.Mes() - desde.Mes();
}

std::string NulaODespues(const std::string& campo, const std::string& fecha) {
    return " AND (" + campo + " Is Null OR " + campo + " > " + fecha + ")";
}

} // namespace

Animales SementalesPresentes(Conexion& c, double idGanadero, std::string_view fecha) {
    // FechaAlta is not asked for: a bull that came after the date counts too.
    Animales toros;
    for (auto rs = Leer(c, "SELECT Crotal, NombreC, FechaBaja FROM T_Sementales WHERE Id_Ganadero = " +
                               NumeroSql(idGanadero) + " AND (FechaBaja > " +
                               FechaSql2(FechaDeArgumento(fecha)) + " OR FechaBaja Is Null)");
         !rs.Eof(); rs.Siguiente())
        toros.push_back({0, rs["Crotal"].Texto(), rs["NombreC"].Texto(), {}, "toro", 1});
    return toros;
}

std::string SementalesAFecha(Conexion& c, double idGanadero, std::string_view fecha) {
    return TextoDeCuenta(SementalesPresentes(c, idGanadero, fecha));
}

namespace {

struct Hembras {
    Animales vacas;    // with a parity of 1 or more
    Animales novillas; // of parity 0
};

// Both categories come out of one query: it is the slow part of the stocking load.
Hembras LeerHembras(Conexion& c, double idGanadero, std::string_view fecha, double añoRef) {
    const auto d = FechaSql2(FechaDeArgumento(fecha));
    Hembras n;
    for (auto rs = Leer(
             c, "SELECT Max(T_Vacas.Id_Vaca) AS Vaca, T_Vacas.Id_Ganadero, T_Vacas.Crotal, T_Vacas.NombreC, "
                "T_Vacas.FechaBaja, "
                "T_Vacas.FechaCompra, "
                "Max(T_Cubriciones.Fecha_Parto) AS MáxDeFecha_Parto, Max(T_Cubriciones.Año_Ref) AS "
                "MáxDeAño_Ref, "
                "Max(T_Cubriciones.N_Parto) AS MáxDeN_Parto FROM T_Vacas LEFT JOIN T_Cubriciones ON "
                "T_Vacas.Id_Vaca = "
                "T_Cubriciones.Id_Vaca WHERE ((T_Cubriciones.Fecha_Parto) Is Null Or "
                "(T_Cubriciones.Fecha_Parto)<" +
                    d +
                    ") GROUP BY T_Vacas.Id_Ganadero, T_Vacas.Crotal, T_Vacas.NombreC, T_Vacas.FechaBaja, "
                    "T_Vacas.FechaCompra HAVING (((T_Vacas.Id_Ganadero)=" +
                    NumeroSql(idGanadero) + ") AND ((T_Vacas.FechaBaja) Is Null Or (T_Vacas.FechaBaja)>" + d +
                    ") AND ((T_Vacas.FechaCompra) Is Null Or (T_Vacas.FechaCompra)<" + d +
                    ") AND ((Max(T_Cubriciones.Año_Ref))<=" + NumeroSql(añoRef) +
                    ")) ORDER BY T_Vacas.NombreC");
         !rs.Eof(); rs.Siguiente()) {
        const auto paridad = rs["MáxDeN_Parto"];
        if (paridad.Nulo() || (paridad.Numero() != 0 && paridad.Numero() < 1))
            continue;
        const bool novilla = paridad.Numero() == 0;
        (novilla ? n.novillas : n.vacas)
            .push_back({rs["Vaca"].Numero(),
                        {},
                        {},
                        rs["MáxDeFecha_Parto"].Texto(),
                        novilla ? "novilla" : "parto " + paridad.Texto(),
                        paridad.Numero()});
    }
    return n;
}

} // namespace

Animales HembrasPresentes(Conexion& c, double idGanadero, std::string_view fecha, int categoria,
                          double añoRef) {
    auto n = LeerHembras(c, idGanadero, fecha, añoRef);
    return categoria == 0 ? std::move(n.novillas) : categoria == 1 ? std::move(n.vacas) : Animales();
}

std::string HembrasAFecha(Conexion& c, double idGanadero, std::string_view fecha, int categoria,
                          double añoRef) {
    return TextoDeCuenta(HembrasPresentes(c, idGanadero, fecha, categoria, añoRef));
}

Animales RecriaPresente(Conexion& c, double idGanadero, std::string_view fecha, double añoRef,
                        std::string_view momento) {
    const double ultimo = momento == "INICIO" ? añoRef - 1 : momento == "FIN" ? añoRef : 0;
    const auto d = FechaDeArgumento(fecha);
    Animales terneras;
    for (auto rs = Leer(c, "SELECT T_Vacas.Id_Vaca, T_Partos.Fecha_Parto FROM T_Vacas INNER JOIN T_Partos ON "
                           "T_Vacas.Id_Vaca = T_Partos.Id_Vaca WHERE T_Vacas.Id_Ganadero = " +
                               NumeroSql(idGanadero) + " AND (T_Partos.Año_Ref = " + NumeroSql(ultimo) +
                               " OR T_Partos.Año_Ref = " + NumeroSql(ultimo - 1) +
                               ") AND T_Partos.DestinoTernero = 'Recría'");
         !rs.Eof(); rs.Siguiente())
        if (const auto nace = rs["Fecha_Parto"].FechaValor(); nace && MesesDeCalendario(*nace, d) < 15)
            terneras.push_back({rs["Id_Vaca"].Numero(), {}, {}, rs["Fecha_Parto"].Texto(), "recría", 1});
    return terneras;
}

std::string RecriaAFecha(Conexion& c, double idGanadero, std::string& fecha, double añoRef,
                         std::string_view momento) {
    if (momento == "FIN")
        fecha = FormatoFecha(FechaDeArgumento(fecha).MasDias(1), "dd/mm/yy");
    return TextoDeCuenta(RecriaPresente(c, idGanadero, fecha, añoRef, momento));
}

Animales CeboPresente(Conexion& c, double idGanadero, std::string_view fecha) {
    const auto d = FechaSql2(FechaDeArgumento(fecha));
    Animales animales;
    for (auto rs =
             Leer(c, "SELECT Id_Vaca, Saneamiento, FechaCebo FROM T_Cebo WHERE Id_Ganadero = " +
                         NumeroSql(idGanadero) + " AND FechaCebo < " + d + NulaODespues("FechaSacrif", d) +
                         NulaODespues("FechaMuerte", d) + " ORDER BY FechaCebo");
         !rs.Eof(); rs.Siguiente()) {
        const auto numero = rs["Saneamiento"].Texto();
        animales.push_back({rs["Id_Vaca"].Numero(),
                            {},
                            {},
                            rs["FechaCebo"].Texto(),
                            numero.empty() ? "en cebo" : "en cebo, " + numero,
                            1});
    }
    return animales;
}

std::string CeboAFecha(Conexion& c, double idGanadero, std::string_view fecha, double, std::string_view) {
    return TextoDeCuenta(CeboPresente(c, idGanadero, fecha));
}

Animales MamonesPresentes(Conexion& c, double idGanadero, std::string_view fecha, double añoRef,
                          std::string_view momento) {
    const auto d = FechaSql4(FechaDeArgumento(fecha));
    const double año = momento == "INICIO" ? añoRef - 1 : momento == "FIN" ? añoRef : 0;
    Animales terneros;
    for (auto rs =
             Leer(c, "SELECT T_Vacas.Id_Vaca, T_Partos.Fecha_Parto FROM T_Vacas LEFT JOIN T_Partos ON "
                     "T_Vacas.Id_Vaca "
                     "= T_Partos.Id_Vaca WHERE T_Vacas.Id_Ganadero = " +
                         NumeroSql(idGanadero) + NulaODespues("T_Vacas.FechaBaja", d) +
                         " AND (T_Vacas.FechaCompra Is Null OR T_Vacas.FechaCompra < " + d +
                         ") AND T_Partos.Fecha_Parto < " + d + " AND T_Partos.Año_Ref = " + NumeroSql(año) +
                         NulaODespues("T_Partos.FechaDestete", d) + NulaODespues("T_Partos.FechaMuerte", d) +
                         NulaODespues("T_Partos.FVentaAD", d));
         !rs.Eof(); rs.Siguiente())
        terneros.push_back({rs["Id_Vaca"].Numero(), {}, {}, rs["Fecha_Parto"].Texto(), "mamón", 1});
    return terneros;
}

std::string TernerosMamonesAFecha(Conexion& c, double idGanadero, std::string_view fecha, double añoRef,
                                  std::string_view momento) {
    return TextoDeCuenta(MamonesPresentes(c, idGanadero, fecha, añoRef, momento));
}

std::string CargaUGM(Conexion& c, double idGanadero, double añoRef, std::string_view momento) {
    std::string fin = "30/11/" + NumeroSql(añoRef);
    const std::string inicio = "1/12/" + NumeroSql(añoRef - 1);
    double toros = 0;
    Hembras hembras;
    double recria = 0;
    double cebo = 0;
    if (momento == "INICIO") {
        std::string fecha = inicio;
        toros = Val(SementalesAFecha(c, idGanadero, inicio));
        hembras = LeerHembras(c, idGanadero, inicio, añoRef);
        recria = Val(RecriaAFecha(c, idGanadero, fecha, añoRef, momento));
        cebo = Val(CeboAFecha(c, idGanadero, inicio, añoRef, momento));
    } else if (momento == "FIN") {
        const auto siguiente = FormatoFecha(FechaDeArgumento(fin).MasDias(1), "dd/mm/yy");
        toros = Val(SementalesAFecha(c, idGanadero, siguiente));
        hembras = LeerHembras(c, idGanadero, siguiente, añoRef + 1);
        recria = Val(RecriaAFecha(c, idGanadero, fin, añoRef, momento)); // moves `fin` to 1 December
        cebo = Val(CeboAFecha(c, idGanadero, fin, añoRef, momento));
    }
    return FormatoNumero(static_cast<double>(hembras.vacas.size()) + toros * 1.5 +
                             static_cast<double>(hembras.novillas.size()) * 0.8 + recria * 0.4 + cebo * 0.6,
                         "######0");
}

} // namespace pastorix
