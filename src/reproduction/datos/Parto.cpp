#include "reproduction/datos/Parto.h"

#include "frame/campos/ReglasDeCampo.h"
#include "reproduction/datos/Cadena.h"
#include "store/Literales.h"
#include "store/Recordset.h"

namespace pastorix {

namespace {

// A new row of the calving with the keys that all its rows share; returns its number.
double Añadir(Conexion& c, Recordset& rs, const CicloDeVaca& ciclo) {
    const double id = SiguienteId(c, "Select Id_Parto FROM T_Partos ORDER BY Id_Parto");
    rs.AddNew();
    rs["Id_Parto"] = id;
    rs["Id_Vaca"] = ciclo.idVaca;
    rs["N_Parto"] = EnteroONulo(ciclo.nParto);
    rs["Año_Ref"] = EnteroONulo(ciclo.añoRef);
    return id;
}

std::string DondeFila(const CicloDeVaca& ciclo, double idParto) {
    return DondeCiclo(ciclo) + " AND Id_Parto = " + NumeroSql(idParto);
}

} // namespace

std::vector<double> FilasDeParto(Conexion& c, const CicloDeVaca& ciclo) {
    std::vector<double> filas;
    for (Recordset rs(c, "Select * FROM T_Partos" + DondeCiclo(ciclo), Cursor::Estatico,
                      Bloqueo::SoloLectura);
         !rs.Eof(); rs.Siguiente())
        filas.push_back(rs["Id_Parto"].Numero());
    return filas;
}

std::string SentenciaParto(const CicloDeVaca& ciclo, double idParto) {
    return "Select * FROM T_Partos" + DondeFila(ciclo, idParto);
}

void MarcarGemelar(Conexion& c, const CicloDeVaca& ciclo, double idPrimero, const std::string& gemelar) {
    c.Execute("UPDATE T_PARTOS SET Gemelar = " + TextoSql(gemelar) + DondeFila(ciclo, idPrimero));
}

double CrearMellizo(Conexion& c, const CicloDeVaca& ciclo, double idPrimero, std::optional<Fecha> fechaParto,
                    const std::string& gemelar) {
    double id = 0;
    TodoONada(c, [&] {
        Recordset rs(c, "Select * FROM T_Partos" + DondeCiclo(ciclo));
        if (rs.Eof())
            throw ErrorAlmacen(CodigoError::SinFilaActual,
                               "El parto ya no existe: otro proceso lo ha borrado");
        id = Añadir(c, rs, ciclo);
        if (fechaParto)
            rs["Fecha_Parto"] = *fechaParto;
        rs["Gemelar"] = gemelar;
        rs.Update();
        MarcarGemelar(c, ciclo, idPrimero, gemelar);
    });
    return id;
}

// Links grow stale: the number may be another animal's by now, so the record must be of this farmer and name this cow, or no cow at all.
void QuitarMellizo(Conexion& c, const CicloDeVaca& ciclo, double idGanadero, double idPrimero,
                   double idSegundo) {
    TodoONada(c, [&] {
        const auto enlace = ValorDeCampo(c, "SELECT Id_Cebo FROM T_Partos" + DondeFila(ciclo, idSegundo));
        c.Execute("DELETE FROM T_Partos" + DondeFila(ciclo, idSegundo));
        if (double id = 0; NumeroDeTexto(enlace, id))
            c.Execute("DELETE FROM T_Cebo WHERE Id_Cebo = " + NumeroSql(id) +
                      " AND Id_Ganadero = " + NumeroSql(idGanadero) +
                      " AND (Id_Vaca = " + NumeroSql(ciclo.idVaca) + " OR Id_Vaca Is Null)");
        MarcarGemelar(c, ciclo, idPrimero, "No");
    });
}

bool AltaParto(Conexion& c, const CicloDeVaca& ciclo, std::optional<Fecha> fecha,
               const std::string& semental) {
    return EnGrupo(c, [&] {
        Recordset rs(c, "Select * FROM T_Partos" + DondeCiclo(ciclo));
        if (!rs.Eof())
            return false;
        Añadir(c, rs, ciclo);
        if (fecha) {
            rs["Fecha_Parto"] = *fecha;
            EscribirTexto(rs["Semental"], semental);
        }
        for (const char* columna : {"EdadDestete", "GDestete", "CuartosPerdidos"})
            rs[columna] = Valor();
        rs.Update();
        return true;
    });
}

void LlevarCebo(Conexion& c, const CicloDeVaca& de, const CicloDeVaca& a, double idGanadero) {
    for (Recordset rs(c, "SELECT * FROM T_Cebo" + DondeCiclo(de, "AñoRef", "N_Parto") +
                             " AND Id_Ganadero = " + NumeroSql(idGanadero));
         !rs.Eof(); rs.Siguiente()) {
        rs["AñoRef"] = EnteroONulo(a.añoRef);
        rs["N_Parto"] = EnteroONulo(a.nParto);
        rs.Update();
    }
}

} // namespace pastorix
