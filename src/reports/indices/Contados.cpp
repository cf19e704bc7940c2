#include "reports/indices/Contados.h"

#include "store/Literales.h"
#include "store/Recordset.h"

#include <map>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace pastorix {

namespace {

Recordset Leer(Conexion& c, const std::string& sql) {
    return {c, sql, Cursor::Estatico, Bloqueo::SoloLectura};
}

} // namespace

double Contar(Conexion& c, const Registros& registros) {
    auto rs = Leer(c, "SELECT Count(" + registros.columna + ") AS N" + registros.de);
    return rs.Eof() ? 0 : rs[0].Numero();
}

CuentaYMedia ContarYPromediar(Conexion& c, const Registros& registros) {
    auto rs = Leer(c, "SELECT Avg(" + registros.columna + ") AS Media, Count(" + registros.columna +
                          ") AS N" + registros.de);
    return rs.Eof() ? CuentaYMedia() : CuentaYMedia{rs["N"].Numero(), rs["Media"].Numero()};
}

Animales Listar(Conexion& c, const Registros& registros, const std::string& fecha, const std::string& dato) {
    Animales animales;
    for (auto rs = Leer(c, "SELECT T_Vacas.Id_Vaca, " + registros.columna + " AS Contado, " + fecha +
                               " AS Cuando, " + dato + " AS Dato" + registros.de);
         !rs.Eof(); rs.Siguiente()) {
        if (!rs[1].Nulo())
            animales.push_back({rs[0].Numero(), {}, {}, rs[2].Texto(), rs[3].Texto(), rs[1].Numero()});
    }
    return animales;
}

Animales Resto(const Animales& todos, const Animales& parte) {
    const auto clave = [](const AnimalContado& a) { return std::tuple(a.vaca, a.fecha, a.dato); };
    std::map<std::tuple<double, std::string, std::string>, int> quedan;
    for (const AnimalContado& a : parte)
        ++quedan[clave(a)];
    Animales resto;
    for (const AnimalContado& a : todos) {
        if (const auto it = quedan.find(clave(a)); it != quedan.end() && it->second > 0)
            --it->second;
        else
            resto.push_back(a);
    }
    return resto;
}

void Nombrar(Conexion& c, double idGanadero, Animales& animales) {
    std::unordered_map<double, std::pair<std::string, std::string>> vacas;
    for (auto rs = Leer(c, "SELECT Id_Vaca, Crotal, NombreC, Nombre FROM T_Vacas WHERE Id_Ganadero = " +
                               NumeroSql(idGanadero));
         !rs.Eof(); rs.Siguiente())
        vacas[rs[0].Numero()] = {rs[1].Texto(), rs[2].Texto().empty() ? rs[3].Texto() : rs[2].Texto()};
    for (AnimalContado& animal : animales)
        if (animal.vaca != 0)
            std::tie(animal.crotal, animal.nombre) = vacas[animal.vaca];
}

} // namespace pastorix
