#include "reports/figuras/CifrasTecnicas.h"

#include "frame/calendario/Formatos.h"
#include "reports/figuras/DesteteYCebo.h"

namespace pastorix {

Periodo MesDelAño(double añoRef, std::size_t mes) {
    const auto inicio = InicioDeAño(añoRef);
    if (mes == 0)
        return {inicio, "31/12/" + inicio.substr(inicio.size() - 2)};
    const auto fin = FinDeAño(añoRef);
    const std::string desde = "1/" + std::to_string(mes) + "/" + fin.substr(fin.size() - 2);
    return {desde, FormatoFecha(FechaDeArgumento(desde).UltimoDelMes(), "dd/mm/yy")};
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
