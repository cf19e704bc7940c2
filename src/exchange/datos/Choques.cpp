#include "exchange/datos/Choques.h"

#include "exchange/datos/Recorridos.h"
#include "store/Recordset.h"

#include <map>
#include <optional>
#include <unordered_map>

namespace pastorix {

namespace {

// The rows that a merge adds to a keyed table, and who has the key already.
class Choques {
public:
    Choques(Conexion& central, Conexion& paquete, const Codigos& suyos, Comparacion& c)
        : m_central(central)
        , m_paquete(paquete)
        , m_suyos(suyos)
        , m_c(c) {}

    void Buscar() {
        for (const auto& paso : PasosDeEntrada())
            if (paso.clase == ClaseDePaso::Tabla && !paso.soloSuyos)
                ContarAjenas(paso.tabla);
        if (!m_ajenas.empty())
            m_c.avisos.push_back(
                "El fichero trae registros de ganaderos que no son suyos, que se añadirán: " +
                Algunos(m_ajenas));
        // clang-format off
        EnTabla("T_Vacas", {"Id_Vaca"}, true, "NombreC");
        EnTabla("T_Sementales", {"Id_Semental"}, false, "NombreC");
        EnTabla("T_Cebo", {"Id_Ganadero", "Id_Cebo"}, true, "Saneamiento");
        // clang-format on
        for (const char* tabla : {"T_AlimentacionInvernal", "T_AbonadoSuperficie", "T_PastosComunales",
                                  "T_SistemaProduccion", "T_Vacunaciones"})
            EnTabla(tabla, {"Id_Ganadero", "AñoNatural"}, true, "Id_Ganadero");
        Direcciones();
    }

private:
    struct Fila {
        std::string clave, nombre;
        std::optional<double> ganadero;
    };

    static std::string Clave(Recordset& rs, std::size_t n) {
        std::string clave;
        for (std::size_t i = 0; i < n; ++i) {
            const auto campo = rs[static_cast<int>(i)];
            if (campo.Nulo())
                return {}; // Null is never a second time there
            clave += (i ? "/" : "") + campo.Texto();
        }
        return clave;
    }

    template <typename F>
    static void Recorrer(Conexion& c, const std::string& consulta, std::size_t n, F&& hacer) {
        Recordset rs(c, consulta, Cursor::Keyset, Bloqueo::SoloLectura);
        for (; !rs.Eof(); rs.Siguiente())
            if (auto clave = Clave(rs, n); !clave.empty()) {
                const auto g = rs[static_cast<int>(n)];
                hacer(Fila{std::move(clave), rs[static_cast<int>(n + 1)].Texto(),
                           g.Nulo() ? std::nullopt : std::optional(g.Numero())});
            }
    }

    bool Suya(const Fila& f) const { return f.ganadero && m_suyos.contains(*f.ganadero); }

    void EnTabla(const std::string& tabla, const std::vector<std::string>& clave, bool entera,
                 const char* nombre) {
        std::string consulta = "SELECT ";
        for (const auto& c : clave)
            consulta += c + ", ";
        consulta += std::string("Id_Ganadero, ") + nombre + " FROM " + tabla;
        std::unordered_map<std::string, std::string> hay;
        Recorrer(m_central, consulta, clave.size(), [&](Fila f) {
            if (!Suya(f))
                hay.emplace(std::move(f.clave), std::move(f.nombre));
        });
        Recorrer(m_paquete, consulta, clave.size(), [&](Fila f) {
            if (!entera && !Suya(f))
                return;
            if (const auto [it, nueva] = hay.try_emplace(f.clave, f.nombre); !nueva)
                m_c.choques.push_back(tabla + ", clave " + f.clave + ": aquí, " + it->second +
                                      "; en el fichero, " + f.nombre);
        });
    }

    // Addresses of farmers that the centre does not have stand in nobody's way but the new one's.
    void Direcciones() {
        const auto lista = Numeros(m_central, "SELECT Id_Ganadero FROM T_Ganaderos", "Id_Ganadero");
        const Codigos conocidos(lista.begin(), lista.end());
        const char* consulta = "SELECT Id_Direccion, Id_GV, Id_GV, Direccion FROM T_Direcciones";
        std::unordered_map<std::string, std::string> hay;
        Recorrer(m_central, consulta, 2, [&](Fila f) {
            if (!Suya(f) || !conocidos.contains(*f.ganadero))
                hay.emplace(std::move(f.clave), std::move(f.nombre));
        });
        Recorrer(m_paquete, consulta, 2, [&](const Fila& f) {
            if (const auto it = hay.find(f.clave); Suya(f) && it != hay.end())
                m_c.choques.push_back("T_Direcciones, clave " + f.clave + ": aquí, " + it->second +
                                      "; en el fichero, " + f.nombre);
        });
    }

    void ContarAjenas(const std::string& tabla) {
        std::map<std::string, long> porGanadero;
        Recordset rs(m_paquete, "SELECT Id_Ganadero FROM " + tabla, Cursor::Keyset, Bloqueo::SoloLectura);
        for (; !rs.Eof(); rs.Siguiente())
            if (const auto g = rs[0]; g.Nulo() || !m_suyos.contains(g.Numero()))
                ++porGanadero[g.Nulo() ? "sin ganadero" : "del ganadero " + g.Texto()];
        for (const auto& [de, n] : porGanadero)
            m_ajenas.push_back(tabla + " (" + std::to_string(n) + " " + de + ")");
    }

    Conexion& m_central;
    Conexion& m_paquete;
    const Codigos& m_suyos;
    Comparacion& m_c;
    std::vector<std::string> m_ajenas;
};

} // namespace

void BuscarChoques(Conexion& central, Conexion& paquete, const Codigos& suyos, Comparacion& c) {
    Choques(central, paquete, suyos, c).Buscar();
}

} // namespace pastorix
