#include "frame/calendario/Formatos.h"
#include "reports/figuras/Figuras.h"
#include "reports/figuras/FilasDeCiclo.h"
#include "store/Literales.h"
#include "store/TablaDeTrabajo.h"
#include "store/Textos.h"

#include <array>

namespace pastorix {

namespace {

// The year's results of a cow, "" for those that are absent, in the order of PruebaDeEnfermedad.
using Resultados = std::array<std::string, 3>;

Resultados LeerResultados(Conexion& c, double ganadero, double año, Recordset& r) {
    Resultados leidos;
    if (r["N_Parto"].Nulo())
        return leidos;
    const auto donde =
        " WHERE Id_ganadero = " + NumeroSql(ganadero) + " AND Id_Vaca = " + NumeroSql(r["Id_Vaca"].Numero()) +
        " AND AñoRef = " + NumeroSql(año) + " AND NumParto = " + NumeroSql(r["N_Parto"].Numero());
    if (Recordset ibr(c, "SELECT IBR, BVD FROM T_R_IBRBVD" + donde, Cursor::Estatico, Bloqueo::SoloLectura);
        !ibr.Eof()) {
        leidos[0] = ibr["IBR"].Texto();
        leidos[1] = ibr["BVD"].Texto();
    }
    if (Recordset neo(c, "SELECT Neospirosis FROM T_R_NEOSPIROSIS" + donde, Cursor::Estatico,
                      Bloqueo::SoloLectura);
        !neo.Eof())
        leidos[2] = neo[0].Texto();
    return leidos;
}

bool Pasa(const PeticionEnfermedades& p, const Resultados& resultados) {
    if (p.prueba == PruebaDeEnfermedad::Ninguna)
        return true;
    const auto& v = resultados.at(static_cast<std::size_t>(p.prueba));
    if (IgualSinCaso(v, TextoDe(p.condicion)))
        return true;
    if (p.condicion == CondicionDePrueba::Conversion)
        return v.starts_with("Conv"); // of any kind
    return p.condicion == CondicionDePrueba::MayorQue && IsNumeric(v) && IsNumeric(p.valor) &&
           NumeroEscrito(v).value_or(0) > NumeroEscrito(p.valor).value_or(0);
}

void EscribirEnfermedades(Recordset& f, Recordset& r, const Resultados& resultados) {
    EscribirVaca(f, r);
    const auto parto = FechaSiVale(r, "Fecha_Parto");
    f["F1"] = parto ? parto : FechaSiVale(r, "FechaNac");
    for (const auto& [columna, campo] : {std::pair{"N1", "N_Parto"},
                                         {"N2", "IPR_CP"},
                                         {"N4", "Num_Abortos"},
                                         {"N3", "N_ME"},
                                         {"C11", "DescEnfReprod"}})
        f[columna] = r[campo].Leer();
    if (r["Metritis"].Numero() > 0)
        f["C5"] = "Sí";
    if (r["Repetidora"].Numero() > 0)
        f["C6"] = "Sí";
    f["C7"] = resultados[0];
    f["C8"] = resultados[1];
    f["C9"] = resultados[2];
    if (IgualSinCaso(r["Estado"].Texto(), "Preñada"))
        f["C12"] = "Preñada";
    f["C13"] = Completos(r);
}

} // namespace

std::string_view TextoDe(CondicionDePrueba condicion) {
    static constexpr std::array<std::string_view, 4> kTextos{"Conv*", "Positiva", "Negativa", ">"};
    return condicion == CondicionDePrueba::Ninguna ? "" : kTextos.at(static_cast<std::size_t>(condicion));
}

bool LlenarEnfermedades(Conexion& c, const PeticionEnfermedades& p, const AvanceDeInforme& avance) {
    return EnGrupo(c, [&] {
        VaciarTabla(c, "X_Temp");
        const auto ganadero = LeerGanadero(c, p.ganadero);
        const double año = NumeroDe(p.año);
        Recordset r(c,
                    std::string("SELECT ") + kColumnasVaca +
                        ", T_Cubriciones.N_Parto, T_Cubriciones.Fecha_Parto, T_Cubriciones.IPR_CP, "
                        "T_Cubriciones.Metritis, T_Cubriciones.Repetidora, T_Cubriciones.Num_Abortos, "
                        "T_Cubriciones.N_ME, T_Cubriciones.DescEnfReprod, T_Cubriciones.Estado, "
                        "T_Cubriciones.DatosCompletos FROM T_Vacas INNER JOIN T_Cubriciones ON "
                        "T_Vacas.Id_Vaca = T_Cubriciones.Id_Vaca WHERE T_Vacas.Id_Ganadero = " +
                        NumeroSql(p.ganadero) + " AND T_Cubriciones.Año_Ref = " + NumeroSql(año) +
                        (p.problematicas ? " AND IPR_CP > 42" : ""),
                    Cursor::Estatico, Bloqueo::SoloLectura);
        if (r.Eof())
            return false;
        const auto total = static_cast<int>(r.Contar());
        TablaDeTrabajo tabla(c, "X_Temp");
        for (int hechas = 0; !r.Eof(); r.Siguiente()) {
            if (const auto resultados = LeerResultados(c, p.ganadero, año, r); Pasa(p, resultados)) {
                auto& f = tabla.Fila();
                EscribirGanadero(f, ganadero);
                EscribirEnfermedades(f, r, resultados);
            }
            if (avance)
                avance(++hechas, total);
        }
        tabla.Cerrar();
        return true;
    });
}

} // namespace pastorix
