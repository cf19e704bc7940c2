#include "exchange/datos/UnirVeterinario.h"

#include "exchange/datos/Recorridos.h"
#include "store/CopiaDeFilas.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <charconv>
#include <map>
#include <unordered_map>
#include <unordered_set>

namespace pastorix {

namespace {

bool Hay(Conexion& conexion, const std::string& consulta) {
    return !Recordset(conexion, consulta, Cursor::Keyset, Bloqueo::SoloLectura).Eof();
}

double Numero(const std::string& cifras) {
    double n = 0;
    std::from_chars(cifras.data(), cifras.data() + cifras.size(), n);
    return n;
}

// The farmer's code followed by the counter, three digits at least.
std::string ClaveNueva(const std::string& ganadero, long contador) {
    auto cifras = std::to_string(contador);
    if (cifras.size() < 3)
        cifras.insert(0, 3 - cifras.size(), '0');
    return ganadero + cifras;
}

bool Entra(const GanaderoQueEntra& g) {
    return !g.codigo.empty() && !g.central.empty();
}

// clang-format off
constexpr const char* kTablasDeGanadero[] = {
    "T_AbonadoSuperficie", "T_AlimentacionInvernal", "T_CEBO", "T_FechasVacu", "T_IPR", "T_PASTOSCOMUNALES",
    "T_SistemaProduccion", "T_VACUNACIONES", "T_VACAS", "T_CCNatVacas", "T_CCVacas", "T_IBRBVD", "T_MamiVacu",
    "T_NEOSPIROSIS", "T_R_IBRBVD", "T_R_NEOSPIROSIS", "T_SEMENTALES"};

// Tables with a cow; those with a farmer as well are told apart by him.
struct TablaConVaca {
    const char* nombre;
    bool conGanadero;
};
constexpr TablaConVaca kTablasConVaca[] = {
    {"T_CCNatVacas", true}, {"T_CCVacas", true}, {"T_CUBRICIONES", false}, {"T_IBRBVD", true}, {"T_Mamitis", false},
    {"T_MamiVacu", true}, {"T_NEOSPIROSIS", true}, {"T_PARTOS", false}, {"T_R_IBRBVD", true}, {"T_R_NEOSPIROSIS", true},
    {"T_Servicios", false}};
// clang-format on

void RenumerarVacas(Conexion& paquete, const std::string& ganadero) {
    Recordset rs(paquete, "SELECT * FROM T_Vacas WHERE Id_GANADERO = " + ganadero + " ORDER BY Id_Vaca");
    for (long contador = 1; !rs.Eof(); rs.Siguiente(), ++contador) {
        const auto vieja = NumeroSql(rs["Id_Vaca"].Numero());
        const auto nueva = ClaveNueva(ganadero, contador);
        rs["Id_Vaca"] = nueva;
        rs.Update();
        for (const auto& t : kTablasConVaca)
            paquete.Execute("UPDATE " + std::string(t.nombre) + " SET ID_Vaca = " + nueva + " WHERE " +
                            (t.conGanadero ? "ID_Ganadero = " + ganadero + " AND " : std::string()) +
                            "ID_Vaca = " + vieja);
    }
}

void RenumerarToros(Conexion& paquete, const std::string& ganadero) {
    Recordset rs(paquete,
                 "SELECT * FROM T_SEMENTALES WHERE Id_GANADERO = " + ganadero + " ORDER BY Id_Semental");
    for (long contador = 1; !rs.Eof(); rs.Siguiente(), ++contador) {
        const auto viejo = NumeroSql(rs["Id_Semental"].Numero());
        const auto nuevo = ClaveNueva(ganadero, contador);
        rs["Id_Semental"] = nuevo;
        rs.Update();
        for (const char* tabla : TablasDeToro())
            paquete.Execute("UPDATE " + std::string(tabla) + " SET ID_Animal = " + nuevo +
                            " WHERE ID_Animal = " + viejo);
    }
}

// What the renumbering of one kind of animals will do to their keys, without doing it.
class Ensayo {
public:
    Ensayo(Conexion& central, Conexion& paquete, const char* tabla, const char* clave, const char* animal)
        : m_paquete(paquete)
        , m_tabla(tabla)
        , m_clave(clave)
        , m_animal(animal) {
        const std::string columnas = std::string("SELECT ") + clave + ", Id_Ganadero, NombreC FROM " + tabla;
        Recordset suyos(paquete, columnas, Cursor::Keyset, Bloqueo::SoloLectura);
        for (; !suyos.Eof(); suyos.Siguiente())
            if (suyos["Id_Ganadero"].Numero() != 1 || std::string_view(tabla) != "T_Sementales")
                m_aqui[suyos[0].Numero()] = suyos[2].Texto();
        Recordset otros(central, columnas, Cursor::Keyset, Bloqueo::SoloLectura);
        for (; !otros.Eof(); otros.Siguiente())
            m_alli[otros[0].Numero()] = otros[2].Texto();
    }

