#include "registers/datos/DatosGanadero.h"

#include "store/Literales.h"
#include "store/Recordset.h"

namespace pastorix {

DatosGanadero LeerDatosGanadero(Conexion& c, double idGanadero) {
    Recordset rs(c, "Select * FROM T_Ganaderos WHERE Id_Ganadero = " + NumeroSql(idGanadero),
                 Cursor::Estatico, Bloqueo::SoloLectura);
    if (rs.Eof())
        return {};
    DatosGanadero datos{rs["Apodo"].Texto(), {}};
    if (datos.nombre.empty())
        datos.nombre = rs["Nombre"].Texto() + " " + rs["Apellidos"].Texto();
    if (!rs["Id_Direccion"].Nulo())
        datos.localidad = ValorDeCampo(c, "Select Localidad FROM T_Direcciones WHERE Id_Direccion = " +
                                              NumeroSql(rs["Id_Direccion"].Numero()));
    return datos;
}

} // namespace pastorix
