#include "registers/datos/SituacionDeVaca.h"

#include "registers/datos/CiclosDeVaca.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <QString>

#include <algorithm>
#include <vector>

namespace pastorix {

namespace {

void LeerVaca(Conexion& c, double idVaca, SituacionDeVaca& vaca) {
    Recordset rs(c,
                 "SELECT FechaDesecho, Desecho, ObsControlRebaño, Chekeo FROM T_Vacas WHERE Id_Vaca = " +
                     NumeroSql(idVaca),
                 Cursor::Estatico, Bloqueo::SoloLectura);
    if (rs.Eof())
        return;
    vaca.deBaja = !rs["FechaDesecho"].Nulo();
    vaca.fechaDeBaja = rs["FechaDesecho"].Texto();
    vaca.causaDeBaja = rs["Desecho"].Texto();
    vaca.nota = QString::fromStdString(rs["ObsControlRebaño"].Texto())
                    .trimmed() // a note that was emptied is stored as a blank
                    .toStdString();
    vaca.chequeo = rs["Chekeo"].Texto();
}

void LeerUltimoParto(Conexion& c, double idVaca, SituacionDeVaca& vaca) {
    for (Recordset rs(c, "SELECT Fecha_Parto, N_Parto FROM T_Partos WHERE Id_Vaca = " + NumeroSql(idVaca),
                      Cursor::Estatico, Bloqueo::SoloLectura);
         !rs.Eof(); rs.Siguiente()) {
        const auto fecha = rs["Fecha_Parto"].FechaValor();
        if (!fecha || (vaca.ultimoParto && *fecha < *vaca.ultimoParto))
            continue;
        vaca.ultimoParto = fecha;
        vaca.nParto = EnteroDe(rs["N_Parto"]);
    }
}

void LeerUltimaCubricion(Conexion& c, double idVaca, SituacionDeVaca& vaca) {
    Recordset cub(
        c,
        "SELECT Año_Ref, N_Parto, Estado, FechaEspParto, FechaRealParto FROM T_Cubriciones WHERE Id_Vaca = " +
            NumeroSql(idVaca) + " ORDER BY Año_Ref DESC, N_PARTO DESC",
        Cursor::Estatico, Bloqueo::SoloLectura);
    if (cub.Eof())
        return;
    if (cub["FechaRealParto"].Nulo()) {
        vaca.estado = cub["Estado"].Texto();
        vaca.partoEsperado = cub["FechaEspParto"].FechaValor();
    }
    const CicloDeVaca ciclo{idVaca, 0, EnteroDe(cub["Año_Ref"]), EnteroDe(cub["N_Parto"]), {}, false};
    Recordset ser(c,
                  "SELECT Fecha_Servicio, Semental FROM T_Servicios" + DondeCiclo(ciclo) +
                      " ORDER BY N_Servicio DESC",
                  Cursor::Estatico, Bloqueo::SoloLectura);
    if (ser.Eof())
        return;
    vaca.ultimoServicio = ser["Fecha_Servicio"].FechaValor();
    vaca.semental = ser["Semental"].Texto();
}

std::string EnCorto(const Fecha& fecha) {
    return FormatoFecha(fecha, "dd/mm/yy");
}

std::string Unidos(const std::vector<std::string>& trozos, const char* entre) {
    std::string t;
    for (const auto& trozo : trozos)
        if (!trozo.empty())
            t += (t.empty() ? "" : entre) + trozo;
    return t;
}

} // namespace

SituacionDeVaca LeerSituacion(Conexion& c, double idVaca) {
    SituacionDeVaca vaca;
    LeerVaca(c, idVaca, vaca);
    LeerUltimoParto(c, idVaca, vaca);
    LeerUltimaCubricion(c, idVaca, vaca);
    return vaca;
}

std::string ReproduccionEnPalabras(const SituacionDeVaca& vaca) {
    std::string parto;
    if (vaca.ultimoParto)
        parto = "Último parto " + EnCorto(*vaca.ultimoParto) +
                (vaca.nParto ? " (nº " + std::to_string(*vaca.nParto) + ")" : "");
    auto estado = vaca.estado;
    if (vaca.estado == "Preñada" && vaca.partoEsperado)
        estado += ", para el " + EnCorto(*vaca.partoEsperado);
    std::string servicio;
    if (vaca.ultimoServicio)
        servicio = "Último servicio " + EnCorto(*vaca.ultimoServicio) +
                   (vaca.semental.empty() ? "" : " (" + vaca.semental + ")");
    return Unidos({parto, estado, servicio}, " · ");
}

std::string BajaEnPalabras(const SituacionDeVaca& vaca) {
    if (!vaca.deBaja)
        return {};
    return "De baja el " + vaca.fechaDeBaja + (vaca.causaDeBaja.empty() ? "" : ": " + vaca.causaDeBaja);
}

std::string ControlEnPalabras(const SituacionDeVaca& vaca) {
    return Unidos(
        {vaca.nota.empty() ? "" : "Con nota", vaca.chequeo.empty() ? "" : "Chequeo: " + vaca.chequeo}, " · ");
}

std::optional<double> VecinaDeRebaño(Conexion& c, double idGanadero, double idVaca, int paso) {
    struct Vaca {
        double id;
        bool deBaja;
    };
    std::vector<Vaca> vacas;
    for (Recordset rs(c,
                      "SELECT Id_Vaca, FechaDesecho FROM T_Vacas WHERE Id_Ganadero = " +
                          NumeroSql(idGanadero) + " ORDER BY Nombre, Id_Vaca",
                      Cursor::Estatico, Bloqueo::SoloLectura);
         !rs.Eof(); rs.Siguiente())
        vacas.push_back({rs[0].Numero(), !rs[1].Nulo()});
    const auto ella = std::find_if(vacas.begin(), vacas.end(), [&](const Vaca& v) { return v.id == idVaca; });
    const bool deBaja = ella != vacas.end() && ella->deBaja;
    const auto compañera = [&](const Vaca& v) { return v.deBaja == deBaja; };
    if (paso > 0) {
        const auto it = std::find_if(ella == vacas.end() ? vacas.begin() : ella + 1, vacas.end(), compañera);
        return it == vacas.end() ? std::nullopt : std::optional(it->id);
    }
    const auto it = std::find_if(std::make_reverse_iterator(ella), vacas.rend(), compañera);
    return it == vacas.rend() ? std::nullopt : std::optional(it->id);
}

} // namespace pastorix
