#include "reports/indices/IndicesTec.h"

#include "frame/calendario/ErrorDeEjecucion.h"
#include "frame/calendario/Formatos.h"
#include "store/Literales.h"
#include "store/Recordset.h"

namespace pastorix {

namespace {

constexpr const char* kVacasPartos =
    " FROM T_Vacas INNER JOIN T_Partos ON T_Vacas.Id_Vaca = T_Partos.Id_Vaca";
constexpr const char* kCubricionesVacas =
    " FROM T_Cubriciones INNER JOIN T_Vacas ON T_Cubriciones.Id_Vaca = T_Vacas.Id_Vaca";
// Dead up to weaning: a death after it is no loss of this index, and a row without an entry meets neither test.
constexpr const char* kMuertosAntesDelDestete =
    " AND T_Partos.Muere <> 'No' AND T_Partos.Muere <> 'DespuésD'";

Recordset Leer(Conexion& c, const std::string& sql) {
    return {c, sql, Cursor::Keyset, Bloqueo::SoloLectura};
}

double Cuenta(Conexion& c, const std::string& sql) {
    auto rs = Leer(c, sql);
    return rs.Eof() ? 0 : rs[0].Numero();
}

std::string DeGanaderoYAño(double idGanadero, double añoRef) {
    return " WHERE T_Vacas.Id_Ganadero = " + NumeroSql(idGanadero) +
           " AND T_Partos.Año_Ref = " + NumeroSql(añoRef);
}

} // namespace

Animales PartosContados(Conexion& c, double idGanadero, std::string_view fechaInicio,
                        std::string_view fechaFin, std::string_view criterioParto, double añoRef) {
    Animales partos;
    for (auto rs = Leer(
             c, "SELECT Max(T_Vacas.Id_Vaca) AS Vaca, T_Vacas.Id_Ganadero, T_Partos.N_Parto, T_Vacas.Crotal, "
                "T_Partos.Fecha_Parto, T_Partos.Año_Ref" +
                    std::string(kVacasPartos) +
                    " GROUP BY T_Vacas.Id_Ganadero, T_Partos.N_Parto, T_Vacas.Crotal, T_Partos.Fecha_Parto, "
                    "T_Partos.Año_Ref HAVING (((T_Vacas.Id_Ganadero)=" +
                    NumeroSql(idGanadero) + ") AND ((T_Partos.N_Parto)" + std::string(criterioParto) +
                    ") AND ((T_Partos.Fecha_Parto)>=" + FechaSql2(FechaDeArgumento(fechaInicio)) +
                    " And (T_Partos.Fecha_Parto)<=" + FechaSql2(FechaDeArgumento(fechaFin)) +
                    ") AND ((T_Partos.Año_Ref)=" + NumeroSql(añoRef) + "))");
         !rs.Eof(); rs.Siguiente())
        partos.push_back({rs["Vaca"].Numero(),
                          {},
                          {},
                          rs["Fecha_Parto"].Texto(),
                          rs["N_Parto"].Texto(),
                          rs["N_Parto"].Numero()});
    return partos;
}

double PartosEnPeriodo(Conexion& c, double idGanadero, std::string_view fechaInicio,
                       std::string_view fechaFin, std::string_view criterioParto, double añoRef) {
    return static_cast<double>(
        PartosContados(c, idGanadero, fechaInicio, fechaFin, criterioParto, añoRef).size());
}

Registros RegistrosNacidos(double idGanadero, double añoRef) {
    return {kVacasPartos + DeGanaderoYAño(idGanadero, añoRef), "T_Partos.N_Parto"};
}

Registros RegistrosNacidosIA(double idGanadero, double añoRef) {
    return {
        " FROM (T_Vacas INNER JOIN T_Partos ON T_Vacas.Id_Vaca = T_Partos.Id_Vaca) LEFT JOIN T_Sementales "
        "ON T_Partos.Semental = T_Sementales.NombreC" +
            DeGanaderoYAño(idGanadero, añoRef) + " AND T_Sementales.Id_Ganadero = 1",
        "T_Vacas.Id_Vaca"};
}

std::int64_t PorcentajeNacidosIA(Conexion& c, double idGanadero, double añoRef) {
    const double terneros = Contar(c, RegistrosNacidos(idGanadero, añoRef));
    if (terneros < 1)
        return 0;
    return AEntero(Round(Contar(c, RegistrosNacidosIA(idGanadero, añoRef)) / terneros * 100.0));
}

Registros RegistrosDestetadosPorCularidad(double idGanadero, double añoRef, std::string_view cularidad) {
    return {
        " FROM (T_Ganaderos INNER JOIN T_Vacas ON T_Ganaderos.Id_Ganadero = T_Vacas.Id_Ganadero) INNER JOIN "
        "T_Partos ON T_Vacas.Id_Vaca = T_Partos.Id_Vaca WHERE (((T_Ganaderos.Id_Ganadero)=" +
            NumeroSql(idGanadero) + ") AND ((T_Partos.Año_Ref)=" + NumeroSql(añoRef) +
            ") AND ((T_Partos.Muere)='No') AND ((T_Partos.GDestete)>500) AND "
            "((T_Partos.EdadDestete)>=120) AND ((T_Partos.Cularidad)=" +
            TextoSql(cularidad) + "))",
        "T_Vacas.Id_Vaca"};
}

std::int64_t DestetadosPorCularidad(Conexion& c, double idGanadero, double añoRef,
                                    std::string_view cularidad) {
    return AEntero(Contar(c, RegistrosDestetadosPorCularidad(idGanadero, añoRef, cularidad)));
}

Animales CubricionesParaAbortos(Conexion& c, double idGanadero, double añoRef) {
    Animales filas;
    const auto año = NumeroSql(añoRef);
    for (auto rs = Leer(
             c, "SELECT T_Vacas.Id_Vaca, T_Cubriciones.Aborto, T_Cubriciones.Año_Ref" +
                    std::string(kCubricionesVacas) + " WHERE T_Vacas.Id_Ganadero = " + NumeroSql(idGanadero) +
                    " AND (T_Vacas.FechaDesecho Is Null OR Year([T_Vacas]![FechaDesecho])>=" + año +
                    ") AND (T_Cubriciones.Año_Ref = " + año + " OR (T_Cubriciones.Año_Ref = " +
                    NumeroSql(añoRef - 1) + " AND T_Cubriciones.DatosCompletos = 0))");
         !rs.Eof(); rs.Siguiente())
        filas.push_back({rs[0].Numero(), {}, {}, {}, rs[2].Texto(), rs[1].Numero() == 1 ? 1.0 : 0.0});
    return filas;
}

std::string PorcentajeAbortos(Conexion& c, double idGanadero, double añoRef) {
    const auto filas = CubricionesParaAbortos(c, idGanadero, añoRef);
    if (filas.empty())
        throw ErrorDeEjecucion::DivisionPorCero();
    double abortos = 0;
    for (const AnimalContado& fila : filas)
        abortos += fila.valor;
    return FormatoNumero(abortos / static_cast<double>(filas.size()) * 100, "###0");
}

Registros IntervalosDelAño(double idGanadero, double añoRef) {
    return {std::string(kCubricionesVacas) + " WHERE T_Vacas.Id_Ganadero = " + NumeroSql(idGanadero) +
                " AND T_Cubriciones.Año_Ref = " + NumeroSql(añoRef) + " AND IEPc > 0",
            "IEPc"};
}

double PerdidaPreñezTardia(Conexion& c, double idGanadero, double añoRef) {
    const auto [n, media] = ContarYPromediar(c, IntervalosDelAño(idGanadero, añoRef));
    return Round(n * (media - 365.0) / 365.0, 1);
}

Registros RegistrosTernerosMuertos(double idGanadero, double añoRef) {
    return {kVacasPartos + DeGanaderoYAño(idGanadero, añoRef) + kMuertosAntesDelDestete, "T_Partos.N_Parto"};
}

Registros RegistrosPartosDelAño(double idGanadero, double añoRef) {
    return {kVacasPartos + DeGanaderoYAño(idGanadero, añoRef), "T_Vacas.Id_Ganadero"};
}

double TernerosMuertos(Conexion& c, double idGanadero, double añoRef) {
    return Contar(c, RegistrosTernerosMuertos(idGanadero, añoRef));
}

double PartosDelAño(Conexion& c, double idGanadero, double añoRef) {
    return Contar(c, RegistrosPartosDelAño(idGanadero, añoRef));
}

double MuertesCebo(Conexion& c, double idGanadero, double añoRef) {
    return Cuenta(c,
                  "SELECT Count(Id_Ganadero) AS N FROM T_Cebo WHERE Id_Ganadero = " + NumeroSql(idGanadero) +
                      " AND AñoRef = " + NumeroSql(añoRef) + " And Not CausaMuerte is null");
}

double TernerosVivos(Conexion& c, double idGanadero, double añoRef) {
    return PartosDelAño(c, idGanadero, añoRef) - TernerosMuertos(c, idGanadero, añoRef);
}

} // namespace pastorix
