#include "frame/calendario/Formatos.h"
#include "reports/figuras/DesteteYCebo.h"
#include "reports/figuras/Figuras.h"
#include "reports/figuras/GanaderoDeInforme.h"
#include "reports/indices/IndicesTec.h"
#include "store/TablaDeTrabajo.h"

#include <array>

namespace pastorix {

namespace {

constexpr const char* kInicio = "INICIO";
constexpr const char* kFin = "FIN";

void EscribirCabecera(Conexion& c, const GanaderoDeInforme& ganadero, double y) {
    TablaDeTrabajo tabla(c, "X_Temp");
    auto& f = tabla.Fila();
    f["C1"] = TextoNumero(ganadero.id);
    f["C2"] = ganadero.NombreYLugar();
    f["C3"] = ganadero.TextoTelefonos(Telefonos::MovilNoNulo);
    f["C4"] = TextoNumero(y);
    tabla.Cerrar();
}

// Animals fattened for a hundred calves alive and for a hundred calvings.
void EscribirCebo(Conexion& c, double g, double y) {
    const double cebados = TernerosCebados(c, g, y) - MuertesCebo(c, g, y);
    TablaDeTrabajo tabla(c, "X_Tmp5");
    auto& f = tabla.Fila();
    f["Id_Ganadero"] = g;
    if (const double vivos = TernerosVivos(c, g, y); vivos > 0)
        f["N"] = FormatoNumero(cebados / vivos * 100, "######0");
    if (const double partos = PartosDelAño(c, g, y); partos > 0)
        f["N1"] = FormatoNumero(cebados / partos * 100, "######0");
    f["N2"] = VacasMediasPresentes(c, g, y);
    tabla.Cerrar();
}

// The date of the year's end moves one day on in the count of replacement calves, and stays moved for the two counts behind it. Parous cows and
// heifers at the end are those of the year after.
void EscribirInventario(Conexion& c, double g, double y, std::string_view año) {
    std::string inicio = InicioDeAño(y);
    std::string fecha = "30/11/" + std::string(año.substr(año.size() - 2));
    const auto siguiente = FormatoFecha(FechaDeArgumento(fecha).MasDias(1), "dd/mm/yy");
    TablaDeTrabajo tabla(c, "X_Tmp6");
    const auto fila = [&](const char* texto, const std::string& alInicio, const std::string& alFin,
                          const char* peso) {
        auto& f = tabla.Fila();
        f["Id_Ganadero"] = g;
        f["Texto"] = texto;
        f["N"] = alInicio;
        f["N1"] = alFin;
        f["N2"] = peso;
    };
    fila("Toros", SementalesAFecha(c, g, inicio), SementalesAFecha(c, g, siguiente), "1,5");
    fila("Vacas (Nº parto > 0)", HembrasAFecha(c, g, inicio, 1, y), HembrasAFecha(c, g, siguiente, 1, y + 1),
         "1");
    fila("Novillas (Nº parto = 0)", HembrasAFecha(c, g, inicio, 0, y),
         HembrasAFecha(c, g, siguiente, 0, y + 1), "0,8");
    const auto recria = RecriaAFecha(c, g, inicio, y, kInicio);
    fila("Terneras (recría)", recria, RecriaAFecha(c, g, fecha, y, kFin), "0,4");
    fila("Terneros mamones", TernerosMamonesAFecha(c, g, inicio, y, kInicio),
         TernerosMamonesAFecha(c, g, fecha, y, kFin), " ");
    fila("Terneros en cebo", CeboAFecha(c, g, inicio, y, kInicio), CeboAFecha(c, g, fecha, y, kFin), "0,6");
    fila("U.G.M.", CargaUGM(c, g, y, kInicio), CargaUGM(c, g, y, kFin), " ");
    tabla.Cerrar();
}

} // namespace

bool LlenarParametrosTecnicos(Conexion& c, const GanaderosYAño& p, const AvanceDeInforme& avance) {
    const auto avanzar = [&](int porcentaje) {
        if (avance)
            avance(porcentaje, 100);
    };
    EnGrupo(c, [&] {
        for (const char* tabla : {"X_Temp", "X_Tmp5", "X_Tmp6"})
            VaciarTabla(c, tabla);
        avanzar(7);
        const double y = NumeroDe(p.año);
        for (const auto& ganadero : LeerGanaderos(c, p.ganaderos)) {
            EscribirCabecera(c, ganadero, y);
            EscribirCebo(c, ganadero.id, y);
            EscribirInventario(c, ganadero.id, y, p.año);
        }
        avanzar(100);
    });
    return true;
}

} // namespace pastorix
