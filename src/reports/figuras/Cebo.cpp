#include "frame/calendario/Formatos.h"
#include "reports/figuras/Figuras.h"
#include "reports/figuras/FilasDeCiclo.h"
#include "store/Literales.h"
#include "store/TablaDeTrabajo.h"

namespace pastorix {

namespace {

// Of the farm's own animals alone; the origin is told apart by letter case too.
void EscribirMadre(Conexion& c, Recordset& f, Recordset& cebo) {
    if (cebo["Origen"].Texto() != "Propio" || cebo["Id_Vaca"].Nulo())
        return;
    Recordset madre(c,
                    "SELECT Crotal, NombreC, Nombre FROM T_Vacas WHERE Id_Vaca =" +
                        NumeroSql(cebo["Id_Vaca"].Numero()),
                    Cursor::Estatico, Bloqueo::SoloLectura);
    if (!madre.Eof())
        EscribirVaca(f, madre);
}

} // namespace

bool LlenarCebo(Conexion& c, const GanaderosYAño& p, const AvanceDeInforme& avance) {
    return EnGrupo(c, [&] {
        VaciarTabla(c, "X_Temp");
        const auto ganadero = LeerGanadero(c, p.ganaderos.at(0));
        Recordset cebos(c,
                        "SELECT Id_Vaca, FechaNac, Saneamiento AS IdTernero, Origen, Sexo, FechaCebo, "
                        "FechaSacrif, FechaMuerte, Categoria, KgCanal, PrecioKg FROM T_Cebo WHERE "
                        "Id_Ganadero = " +
                            NumeroSql(ganadero.id) + " AND AñoRef = " + NumeroSql(NumeroDe(p.año)),
                        Cursor::Estatico, Bloqueo::SoloLectura);
        if (cebos.Eof())
            return false;
        const auto total = static_cast<int>(cebos.Contar());
        TablaDeTrabajo tabla(c, "X_Temp");
        for (int hechos = 0; !cebos.Eof(); cebos.Siguiente()) {
            auto& f = tabla.Fila();
            EscribirGanadero(f, ganadero);
            EscribirMadre(c, f, cebos);
            for (const auto& [columna, campo] : {std::pair{"F1", "FechaNac"},
                                                 {"F2", "FechaCebo"},
                                                 {"F3", "FechaSacrif"},
                                                 {"F4", "FechaMuerte"}})
                f[columna] = FechaSiVale(cebos, campo);
            for (const auto& [columna, campo] : {std::pair{"C5", "IdTernero"},
                                                 {"C6", "Origen"},
                                                 {"C7", "Sexo"},
                                                 {"C8", "Categoria"},
                                                 {"N1", "KgCanal"}})
                f[columna] = cebos[campo].Leer();
            if (const auto precio = cebos["PrecioKg"].Texto();
                IsNumeric(precio) && cebos["PrecioKg"].Numero() > 0)
                f["C10"] = FormatoNumero(cebos["PrecioKg"].Numero(), "###,##0.00");
            if (avance)
                avance(++hechos, total);
        }
        tabla.Cerrar();
        return true;
    });
}

} // namespace pastorix
