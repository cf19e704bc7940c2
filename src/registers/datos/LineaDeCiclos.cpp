#include "registers/datos/LineaDeCiclos.h"

#include "store/Literales.h"
#include "store/Recordset.h"

#include <algorithm>
#include <map>
#include <utility>

namespace pastorix {

namespace {

// A cow's cycles by year and parity: how rows of other tables find theirs.
using Clave = std::pair<std::int64_t, std::int64_t>;

Clave ClaveDe(Recordset& rs) {
    return {rs["Año_Ref"].Entero(), rs["N_Parto"].Entero()};
}

std::vector<std::optional<Fecha>> Fechas(const CicloEnElTiempo& c) {
    std::vector<std::optional<Fecha>> todas{c.parto, c.real, c.esperado, c.diagnosis, c.secado};
    todas.insert(todas.end(), c.servicios.begin(), c.servicios.end());
    std::erase(todas, std::nullopt);
    return todas;
}

template <typename Recibir>
void Leer(Conexion& c, const std::string& sentencia, Recibir recibir) {
    for (Recordset rs(c, sentencia, Cursor::Estatico, Bloqueo::SoloLectura); !rs.Eof(); rs.Siguiente())
        recibir(rs);
}

std::string Corta(Fecha fecha) {
    return FormatoFecha(fecha, "dd/mm/yy");
}

std::string Servicios(const std::vector<Fecha>& servicios) {
    std::string t;
    for (std::size_t i = 0; i < servicios.size(); ++i)
        t += (i == 0 ? "" : i + 1 == servicios.size() ? " y " : ", ") + Corta(servicios[i]);
    return std::to_string(servicios.size()) + (servicios.size() == 1 ? " servicio, " : " servicios, ") + t;
}

} // namespace

std::optional<Fecha> CicloEnElTiempo::Desde() const {
    const auto todas = Fechas(*this);
    return todas.empty() ? std::nullopt : *std::min_element(todas.begin(), todas.end());
}

std::optional<Fecha> CicloEnElTiempo::Hasta() const {
    const auto todas = Fechas(*this);
    return todas.empty() ? std::nullopt : *std::max_element(todas.begin(), todas.end());
}

std::vector<CicloEnElTiempo> LeerLineaDeCiclos(Conexion& c, double idVaca) {
    std::vector<CicloEnElTiempo> ciclos;
    std::map<Clave, std::size_t> sitios;
    const auto vaca = " WHERE Id_Vaca = " + NumeroSql(idVaca);
    Leer(c,
         "SELECT Id_Cubricion, Año_Ref, N_Parto, Fecha_Parto, FechaRealParto, FechaEspParto, FechaDGRectal, "
         "Estado, IEPc "
         "FROM T_Cubriciones" +
             vaca + " ORDER BY Año_Ref, N_Parto",
         [&](Recordset& rs) {
             CicloEnElTiempo ciclo;
             ciclo.ciclo.idVaca = idVaca;
             ciclo.ciclo.idCubricion = rs["Id_Cubricion"].Numero();
             ciclo.ciclo.añoRef = EnteroDe(rs["Año_Ref"]);
             ciclo.ciclo.nParto = EnteroDe(rs["N_Parto"]);
             ciclo.parto = rs["Fecha_Parto"].FechaValor();
             ciclo.real = rs["FechaRealParto"].FechaValor();
             if (!ciclo.real)
                 ciclo.esperado = rs["FechaEspParto"].FechaValor();
             ciclo.diagnosis = rs["FechaDGRectal"].FechaValor();
             ciclo.estado = rs["Estado"].Texto();
             if (ciclo.parto && ciclo.real)
                 ciclo.intervalo = ciclo.real->dia - ciclo.parto->dia;
             else if (double n = 0; NumeroDeTexto(rs["IEPc"].Texto(), n))
                 ciclo.intervalo = static_cast<int>(n);
             sitios.emplace(ClaveDe(rs), ciclos.size());
             ciclos.push_back(std::move(ciclo));
         });
    const auto enSuSitio = [&](Recordset& rs, auto poner) {
        if (const auto sitio = sitios.find(ClaveDe(rs)); sitio != sitios.end())
            poner(ciclos[sitio->second]);
    };
    Leer(c, "SELECT Año_Ref, N_Parto, Fecha_Servicio FROM T_Servicios" + vaca + " ORDER BY N_Servicio",
         [&](Recordset& rs) {
             if (const auto fecha = rs["Fecha_Servicio"].FechaValor())
                 enSuSitio(rs, [&](CicloEnElTiempo& ciclo) { ciclo.servicios.push_back(*fecha); });
         });
    Leer(c, "SELECT Año_Ref, N_Parto, FechaSecado FROM T_Partos" + vaca + " ORDER BY Id_Parto",
         [&](Recordset& rs) {
             enSuSitio(rs, [&](CicloEnElTiempo& ciclo) {
                 if (!ciclo.secado)
                     ciclo.secado = rs["FechaSecado"].FechaValor();
             });
         });
    return ciclos;
}

std::string CicloEnPalabras(const CicloEnElTiempo& c) {
    const auto numero = [](const std::optional<int>& n) {
        return n ? std::to_string(*n) : std::string("sin dato");
    };
    std::string t = "Año " + numero(c.ciclo.añoRef) + ", parto " + numero(c.ciclo.nParto);
    const auto frase = [&](bool hay, const std::string& texto) {
        if (hay)
            t += ". " + texto;
    };
    const auto conFecha = [](const char* que, const std::optional<Fecha>& fecha) {
        return fecha ? std::string(que) + Corta(*fecha) : std::string();
    };
    frase(c.parto.has_value(), conFecha("Parto ", c.parto));
    frase(!c.servicios.empty(), Servicios(c.servicios));
    frase(c.diagnosis.has_value(), conFecha("Diagnóstico ", c.diagnosis));
    frase(!c.estado.empty(), c.estado + conFecha(", para el ", c.esperado));
    frase(c.secado.has_value(), conFecha("Secado ", c.secado));
    frase(c.real.has_value(), conFecha("Parto siguiente ", c.real));
    frase(c.intervalo.has_value(),
          std::string(c.real ? "Intervalo " : "Intervalo esperado ") +
              std::to_string(c.intervalo.value_or(0)) + " días" +
              (c.intervalo.value_or(0) > kIntervaloLargo ? ", demasiado largo" : ""));
    return t + ".";
}

} // namespace pastorix
