#include "exchange/datos/Avisos.h"

#include "store/Fecha.h"
#include "store/Literales.h"
#include "store/Recordset.h"
#include "store/Valor.h"

#include <map>
#include <set>

namespace pastorix {

namespace {

std::string Cuantos(std::size_t n, const char* uno, const char* varios) {
    return std::to_string(n) + " " + (n == 1 ? uno : varios);
}

// The latest row of the log; `donde` narrows it down.
std::optional<Fecha> UltimaDelHistorial(Conexion& c, const std::string& donde = {}) {
    std::optional<Fecha> ultima;
    Recordset rs(c, "SELECT Fecha FROM Historial" + donde, Cursor::Keyset, Bloqueo::SoloLectura);
    for (; !rs.Eof(); rs.Siguiente())
        if (const auto f = rs[0].FechaValor(); f && (!ultima || *f > *ultima))
            ultima = f;
    return ultima;
}

void AvisarDeLaEdad(Conexion& central, Conexion& paquete, const std::string& usuario, Comparacion& c) {
    const auto deEl = " WHERE Equipo = " + TextoSql(usuario);
    const auto aqui = UltimaDelHistorial(central, deEl);
    const auto alli = UltimaDelHistorial(paquete, deEl);
    if (aqui && alli && *alli < *aqui)
        c.avisos.push_back(
            "El fichero es más antiguo que el que se importó la última vez: su última operación es del " +
            FormatoFecha(*alli, "dd/mm/yyyy hh:nn:ss") + ", y la de aquel, del " +
            FormatoFecha(*aqui, "dd/mm/yyyy hh:nn:ss"));
}

void AvisarDeLosQueFaltan(Conexion& central, const std::string& usuario, const Codigos& suyos,
                          Comparacion& c) {
    const auto id = ValorDeCampo(central, "SELECT Id_Veterinario FROM T_Veterinarios WHERE Usuario = " +
                                              TextoSql(usuario));
    double numero = 0;
    if (!NumeroDeTexto(id, numero))
        return;
    std::vector<std::string> faltan;
    Recordset rs(central,
                 "SELECT Id_Ganadero, Nombre, Apellidos FROM T_Ganaderos WHERE TorosComun = 'No' AND "
                 "Id_Veterinario = " +
                     NumeroSql(numero) + " ORDER BY Nombre, Apellidos",
                 Cursor::Keyset, Bloqueo::SoloLectura);
    for (; !rs.Eof(); rs.Siguiente())
        if (!suyos.contains(rs[0].Numero()))
            faltan.push_back(rs[1].Texto() + " " + rs[2].Texto());
    if (!faltan.empty())
        c.avisos.push_back("No vienen en el fichero, y se quedan como están: " + Algunos(faltan));
}

std::string Desaparecen(const std::vector<std::string>& que, const char* uno, const char* varios) {
    const bool solo = que.size() == 1;
    return (solo ? "Desaparece " : "Desaparecen ") + Cuantos(que.size(), uno, varios) +
           (solo ? " que aquí está y en el fichero no: " : " que aquí están y en el fichero no: ") +
           Algunos(que);
}

// Cows that the centre has and the package has not, and calvings of those that it has.
void AvisarDeLoPerdido(Conexion& central, Conexion& paquete, const Codigos& suyos, Comparacion& c) {
    const auto lista = Numeros(paquete, "SELECT Id_Vaca FROM T_Vacas", "Id_Vaca");
    const Codigos vacasAlli(lista.begin(), lista.end());
    std::vector<std::string> vacas;
    Codigos aqui;
    Recordset rs(central, "SELECT Id_Vaca, Id_Ganadero, NombreC FROM T_Vacas ORDER BY Id_Vaca",
                 Cursor::Keyset, Bloqueo::SoloLectura);
    for (; !rs.Eof(); rs.Siguiente()) {
        if (!suyos.contains(rs[1].Numero()))
            continue;
        if (vacasAlli.contains(rs[0].Numero()))
            aqui.insert(rs[0].Numero());
        else
            vacas.push_back(rs[2].Texto() + " (" + rs[0].Texto() + ")");
    }
    if (!vacas.empty())
        c.avisos.push_back(Desaparecen(vacas, "vaca", "vacas"));
    const auto cuenta = [&](Conexion& base) {
        std::map<std::pair<double, double>, long> n; // cow and parity -> calvings
        Recordset p(base, "SELECT Id_Vaca, N_Parto FROM T_Partos", Cursor::Keyset, Bloqueo::SoloLectura);
        for (; !p.Eof(); p.Siguiente())
            if (aqui.contains(p[0].Numero()))
                ++n[{p[0].Numero(), p[1].Numero()}];
        return n;
    };
    const auto alli = cuenta(paquete);
    std::vector<std::string> partos;
    for (const auto& [clave, n] : cuenta(central))
        if (const auto it = alli.find(clave); it == alli.end() || it->second < n)
            partos.push_back("vaca " + NumeroSql(clave.first) + ", nº " + NumeroSql(clave.second));
    if (!partos.empty())
        c.avisos.push_back(Desaparecen(partos, "parto", "partos"));
}

} // namespace

void AvisarDeLaFusion(Conexion& central, Conexion& paquete, const std::string& usuario, const Codigos& suyos,
                      Comparacion& c) {
    AvisarDeLaEdad(central, paquete, usuario, c);
    AvisarDeLosQueFaltan(central, usuario, suyos, c);
    AvisarDeLoPerdido(central, paquete, suyos, c);
}

void AvisarDelReemplazo(Conexion& base, Comparacion& c) {
    if (c.seVan + c.cambian == 0)
        return;
    std::vector<std::string> ganaderos;
    std::set<std::string> vistos;
    for (const auto& cambio : c.cambios)
        if (cambio.seVan + cambio.cambian > 0 && vistos.insert(cambio.nombre).second)
            ganaderos.push_back(cambio.nombre);
    const auto ultima = UltimaDelHistorial(base);
    c.avisos.push_back(
        "Lo anotado aquí que no está en el fichero se pierde: " +
        Cuantos(static_cast<std::size_t>(c.seVan), "registro desaparece", "registros desaparecen") + " y " +
        Cuantos(static_cast<std::size_t>(c.cambian), "cambia", "cambian") + " (" + Algunos(ganaderos) + ")" +
        (ultima
             ? ". Última operación anotada en el historial: " + FormatoFecha(*ultima, "dd/mm/yyyy hh:nn:ss")
             : ""));
}

} // namespace pastorix
