#include "exchange/datos/PasarGanadero.h"

#include "store/Literales.h"
#include "store/Recordset.h"

#include <cmath>
#include <map>

namespace pastorix {

namespace {

// clang-format off
constexpr const char* kTablasDelGanadero[] = {
    "T_IPR", "T_PastosComunales", "T_AbonadoSuperficie", "T_AlimentacionInvernal", "T_Vacunaciones", "T_SistemaProduccion",
    "T_CCNATVACAS", "T_CCVACAS", "T_FECHASVACU", "T_IBRBVD", "T_NEOSPIROSIS", "T_R_IBRBVD", "T_R_NEOSPIROSIS"};
constexpr const char* kConVaca[] = {"T_CCVACAS", "T_CCNATVACAS", "T_IBRBVD", "T_R_IBRBVD", "T_NEOSPIROSIS", "T_R_NEOSPIROSIS"};
// clang-format on

struct CambioDeClave {
    double antes;
    double ahora;
};

class Traspaso {
public:
    Traspaso(Conexion& origen, Conexion& destino, double ganadero)
        : m_origen(origen)
        , m_destino(destino)
        , m_viejo(ganadero) {}

    double Hacer(Fecha hoy, const Azar& azar, const Progreso& progreso) {
        PasarFicha(hoy, azar);
        PasarDireccion();
        for (const char* tabla : kTablasDelGanadero)
            Copiar(tabla, "ID_GANADERO = " + NumeroSql(m_viejo), "Id_Ganadero", m_nuevo);
        progreso(20);
        PasarToros();
        Copiar("T_Cebo", "ID_GANADERO = " + NumeroSql(m_viejo), "Id_Ganadero", m_nuevo);
        progreso(30);
        PasarVacas();
        progreso(40);
        for (std::size_t i = 0; i < m_vacas.size(); ++i) {
            PasarHijosDe(m_vacas[i]);
            progreso(40 + static_cast<int>(55 * (i + 1) / m_vacas.size()));
        }
        for (const auto& vaca : m_vacas)
            for (const char* tabla : kConVaca)
                m_destino.Execute("UPDATE " + std::string(tabla) + " SET ID_VACA = " + NumeroSql(vaca.ahora) +
                                  " WHERE ID_GANADERO = " + NumeroSql(m_nuevo) +
                                  " AND ID_VACA = " + NumeroSql(vaca.antes));
        progreso(100);
        return m_nuevo;
    }

private:
    double Siguiente(const char* tabla, const char* clave) {
        return SiguienteId(m_destino,
                           std::string("SELECT ") + clave + " FROM " + tabla + " ORDER BY " + clave);
    }

    static std::string Todas(const std::string& tabla) { return "SELECT * FROM " + tabla; }

    // Adds the rows of a table with one column changed. With a key of the table's own, each row takes the next one.
    void Copiar(const std::string& tabla, const std::string& donde, const char* columna, double valor,
                const char* clave = nullptr) {
        Recordset rs(m_origen, Todas(tabla) + " WHERE " + donde, Cursor::Keyset, Bloqueo::SoloLectura);
        if (rs.Eof())
            return;
        double* siguiente = nullptr;
        if (clave) { // nobody else adds rows to the copy
            const auto [it, nueva] = m_siguientes.try_emplace(tabla, 0);
            siguiente = &it->second;
            if (nueva)
                *siguiente = Siguiente(tabla.c_str(), clave);
        }
        for (; !rs.Eof(); rs.Siguiente()) {
            auto nueva = FilaCopiada(rs, m_destino, Todas(tabla));
            nueva[columna] = valor;
            if (clave)
                nueva[clave] = (*siguiente)++;
            nueva.Update();
        }
    }

