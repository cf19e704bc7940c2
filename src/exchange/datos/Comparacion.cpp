#include "exchange/datos/Comparacion.h"

#include "exchange/datos/Avisos.h"
#include "exchange/datos/CatalogoDeToros.h"
#include "exchange/datos/Choques.h"
#include "exchange/datos/FundirPaquete.h"
#include "store/Catalogo.h"
#include "store/Literales.h"
#include "store/Recordset.h"
#include "store/Textos.h"

#include <algorithm>
#include <map>
#include <unordered_map>

namespace pastorix {

namespace {

// How the rows of a table find their farmer, and each other.
struct TablaComparada {
    enum class Por { Ganadero, Direccion, Vaca, Toro };
    const char* nombre;
    Por por;
    std::vector<std::string> clave;

    const char* Columna() const {
        switch (por) {
        case Por::Ganadero:
            return "Id_Ganadero";
        case Por::Direccion:
            return "Id_GV";
        case Por::Vaca:
            return "Id_Vaca";
        case Por::Toro:
            break;
        }
        return "Id_Animal";
    }
};

const std::vector<TablaComparada>& Comparadas() {
    using enum TablaComparada::Por;
    // clang-format off
    static const std::vector<TablaComparada> tablas{
        {"T_Ganaderos", Ganadero, {"Id_Ganadero"}}, {"T_Direcciones", Direccion, {"Id_Direccion", "Id_GV"}},
        {"T_Vacas", Ganadero, {"Id_Vaca"}}, {"T_Cubriciones", Vaca, {"Id_Vaca", "Año_Ref", "N_Parto"}},
        {"T_Servicios", Vaca, {"Id_Vaca", "Año_Ref", "N_Parto", "N_Servicio"}}, {"T_Partos", Vaca, {"Id_Vaca", "N_Parto", "Id_Parto"}},
        {"T_Mamitis", Vaca, {"Id_Vaca", "Id_Teto"}}, {"T_Cebo", Ganadero, {"Id_Cebo"}}, {"T_Sementales", Ganadero, {"Id_Semental"}},
        {"T_PatologiaSem", Toro, {"Id_Animal", "ANatural"}}, {"T_PatologiaSemR", Toro, {"Id_Animal", "ANatural"}},
        {"T_MAMIVACU", Ganadero, {"Id_Vaca", "AñoNat"}}, {"T_CCNATVACAS", Ganadero, {"Id_Vaca", "AñoNat"}},
        {"T_IBRBVD", Ganadero, {"Id_Vaca", "AñoNat"}}, {"T_NEOSPIROSIS", Ganadero, {"Id_Vaca", "AñoNat"}},
        {"T_CCVacas", Ganadero, {"Id_Vaca", "AñoRef", "NumParto"}}, {"T_R_IBRBVD", Ganadero, {"Id_Vaca", "AñoRef", "NumParto"}},
        {"T_R_NEOSPIROSIS", Ganadero, {"Id_Vaca", "AñoRef", "NumParto"}}, {"T_IPR", Ganadero, {"Id_Ganadero", "AñoNatural"}},
        {"T_AlimentacionInvernal", Ganadero, {"Id_Ganadero", "AñoNatural"}}, {"T_AbonadoSuperficie", Ganadero, {"Id_Ganadero", "AñoNatural"}},
        {"T_PastosComunales", Ganadero, {"Id_Ganadero", "AñoNatural"}}, {"T_SistemaProduccion", Ganadero, {"Id_Ganadero", "AñoNatural"}},
        {"T_Vacunaciones", Ganadero, {"Id_Ganadero", "AñoNatural"}}, {"T_FechasVacu", Ganadero, {"Id_Ganadero", "Ln"}}};
    // clang-format on
    return tablas;
}

// Whose is what: farmers by name, cows and bulls by farmer.
class Duenos {
public:
    void Leer(Conexion& c) {
        Recordset g(c, "SELECT Id_Ganadero, Nombre, Apellidos FROM T_Ganaderos", Cursor::Keyset,
                    Bloqueo::SoloLectura);
        for (; !g.Eof(); g.Siguiente())
            m_nombres[g[0].Numero()] = g[1].Texto() + " " + g[2].Texto();
        const auto animales = [&](const char* consulta, std::unordered_map<double, double>& de) {
            Recordset rs(c, consulta, Cursor::Keyset, Bloqueo::SoloLectura);
            for (; !rs.Eof(); rs.Siguiente())
                de.try_emplace(rs[0].Numero(), rs[1].Numero());
        };
        if (c.Esquema().Buscar("T_Vacas"))
            animales("SELECT Id_Vaca, Id_Ganadero FROM T_Vacas", m_vacas);
        animales("SELECT Id_Semental, Id_Ganadero FROM T_Sementales", m_toros);
    }
    std::string Nombre(double ganadero) const {
        const auto it = m_nombres.find(ganadero);
        return it == m_nombres.end() ? "Ganadero " + NumeroSql(ganadero) : it->second;
    }
    double De(TablaComparada::Por por, double clave) const {
        const auto& mapa = por == TablaComparada::Por::Vaca ? m_vacas : m_toros;
        if (por == TablaComparada::Por::Ganadero || por == TablaComparada::Por::Direccion)
            return clave;
        const auto it = mapa.find(clave);
        return it == mapa.end() ? 0 : it->second;
    }

private:
    std::unordered_map<double, std::string> m_nombres;
    std::unordered_map<double, double> m_vacas, m_toros;
};

Codigos DeConsulta(Conexion& c, const std::string& consulta, const char* columna) {
    const auto numeros = Numeros(c, consulta, columna);
    return {numeros.begin(), numeros.end()};
}

std::size_t Lugar(const std::vector<std::string>& columnas, const char* nombre) {
    return static_cast<std::size_t>(std::find(columnas.begin(), columnas.end(), nombre) - columnas.begin());
}

// Sorts the differences of one table to their farmers.
void Repartir(Comparacion& c, const Duenos& duenos, const TablaComparada& tabla, DiferenciasDeTabla d) {
    std::map<double, CambioDeTabla> porGanadero;
    const auto lugar = Lugar(d.columnas, tabla.Columna());
    for (auto& fila : d.filas) {
        const auto ganadero =
            duenos.De(tabla.por, NumeroDe((fila.despues.empty() ? fila.antes : fila.despues)[lugar]));
        auto& cambio = porGanadero[ganadero];
        ++(fila.antes.empty() ? cambio.vienen : fila.despues.empty() ? cambio.seVan : cambio.cambian);
        cambio.filas.push_back(std::move(fila));
    }
    for (auto& [ganadero, cambio] : porGanadero) {
        cambio.ganadero = ganadero;
        cambio.nombre = duenos.Nombre(ganadero);
        cambio.tabla = tabla.nombre;
        cambio.columnas = d.columnas;
        c.vienen += cambio.vienen;
        c.seVan += cambio.seVan;
        c.cambian += cambio.cambian;
        c.cambios.push_back(std::move(cambio));
    }
}

void Ordenar(Comparacion& c) {
    std::stable_sort(c.cambios.begin(), c.cambios.end(), [](const CambioDeTabla& a, const CambioDeTabla& b) {
        return CompararEspañol(a.nombre, b.nombre) < 0;
    });
}

Comparacion Comprobar(Conexion& central, Conexion& paquete, const std::string& usuario,
                      const Codigos& suyos) {
    Comparacion c;
    AvisarDeLaFusion(central, paquete, usuario, suyos, c);
    BuscarChoques(central, paquete, suyos, c);
    return c;
}

Codigos Suyos(Conexion& paquete) {
    const auto lista = GanaderosDelPaquete(paquete);
    if (lista.empty())
        throw PaqueteSinGanaderos();
    return {lista.begin(), lista.end()};
}

// Animals of the package by the farmers that count.
Codigos AnimalesDe(Conexion& c, const char* tabla, const char* clave, const Codigos& ganaderos) {
    Codigos animales;
    Recordset rs(c, std::string("SELECT ") + clave + ", Id_Ganadero FROM " + tabla, Cursor::Keyset,
                 Bloqueo::SoloLectura);
    for (; !rs.Eof(); rs.Siguiente())
        if (ganaderos.contains(rs[1].Numero()))
            animales.insert(rs[0].Numero());
    return animales;
}

} // namespace

Comparacion ComprobarFusion(Conexion& central, Conexion& paquete, const std::string& usuario) {
    return Comprobar(central, paquete, usuario, Suyos(paquete));
}

Comparacion CompararFusion(Conexion& central, Conexion& paquete, const std::string& usuario) {
    const auto suyos = Suyos(paquete);
    auto c = Comprobar(central, paquete, usuario, suyos);
    Duenos duenos;
    duenos.Leer(paquete);
    duenos.Leer(central);
    const auto vacas = AnimalesDe(paquete, "T_Vacas", "Id_Vaca", suyos);
    const auto toros = AnimalesDe(paquete, "T_Sementales", "Id_Semental", suyos);
    for (const auto& t : Comparadas()) {
        const auto& de = t.por == TablaComparada::Por::Vaca   ? vacas
                         : t.por == TablaComparada::Por::Toro ? toros
                                                              : suyos;
        Repartir(c, duenos, t, CompararTabla(central, paquete, t.nombre, t.clave, t.Columna(), de));
    }
    Ordenar(c);
    return c;
}

Comparacion CompararReemplazo(Conexion& base, Conexion& paquete) {
    Comparacion c;
    Duenos duenos;
    duenos.Leer(paquete);
    duenos.Leer(base);
    for (const auto& t : Comparadas())
        Repartir(c, duenos, t, CompararTabla(base, paquete, t.nombre, t.clave));
    Ordenar(c);
    AvisarDelReemplazo(base, c);
    return c;
}

Comparacion CompararToros(Conexion& base, Conexion& catalogo) {
    Comparacion c;
    const auto reparos = MirarCatalogo(catalogo, base);
    c.choques = reparos.claves;
    for (const auto& t : reparos.nombres)
        c.avisos.push_back(Texto(t));
    Duenos duenos;
    duenos.Leer(catalogo);
    duenos.Leer(base);
    const auto suyos = DeConsulta(catalogo, "SELECT Id_Ganadero FROM T_Ganaderos", "Id_Ganadero");
    auto toros = AnimalesDe(base, "T_Sementales", "Id_Semental", suyos);
    toros.merge(AnimalesDe(catalogo, "T_Sementales", "Id_Semental", suyos));
    for (const auto& t : Comparadas())
        if (catalogo.Esquema().Buscar(t.nombre))
            Repartir(c, duenos, t,
                     CompararTabla(base, catalogo, t.nombre, t.clave, t.Columna(),
                                   t.por == TablaComparada::Por::Toro ? toros : suyos));
    Ordenar(c);
    return c;
}

std::string Texto(const CambioDeTabla& cambio, const FilaDistinta& fila) {
    const auto& donde = fila.antes.empty() ? fila.despues : fila.antes;
    std::string t = cambio.tabla;
    for (const auto& tabla : Comparadas())
        if (cambio.tabla == tabla.nombre)
            for (const auto& c : tabla.clave)
                t += (&c == &tabla.clave.front() ? " " : "/") +
                     TextoDe(donde[Lugar(cambio.columnas, c.c_str())]);
    if (fila.antes.empty() || fila.despues.empty())
        return t + (fila.antes.empty() ? ": viene" : ": se va");
    t += ":";
    for (std::size_t i = 0; i < fila.antes.size(); ++i)
        if (fila.antes[i] != fila.despues[i])
            t += " " + cambio.columnas[i] + " «" + TextoDe(fila.antes[i]) + "» → «" +
                 TextoDe(fila.despues[i]) + "»";
    return t;
}

std::vector<std::string> Lineas(const Comparacion& c, std::size_t filas) {
    std::vector<std::string> lineas;
    for (const auto& x : c.choques)
        lineas.push_back("CHOCA: " + x);
    for (const auto& x : c.avisos)
        lineas.push_back("ATENCIÓN: " + x);
    lineas.push_back("Registros que vienen: " + std::to_string(c.vienen) + "; que se van: " +
                     std::to_string(c.seVan) + "; que cambian: " + std::to_string(c.cambian));
    const std::string* ganadero = nullptr;
    for (const auto& cambio : c.cambios) {
        if (!ganadero || *ganadero != cambio.nombre)
            lineas.push_back(cambio.nombre + " (" + NumeroSql(cambio.ganadero) + ")");
        ganadero = &cambio.nombre;
        lineas.push_back("  " + cambio.tabla + ": vienen " + std::to_string(cambio.vienen) + ", se van " +
                         std::to_string(cambio.seVan) + ", cambian " + std::to_string(cambio.cambian));
        for (std::size_t i = 0; i < cambio.filas.size() && i < filas; ++i)
            lineas.push_back("    " + Texto(cambio, cambio.filas[i]));
    }
    return lineas;
}

} // namespace pastorix
