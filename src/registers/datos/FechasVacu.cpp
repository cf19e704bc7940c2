#include "registers/datos/FechasVacu.h"

#include "store/Literales.h"
#include "store/Recordset.h"

#include <algorithm>

namespace pastorix {

std::vector<std::vector<std::string>> LeerFechasVacu(Conexion& c, const char* columnas, const char* orden,
                                                     double idGanadero) {
    Recordset rs(c,
                 std::string("SELECT ") + columnas +
                     " FROM T_FechasVacu WHERE Id_Ganadero = " + NumeroSql(idGanadero) + " ORDER BY " + orden,
                 Cursor::Estatico, Bloqueo::SoloLectura);
    std::vector<std::vector<std::string>> listas(static_cast<std::size_t>(rs.Campos()));
    for (; !rs.Eof(); rs.Siguiente())
        for (int i = 0; i < rs.Campos(); ++i) {
            auto& lista = listas[static_cast<std::size_t>(i)];
            if (const auto fecha = rs[i].Texto();
                !fecha.empty() && std::find(lista.begin(), lista.end(), fecha) == lista.end())
                lista.push_back(fecha);
        }
    return listas;
}

} // namespace pastorix