    void PasarFicha(Fecha hoy, const Azar& azar) {
        const auto consulta = [](double id) {
            return "SELECT * FROM T_GANADEROS WHERE ID_GANADERO = " + NumeroSql(id);
        };
        Recordset rs(m_origen, consulta(m_viejo), Cursor::Keyset, Bloqueo::SoloLectura);
        if (rs.Eof())
            throw ErrorDeIntercambio("El ganadero " + NumeroSql(m_viejo) + " ya no está en la base de datos");
        m_direccion = rs["Id_Direccion"].Numero();
        m_nuevo =
            Recordset(m_destino, consulta(m_viejo)).Eof() ? m_viejo : NuevoCodigoGanadero(m_destino, azar);
        auto nueva = FilaCopiada(rs, m_destino, Todas("T_GANADEROS"));
        nueva["Id_Ganadero"] = m_nuevo;
        nueva["FechaAlta"] = Fecha{hoy.dia, 0};
        nueva["FechaBaja"] = Valor();
        nueva.Update();
    }

    void PasarDireccion() {
        if (m_direccion == 0)
            return;
        Recordset rs(m_origen, "SELECT * FROM T_DIRECCIONES WHERE ID_DIRECCION = " + NumeroSql(m_direccion),
                     Cursor::Keyset, Bloqueo::SoloLectura);
        if (rs.Eof())
            return;
        // Farmers and veterinarians share the numbers: his own goes before anybody else's.
        while (!rs.Eof() && rs["Id_GV"].Numero() != m_viejo)
            rs.Siguiente();
        if (rs.Eof())
            rs.Primero();
        const auto siguiente = Siguiente("T_DIRECCIONES", "ID_DIRECCION");
        auto nueva = FilaCopiada(rs, m_destino, Todas("T_DIRECCIONES"));
        nueva["Id_Direccion"] = siguiente;
        nueva["Id_GV"] = m_nuevo;
        nueva.Update();
        m_destino.Execute("UPDATE T_GANADEROS SET ID_DIRECCION  = " + NumeroSql(siguiente) +
                          " WHERE ID_GANADERO = " + NumeroSql(m_nuevo));
    }

    void PasarToros() {
        Recordset rs(m_origen, "SELECT * FROM T_Sementales WHERE ID_GANADERO = " + NumeroSql(m_viejo),
                     Cursor::Keyset, Bloqueo::SoloLectura);
        for (; !rs.Eof(); rs.Siguiente()) {
            const auto clave = Siguiente("T_SEMENTALES", "ID_SEMENTAL");
            auto nueva = FilaCopiada(rs, m_destino, Todas("T_SEMENTALES"));
            nueva["Id_Ganadero"] = m_nuevo;
            nueva["Id_Semental"] = clave;
            nueva.Update();
            m_toros.push_back({rs["Id_Semental"].Numero(), clave});
        }
        for (const auto& toro : m_toros)
            Copiar("T_PatologiaSem", "ID_Animal = " + NumeroSql(toro.antes), "Id_Animal", toro.ahora);
    }

    double ClaveDeVaca(double antes) {
        if (m_nuevo == m_viejo)
            return antes;
        const double n =
            SiguienteId(m_destino, "SELECT ID_VACA FROM T_VACAS WHERE Id_Ganadero = " + NumeroSql(m_nuevo) +
                                       " ORDER BY ID_VACA");
        return n >= m_nuevo ? n : m_nuevo * 1000 + 1; // the code followed by "001"
    }

    void PasarVacas() {
        Recordset rs(m_origen, "SELECT * FROM T_VACAS WHERE ID_GANADERO = " + NumeroSql(m_viejo),
                     Cursor::Keyset, Bloqueo::SoloLectura);
        for (; !rs.Eof(); rs.Siguiente()) {
            const auto antes = rs["Id_Vaca"].Numero();
            const auto clave = ClaveDeVaca(antes);
            auto nueva = FilaCopiada(rs, m_destino, Todas("T_VACAS"));
            nueva["Id_Ganadero"] = m_nuevo;
            nueva["Id_Vaca"] = clave;
            nueva.Update();
            m_vacas.push_back({antes, clave});
        }
    }

