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

// The cows of the condition whose last mating record up to the year puts them into the category.
Animales PorParidad(Conexion& c, const std::string& condicion, double añoRef, int categoria) {
    Animales todas;
    for (auto rs =
             Leer(c, "SELECT T_Vacas.Id_Vaca, T_Cubriciones.N_Parto FROM T_Vacas INNER JOIN T_Cubriciones ON "
                     "T_Vacas.Id_Vaca = T_Cubriciones.Id_Vaca WHERE " +
                         condicion + " AND T_Cubriciones.Año_Ref <= " + NumeroSql(añoRef) +
                         " ORDER BY T_Vacas.Id_Vaca, T_Cubriciones.Año_Ref, T_Cubriciones.N_Parto");
         !rs.Eof(); rs.Siguiente()) {
        const double vaca = rs[0].Numero();
        if (todas.empty() || todas.back().vaca != vaca)
            todas.push_back({vaca, {}, {}, {}, {}, 0});
        todas.back().valor = rs[1].Nulo() ? kSinParidad : rs[1].Numero();
    }
    std::erase_if(todas, [&](const AnimalContado& a) { return !EnCategoria(a.valor, categoria); });
    for (AnimalContado& a : todas)
        a.dato = a.valor == kSinParidad ? "sin anotar" : TextoNumero(a.valor);
    return todas;
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

Animales VacasEnCenso(Conexion& c, double idGanadero, double añoRef, std::string_view fecha, int categoria) {
    const auto d = FechaSql2(FechaDeArgumento(fecha));
    return PorParidad(c,
                      "T_Vacas.Id_Ganadero = " + NumeroSql(idGanadero) +
                          " AND (T_Vacas.FechaDesecho Is Null Or T_Vacas.FechaDesecho >= " + d +
                          ") AND (T_Vacas.FechaCompra <= " + d + " OR T_Vacas.FechaCompra IS Null)",
                      añoRef, categoria);
}

Animales VacasDeBajaEnPeriodo(Conexion& c, double idGanadero, std::string_view fechaInicio,
                              std::string_view fechaFin, double añoRef, int categoria) {
    return PorParidad(c,
                      "T_Vacas.Id_Ganadero = " + NumeroSql(idGanadero) +
                          " AND T_Vacas.FechaDesecho >= " + FechaSql2(FechaDeArgumento(fechaInicio)) +
                          " AND T_Vacas.FechaDesecho <= " + FechaSql2(FechaDeArgumento(fechaFin)),
                      añoRef, categoria);
}

double CensoVacasAFecha(Conexion& c, double idGanadero, double añoRef, std::string_view fecha,
                        int categoria) {
    return static_cast<double>(VacasEnCenso(c, idGanadero, añoRef, fecha, categoria).size());
}

double BajasVacasEnPeriodo(Conexion& c, double idGanadero, std::string_view fechaInicio,
                           std::string_view fechaFin, double añoRef, int categoria) {
    return static_cast<double>(
        VacasDeBajaEnPeriodo(c, idGanadero, fechaInicio, fechaFin, añoRef, categoria).size());
}

Animales VacasDeCularidad(Conexion& c, double idGanadero, double añoRef, std::string_view cularidad) {
    const auto d = FechaSql2(FechaDeArgumento("30/11/" + NumeroSql(añoRef - 1)));
    Animales vacas;
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
            vacas.push_back({rs["Id_Vaca"].Numero(), {}, {}, {}, std::string(cularidad), 1});
    }
    return vacas;
}

double CensoPorCularidad(Conexion& c, double idGanadero, double añoRef, std::string_view cularidad) {
    return static_cast<double>(VacasDeCularidad(c, idGanadero, añoRef, cularidad).size());
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
