#include "reports/figuras/DesteteYCebo.h"

#include "frame/calendario/Formatos.h"
#include "store/Literales.h"
#include "store/Recordset.h"

namespace pastorix {

namespace {

std::int64_t Media(Conexion& c, double ganadero, double añoRef, std::string_view criterio,
                   const char* columna) {
    return AEntero(ContarYPromediar(c, Destetados(ganadero, añoRef, criterio, columna)).media);
}

std::string DeCebo(double ganadero, double añoRef, const std::string& condicion) {
    return " FROM T_Cebo WHERE Id_Ganadero = " + NumeroSql(ganadero) + " AND AñoRef = " + NumeroSql(añoRef) +
           " AND " + condicion;
}

std::string DeSexoYOrigen(std::string_view sexo, std::string_view origen) {
    return "Sexo = '" + std::string(sexo) + "' AND Origen = '" + std::string(origen) + "'";
}

double Cebados(Conexion& c, double ganadero, double añoRef, const std::string& condicion) {
    Recordset rs(c, "SELECT Count(Id_Cebo) AS CuentaTerneros" + DeCebo(ganadero, añoRef, condicion));
    return rs.Eof() ? 0 : rs[0].Numero();
}

Animales ListarCebados(Conexion& c, double ganadero, double añoRef, const std::string& condicion) {
    Animales animales;
    for (Recordset rs(c,
                      "SELECT Id_Vaca, Saneamiento, Sexo, Origen, FechaCebo" +
                          DeCebo(ganadero, añoRef, condicion + " AND Not Id_Cebo is null"),
                      Cursor::Estatico, Bloqueo::SoloLectura);
         !rs.Eof(); rs.Siguiente()) {
        const auto numero = rs["Saneamiento"].Texto();
        animales.push_back(
            {rs["Id_Vaca"].Numero(),
             {},
             {},
             rs["FechaCebo"].Texto(),
             rs["Sexo"].Texto() + ", " + rs["Origen"].Texto() + (numero.empty() ? "" : ", " + numero),
             1});
    }
    return animales;
}

} // namespace

std::string PartosDeGanaderoYAño(double ganadero, double añoRef) {
    return " FROM (T_Ganaderos INNER JOIN T_Vacas ON T_Ganaderos.Id_Ganadero = T_Vacas.Id_Ganadero) INNER "
           "JOIN T_Partos ON T_Vacas.Id_Vaca = T_Partos.Id_Vaca WHERE T_Ganaderos.Id_Ganadero = " +
           NumeroSql(ganadero) + " AND T_Partos.Año_Ref = " + NumeroSql(añoRef);
}

std::string CubricionesDeGanaderoYAño(double ganadero, double añoRef) {
    return " FROM T_Cubriciones INNER JOIN T_Vacas ON T_Cubriciones.Id_Vaca = T_Vacas.Id_Vaca WHERE "
           "T_Vacas.Id_Ganadero = " +
           NumeroSql(ganadero) + " AND T_Cubriciones.Año_Ref = " + NumeroSql(añoRef);
}

Registros PartosDe(double ganadero, double añoRef, std::string_view criterio) {
    return {PartosDeGanaderoYAño(ganadero, añoRef) + " AND (T_Partos.N_Parto)" + std::string(criterio) + "1",
            "T_Vacas.Id_Vaca"};
}

Registros Destetados(double ganadero, double añoRef, std::string_view criterio, std::string_view columna) {
    return {PartosDe(ganadero, añoRef, criterio).de +
                " AND Muere = 'No' AND GDestete > 500 AND EdadDestete >= 120",
            std::string(columna)};
}

double TernerosDestetados(Conexion& c, double ganadero, double añoRef, std::string_view criterio) {
    return Contar(c, Destetados(ganadero, añoRef, criterio));
}

std::int64_t EdadMediaDestete(Conexion& c, double ganadero, double añoRef, std::string_view criterio) {
    return Media(c, ganadero, añoRef, criterio, "T_Partos.EdadDestete");
}
std::int64_t PesoMedioDestete(Conexion& c, double ganadero, double añoRef, std::string_view criterio) {
    return Media(c, ganadero, añoRef, criterio, "T_Partos.PesoDestete");
}
std::int64_t GananciaMediaDestete(Conexion& c, double ganadero, double añoRef, std::string_view criterio) {
    return Media(c, ganadero, añoRef, criterio, "T_Partos.GDestete");
}

double TernerosCebados(Conexion& c, double ganadero, double añoRef, std::string_view sexo,
                       std::string_view origen) {
    return Cebados(c, ganadero, añoRef, DeSexoYOrigen(sexo, origen));
}

Animales AnimalesCebados(Conexion& c, double ganadero, double añoRef, std::string_view sexo,
                         std::string_view origen) {
    return ListarCebados(c, ganadero, añoRef, DeSexoYOrigen(sexo, origen));
}

Animales AnimalesMuertosEnCebo(Conexion& c, double ganadero, double añoRef) {
    return ListarCebados(c, ganadero, añoRef, "Not CausaMuerte is null");
}

double TernerosCebados(Conexion& c, double ganadero, double añoRef) {
    return Cebados(
        c, ganadero, añoRef,
        "(Sexo = 'Macho' OR Sexo = 'Hembra') AND (Origen = 'Propio' OR Origen = 'Comprado PostD')");
}

} // namespace pastorix
