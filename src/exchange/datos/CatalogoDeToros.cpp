#include "exchange/datos/CatalogoDeToros.h"

#include "exchange/datos/Recorridos.h"
#include "store/CopiaDeFilas.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <unordered_map>
#include <unordered_set>

namespace pastorix {

namespace {

std::optional<double> Opcional(const Campo& campo) {
    return campo.Nulo() ? std::nullopt : std::optional(campo.Numero());
}

std::vector<GanaderoCompartido> LeerGanaderos(Conexion& conexion, const std::string& consulta) {
    std::vector<GanaderoCompartido> lista;
    Recordset rs(conexion, consulta, Cursor::Keyset, Bloqueo::SoloLectura);
    for (; !rs.Eof(); rs.Siguiente())
        lista.push_back({rs["Id_Ganadero"].Numero(), Opcional(rs["Id_Direccion"])});
    return lista;
}

std::string DeDireccion(const GanaderoCompartido& g) {
    return "Id_Direccion = " + NumeroSql(*g.direccion) + " AND Id_GV = " + NumeroSql(g.id);
}

// A bull whose tag is the same stays himself whatever he is called.
std::unordered_set<double> LosMismos(Conexion& catalogo, Conexion& base) {
    std::unordered_map<double, std::string> crotales;
    Recordset suyos(catalogo, "SELECT Id_Semental, Crotal FROM T_Sementales", Cursor::Keyset,
                    Bloqueo::SoloLectura);
    for (; !suyos.Eof(); suyos.Siguiente())
        if (auto crotal = suyos[1].Texto(); !crotal.empty())
            crotales[suyos[0].Numero()] = std::move(crotal);
    std::unordered_set<double> mismos;
    Recordset rs(base, "SELECT Id_Semental, Crotal FROM T_Sementales", Cursor::Keyset, Bloqueo::SoloLectura);
    for (; !rs.Eof(); rs.Siguiente())
        if (const auto it = crotales.find(rs[0].Numero());
            it != crotales.end() && it->second == rs[1].Texto())
            mismos.insert(it->first);
    return mismos;
}

} // namespace

Compartidos LeerCompartidos(Conexion& conexion) {
    Compartidos c;
    Recordset rs(
        conexion,
        "SELECT T_Ganaderos.TorosComun, T_Ganaderos.Id_Ganadero, T_Sementales.Id_Semental, "
        "T_Ganaderos.Apodo, T_Sementales.NombreC FROM T_Ganaderos LEFT JOIN T_Sementales ON "
        "T_Ganaderos.Id_Ganadero = T_Sementales.Id_Ganadero Where (((T_Ganaderos.TorosComun) = 'Sí')) ORDER "
        "BY T_Ganaderos.Apodo, T_Sementales.NombreC",
        Cursor::Keyset, Bloqueo::SoloLectura);
    for (; !rs.Eof(); rs.Siguiente())
        c.toros.push_back({rs["Apodo"].Texto(), rs["NombreC"].Texto(), Opcional(rs["Id_Semental"])});
    c.ganaderos = LeerGanaderos(
        conexion, "SELECT T_Ganaderos.TorosComun, T_Ganaderos.Id_Direccion, T_Ganaderos.Id_Ganadero, "
                  "T_Ganaderos.Apodo From T_Ganaderos Where (((T_Ganaderos.TorosComun) = 'Sí')) ORDER BY "
                  "T_Ganaderos.Apodo");
    return c;
}

void LlenarCatalogo(Conexion& central, Conexion& catalogo, const Compartidos& que) {
    std::vector<double> ganaderos;
    std::vector<double> toros;
    std::string direcciones;
    for (const auto& g : que.ganaderos) {
        ganaderos.push_back(g.id);
        if (g.direccion)
            direcciones += (direcciones.empty() ? " WHERE (" : " OR (") + DeDireccion(g) + ")";
    }
    for (const auto& t : que.toros)
        if (t.id)
            toros.push_back(*t.id);
    const auto copiar = [&](const char* tabla, const std::string& donde) {
        CopiarFilas(central, std::string("Select * FROM ") + tabla + donde, catalogo, tabla);
    };
    TodoONada(catalogo, [&] {
        for (const char* tabla :
             {"T_Direcciones", "T_Ganaderos", "T_PatologiaSem", "T_PatologiaSemR", "T_Sementales"})
            catalogo.Execute(std::string("DELETE FROM ") + tabla);
        copiar("T_Ganaderos", Cadena(" WHERE Id_Ganadero = ", " OR Id_Ganadero = ", ganaderos));
        if (!direcciones.empty())
            copiar("T_Direcciones", direcciones);
        if (toros.empty())
            return;
        copiar("T_Sementales", Cadena(" WHERE Id_Semental = ", " OR Id_Semental= ", toros));
        for (const char* tabla : TablasDeToro())
            copiar(tabla, Cadena(" WHERE Id_Animal = ", " OR Id_Animal= ", toros));
    });
}

ReparosAlCatalogo MirarCatalogo(Conexion& catalogo, Conexion& base) {
    ReparosAlCatalogo r;
    std::unordered_set<double> ganaderos;
    for (const auto& g : LeerGanaderos(catalogo, "SELECT * FROM T_GANADEROS"))
        ganaderos.insert(g.id);
    std::unordered_map<double, std::string>
        ajenos; // bulls here of farmers whom the catalogue does not replace
    Recordset aqui(base, "SELECT Id_Semental, Id_Ganadero, NombreC FROM T_Sementales", Cursor::Keyset,
                   Bloqueo::SoloLectura);
    for (; !aqui.Eof(); aqui.Siguiente())
        if (aqui[1].Nulo() || !ganaderos.contains(aqui[1].Numero()))
            ajenos[aqui[0].Numero()] = aqui[2].Texto();
    Recordset suyos(catalogo, "SELECT Id_Semental, NombreC FROM T_Sementales", Cursor::Keyset,
                    Bloqueo::SoloLectura);
    for (; !suyos.Eof(); suyos.Siguiente())
        if (const auto it = ajenos.find(suyos[0].Numero()); it != ajenos.end())
            r.claves.push_back("El toro " + NumeroSql(it->first) + " es aquí " + it->second +
                               ", y en el catálogo " + suyos[1].Texto());

    const auto mismos = LosMismos(catalogo, base);
    for (auto& t : TorosConOtroNombre(base, catalogo))
        if (!t.nombreAlli.empty() && !mismos.contains(t.numero))
            r.nombres.push_back(std::move(t));
    return r;
}

void TomarCatalogo(Conexion& catalogo, Conexion& base) {
    TodoONada(base, [&] {
        const auto ganaderos = LeerGanaderos(catalogo, "SELECT * FROM T_GANADEROS");
        for (const auto& g : ganaderos)
            base.Execute("DELETE FROM T_Ganaderos Where Id_Ganadero = " + NumeroSql(g.id));
        CopiarFilas(catalogo, "SELECT * FROM T_GANADEROS", base, "T_Ganaderos");
        for (const auto& g : ganaderos)
            if (g.direccion)
                base.Execute("DELETE FROM T_Direcciones Where " + DeDireccion(g));
        for (const auto& g : ganaderos)
            if (g.direccion)
                CopiarFilas(catalogo, "SELECT * FROM T_Direcciones WHERE " + DeDireccion(g), base,
                            "T_Direcciones");
        for (const auto& g : ganaderos) {
            const auto suyos = " FROM T_Sementales WHERE Id_Ganadero = " + NumeroSql(g.id);
            for (const double toro : Numeros(base, "SELECT Id_Semental" + suyos, "Id_Semental"))
                base.Execute("DELETE FROM T_PatologiaSem Where Id_Animal = " + NumeroSql(toro));
            base.Execute("DELETE" + suyos);
        }
        for (const char* tabla : {"T_Sementales", "T_PatologiaSem", "T_PatologiaSemR"})
            CopiarFilas(catalogo, std::string("SELECT * FROM ") + tabla, base, tabla);
        for (const char* tabla : {"T_Partos", "T_Servicios"})
            base.Execute(std::string("UPDATE T_Sementales INNER JOIN ") + tabla +
                         " ON T_Sementales.Id_Semental = " + tabla + ".Id_Semental SET " + tabla +
                         ".Semental = [T_Sementales].[NombreC]");
    });
}

} // namespace pastorix
