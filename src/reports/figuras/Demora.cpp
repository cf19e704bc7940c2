#include "reports/figuras/Figuras.h"
#include "reports/figuras/FilasDeCiclo.h"
#include "store/Literales.h"
#include "store/TablaDeTrabajo.h"

namespace pastorix {

namespace {

// Date of the cow's last service by its number, or a blank. The parity is that of the mating record alone: services of any parity in the years of
// such records count.
std::string UltimoServicio(Conexion& c, Recordset& r) {
    if (r["N_Parto"].Nulo())
        return " ";
    const auto vaca = NumeroSql(r["Id_Vaca"].Numero());
    Recordset s(c,
                "SELECT T_Cubriciones.Id_Vaca, T_Servicios.Id_Vaca, T_Cubriciones.N_Parto, "
                "T_Servicios.N_Servicio, T_Servicios.Fecha_Servicio AS FServ FROM T_Cubriciones INNER JOIN "
                "T_Servicios ON T_Cubriciones.Año_Ref = T_Servicios.Año_Ref WHERE T_Cubriciones.Id_Vaca = " +
                    vaca + " AND T_Servicios.Id_Vaca = " + vaca + " AND T_Cubriciones.N_Parto = " +
                    NumeroSql(r["N_Parto"].Numero()) + " ORDER BY N_Servicio",
                Cursor::Estatico, Bloqueo::SoloLectura);
    if (s.Eof())
        return " ";
    s.Ultimo();
    const auto fecha = FechaSiVale(s, "FServ");
    return fecha ? FormatoFecha(*fecha, "dd/mm/yy") : " ";
}

void EscribirDemora(Conexion& c, Recordset& f, Recordset& r) {
    EscribirVaca(f, r);
    const auto parto = FechaSiVale(r, "Fecha_Parto");
    f["F1"] = parto ? parto : FechaSiVale(r, "FechaNac");
    f["N1"] = r["N_Parto"].Leer();
    f["N2"] = r["IPR_CP"].Leer();
    f["C5"] = TextoFecha(r, "FechaDesecho", "dd/mm/yy");
    for (const auto& [columna, causa] :
         {std::pair{"C7", "DemoraServIPR"}, {"C8", "DemoraServ"}, {"C11", "TA2MIPR"}, {"C12", "TA_2MIPR"}})
        if (r[causa].Numero() > 0)
            f[columna] = "Sí";
    if (r["Enfermendad"].Numero() > 0)
        f["C9"] = r["DescEnfermedad"].Leer();
    f["C10"] = UltimoServicio(c, r);
    f["C13"] = r["DescCausaPpal"].Leer();
    if (!r["DatosCompletos"].Nulo() && r["DatosCompletos"].Entero() == 0)
        f["C15"] = "No";
}

} // namespace

bool LlenarDemora(Conexion& c, const GanaderosYAño& p, const AvanceDeInforme& avance) {
    return EnGrupo(c, [&] {
        VaciarTabla(c, "X_Temp");
        const auto ganadero = LeerGanadero(c, p.ganaderos.at(0));
        Recordset r(
            c,
            std::string("SELECT ") + kColumnasVaca +
                ", T_Cubriciones.N_Parto, T_Cubriciones.Fecha_Parto, T_Cubriciones.IPR_CP, "
                "T_Cubriciones.DemoraServIPR, T_Cubriciones.DemoraServ, T_Cubriciones.TA2MIPR, "
                "T_Cubriciones.TA_2MIPR, T_Cubriciones.Enfermendad, T_Cubriciones.DescEnfermedad, "
                "T_Cubriciones.DescCausaPpal, T_Cubriciones.DatosCompletos FROM T_Vacas INNER JOIN "
                "T_Cubriciones ON T_Vacas.Id_Vaca = T_Cubriciones.Id_Vaca WHERE T_Vacas.Id_Ganadero = " +
                NumeroSql(ganadero.id) + " AND T_Cubriciones.Año_Ref = " + NumeroSql(NumeroDe(p.año)) +
                " AND IPR_CP > 42",
            Cursor::Estatico, Bloqueo::SoloLectura);
        if (r.Eof())
            return false;
        const auto total = static_cast<int>(r.Contar());
        TablaDeTrabajo tabla(c, "X_Temp");
        for (int hechas = 0; !r.Eof(); r.Siguiente()) {
            auto& f = tabla.Fila();
            EscribirGanadero(f, ganadero);
            EscribirDemora(c, f, r);
            if (avance)
                avance(++hechas, total);
        }
        tabla.Cerrar();
        return true;
    });
}

} // namespace pastorix
