#include "registers/datos/Mamitis.h"

#include "frame/calendario/Formatos.h"
#include "store/Literales.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace pastorix {

namespace {

using enum ClaseCampo;

constexpr ColumnaLinea kLactaciones[] = {{"Año_Ref", Numero}, {"Fecha_Parto", Fecha},
                                         {"N_Parto", Numero}, {nullptr, Fecha},
                                         {"TratSecado"},      {"CuartosPerdidos", Numero}};

constexpr std::size_t kAño = 0;
constexpr std::size_t kParto = 2;
constexpr std::size_t kDestete = 3;

} // namespace

std::span<const ColumnaLinea> ColumnasDeLactacion() {
    return kLactaciones;
}

Tetos LeerTetos(Conexion& c, double idVaca) {
    Tetos tetos;
    std::size_t i = 0;
    for (Recordset rs(c, "Select * FROM T_Tetos Order By Id_Teto", Cursor::Estatico, Bloqueo::SoloLectura);
         !rs.Eof() && i < kTetos; rs.Siguiente())
        tetos[i++].nombre = rs["DescTeto"].Texto();
    if (idVaca == 0)
        return tetos;
    for (Recordset rs(c, "Select * FROM T_Mamitis Where Id_Vaca = " + NumeroSql(idVaca), Cursor::Estatico,
                      Bloqueo::SoloLectura);
         !rs.Eof(); rs.Siguiente()) {
        const double teto = rs["Id_Teto"].Numero();
        if (teto < 1 || teto > static_cast<double>(kTetos) || teto != std::floor(teto))
            continue;
        auto& t = tetos[static_cast<std::size_t>(teto) - 1];
        t.marcado = rs["marcado"].Numero() != 0;
        t.fecha = rs["Fecha"].Leer();
        t.nota = rs["DescMamitis"].Leer();
    }
    return tetos;
}

void EscribirTetos(Conexion& c, double idVaca, const Tetos& tetos) {
    const auto deLaVaca = " FROM T_Mamitis Where Id_Vaca = " + NumeroSql(idVaca);
    const auto antes = LeerTetos(c, idVaca);
    const auto poner = [](Campo campo, const Valor& valor, const Valor& leido) {
        if (valor == leido)
            campo.Reponer(leido);
        else
            campo = valor;
    };
    TodoONada(c, [&] {
        c.Execute("DELETE" + deLaVaca);
        Recordset rs(c, "Select *" + deLaVaca);
        for (std::size_t i = 0; i < kTetos; ++i) {
            rs.AddNew();
            rs["Id_Vaca"] = idVaca;
            rs["Id_Teto"] = static_cast<double>(i + 1);
            poner(rs["Fecha"], tetos[i].fecha, antes[i].fecha);
            poner(rs["DescMamitis"], tetos[i].nota, antes[i].nota);
            rs["marcado"] = tetos[i].marcado ? -1 : 0; // a Yes of these databases
            rs.Update();
        }
    });
}

std::vector<Linea> LeerLactaciones(Conexion& c, double idVaca) {
    if (idVaca == 0)
        return {};
    Recordset rs(
        c,
        "SELECT Año_Ref, Fecha_Parto, N_Parto, FechaDestete, TratSecado, CuartosPerdidos FROM T_Partos "
        "WHERE ID_Vaca = " +
            NumeroSql(idVaca),
        Cursor::Estatico, Bloqueo::SoloLectura);
    auto filas = LeerLineas(rs, kLactaciones);
    rs.Primero();
    for (auto& fila : filas) {
        fila.celdas[kDestete] = rs["FechaDestete"].Texto();
        rs.Siguiente();
    }
    // The first twin stays the first.
    std::stable_sort(filas.begin(), filas.end(), [](const Linea& a, const Linea& b) {
        return std::pair(a.Numero(kAño), a.Numero(kParto)) > std::pair(b.Numero(kAño), b.Numero(kParto));
    });
    std::vector<Linea> lineas;
    for (auto& fila : filas) {
        const bool mellizo = !lineas.empty() && !fila.celdas[kParto].empty() &&
                             lineas.back().celdas[kParto] == fila.celdas[kParto];
        if (!mellizo) {
            lineas.push_back(std::move(fila));
            continue;
        }
        auto& fechas = lineas.back().celdas[kDestete];
        fechas = (fechas.empty() ? "<?>" : fechas) + " - " + fila.celdas[kDestete];
    }
    return lineas;
}

void EscribirLactaciones(Conexion& c, double idVaca, std::span<const Linea> lineas) {
    for (const auto& linea : lineas) {
        if (linea.celdas[kAño].empty() || linea.celdas[kParto].empty())
            continue;
        const auto tratamiento = ValorDeCelda(linea, kTratSecado);
        auto cuartos = ValorDeCelda(linea, kCuartosPerdidos);
        if (!IsNumeric(TextoDe(cuartos)))
            cuartos = Valor();
        for (Recordset rs(c, "Select * FROM T_Partos WHERE Id_Vaca = " + NumeroSql(idVaca) +
                                 " AND Año_Ref = " + NumeroSql(linea.Numero(kAño)) +
                                 " AND N_Parto = " + NumeroSql(linea.Numero(kParto)));
             !rs.Eof(); rs.Siguiente()) {
            rs["TratSecado"] = tratamiento;
            rs["CuartosPerdidos"] = cuartos;
            rs.Update();
        }
    }
}

} // namespace pastorix
