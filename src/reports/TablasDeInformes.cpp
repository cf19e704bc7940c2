#include "reports/TablasDeInformes.h"

#include "frame/calendario/Formatos.h"
#include "reports/figuras/CifrasTecnicas.h"
#include "store/Recordset.h"
#include "store/Textos.h"

namespace pastorix {

namespace {

constexpr int kAñosAntes = 3;
constexpr double kPrimerAño = 1951; // before it a year without its century is another one

std::string Texto(const std::optional<double>& cifra, const char* unidad) {
    return cifra ? TextoNumero(*cifra) + unidad : "–";
}

TablaDatos TitularesAnteriores(Conexion& c) {
    TablaDatos tabla{
        "Titulares", {"Id_Ganadero", "Año", "Censo", "Dias", "Mortalidad", "Perdida", "Cebados"}, {}};
    for (Recordset rs(c, "SELECT C1, C4 FROM X_Temp", Cursor::Estatico, Bloqueo::SoloLectura); !rs.Eof();
         rs.Siguiente()) {
        const double ganadero = rs[0].Numero();
        const double año = rs[1].Numero();
        for (int antes = 1; antes <= kAñosAntes && año - antes >= kPrimerAño; ++antes) {
            const auto t = TitularesDelAño(c, ganadero, año - antes);
            tabla.filas.push_back({ganadero, año - antes,
                                   Texto(t.censo > 0 ? std::optional(t.censo) : std::nullopt, ""),
                                   Texto(t.diasEntrePartos, ""), Texto(t.mortalidad, " %"),
                                   Texto(t.perdida, " %"), Texto(t.cebados, " %")});
        }
    }
    return tabla;
}

} // namespace

TablaDatos TablasDeInformes::Leer(std::string_view nombre, std::string_view consulta) const {
    if (consulta.empty() && IgualSinCaso(nombre, "Titulares"))
        return TitularesAnteriores(Base());
    return LectorDeTablas::Leer(nombre, consulta);
}

} // namespace pastorix
