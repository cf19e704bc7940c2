#include "reports/figuras/CifrasTecnicas.h"

#include "frame/calendario/Formatos.h"
#include "reports/figuras/DesteteYCebo.h"
#include "store/Literales.h"
#include "store/Recordset.h"

namespace pastorix {

Periodo MesDelAño(double añoRef, std::size_t mes) {
    const auto inicio = InicioDeAño(añoRef);
    if (mes == 0)
        return {inicio, "31/12/" + inicio.substr(inicio.size() - 2)};
    const auto fin = FinDeAño(añoRef);
    const std::string desde = "1/" + std::to_string(mes) + "/" + fin.substr(fin.size() - 2);
    return {desde, FormatoFecha(FechaDeArgumento(desde).UltimoDelMes(), "dd/mm/yy")};
}

// The conditions on what is grouped by choose the rows before they are grouped, which is the same and far less work.
Animales PartosPorFechas(Conexion& c, double g, Fecha desde, Fecha hasta) {
    Animales partos;
    for (Recordset rs(
             c,
             "SELECT Max(T_Vacas.Id_Vaca) AS Vaca, T_Vacas.Id_Ganadero, T_Partos.N_Parto, "
             "T_Vacas.Crotal, T_Partos.Fecha_Parto FROM T_Vacas INNER JOIN T_Partos ON T_Vacas.Id_Vaca "
             "= T_Partos.Id_Vaca WHERE T_Vacas.Id_Ganadero = " +
                 NumeroSql(g) + " AND T_Partos.N_Parto>=1 AND T_Partos.Fecha_Parto Between " +
                 FechaSql2(desde) + " And " + FechaSql2(hasta) +
                 " GROUP BY T_Vacas.Id_Ganadero, T_Partos.N_Parto, T_Vacas.Crotal, "
                 "T_Partos.Fecha_Parto",
             Cursor::Estatico, Bloqueo::SoloLectura);
         !rs.Eof(); rs.Siguiente())
        partos.push_back({rs["Vaca"].Numero(),
                          {},
                          {},
                          rs["Fecha_Parto"].Texto(),
                          rs["N_Parto"].Texto(),
                          rs["N_Parto"].Numero()});
    return partos;
}

Animales PrimerosPartos(Conexion& c, double g, double y) {
    const auto dosCifras = FinDeAño(y).substr(6);
    return PartosPorFechas(c, g, FechaDeArgumento(InicioDeAño(y)),
                           FechaDeArgumento("1/2/" + dosCifras).UltimoDelMes());
}

Animales UltimosPartos(Conexion& c, double g, double y) {
    const auto fin = FinDeAño(y);
    return PartosPorFechas(c, g, FechaDeArgumento("01/09/" + fin.substr(6)), FechaDeArgumento(fin));
}

Registros MuertosPor(double ganadero, double añoRef, const CondicionConNombre& causa) {
    return {PartosDeGanaderoYAño(ganadero, añoRef) + causa.condicion, "T_Ganaderos.Id_Ganadero"};
}

double MuertosAntesDelDestete(Conexion& c, double ganadero, double añoRef) {
    double n = 0;
    for (const auto& causa : kCausasDeMuerte)
        n += Contar(c, MuertosPor(ganadero, añoRef, causa));
    return n;
}

Registros Intervalos(double ganadero, double añoRef, const CondicionConNombre& grupo,
                     const CondicionConNombre& tramo) {
    return {CubricionesDeGanaderoYAño(ganadero, añoRef) + grupo.condicion + tramo.condicion, "IEPc"};
}

double Porcentaje(double parte, double total) {
    return Round(parte / total * 100);
}

Titulares TitularesDelAño(Conexion& c, double g, double y) {
    Titulares t;
    t.censo = CensoVacasAFecha(c, g, y, FinDeAño(y), TodasLasParidas);
    const auto intervalos =
        ContarYPromediar(c, Intervalos(g, y, kGruposDeIntervalo[2], kTramosDeIntervalo[0]));
    if (intervalos.n > 0)
        t.diasEntrePartos = Round(intervalos.media);
    if (const double partos = PartosDelAño(c, g, y); partos > 0) {
        t.mortalidad = Porcentaje(MuertosAntesDelDestete(c, g, y), partos);
        t.perdida = Porcentaje(PerdidaPreñezTardia(c, g, y) + TernerosMuertos(c, g, y), partos);
        t.cebados =
            Val(FormatoNumero((TernerosCebados(c, g, y) - MuertesCebo(c, g, y)) / partos * 100, "##0"));
    }
    return t;
}

} // namespace pastorix
