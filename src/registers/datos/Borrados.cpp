#include "registers/datos/Borrados.h"

#include "store/Literales.h"
#include "store/Recordset.h"

#include <vector>

namespace pastorix {

void BorrarVaca(Conexion& c, double idVaca, double idGanadero) {
    const auto vaca = NumeroSql(idVaca);
    for (const char* tabla : {"T_Vacas", "T_Mamitis", "T_CCVacas", "T_CCNATVacas", "T_Cubriciones",
                              "T_Servicios", "T_IBRBVD", "T_R_IBRBVD", "T_NEOSPIROSIS", "T_R_NEOSPIROSIS"})
        c.Execute(std::string("DELETE FROM ") + tabla + " WHERE Id_Vaca = " + vaca);
    // Fattening records are numbered by farmer: the same number under another one is another animal.
    for (Recordset rs(c, "SELECT * FROM T_Partos WHERE Id_Vaca = " + vaca); !rs.Eof(); rs.Siguiente())
        if (const double cebo = rs["Id_Cebo"].Numero(); cebo > 0)
            c.Execute("DELETE FROM T_CEBO WHERE Id_CEBO = " + NumeroSql(cebo) +
                      " And Id_Ganadero = " + NumeroSql(idGanadero));
    c.Execute("DELETE FROM T_Partos WHERE Id_Vaca = " + vaca);
}

void BorrarGanadero(Conexion& c, double idGanadero) {
    const auto f = NumeroSql(idGanadero);
    const double direccion = [&] {
        Recordset rs(c, "Select * FROM T_Ganaderos WHERE Id_Ganadero = " + f);
        return rs.Eof() ? 0 : rs["Id_Direccion"].Numero();
    }();
    c.Execute("DELETE FROM T_Ganaderos WHERE Id_Ganadero = " + f);
    c.Execute("DELETE FROM T_Direcciones WHERE Id_Direccion = " + NumeroSql(direccion) + " AND Id_GV = " + f);
    for (const char* tabla : {"T_AlimentacionInvernal", "T_AbonadoSuperficie", "T_Cebo", "T_IPR",
                              "T_PastosComunales", "T_Vacunaciones", "T_CCVacas", "T_CCNATVACAS", "T_IBRBVD",
                              "T_R_IBRBVD", "T_NEOSPIROSIS", "T_R_NEOSPIROSIS", "T_SistemaProduccion"})
        c.Execute(std::string("DELETE FROM ") + tabla + " WHERE Id_Ganadero = " + f);
    for (Recordset rs(c, "Select * FROM T_Vacas WHERE Id_Ganadero = " + f); !rs.Eof(); rs.Siguiente())
        BorrarVaca(c, rs["Id_Vaca"].Numero(), idGanadero);
    for (Recordset rs(c, "Select * FROM T_Sementales WHERE Id_Ganadero = " + f); !rs.Eof(); rs.Siguiente()) {
        if (const double id = rs["Id_Semental"].Numero(); id > 0)
            c.Execute("DELETE FROM T_PatologiaSem WHERE Id_Animal = " + NumeroSql(id));
        rs.Delete();
    }
}

} // namespace pastorix
