#include "reports/indices/IndicesTec.h"

#include "frame/calendario/Formatos.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <vector>

namespace pastorix {

namespace {

// Day numbers of a cow's year; 0 stands for a date that is missing, as it does on the old platform.
struct Estancia {
    double vaca = 0;
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
                 "SELECT Max(T_Vacas.Id_Vaca) AS Vaca, T_Vacas.Id_Ganadero, T_Vacas.Crotal, T_Vacas.NombreC, "
                 "T_Vacas.FechaBaja, "
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
        lista.push_back({rs["Vaca"].Numero(), Dia(rs["MáxDeFecha_Parto"].FechaValor()),
                         Dia(rs["FechaBaja"].FechaValor()), Dia(rs["FechaCompra"].FechaValor()),
                         !rs["FechaBaja"].Nulo()});
    return lista;
}

} // namespace

Animales VacasParaMediaPorPartos(Conexion& c, double idGanadero, double añoRef) {
    const Ventana v(añoRef);
    const auto s = FechaSql2(FechaDeArgumento(InicioDeAño(añoRef)));
    const auto e = FechaSql2(FechaDeArgumento(FinDeAño(añoRef)));
    Animales vacas;
    for (const auto& x :
         Estancias(c, "((T_Cubriciones.Fecha_Parto)<=" + e + ")",
                   " AND ((T_Vacas.FechaBaja) Is Null Or (T_Vacas.FechaBaja)>=" + s + ")", idGanadero)) {
        const auto añadir = [&](double cuanto, const std::string& dato) {
            vacas.push_back({x.vaca,
                             {},
                             {},
                             FormatoFecha(Fecha{static_cast<int>(x.ultimoParto)}, "dd/mm/yyyy"),
                             dato,
                             cuanto});
        };
        if (v.Contiene(x.ultimoParto))
            añadir(1, "parió en el año");
        else if (x.baja == 0 || (x.ultimoParto < v.inicio && x.baja > v.fin))
            añadir(1, "presente");
        else if (v.Contiene(x.baja))
            añadir((x.baja - v.inicio) / 365.0, "se fue: " + TextoNumero(x.baja - v.inicio) + " días");
    }
    return vacas;
}

double VacasMediasPartos(Conexion& c, double idGanadero, double añoRef) {
    double enteras = 0;
    double partes = 0;
    for (const AnimalContado& a : VacasParaMediaPorPartos(c, idGanadero, añoRef))
        (a.valor == 1 ? enteras : partes) += a.valor;
    // Only the part of those that left is rounded, to whole cows, before it is added.
    return enteras + Val(FormatoNumero(partes, "######0"));
}

Animales VacasParaMediaPresentes(Conexion& c, double idGanadero, double añoRef) {
    const Ventana v(añoRef);
    const auto s = FechaSql2(FechaDeArgumento(InicioDeAño(añoRef)));
    const auto e = FechaSql2(FechaDeArgumento(FinDeAño(añoRef)));
    const auto lista = Estancias(
        c, "((T_Cubriciones.Año_Ref)<=" + NumeroSql(añoRef) + ")",
        " AND ((Max(T_Cubriciones.N_Parto))>0) AND ((T_Vacas.FechaBaja) Is Null Or (T_Vacas.FechaBaja)>=" +
            s + ") AND ((T_Vacas.FechaCompra) Is Null Or (T_Vacas.FechaCompra)<=" + e + ")",
        idGanadero);
    Animales vacas;
    for (const auto& x : lista) {
        const bool entra = v.Contiene(x.compra);
        const bool sale = v.Contiene(x.baja);
        double cuanto = 1;
        if (x.tieneBaja && x.baja < v.fin)
            --cuanto;
        if (x.compra > 0 && (x.baja >= v.fin || x.baja <= 0) && entra)
            --cuanto;
        if (entra && !sale)
            cuanto += (v.fin - x.compra) / 365.0;
        else if (sale && !entra)
            cuanto += (x.baja - v.inicio) / 365.0;
        else if (entra && sale)
            cuanto += (x.baja - x.compra) / 365.0;
        vacas.push_back({x.vaca,
                         {},
                         {},
                         {},
                         cuanto == 1 ? "todo el año" : TextoNumero(Round(cuanto * 365)) + " días",
                         cuanto});
    }
    return vacas;
}

double VacasMediasPresentes(Conexion& c, double idGanadero, double añoRef) {
    double media = 0;
    for (const AnimalContado& a : VacasParaMediaPresentes(c, idGanadero, añoRef))
        media += a.valor;
    return Val(FormatoNumero(media, "######0"));
}

} // namespace pastorix
