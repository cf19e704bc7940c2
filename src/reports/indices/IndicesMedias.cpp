#include "reports/indices/IndicesTec.h"

#include "frame/calendario/Formatos.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <vector>

namespace pastorix {

namespace {

// Day numbers of a cow's year; 0 stands for a date that is missing, as it does on the old platform.
struct Estancia {
    double ultimoParto = 0;
    double baja = 0;
    double compra = 0;
    bool tieneBaja = false;
};

struct Ventana {
    double inicio;
    double fin;
    explicit Ventana(double añoRef)
        : inicio(FechaDeArgumento(InicioDeAño(añoRef)).dia)
        , fin(FechaDeArgumento(FinDeAño(añoRef)).dia) {}
    bool Contiene(double dia) const { return inicio <= dia && dia <= fin; }
};

double Dia(const std::optional<Fecha>& f) {
    return f ? f->dia : 0;
}

std::vector<Estancia> Estancias(Conexion& c, const std::string& condicion, const std::string& teniendo,
                                double idGanadero) {
    Recordset rs(c,
                 "SELECT T_Vacas.Id_Ganadero, T_Vacas.Crotal, T_Vacas.NombreC, T_Vacas.FechaBaja, "
                 "T_Vacas.FechaCompra, "
                 "Max(T_Cubriciones.Fecha_Parto) AS MáxDeFecha_Parto FROM T_Vacas LEFT JOIN T_Cubriciones ON "
                 "T_Vacas.Id_Vaca = "
                 "T_Cubriciones.Id_Vaca WHERE " +
                     condicion +
                     " GROUP BY T_Vacas.Id_Ganadero, T_Vacas.Crotal, T_Vacas.NombreC, T_Vacas.FechaBaja, "
                     "T_Vacas.FechaCompra HAVING "
                     "(((T_Vacas.Id_Ganadero)=" +
                     NumeroSql(idGanadero) + ")" + teniendo + ")",
                 Cursor::Keyset, Bloqueo::SoloLectura);
    std::vector<Estancia> lista;
    for (; !rs.Eof(); rs.Siguiente())
        lista.push_back({Dia(rs["MáxDeFecha_Parto"].FechaValor()), Dia(rs["FechaBaja"].FechaValor()),
                         Dia(rs["FechaCompra"].FechaValor()), !rs["FechaBaja"].Nulo()});
    return lista;
}

} // namespace

double VacasMediasPartos(Conexion& c, double idGanadero, double añoRef) {
    const Ventana v(añoRef);
    const auto s = FechaSql2(FechaDeArgumento(InicioDeAño(añoRef)));
    const auto e = FechaSql2(FechaDeArgumento(FinDeAño(añoRef)));
    double paridas = 0;
    double presentes = 0;
    double dias = 0;
    for (const auto& x :
         Estancias(c, "((T_Cubriciones.Fecha_Parto)<=" + e + ")",
                   " AND ((T_Vacas.FechaBaja) Is Null Or (T_Vacas.FechaBaja)>=" + s + ")", idGanadero)) {
        if (v.Contiene(x.ultimoParto))
            ++paridas;
        else if (x.baja == 0)
            ++presentes;
        else if (x.ultimoParto < v.inicio && x.baja > v.fin)
            ++presentes;
        else if (v.Contiene(x.baja))
            dias += x.baja - v.inicio;
    }
    // Only the part of those that left is rounded, to whole cows, before it is added.
    return paridas + presentes + Val(FormatoNumero(dias / 365.0, "######0"));
}

double VacasMediasPresentes(Conexion& c, double idGanadero, double añoRef) {
    const Ventana v(añoRef);
    const auto s = FechaSql2(FechaDeArgumento(InicioDeAño(añoRef)));
    const auto e = FechaSql2(FechaDeArgumento(FinDeAño(añoRef)));
    const auto lista = Estancias(
        c, "((T_Cubriciones.Año_Ref)<=" + NumeroSql(añoRef) + ")",
        " AND ((Max(T_Cubriciones.N_Parto))>0) AND ((T_Vacas.FechaBaja) Is Null Or (T_Vacas.FechaBaja)>=" +
            s + ") AND ((T_Vacas.FechaCompra) Is Null Or (T_Vacas.FechaCompra)<=" + e + ")",
        idGanadero);
    double noTodoElAño = 0;
    double diasDeEntradas = 0;
    double diasDeSalidas = 0;
    double diasDeAmbas = 0;
    for (const auto& x : lista) {
        const bool entra = v.Contiene(x.compra);
        const bool sale = v.Contiene(x.baja);
        if (x.tieneBaja && x.baja < v.fin)
            ++noTodoElAño;
        if (x.compra > 0 && (x.baja >= v.fin || x.baja <= 0) && entra)
            ++noTodoElAño;
        if (entra && !sale)
            diasDeEntradas += v.fin - x.compra;
        else if (sale && !entra)
            diasDeSalidas += x.baja - v.inicio;
        else if (entra && sale)
            diasDeAmbas += x.baja - x.compra;
    }
    const double media = static_cast<double>(lista.size()) - noTodoElAño + diasDeEntradas / 365.0 +
                         diasDeSalidas / 365.0 + diasDeAmbas / 365.0;
    return Val(FormatoNumero(media, "######0"));
}

} // namespace pastorix
