#include "reproduction/datos/Servicios.h"

#include "frame/calendario/Formatos.h"
#include "reproduction/datos/Cadena.h"

#include <algorithm>

namespace pastorix {

namespace {

using enum ClaseCampo;

constexpr const char* kTratamientos[] = {"No", "PGF", "Crestar", "Prid"};
constexpr const char* kTipos[] = {"Cubrición", "1 InsCelo", "1 Insem", "2 Insem"};

constexpr ColumnaLinea kColumnas[] = {
    {"N_Servicio", Numero},          {"Fecha_Servicio", Fecha},        {"Semental"},
    {"Prog", DecimalPunto},          {"Tratam", Texto, kTratamientos}, {"FechaTratam", Fecha},
    {"TipoServicio", Texto, kTipos}, {"N_Inseminacion", Numero},       {"Obs"},
    {"Id_Semental", Numero}};

double ConteoDe(const Linea* linea) {
    return linea ? linea->Numero(servicio::NumeroInsem) : 0;
}

} // namespace

std::span<const ColumnaLinea> ColumnasDeServicio() {
    return kColumnas;
}

std::span<const char* const> Tratamientos() {
    return kTratamientos;
}

std::vector<Linea> LeerServicios(Conexion& c, const CicloDeVaca& ciclo) {
    Recordset rs(c, "SELECT * FROM T_Servicios" + DondeCiclo(ciclo) + " ORDER BY N_Servicio",
                 Cursor::Estatico, Bloqueo::SoloLectura);
    return LeerLineas(rs, kColumnas, OtrosCampos(rs, kColumnas, {"Id_Vaca", "Año_Ref", "N_Parto"}));
}

std::vector<Linea> ServiciosEnRejilla(const std::vector<Linea>& todos) {
    auto lineas = todos;
    if (lineas.size() > kServiciosEnRejilla)
        lineas.erase(lineas.begin() + (kServiciosEnRejilla - 1), lineas.end() - 1);
    return lineas;
}

std::string ServiciosSinSitio(const std::vector<Linea>& todos) {
    std::string numeros;
    for (std::size_t i = kServiciosEnRejilla - 1; i + 1 < todos.size(); ++i)
        numeros += (numeros.empty() ? "" : ", ") + todos[i].celdas[servicio::Numero];
    return todos.size() > kServiciosEnRejilla ? numeros : std::string();
}

void GuardarServicios(Conexion& c, const CicloDeVaca& ciclo, std::span<const Linea> lineas) {
    TodoONada(c, [&] {
        c.Execute("DELETE FROM T_Servicios" + DondeCiclo(ciclo));
        Recordset rs(c, "SELECT * FROM T_Servicios" + DondeCiclo(ciclo));
        for (const auto& linea : lineas) {
            if (!IsNumeric(linea.celdas[servicio::Numero]))
                continue;
            rs.AddNew();
            rs["Id_Vaca"] = ciclo.idVaca;
            rs["Año_Ref"] = EnteroONulo(ciclo.añoRef);
            rs["N_Parto"] = EnteroONulo(ciclo.nParto);
            EscribirLinea(rs, linea, kColumnas);
            rs.Update();
        }
    });
}

std::string SiguienteServicio(Conexion& c, const CicloDeVaca& ciclo) {
    return TextoNumero(
        SiguienteId(c, "SELECT N_Servicio FROM T_Servicios" + DondeCiclo(ciclo) + " ORDER BY N_Servicio"));
}

std::string NumeroDeInseminacion(Conexion& c, const CicloDeVaca& ciclo, const std::string& tipo,
                                 const Linea* linea) {
    const bool natural = tipo == kTipos[0];
    const auto consulta =
        "SELECT N_Inseminacion FROM T_Servicios" + DondeCiclo(ciclo) + " ORDER BY N_Inseminacion";
    if (!linea) {
        const double ultimo = SiguienteId(c, consulta) - 1;
        return TextoNumero(natural ? ultimo : ultimo + 1);
    }
    const double conteo = ConteoDe(linea);
    const bool eraNatural = linea->celdas[servicio::Tipo] == kTipos[0];
    if (natural)
        return TextoNumero(conteo <= 0 ? 0 : eraNatural ? conteo : conteo - 1);
    return TextoNumero(conteo == 0 ? 1 : eraNatural ? conteo + 1 : conteo);
}

} // namespace pastorix
