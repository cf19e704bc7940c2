#include "frame/calendario/Formatos.h"
#include "reports/figuras/CifrasTecnicas.h"
#include "reports/figuras/DesteteYCebo.h"
#include "reports/figuras/Figuras.h"
#include "reports/figuras/GanaderoDeInforme.h"
#include "reports/indices/IndicesTec.h"
#include "store/Literales.h"
#include "store/TablaDeTrabajo.h"

namespace pastorix {

namespace {

// Dead up to weaning, by the entries that tell it.
double TernerosMuertosResumen(Conexion& c, double g, double y) {
    Recordset rs(c, "SELECT Count(T_Ganaderos.Id_Ganadero) as N" + PartosDeGanaderoYAño(g, y) +
                        " AND (Muere = 'Perinatal' OR Muere = 'Antes30d' OR Muere = 'AntesD' OR Muere = "
                        "'NaceM')");
    return rs.Eof() ? 0 : rs[0].Numero();
}

double MediaIEPc(Conexion& c, double g, double y) {
    Recordset rs(c, "SELECT Avg(IEPc) AS Media , Count(IEPc) As N" + CubricionesDeGanaderoYAño(g, y) +
                        " AND T_Cubriciones.N_Parto >= 1 AND T_Cubriciones.IEPc >0");
    return rs.Eof() ? 0 : Round(rs["Media"].Numero());
}

double PorcentajePerdida(Conexion& c, double g, double y, double partos) {
    return partos == 0 ? 0 : Round((PerdidaPreñezTardia(c, g, y) + TernerosMuertos(c, g, y)) / partos * 100);
}

// The shares of the first and last months are out of the year's own calvings, though they count those of any reference year; without any they are
// Null. The percentages of the year's calvings are 0 then.
void EscribirAño(Conexion& c, Recordset& f, double g, int año, const std::function<void(int)>& avanzar) {
    const double y = año;
    f["C3"] = TextoNumero(y);
    f["C4"] = TextoNumero(VacasMediasPartos(c, g, y));
    avanzar(5);
    const double partos = PartosDelAño(c, g, y);
    f["C5"] = TextoNumero(partos);
    if (const double ventana = PartosEnPeriodo(c, g, InicioDeAño(y), FinDeAño(y), ">=1", y); ventana > 0) {
        const auto parte = [&](const Animales& suyos) {
            return TextoNumero(Round(static_cast<double>(suyos.size()) * 100 / ventana));
        };
        f["C6"] = parte(PrimerosPartos(c, g, y));
        f["C15"] = parte(UltimosPartos(c, g, y));
    }
    avanzar(25);
    f["C7"] = TextoNumero(TernerosMuertosResumen(c, g, y));
    f["C8"] = PorcentajeNacidosIA(c, g, y);
    f["C9"] = EdadMediaDestete(c, g, y, ">");
    f["C10"] = GananciaMediaDestete(c, g, y, ">");
    avanzar(65);
    f["C11"] = partos == 0
                   ? "0"
                   : TextoNumero(Round((TernerosCebados(c, g, y) - MuertesCebo(c, g, y)) / partos * 100));
    avanzar(78);
    f["C12"] = PorcentajeAbortos(c, g, y);
    avanzar(95);
    f["C13"] = TextoNumero(MediaIEPc(c, g, y));
    f["C14"] = TextoNumero(PorcentajePerdida(c, g, y, partos));
    avanzar(100);
}

std::string SentenciaAños(double ganadero, const std::vector<int>& años) {
    std::string sql = "SELECT T_Vacas.Id_Ganadero, T_Cubriciones.Año_Ref FROM T_Vacas LEFT JOIN "
                      "T_Cubriciones ON T_Vacas.Id_Vaca = T_Cubriciones.Id_Vaca GROUP BY "
                      "T_Vacas.Id_Ganadero, T_Cubriciones.Año_Ref HAVING (((T_Vacas.Id_Ganadero)=" +
                      NumeroSql(ganadero) + ") AND ((T_Cubriciones.Año_Ref) Is Not Null)";
    for (std::size_t i = 0; i < años.size(); ++i)
        sql += (i == 0 ? " AND ((T_Cubriciones.Año_Ref) = " : " OR (T_Cubriciones.Año_Ref) = ") +
               NumeroSql(años[i]);
    return sql + (años.empty() ? ")" : "))") + " ORDER BY Año_Ref";
}

std::vector<int> LeerAños(Conexion& c, const std::string& sentencia) {
    std::vector<int> años;
    for (Recordset rs(c, sentencia, Cursor::Estatico, Bloqueo::SoloLectura); !rs.Eof(); rs.Siguiente())
        años.push_back(static_cast<int>(rs["Año_Ref"].Entero()));
    return años;
}

} // namespace

std::vector<int> AñosConCubriciones(Conexion& c, double ganadero) {
    return LeerAños(c, SentenciaAños(ganadero, {}));
}

bool LlenarResumen(Conexion& c, double ganadero, const std::vector<int>& años,
                   const AvanceDeInforme& avance) {
    EnGrupo(c, [&] {
        VaciarTabla(c, "X_Temp");
        TablaDeTrabajo tabla(c, "X_Temp");
        for (const auto& g : LeerGanaderos(c, {ganadero})) {
            const auto delGanadero = LeerAños(c, SentenciaAños(ganadero, años));
            for (std::size_t i = 0; i < delGanadero.size(); ++i) {
                auto& f = tabla.Fila();
                f["C1"] = g.NombreYLugar();
                f["C2"] = g.TextoTelefonos(Telefonos::MovilNoNulo);
                EscribirAño(c, f, g.id, delGanadero[i], [&](int porcentaje) {
                    if (avance)
                        avance(static_cast<int>(i) * 100 + porcentaje,
                               static_cast<int>(delGanadero.size()) * 100);
                });
            }
        }
        tabla.Cerrar();
    });
    return true;
}

} // namespace pastorix
