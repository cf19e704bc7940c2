#include "reports/figuras/Figuras.h"
#include "reports/figuras/FilasDeCiclo.h"
#include "store/Literales.h"
#include "store/TablaDeTrabajo.h"

namespace pastorix {

namespace {

// Walks the cows of the farmers and, of each, the records of the year and those of the year before that are still open. `escribir` gets the new
// row, the cow and the record.
template <typename Escribir>
void Recorrer(Conexion& c, const GanaderosYAño& p, const std::string& vivas, const std::string& registros,
              const AvanceDeInforme& avance, Escribir escribir) {
    EnGrupo(c, [&] {
        VaciarTabla(c, "X_Temp");
        TablaDeTrabajo tabla(c, "X_Temp");
        const double año = NumeroDe(p.año);
        Recordset vacas(c,
                        std::string("SELECT T_Ganaderos.Id_Ganadero as Id_G, ") + kColumnasVaca +
                            " FROM T_Ganaderos INNER JOIN T_Vacas ON T_Ganaderos.Id_Ganadero = "
                            "T_Vacas.Id_Ganadero WHERE T_Ganaderos.Id_Ganadero is not null" +
                            FiltroGanaderos(p.ganaderos) + vivas +
                            " ORDER BY T_Ganaderos.ID_GANADERO, T_Vacas.Nombre",
                        Cursor::Estatico, Bloqueo::SoloLectura);
        const auto total = static_cast<int>(vacas.Contar());
        GanaderoDeInforme ganadero;
        for (int hechas = 0; !vacas.Eof(); vacas.Siguiente()) {
            if (const double id = vacas["Id_G"].Numero(); id != ganadero.id)
                ganadero = LeerGanadero(c, id);
            const auto vaca = "(Id_Vaca = " + NumeroSql(vacas["Id_Vaca"].Numero());
            Recordset r(c,
                        registros + " WHERE " + vaca + " AND Año_Ref = " + NumeroSql(año) + ") OR " + vaca +
                            " AND Año_Ref = " + NumeroSql(año - 1) + " AND DatosCompletos = 0)",
                        Cursor::Estatico, Bloqueo::SoloLectura);
            for (; !r.Eof(); r.Siguiente()) {
                auto& f = tabla.Fila();
                EscribirGanadero(f, ganadero);
                EscribirVaca(f, vacas);
                escribir(f, vacas, r);
            }
            if (avance)
                avance(++hechas, total);
        }
        tabla.Cerrar();
    });
}

} // namespace

bool LlenarComportamientoProductivo(Conexion& c, const GanaderosYAño& p, const AvanceDeInforme& avance) {
    Recorrer(c, p, {}, std::string("SELECT ") + kColumnasParto + " FROM T_Partos", avance,
             [](Recordset& f, Recordset&, Recordset& parto) {
                 EscribirParto(f, parto);
                 f["F3"] = FechaSiVale(parto, "FechaPeso");
                 f["N2"] = parto["Peso"].Leer();
             });
    return true;
}

bool LlenarComportamientoReproductivo(Conexion& c, const GanaderosYAño& p, const AvanceDeInforme& avance) {
    Recorrer(c, p,
             " AND (T_Vacas.FechaDesecho Is Null OR Year([T_Vacas]![FechaDesecho])>=" +
                 NumeroSql(NumeroDe(p.año)) + ")",
             std::string("SELECT ") + kColumnasCubricion + " FROM T_Cubriciones", avance,
             [&](Recordset& f, Recordset& vaca, Recordset& cubricion) {
                 EscribirCubricion(c, f, vaca, cubricion);
             });
    return true;
}

} // namespace pastorix
