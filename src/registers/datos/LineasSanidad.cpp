#include "registers/datos/LineasSanidad.h"

#include "store/Literales.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace pastorix {

namespace {

// Reference year and parity. A mating record may have no parity; what was stored for it has none either.
using Ciclo = std::pair<std::optional<double>, std::optional<double>>;

Ciclo CicloDe(Recordset& rs, const char* año, const char* parto) {
    const auto numero = [&](const char* campo) {
        return rs[campo].Nulo() ? std::nullopt : std::optional(rs[campo].Numero());
    };
    return {numero(año), numero(parto)};
}

// What each cycle shows of another table: the first row that the order gives for it.
std::map<Ciclo, std::string> DatosDeCiclos(Conexion& c, DatoDeCiclo dato, const std::string& vaca) {
    const bool destete = dato == DatoDeCiclo::FechaDestete;
    const char* campo = destete ? "FechaDestete" : "Fecha_Servicio";
    Recordset rs(c,
                 std::string("SELECT Año_Ref, N_Parto, ") + campo +
                     (destete ? " FROM T_Partos WHERE ID_Vaca = " : " FROM T_Servicios WHERE ID_Vaca = ") +
                     vaca + " ORDER BY " + (destete ? "FechaDestete" : "N_Servicio") + " DESC",
                 Cursor::Estatico, Bloqueo::SoloLectura);
    std::map<Ciclo, std::string> datos;
    for (; !rs.Eof(); rs.Siguiente())
        datos.emplace(CicloDe(rs, "Año_Ref", "N_Parto"), rs[campo].Texto());
    return datos;
}

// The values stored beside each cycle, one a column. Of rows that repeat a cycle the first one counts.
std::map<Ciclo, std::vector<Valor>> ValoresDeCiclos(Conexion& c, const TablaDeCiclo& tabla,
                                                    const std::string& vaca) {
    Recordset rs(c, std::string("SELECT * FROM ") + tabla.tabla + " WHERE Id_Vaca = " + vaca,
                 Cursor::Estatico, Bloqueo::SoloLectura);
    std::map<Ciclo, std::vector<Valor>> todos;
    for (; !rs.Eof(); rs.Siguiente()) {
        const auto ciclo = CicloDe(rs, "AñoRef", "NumParto");
        if (todos.contains(ciclo))
            continue;
        auto& valores = todos[ciclo];
        for (const auto& columna : tabla.columnas)
            valores.push_back(columna.columna ? rs[columna.columna].Leer() : Valor());
    }
    return todos;
}

std::vector<Linea> LeerCiclos(Conexion& c, const TablaDeCiclo& tabla, const std::string& vaca) {
    const auto valores = ValoresDeCiclos(c, tabla, vaca);
    const auto datos = DatosDeCiclos(c, tabla.dato, vaca);
    Recordset rs(c,
                 "SELECT Año_Ref, N_Parto, Fecha_Parto FROM T_Cubriciones WHERE Id_Vaca = " + vaca +
                     " ORDER BY Año_Ref DESC, N_Parto DESC",
                 Cursor::Estatico, Bloqueo::SoloLectura);
    std::vector<Linea> lineas;
    for (; !rs.Eof(); rs.Siguiente()) {
        auto& linea = lineas.emplace_back();
        linea.leidos.resize(tabla.columnas.size());
        const auto ciclo = CicloDe(rs, "Año_Ref", "N_Parto");
        if (const auto it = valores.find(ciclo); it != valores.end())
            linea.leidos = it->second;
        linea.leidos[0] = rs["Año_Ref"].Leer();
        linea.leidos[1] = rs["N_Parto"].Leer();
        for (const auto& valor : linea.leidos)
            linea.celdas.push_back(TextoDe(valor));
        linea.celdas[2] = rs["Fecha_Parto"].Texto();
        if (const auto it = datos.find(ciclo); it != datos.end())
            linea.celdas[tabla.columnaDato] = it->second;
    }
    return lineas;
}

// Deletes the cow's rows and adds one for each line. The tables speak of a cow's farmer too: the one on the sheet.
void Reescribir(Conexion& c, const char* tabla, std::span<const ColumnaLinea> columnas, VacaEnHoja vaca,
                std::span<const Linea> lineas) {
    const auto deLaVaca = std::string(" FROM ") + tabla + " WHERE Id_Vaca = " + NumeroSql(vaca.idVaca);
    TodoONada(c, [&] {
        c.Execute("Delete" + deLaVaca);
        Recordset rs(c, "Select *" + deLaVaca);
        for (const auto& linea : lineas) {
            rs.AddNew();
            rs["Id_Ganadero"] = vaca.idGanadero == 0 ? Valor() : Valor(vaca.idGanadero);
            rs["Id_Vaca"] = vaca.idVaca;
            EscribirLinea(rs, linea, columnas);
            rs.Update();
        }
    });
}

// One that stands as it was is not written: its apostrophe may come from elsewhere.
void EscribirObservacion(Conexion& c, const AsuntoSanidad& asunto, double idVaca, const Valor& observacion) {
    const auto donde = " WHERE Id_Vaca = " + NumeroSql(idVaca);
    if (ValorDeCampo(c, std::string("SELECT ") + asunto.observacion + " FROM T_Vacas" + donde) ==
        TextoDe(observacion))
        return;
    if (asunto.observacionPorSentencia) {
        const auto texto = TextoDe(observacion);
        c.Execute(std::string("UPDATE T_Vacas SET ") + asunto.observacion + " = " +
                  (texto.empty() ? "NULL" : TextoSql(texto)) + donde);
        return;
    }
    Recordset rs(c, "SELECT * FROM T_Vacas" + donde);
    if (rs.Eof())
        return;
    rs[asunto.observacion] = observacion;
    rs.Update();
}

} // namespace

