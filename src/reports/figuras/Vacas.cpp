#include "reports/figuras/Figuras.h"
#include "reports/figuras/FilasDeCiclo.h"
#include "reports/indices/IndicesTec.h"
#include "store/Literales.h"
#include "store/TablaDeTrabajo.h"

namespace pastorix {

bool LlenarVacas(Conexion& c, const PeticionVacas& p, const AvanceDeInforme& avance) {
    EnGrupo(c, [&] {
        VaciarTabla(c, "X_Temp");
        const double año = NumeroDe(p.año);
        const auto desde = p.fecha.empty() ? "1/12/" + TextoNumero(año - 1) : p.fecha;
        const auto hasta = p.fecha.empty() ? "30/11/" + TextoNumero(año) : p.fecha;
        const auto ganadero = LeerGanadero(c, p.ganadero);
        Recordset vacas(
            c,
            "SELECT Id_Vaca, Crotal, NombreC, RegGenealogico, RegSaneam, FechaNac, NombrePadre, "
            "NombreMadre, Raza, FechaDesecho, CPT, FechaCompra From T_Vacas WHERE "
            "(((T_Vacas.Id_Ganadero)=" +
                NumeroSql(p.ganadero) + ") AND ((T_Vacas.FechaDesecho) Is Null Or ((T_Vacas.FechaDesecho)>=" +
                FechaSql4(FechaDeArgumento(desde)) +
                "))) AND (FechaCompra <=" + FechaSql4(FechaDeArgumento(hasta)) + " OR FechaCompra IS Null)",
            Cursor::Estatico, Bloqueo::SoloLectura);
        const auto total = static_cast<int>(vacas.Contar());
        TablaDeTrabajo tabla(c, "X_Temp");
        for (int hechas = 0; !vacas.Eof(); vacas.Siguiente()) {
            if (avance)
                avance(++hechas, total);
            if (vacas["Id_Vaca"].Nulo())
                continue;
            Recordset r(c,
                        "SELECT N_Parto, Fecha_Parto FROM T_Cubriciones WHERE Id_Vaca = " +
                            NumeroSql(vacas["Id_Vaca"].Numero()) + " AND Año_Ref <=" + NumeroSql(año) +
                            (p.novillas ? "" : " AND N_Parto > 0") + " ORDER BY Año_Ref, N_Parto",
                        Cursor::Estatico, Bloqueo::SoloLectura);
            if (r.Eof())
                continue;
            r.Ultimo();
            auto& f = tabla.Fila();
            f["C1"] = TextoNumero(p.ganadero) + "   " + ganadero.nombre + " " + ganadero.apellidos;
            f["C2"] = " ";
            f["N10"] = p.ganadero;
            for (const auto& [columna, campo] : {std::pair{"C3", "Crotal"},
                                                 {"C4", "NombreC"},
                                                 {"C5", "RegGenealogico"},
                                                 {"C6", "RegSaneam"},
                                                 {"C8", "NombrePadre"},
                                                 {"C9", "NombreMadre"},
                                                 {"C10", "Raza"},
                                                 {"C11", "CPT"}})
                f[columna] = vacas[campo].Leer();
            f["F1"] = FechaSiVale(vacas, "FechaNac");
            f["N1"] = r["N_Parto"].Leer();
            f["F2"] = FechaSiVale(r, "Fecha_Parto");
            f["C7"] = TextoFecha(vacas, "FechaDesecho", "d/m/yy");
            f["C12"] = TextoFecha(vacas, "FechaCompra", "d/m/yy");
        }
        tabla.Cerrar();
    });
    return true;
}

} // namespace pastorix
