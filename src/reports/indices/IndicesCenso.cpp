#include "reports/indices/IndicesTec.h"

#include "frame/calendario/ErrorDeEjecucion.h"
#include "frame/calendario/Formatos.h"
#include "store/Literales.h"
#include "store/Recordset.h"

namespace pastorix {

namespace {

// A record without parity is read as 999: the cow is among those of more than six calvings, never among heifers.
constexpr double kSinParidad = 999;

Recordset Leer(Conexion& c, const std::string& sql) {
    return {c, sql, Cursor::Keyset, Bloqueo::SoloLectura};
}

bool EnCategoria(double n, int categoria) {
    if (categoria <= 1)
        return n == categoria;
    switch (categoria) {
    case MasDeSeisPartos:
        return n > 6;
    case DeDosASeisPartos:
        return n >= 2 && n <= 6;
    case TodasLasParidas:
        return n >= 1;
    default:
        return false;
    }
}

double ContarPorParidad(Conexion& c, const std::string& vacas, double añoRef, int categoria) {
    double n = 0;
    for (auto rs = Leer(c, vacas); !rs.Eof(); rs.Siguiente()) {
        if (rs["Id_Vaca"].Nulo())
            continue;
        auto paridades =
            Leer(c, "SELECT N_Parto FROM T_Cubriciones WHERE Id_Vaca = " + NumeroSql(rs["Id_Vaca"].Numero()) +
                        " AND Año_Ref <=" + NumeroSql(añoRef) + " ORDER BY Año_Ref, N_Parto");
        if (paridades.Eof())
            continue;
        paridades.Ultimo();
        const auto paridad = paridades["N_Parto"];
        if (EnCategoria(paridad.Nulo() ? kSinParidad : paridad.Numero(), categoria))
            ++n;
    }
    return n;
}

} // namespace

Fecha FechaDeArgumento(std::string_view texto) {
    const auto fecha = FechaDeTexto(texto);
    if (!fecha)
        throw ErrorDeEjecucion::TiposDistintos();
    return *fecha;
}

std::string InicioDeAño(double añoRef) {
    return "1/12/" + FormatoFecha(FechaDeArgumento("01/01/" + NumeroSql(añoRef - 1)), "yy");
}

std::string FinDeAño(double añoRef) {
    const auto texto = NumeroSql(añoRef);
    return "30/11/" + (texto.size() > 2 ? texto.substr(texto.size() - 2) : texto);
}

double CensoVacasAFecha(Conexion& c, double idGanadero, double añoRef, std::string_view fecha,
                        int categoria) {
    const auto d = FechaSql2(FechaDeArgumento(fecha));
    return ContarPorParidad(
        c,
        "SELECT T_Vacas.Id_Vaca From T_Vacas WHERE (((T_Vacas.Id_Ganadero)=" + NumeroSql(idGanadero) +
            ") AND ((T_Vacas.FechaDesecho) Is Null Or (T_Vacas.FechaDesecho)>=" + d +
            ")) AND (FechaCompra <=" + d + " OR FechaCompra IS Null)",
        añoRef, categoria);
}

double BajasVacasEnPeriodo(Conexion& c, double idGanadero, std::string_view fechaInicio,
                           std::string_view fechaFin, double añoRef, int categoria) {
    return ContarPorParidad(
        c,
        "SELECT T_Vacas.Id_Vaca From T_Vacas WHERE (((T_Vacas.Id_Ganadero)=" + NumeroSql(idGanadero) +
            ") AND ((T_Vacas.FechaDesecho) Is Not Null And (T_Vacas.FechaDesecho)>=" +
            FechaSql2(FechaDeArgumento(fechaInicio)) +
            " And (T_Vacas.FechaDesecho)<=" + FechaSql2(FechaDeArgumento(fechaFin)) + "))",
        añoRef, categoria);
}

double CensoPorCularidad(Conexion& c, double idGanadero, double añoRef, std::string_view cularidad) {
    const auto d = FechaSql2(FechaDeArgumento("30/11/" + NumeroSql(añoRef - 1)));
    double n = 0;
    for (auto rs = Leer(c, "SELECT T_Vacas.Id_Vaca From T_Vacas WHERE (((T_Vacas.Id_Ganadero)=" +
                               NumeroSql(idGanadero) + ") AND ((T_Vacas.Cularidad)=" + TextoSql(cularidad) +
                               ") AND ((T_Vacas.FechaDesecho) Is Null Or (T_Vacas.FechaDesecho)>" + d + "))");
         !rs.Eof(); rs.Siguiente()) {
        if (rs["Id_Vaca"].Nulo())
            continue;
        const auto filas =
            Leer(c, "SELECT N_Parto FROM T_Cubriciones WHERE Id_Vaca = " + NumeroSql(rs["Id_Vaca"].Numero()) +
                        " AND Año_Ref <=" + NumeroSql(añoRef));
        if (!filas.Eof())
            ++n;
    }
    return n;
}

double CensoMedioAño(Conexion& c, std::string_view idGanadero, double añoRef) {
    const double id = Val(idGanadero);
    const auto inicio = "01/12/" + NumeroSql(añoRef - 1);
    const auto fin = "30/11/" + NumeroSql(añoRef);
    const double novillas = CensoVacasAFecha(c, id, añoRef, fin, NovillasEnCubricion);
    const double vacas = CensoVacasAFecha(c, id, añoRef, fin, TodasLasParidas);
    const double novillasIdas = BajasVacasEnPeriodo(c, id, inicio, fin, añoRef, NovillasEnCubricion);
    const double vacasIdas = BajasVacasEnPeriodo(c, id, inicio, fin, añoRef, TodasLasParidas);
    return Round(vacas + (novillas + novillasIdas / 2) * 0.7 + vacasIdas / 2);
}

} // namespace pastorix