// Sorted here and not by the query, whose order would turn rows of one year round with every save.
std::vector<Linea> LeerNaturales(Conexion& c, const TablaNatural& tabla, double idVaca) {
    Recordset rs(c, std::string("Select * FROM ") + tabla.tabla + " WHERE Id_Vaca = " + NumeroSql(idVaca),
                 Cursor::Estatico, Bloqueo::SoloLectura);
    auto lineas = LeerLineas(rs, tabla.columnas);
    std::stable_sort(lineas.begin(), lineas.end(),
                     [](const Linea& a, const Linea& b) { return a.Numero(0) > b.Numero(0); });
    return lineas;
}

void EscribirNaturales(Conexion& c, const TablaNatural& tabla, VacaEnHoja vaca,
                       std::span<const Linea> lineas) {
    std::vector<Linea> completas;
    if (vaca.idGanadero != 0 && vaca.idVaca != 0)
        std::copy_if(lineas.begin(), lineas.end(), std::back_inserter(completas),
                     [](const Linea& linea) { return !linea.celdas[0].empty(); });
    Reescribir(c, tabla.tabla, tabla.columnas, vaca, completas);
}

DatosSanidad LeerAsunto(Conexion& c, const AsuntoSanidad& asunto, double idVaca) {
    if (idVaca == 0)
        return {};
    const auto vaca = NumeroSql(idVaca);
    DatosSanidad datos{LeerNaturales(c, asunto.natural, idVaca), LeerCiclos(c, asunto.ciclo, vaca), {}};
    Recordset rs(c, std::string("SELECT ") + asunto.observacion + " FROM T_Vacas WHERE Id_Vaca = " + vaca,
                 Cursor::Estatico, Bloqueo::SoloLectura);
    if (!rs.Eof())
        datos.observacion = rs[0].Leer();
    return datos;
}

// The lines whose mating record is still there: one removed meanwhile takes its entries along.
std::vector<Linea> ConCiclo(Conexion& c, double idVaca, const std::vector<Linea>& lineas) {
    std::set<std::pair<std::string, std::string>> ciclos;
    for (Recordset rs(c, "SELECT Año_Ref, N_Parto FROM T_Cubriciones WHERE Id_Vaca = " + NumeroSql(idVaca),
                      Cursor::Estatico, Bloqueo::SoloLectura);
         !rs.Eof(); rs.Siguiente())
        ciclos.emplace(rs[0].Texto(), rs[1].Texto());
    std::vector<Linea> quedan;
    std::copy_if(lineas.begin(), lineas.end(), std::back_inserter(quedan), [&](const Linea& l) {
        return ciclos.contains({l.celdas[0], l.celdas[1]});
    });
    return quedan;
}

void GuardarAsunto(Conexion& c, const AsuntoSanidad& asunto, VacaEnHoja vaca, const DatosSanidad& datos) {
    const auto conCiclo = ConCiclo(c, vaca.idVaca, datos.ciclos);
    const auto ciclos = [&] { Reescribir(c, asunto.ciclo.tabla, asunto.ciclo.columnas, vaca, conCiclo); };
    const auto naturales = [&] { EscribirNaturales(c, asunto.natural, vaca, datos.naturales); };
    asunto.primeroCiclo ? ciclos() : naturales();
    if (asunto.soloConCiclos && conCiclo.empty())
        return;
    EscribirObservacion(c, asunto, vaca.idVaca, datos.observacion);
    asunto.primeroCiclo ? naturales() : ciclos();
}

long BorrarAñoNatural(Conexion& c, const TablaNatural& tabla, VacaEnHoja vaca, double año) {
    return c.Execute(std::string("DELETE FROM ") + tabla.tabla +
                     " WHERE ID_Ganadero = " + NumeroSql(vaca.idGanadero) +
                     " AND ID_Vaca = " + NumeroSql(vaca.idVaca) + " AND AñoNat = " + NumeroSql(año));
}

} // namespace pastorix
