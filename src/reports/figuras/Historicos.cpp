#include "reports/figuras/Figuras.h"
#include "reports/figuras/FilasDeCiclo.h"
#include "store/Literales.h"
#include "store/TablaDeTrabajo.h"

#include <map>

namespace pastorix {

namespace {

// The tag wins over the farmer.
std::string Filtro(const PeticionHistorico& p, const char* campoDeBaja) {
    return (p.crotal.empty() ? " WHERE T_Ganaderos.Id_Ganadero = " + NumeroSql(p.ganadero)
                             : " WHERE T_Vacas.Crotal = " + TextoSql(p.crotal)) +
           (p.soloVivas ? " AND T_Vacas." + std::string(campoDeBaja) + " Is Null" : "");
}

// The farmers of the rows, each read once: several cows may share a tag, and their farmers differ.
class Ganaderos {
public:
    explicit Ganaderos(Conexion& c)
        : m_c(c) {}
    const GanaderoDeInforme& De(double id) {
        const auto it = m_leidos.find(id);
        return it != m_leidos.end() ? it->second : m_leidos.emplace(id, LeerGanadero(m_c, id)).first->second;
    }

private:
    Conexion& m_c;
    std::map<double, GanaderoDeInforme> m_leidos;
};

// Walks the rows of a statement with the columns of the cow, telling the progress; a new row's head is written for as many as `escribir` adds.
template <typename Escribir>
void Recorrer(Conexion& c, const std::string& sentencia, const AvanceDeInforme& avance, Escribir escribir) {
    EnGrupo(c, [&] {
        VaciarTabla(c, "X_Temp");
        TablaDeTrabajo tabla(c, "X_Temp");
        Ganaderos ganaderos(c);
        Recordset rs(c, sentencia, Cursor::Estatico, Bloqueo::SoloLectura);
        const auto total = static_cast<int>(rs.Contar());
        for (int hechas = 0; !rs.Eof(); rs.Siguiente()) {
            escribir(rs, [&]() -> Recordset& {
                auto& f = tabla.Fila();
                EscribirGanadero(f, ganaderos.De(rs["Id_G"].Numero()));
                EscribirVaca(f, rs);
                return f;
            });
            if (avance)
                avance(++hechas, total);
        }
        tabla.Cerrar();
    });
}

constexpr const char* kDeGanaderosYVacas =
    "(T_Ganaderos INNER JOIN T_Vacas ON T_Ganaderos.Id_Ganadero = T_Vacas.Id_Ganadero)";

} // namespace

bool LlenarHistoricoProductivo(Conexion& c, const PeticionHistorico& p, const AvanceDeInforme& avance) {
    Recorrer(c,
             std::string("SELECT T_Ganaderos.Id_Ganadero as Id_G, ") + kColumnasVaca + ", " + kColumnasParto +
                 " FROM " + kDeGanaderosYVacas +
                 " INNER JOIN T_Partos ON T_Vacas.Id_Vaca = T_Partos.Id_Vaca" + Filtro(p, "FechaBaja") +
                 " ORDER BY T_Partos.Fecha_Parto",
             avance, [](Recordset& parto, auto nueva) {
                 auto& f = nueva();
                 EscribirParto(f, parto);
                 f["N2"] = parto["PesoDestete"].Leer();
             });
    return true;
}

bool LlenarHistoricoReproductivo(Conexion& c, const PeticionHistorico& p, const AvanceDeInforme& avance) {
    Recorrer(c,
             std::string("SELECT T_Ganaderos.Id_Ganadero as Id_G, ") + kColumnasVaca +
                 " FROM T_Ganaderos INNER JOIN T_Vacas ON T_Ganaderos.Id_Ganadero = T_Vacas.Id_Ganadero" +
                 Filtro(p, "FechaDesecho") + " ORDER BY T_Ganaderos.Id_Ganadero, T_Vacas.Nombre",
             avance, [&](Recordset& vaca, auto nueva) {
                 Recordset r(c,
                             std::string("SELECT ") + kColumnasCubricion +
                                 " FROM T_Cubriciones WHERE Id_Vaca = " +
                                 NumeroSql(vaca["Id_Vaca"].Numero()) + " ORDER BY Año_Ref",
                             Cursor::Estatico, Bloqueo::SoloLectura);
                 for (; !r.Eof(); r.Siguiente())
                     EscribirCubricion(c, nueva(), vaca, r);
             });
    return true;
}

} // namespace pastorix
