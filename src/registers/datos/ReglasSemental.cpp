#include "registers/datos/ReglasSemental.h"

#include "frame/calendario/Formatos.h"
#include "store/Fecha.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <cmath>

namespace pastorix {

std::string CodigoDeSemental(Conexion& c, double idGanadero) {
    const double n =
        SiguienteId(c, "Select Id_Semental FROM T_Sementales WHERE Id_Ganadero = " + NumeroSql(idGanadero) +
                           " ORDER BY Id_Semental");
    return n >= idGanadero ? TextoNumero(n) : TextoNumero(idGanadero) + FormatoNumero(n, "000");
}

std::string EdadEnAño(std::optional<Fecha> fechaNac, std::string_view año) {
    double n = 0;
    if (!fechaNac || !NumeroDeTexto(año, n) || n < 0)
        return {};
    const auto julio = FechaDeTexto("1/7/" + FormatoNumero(std::fmod(std::trunc(n), 100), "00"));
    return julio ? std::to_string(julio->Año() - fechaNac->Año()) : std::string();
}

void ExtenderNombre(Conexion& c, std::string_view nombreC, double idSemental) {
    for (const char* tabla : {"T_Servicios", "T_Partos"})
        c.Execute(std::string("UPDATE ") + tabla + " SET SEMENTAL = " + TextoSql(nombreC) +
                  " WHERE Id_Semental = " + NumeroSql(idSemental));
}

void BorrarSemental(Conexion& c, double idSemental) {
    c.Execute("DELETE FROM T_Sementales WHERE Id_Semental= " + NumeroSql(idSemental));
    c.Execute("DELETE FROM T_PatologiaSem WHERE Id_Animal = " + NumeroSql(idSemental));
}

} // namespace pastorix
