#include "reproduction/datos/Cadena.h"

#include "store/Literales.h"
#include "store/Recordset.h"

#include <algorithm>

namespace pastorix {

namespace {

// Years in which a table has a parity of the cow; a row without year is none of them.
std::vector<int> Años(Conexion& c, const char* tabla, double idVaca, int paridad) {
    std::vector<int> años;
    for (Recordset rs(c,
                      std::string("SELECT Año_Ref FROM ") + tabla + " Where Id_Vaca = " + NumeroSql(idVaca) +
                          " AND N_Parto = " + NumeroSql(paridad) + " ORDER BY Año_Ref",
                      Cursor::Estatico, Bloqueo::SoloLectura);
         !rs.Eof(); rs.Siguiente())
        if (const int año = static_cast<int>(rs[0].Entero());
            !rs[0].Nulo() && (años.empty() || años.back() != año))
            años.push_back(año);
    return años;
}

} // namespace

std::optional<CicloDeVaca> CicloVecino(Conexion& c, const char* tabla, const CicloDeVaca& ciclo, int paridad,
                                       int paso) {
    const auto años = Años(c, tabla, ciclo.idVaca, paridad + paso);
    if (años.empty())
        return std::nullopt;
    const int actual = ciclo.añoRef.value_or(años.front());
    const auto lejos = [&](int año) {
        constexpr int kAtras = 10000; // against the step only if need be
        const int salto = (año - actual) * paso;
        return salto < 0 ? kAtras - salto : salto;
    };
    CicloDeVaca vecino{ciclo.idVaca, 0, {}, paridad + paso, {}, false};
    vecino.añoRef =
        *std::min_element(años.begin(), años.end(), [&](int a, int b) { return lejos(a) < lejos(b); });
    return vecino;
}

std::vector<int> OtrosAñosDeParidad(Conexion& c, const char* tabla, const CicloDeVaca& ciclo) {
    auto años = ciclo.nParto ? Años(c, tabla, ciclo.idVaca, *ciclo.nParto) : std::vector<int>();
    std::erase_if(años, [&](int año) { return año == ciclo.añoRef; });
    return años;
}

Valor EnteroONulo(const std::optional<int>& n) {
    return n ? Valor(std::int64_t{*n}) : Valor();
}

} // namespace pastorix