    void PasarHijosDe(const CambioDeClave& vaca) {
        const auto suyas = "ID_VACA = " + NumeroSql(vaca.antes);
        Copiar("T_MAMITIS", suyas, "Id_Vaca", vaca.ahora);
        Copiar("T_Cubriciones", suyas, "Id_Vaca", vaca.ahora, "Id_Cubricion");
        Copiar("T_SERVICIOS", suyas, "Id_Vaca", vaca.ahora);
        Copiar("T_PARTOS", suyas, "Id_Vaca", vaca.ahora, "Id_Parto");
        for (const auto& toro : m_toros)
            for (const char* tabla : {"T_SERVICIOS", "T_PARTOS"})
                m_destino.Execute("UPDATE " + std::string(tabla) + " SET ID_SEMENTAL = " +
                                  NumeroSql(toro.ahora) + " WHERE ID_VACA = " + NumeroSql(vaca.ahora) +
                                  " AND ID_SEMENTAL = " + NumeroSql(toro.antes));
    }

    Conexion& m_origen;
    Conexion& m_destino;
    double m_viejo;
    double m_nuevo = 0;
    double m_direccion = 0;
    std::vector<CambioDeClave> m_toros;
    std::vector<CambioDeClave> m_vacas;
    std::map<std::string, double> m_siguientes; // next key of tables that number their rows
};

} // namespace

std::vector<GanaderoDeBaja> GanaderosDeBaja(Conexion& conexion) {
    std::vector<GanaderoDeBaja> lista;
    Recordset rs(conexion, "SELECT * FROM T_Ganaderos WHERE not FechaBaja IS NULL ORDER BY Nombre, Apellidos",
                 Cursor::Keyset, Bloqueo::SoloLectura);
    for (; !rs.Eof(); rs.Siguiente())
        lista.push_back({rs["Id_Ganadero"].Numero(), rs["Nombre"].Texto() + " " + rs["Apellidos"].Texto()});
    return lista;
}

double NuevoCodigoGanadero(Conexion& destino, const Azar& azar) {
    for (;;) {
        const double x = std::floor(azar() * 9999 + 1000);
        if (x >= 1000 && x <= 9999 &&
            Recordset(destino, "SELECT ID_GANADERO FROM T_GANADEROS WHERE ID_GANADERO = " + NumeroSql(x))
                .Eof())
            return x;
    }
}

LoQueQuedaAtras PasarGanadero(Conexion& origen, Conexion& destino, double ganadero, Fecha hoy,
                              const Azar& azar, const Progreso& progreso) {
    LoQueQuedaAtras r;
    r.codigo =
        EnGrupo(destino, [&] { return Traspaso(origen, destino, ganadero).Hacer(hoy, azar, progreso); });
    const auto contar = [](Conexion& c, const std::string& cola) {
        return Recordset(c, "SELECT * FROM " + cola, Cursor::Keyset, Bloqueo::SoloLectura).Contar();
    };
    const auto el = NumeroSql(ganadero);
    r.mamitisYVacunas = contar(origen, "T_MAMIVACU WHERE Id_Ganadero = " + el);
    for (const double toro :
         Numeros(origen, "SELECT Id_Semental FROM T_Sementales WHERE Id_Ganadero = " + el, "Id_Semental"))
        r.patologiasDeCiclo += contar(origen, "T_PatologiaSemR WHERE Id_Animal = " + NumeroSql(toro));
    r.cebosConParto = contar(origen, "T_Cebo WHERE Id_Parto > 0 AND Id_Ganadero = " + el);
    const auto vacas =
        Numeros(destino, "SELECT Id_Vaca FROM T_Vacas WHERE Id_Ganadero = " + NumeroSql(r.codigo), "Id_Vaca");
    if (!vacas.empty())
        r.toros =
            TorosConOtroNombre(destino, destino, Cadena(" AND (Id_Vaca = ", " OR Id_Vaca = ", vacas) + ")");
    return r;
}

} // namespace pastorix
