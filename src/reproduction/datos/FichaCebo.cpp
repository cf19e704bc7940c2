#include "reproduction/datos/FichaCebo.h"

#include "frame/campos/ReglasDeCampo.h"
#include "store/Literales.h"
#include "store/Recordset.h"
#include "store/Textos.h"

namespace pastorix {

namespace {

// Condition on the linked row of T_Partos. Links go stale, so a record that names its calf is held to that name.
std::string DondeEnlace(Conexion& c, const DeVueltaAlParto& d) {
    std::string donde = " WHERE (((T_Partos.Id_Cebo)=" + NumeroSql(d.idCebo) +
                        ") AND ((T_Vacas.Id_Ganadero)=" + NumeroSql(d.idGanadero) + "))";
    Recordset rs(c, SentenciaCebo(d.idGanadero, d.idCebo), Cursor::Estatico, Bloqueo::SoloLectura);
    if (!rs.Eof() && !rs["Id_Parto"].Nulo() && !rs["Id_Vaca"].Nulo())
        donde += " AND T_Partos.Id_Parto = " + NumeroSql(rs["Id_Parto"].Numero()) +
                 " AND T_Partos.Id_Vaca = " + NumeroSql(rs["Id_Vaca"].Numero());
    return donde;
}

} // namespace

std::string SentenciaCebo(double idGanadero, double idCebo) {
    return "Select * FROM T_Cebo WHERE Id_Cebo = " + NumeroSql(idCebo) +
           " AND Id_Ganadero = " + NumeroSql(idGanadero);
}

double SiguienteCebo(Conexion& c, double idGanadero) {
    return SiguienteId(c, "Select Id_Cebo FROM T_Cebo WHERE ID_Ganadero = " + NumeroSql(idGanadero) +
                              " Order By Id_Cebo");
}

void EnlazarConParto(Conexion& c, double idCebo, const CicloDeVaca& parto, double idParto) {
    const auto donde = DondeCiclo(parto) + " AND Id_Parto = " + NumeroSql(idParto);
    c.Execute("UPDATE T_Partos SET Id_Cebo = " + NumeroSql(idCebo) + donde);
    c.Execute("UPDATE T_Partos SET DestinoTernero = 'Cebo'" + donde);
}

std::vector<std::string> DevolverAlParto(Conexion& c, const DeVueltaAlParto& d, bool escribir) {
    std::vector<std::string> cambian;
    const std::string de =
        " FROM T_Vacas INNER JOIN T_Partos ON T_Vacas.Id_Vaca = T_Partos.Id_Vaca" + DondeEnlace(c, d);
    Recordset destete(c, "SELECT T_Partos.Id_Cebo, T_Vacas.Id_Ganadero, T_Partos.FechaDestete" + de);
    if (!destete.Eof() && d.fechaCebo && destete["FechaDestete"].FechaValor() != d.fechaCebo) {
        cambian.emplace_back("Fecha de destete");
        destete["FechaDestete"] = *d.fechaCebo;
        if (escribir)
            destete.Update();
    }
    Recordset ternero(c, "SELECT T_Partos.Id_Cebo, T_Vacas.Id_Ganadero, T_Partos.RegSaneam, T_Partos.Sexo, "
                         "T_Partos.Fecha_Parto" +
                             de);
    if (ternero.Eof())
        return cambian;
    const auto poner = [&](const char* columna, const char* nombre, const std::string& texto) {
        if (IgualSinCaso(ternero[columna].Texto(), texto))
            return;
        cambian.emplace_back(nombre);
        EscribirTexto(ternero[columna], texto);
    };
    poner("RegSaneam", "Nº Saneamiento", d.saneamiento);
    poner("Sexo", "Sexo", d.sexo);
    if (d.fechaNac && ternero["Fecha_Parto"].FechaValor() != d.fechaNac) {
        cambian.emplace_back("Fecha de parto");
        ternero["Fecha_Parto"] = *d.fechaNac;
    }
    if (escribir)
        ternero.Update();
    return cambian;
}

} // namespace pastorix