    void Pasar(const GanaderoQueEntra& g, std::vector<std::string>& faltas) {
        Recordset rs(m_paquete,
                     std::string("SELECT ") + m_clave + ", NombreC FROM " + m_tabla +
                         " WHERE Id_Ganadero = " + g.codigo + " OR Id_Ganadero = " + g.central +
                         " ORDER BY " + m_clave,
                     Cursor::Keyset, Bloqueo::SoloLectura);
        for (long contador = 1; !rs.Eof(); rs.Siguiente(), ++contador) {
            const auto vieja = rs[0].Numero();
            const auto texto = ClaveNueva(g.central, contador);
            const auto nueva = Numero(texto);
            const auto nombre = rs[1].Texto();
            const auto decir = [&](const std::string& otro, const char* donde) {
                faltas.push_back(std::string(m_animal) + " " + NumeroSql(vieja) + " (" + nombre + ") de " +
                                 g.nombre + " " + g.apellidos + " recibiría la clave " + texto +
                                 ", que ya es de " + otro + " " + donde);
            };
            m_aqui.erase(vieja);
            if (const auto it = m_aqui.find(nueva); it != m_aqui.end())
                decir(it->second, "en el fichero que se importa");
            m_aqui[nueva] = nombre;
            if (const auto it = m_alli.find(nueva); it != m_alli.end())
                decir(it->second, "en la Base Central");
        }
    }

private:
    Conexion& m_paquete;
    const char* m_tabla;
    const char* m_clave;
    const char* m_animal;
    std::unordered_map<double, std::string> m_aqui, m_alli; // key -> name
};

} // namespace

std::vector<VeterinarioNuevo> VeterinariosDelPaquete(Conexion& paquete) {
    std::vector<VeterinarioNuevo> lista;
    Recordset rs(paquete, "SELECT * FROM T_Veterinarios WHERE NombreVet <> 'VALNOR' ORDER BY ID_VETERINARIO",
                 Cursor::Keyset, Bloqueo::SoloLectura);
    for (; !rs.Eof(); rs.Siguiente())
        lista.push_back({rs["Id_Veterinario"].Numero(),
                         rs["NombreVet"].Texto() + " " + rs["ApellidosVet"].Texto(), rs["Usuario"].Texto()});
    return lista;
}

std::string ObjecionAlVeterinario(Conexion& central, const VeterinarioNuevo& nuevo, const std::string& codigo,
                                  const std::string& usuario) {
    const auto porCodigo = "SELECT * FROM T_Veterinarios WHERE Id_Veterinario = " + codigo;
    const auto porUsuario = "SELECT * FROM T_Veterinarios WHERE Usuario = " + TextoSql(usuario);
    const auto suyo = [&] {
        Recordset rs(central, porCodigo, Cursor::Keyset, Bloqueo::SoloLectura);
        return rs.Contar() == 1 &&
               rs["NombreVet"].Texto() + " " + rs["ApellidosVet"].Texto() == nuevo.nombre &&
               Recordset(central, porUsuario + " AND Id_Veterinario = " + codigo).Contar() == 1 &&
               Recordset(central, porUsuario).Contar() == 1 &&
               !Hay(central, "SELECT * FROM T_Ganaderos WHERE Id_Veterinario = " + codigo);
    };
    if (suyo())
        return {};
    if (Hay(central, porCodigo))
        return "El código: " + codigo + " ya está asignado, debe cambiarlo por otro.";
    if (Hay(central, porUsuario))
        return "El usuario: " + usuario + " ya está asignado, debe cambiarlo por otro.";
    return {};
}

void RenumerarVeterinario(Conexion& paquete, double anterior, const std::string& codigo,
                          const std::string& usuario) {
    EnGrupo(paquete, [&] {
        // All rows on purpose: whoever is in the package belongs to him.
        paquete.Execute("UPDATE T_VETERINARIOS SET ID_VETERINARIO = " + codigo);
        paquete.Execute("UPDATE T_VETERINARIOS SET USUARIO = " + TextoSql(usuario) +
                        " WHERE ID_VETERINARIO = " + codigo);
        paquete.Execute("UPDATE T_GANADEROS SET ID_VETERINARIO = " + codigo);
        const auto direccion =
            ValorDeCampo(paquete, "SELECT ID_Direccion FROM T_Veterinarios WHERE Id_Veterinario = " + codigo);
        if (double n = 0; !direccion.empty() && NumeroDeTexto(direccion, n))
            paquete.Execute("UPDATE T_DIRECCIONES SET ID_GV = " + codigo +
                            " WHERE ID_GV = " + NumeroSql(anterior) + " AND Id_Direccion = " + NumeroSql(n));
    });
}

std::vector<GanaderoQueEntra> GanaderosPorCodificar(Conexion& paquete) {
    std::vector<GanaderoQueEntra> lista;
    Recordset rs(paquete, "SELECT * FROM T_Ganaderos WHERE Id_Ganadero <> 1", Cursor::Keyset,
                 Bloqueo::SoloLectura);
    for (; !rs.Eof(); rs.Siguiente())
        lista.push_back({NumeroSql(rs["Id_Ganadero"].Numero()),
                         {},
                         rs["Apodo"].Texto(),
                         rs["Nombre"].Texto(),
                         rs["Apellidos"].Texto()});
    return lista;
}

std::string ObjecionALosGanaderos(Conexion& central, Conexion& paquete,
                                  const std::vector<GanaderoQueEntra>& ganaderos) {
    bool alguno = false;
    for (const auto& g : ganaderos)
        alguno = alguno || Entra(g);
    if (!alguno)
        return "Debe indicar la nueva codificación para los ganaderos que desea incluir en la Base Central";
    std::unordered_set<double> dados;
    for (const auto& g : ganaderos) {
        if (!Entra(g))
            continue;
        const auto consulta = "SELECT * FROM T_Ganaderos WHERE Id_Ganadero = " + g.central;
        if (Hay(central, consulta))
            return "El código: " + g.central + " no es válido, ya existe en la Base Central";
        // The second of two farmers with one code would take the place of the first.
        if (Hay(paquete, consulta) || !dados.insert(Numero(g.central)).second)
            return "El código: " + g.central +
                   " no es válido, no mantendría la integridad de la base de datos";
    }
    return {};
}

std::vector<std::string> ClavesRepetidas(Conexion& central, Conexion& paquete,
                                         const std::vector<GanaderoQueEntra>& ganaderos) {
    std::vector<std::string> faltas;
    Ensayo vacas(central, paquete, "T_Vacas", "Id_Vaca", "La vaca");
    Ensayo toros(central, paquete, "T_Sementales", "Id_Semental", "El toro");
    for (const auto& g : ganaderos)
        if (Entra(g)) {
            vacas.Pasar(g, faltas);
            toros.Pasar(g, faltas);
        }
    return faltas;
}

void RenumerarGanaderos(Conexion& paquete, const std::vector<GanaderoQueEntra>& ganaderos) {
    EnGrupo(paquete, [&] {
        paquete.Execute("DELETE FROM T_Veterinarios WHERE NombreVet = 'VALNOR'");
        paquete.Execute("DELETE FROM T_Sementales WHERE Id_Ganadero = 1");
        for (const auto& g : ganaderos)
            if (!g.codigo.empty() && g.central.empty())
                paquete.Execute("DELETE FROM T_GANADEROS WHERE ID_GANADERO = " + g.codigo);
        for (const auto& g : ganaderos) {
            if (!Entra(g))
                continue;
            const auto cola = g.central + " WHERE ID_Ganadero = " + g.codigo;
            paquete.Execute("UPDATE T_GANADEROS SET ID_GANADERO = " + cola);
            const auto direccion = ValorDeCampo(
                paquete, "SELECT ID_Direccion FROM T_Ganaderos WHERE Id_Ganadero = " + g.central);
            if (double n = 0; NumeroDeTexto(direccion, n))
                paquete.Execute("UPDATE T_DIRECCIONES SET ID_GV = " + g.central +
                                " WHERE ID_Direccion = " + NumeroSql(n) + " AND ID_GV = " + g.codigo);
            for (const char* tabla : kTablasDeGanadero)
                paquete.Execute("UPDATE " + std::string(tabla) + " SET ID_GANADERO = " + cola);
            RenumerarVacas(paquete, g.central);
            RenumerarToros(paquete, g.central);
        }
    });
}

void DarDeAltaVeterinario(Conexion& central, Conexion& paquete) {
    Recordset el(paquete, "Select * FROM T_Veterinarios", Cursor::Keyset, Bloqueo::SoloLectura);
    if (el.Eof())
        return;
    const auto id = el["Id_Veterinario"].Numero();
    const auto direccion = el["Id_Direccion"].Numero();
    EnGrupo(central, [&] {
        if (!Hay(central, "SELECT * FROM T_Veterinarios WHERE Id_Veterinario = " + NumeroSql(id) +
                              " AND Usuario = " + TextoSql(el["Usuario"].Texto()))) {
            FilaCopiada(el, central, "Select * FROM T_Veterinarios").Update();
        }
        const auto donde = " WHERE ID_Direccion = " + NumeroSql(direccion) + " AND ID_GV = " + NumeroSql(id);
        if (id > 0 && direccion > 0 && !Hay(central, "Select * FROM T_Direcciones" + donde))
            CopiarFilas(paquete, "Select * FROM T_Direcciones" + donde, central, "T_Direcciones");
    });
}

std::vector<ToroQueCambia> TorosConOtroNombre(Conexion& origen, Conexion& catalogo,
                                              const std::string& condicion) {
    std::unordered_map<double, std::string> nombres;
    Recordset toros(catalogo, "SELECT Id_Semental, NombreC FROM T_Sementales", Cursor::Keyset,
                    Bloqueo::SoloLectura);
    for (; !toros.Eof(); toros.Siguiente())
        nombres[toros[0].Numero()] = toros[1].Texto();
    std::map<std::pair<double, std::string>, ToroQueCambia> hallados;
    const auto mirar = [&](const char* tabla, long ToroQueCambia::*cuenta) {
        Recordset rs(origen,
                     std::string("SELECT Id_Semental, Semental FROM ") + tabla +
                         " WHERE Id_Semental > 0 AND Semental Is Not Null" + condicion,
                     Cursor::Keyset, Bloqueo::SoloLectura);
        for (; !rs.Eof(); rs.Siguiente()) {
            const auto numero = rs[0].Numero();
            const auto it = nombres.find(numero);
            const auto alli = it == nombres.end() ? std::string() : it->second;
            const auto aqui = rs[1].Texto();
            if (aqui == alli)
                continue;
            auto& t = hallados[{numero, aqui}];
            t.numero = numero;
            t.nombreAqui = aqui;
            t.nombreAlli = alli;
            ++(t.*cuenta);
        }
    };
    mirar("T_Servicios", &ToroQueCambia::servicios);
    mirar("T_Partos", &ToroQueCambia::partos);
    std::vector<ToroQueCambia> lista;
    lista.reserve(hallados.size());
    for (auto& [clave, t] : hallados)
        lista.push_back(std::move(t));
    return lista;
}

std::string Texto(const ToroQueCambia& toro) {
    return "Toro " + NumeroSql(toro.numero) + ": " + toro.nombreAqui + " → " +
           (toro.nombreAlli.empty() ? "(nadie)" : toro.nombreAlli) + " (" + std::to_string(toro.servicios) +
           (toro.servicios == 1 ? " servicio, " : " servicios, ") + std::to_string(toro.partos) +
           (toro.partos == 1 ? " parto)" : " partos)");
}

} // namespace pastorix
