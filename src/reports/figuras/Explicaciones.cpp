#include "reports/figuras/Explicaciones.h"

#include "frame/calendario/Formatos.h"
#include "reports/figuras/CifrasTecnicas.h"
#include "reports/figuras/DesteteYCebo.h"
#include "reports/figuras/Preguntas.h"

#include <algorithm>
#include <map>

namespace pastorix {

namespace {

constexpr const char* kTodosLosPartos = "Los demás partos del año, que están en el divisor:";

template <typename T, std::size_t N>
const T* Buscar(const std::array<T, N>& tabla, const std::string& texto) {
    const auto it = std::find_if(tabla.begin(), tabla.end(), [&](const T& t) { return texto == t.texto; });
    return it == tabla.end() ? nullptr : &*it;
}

std::optional<int> Categoria(const std::string& texto) {
    if (texto == "Total")
        return TodasLasParidas;
    if (texto == "Novillas en Cubrición")
        return NovillasEnCubricion;
    const auto* categoria = Buscar(kCategoriasDeVaca, texto);
    return categoria ? std::optional(categoria->categoria) : std::nullopt;
}

Respuesta Censo(const Pregunta& p) {
    const auto categoria = Categoria(p.Detalle(0));
    if (!categoria)
        return std::nullopt;
    Explicacion e;
    e.titulo = "Censo: " + (p.Detalle(0) == "Total" ? "vacas paridas" : p.Detalle(0));
    e.como = "Vacas que ese día estaban en la explotación, compradas antes y aún sin baja, y que tienen "
             "registros de "
             "cubrición; cada una cuenta por los partos de su último registro hasta el año.";
    e.fechas = "A " + FinDeAño(p.y) + ".";
    e.rotuloDato = "Partos";
    e.contados = VacasEnCenso(p.c, p.g, p.y, FinDeAño(p.y), *categoria);
    e.valor = Cuantos(e.contados);
    return e;
}

Respuesta Bajas(const Pregunta& p) {
    const auto categoria = Categoria(p.Detalle(0));
    if (!categoria)
        return std::nullopt;
    Explicacion e;
    e.titulo = "Bajas: " + (p.Detalle(0) == "Total" ? "vacas paridas" : p.Detalle(0));
    e.como = "Vacas con fecha de desecho en el periodo, por los partos de su último registro hasta el año.";
    e.fechas = "De " + InicioDeAño(p.y) + " a " + FinDeAño(p.y) + ".";
    e.rotuloDato = "Partos";
    e.contados = VacasDeBajaEnPeriodo(p.c, p.g, InicioDeAño(p.y), FinDeAño(p.y), p.y, *categoria);
    e.valor = Cuantos(e.contados);
    return e;
}

Respuesta Partos(const Pregunta& p) {
    const auto mes = std::find(kMesesDelAño.begin(), kMesesDelAño.end(), p.Detalle(0));
    const auto i = static_cast<std::size_t>(mes - kMesesDelAño.begin());
    const std::string criterio = p.Detalle(1);
    if ((mes == kMesesDelAño.end() && p.Detalle(0) != "Total") || (criterio != ">1" && criterio != "=1"))
        return std::nullopt;
    Explicacion e;
    e.titulo = std::string("Partos de ") + (criterio == "=1" ? "novillas" : "vacas") + ": " + p.Detalle(0);
    e.como = "Partos de esas fechas que además son del año de referencia; los gemelos son un parto. "
             "Novillas: primer "
             "parto; vacas: los demás.";
    const Periodo periodo =
        mes == kMesesDelAño.end() ? Periodo{InicioDeAño(p.y), FinDeAño(p.y)} : MesDelAño(p.y, i);
    e.fechas = "De " + periodo.desde + " a " + periodo.hasta + ".";
    e.rotuloFecha = "Parto";
    e.rotuloDato = "N.º";
    e.contados = PartosContados(p.c, p.g, periodo.desde, periodo.hasta, criterio, p.y);
    e.valor = Cuantos(e.contados);
    return e;
}

Animales PartosConMuerte(Conexion& c, const Registros& registros) {
    return Listar(c, registros, "T_Partos.Fecha_Parto", "T_Partos.Muere");
}

Animales Muertos(const Pregunta& p, const std::string& causa) {
    Animales muertos;
    for (const auto& una : kCausasDeMuerte) {
        if (causa != "Total" && causa != una.texto)
            continue;
        const auto suyos = PartosConMuerte(p.c, MuertosPor(p.g, p.y, una));
        muertos.insert(muertos.end(), suyos.begin(), suyos.end());
    }
    return muertos;
}

Respuesta Mortalidad(const Pregunta& p, bool porcentaje) {
    if (p.Detalle(0) != "Total" && !Buscar(kCausasDeMuerte, p.Detalle(0)))
        return std::nullopt;
    Explicacion e;
    e.titulo = "Terneros muertos: " + p.Detalle(0);
    e.fechas = p.Año();
    e.rotuloFecha = "Parto";
    e.rotuloDato = "Muerte";
    e.contados = Muertos(p, p.Detalle(0));
    e.como = "Partos con esa muerte del ternero anotada.";
    e.valor = Cuantos(e.contados);
    if (porcentaje) {
        e.titulo = "Mortalidad de terneros: " + p.Detalle(0);
        e.como = "Terneros muertos, por cada 100 partos del año.";
        e.porqueFuera = kTodosLosPartos;
        e.fuera = Resto(PartosConMuerte(p.c, RegistrosPartosDelAño(p.g, p.y)), e.contados);
        const double partos = Cuantos(e.contados) + Cuantos(e.fuera);
        e.valor = partos == 0 ? 0 : Porcentaje(e.valor, partos);
    }
    return e;
}

// Days over 365 and calves: what the loss is made of.
struct Perdidas {
    Animales intervalos;
    Animales muertos;
    double preñez = 0;

    explicit Perdidas(const Pregunta& p)
        : intervalos(Listar(p.c, IntervalosDelAño(p.g, p.y), "T_Cubriciones.Fecha_Parto", "IEPc"))
        , muertos(PartosConMuerte(p.c, RegistrosTernerosMuertos(p.g, p.y)))
        , preñez(Round((Suma(intervalos) - 365.0 * Cuantos(intervalos)) / 365.0, 1)) {
        for (AnimalContado& a : intervalos)
            a.dato += " días";
    }
};

Respuesta Perdida(const Pregunta& p) {
    const std::string que = p.Detalle(0);
    Explicacion e;
    e.titulo = "Pérdida de terneros: " + que;
    e.fechas = p.Año();
    e.rotuloFecha = "Parto";
    e.rotuloDato = "Intervalo o muerte";
    Perdidas perdidas(p);
    const double total = perdidas.preñez + Cuantos(perdidas.muertos);
    const char* const kPreñez =
        "Los días que cada intervalo entre partos pasa de 365, menos los que le faltan, sumados y "
        "divididos entre 365: terneros que no nacieron.";
    const char* const kMuertos = "Terneros muertos hasta el destete.";
    if (que == "Por Mortalidad Terneros") {
        e.como = kMuertos;
        e.contados = std::move(perdidas.muertos);
        e.valor = Cuantos(e.contados);
        return e;
    }
    e.contados = std::move(perdidas.intervalos);
    if (que == "Por Preñez Tardía") {
        e.como = kPreñez;
        e.valor = perdidas.preñez;
        return e;
    }
    e.contados.insert(e.contados.end(), perdidas.muertos.begin(), perdidas.muertos.end());
    e.como = std::string("Preñez tardía y muertes juntas. ") + kPreñez;
    e.valor = total;
    if (que == "Pérdida Total")
        return e;
    if (que != "% Pérdida")
        return std::nullopt;
    const double partos = Cuantos(PartosConMuerte(p.c, RegistrosPartosDelAño(p.g, p.y)));
    e.como += " Por cada 100 partos del año (" + TextoNumero(partos) + ").";
    e.valor = partos == 0 ? 0 : Porcentaje(total, partos);
    return e;
}

Respuesta Intervalo(const Pregunta& p) {
    const auto* grupo = Buscar(kGruposDeIntervalo, p.Detalle(0));
    const double tramo = Val(p.Detalle(1));
    if (!grupo || tramo < 0 || tramo >= static_cast<double>(kTramosDeIntervalo.size()))
        return std::nullopt;
    const auto& cuales = kTramosDeIntervalo[static_cast<std::size_t>(tramo)];
    Explicacion e;
    e.titulo = "Intervalo entre partos, " + std::string(grupo->texto) + ": " + cuales.texto;
    e.fechas = p.Año();
    e.rotuloFecha = "Parto";
    e.rotuloDato = "Días";
    const auto listar = [&](const Registros& r) {
        return Listar(p.c, r, "T_Cubriciones.Fecha_Parto", "IEPc");
    };
    e.contados = listar(Intervalos(p.g, p.y, *grupo, cuales));
    e.porqueFuera = "Registros del año sin intervalo, o con uno de los otros:";
    e.fuera = Resto(listar({CubricionesDeGanaderoYAño(p.g, p.y) + grupo->condicion, "T_Vacas.Id_Vaca"}),
                    e.contados);
    for (AnimalContado& a : e.fuera)
        a.dato = a.dato.empty() || a.dato == "0" ? "sin intervalo" : a.dato;
    const bool media = p.Detalle(2) == "Media";
    e.como =
        media ? "Media de los días de un parto al siguiente, real o previsto." : "Registros con intervalo.";
    e.valor = !media               ? Cuantos(e.contados)
              : e.contados.empty() ? 0
                                   : Round(Suma(e.contados) / Cuantos(e.contados));
    return e;
}

Respuesta Destete(const Pregunta& p) {
    struct Cifra {
        const char* texto;
        const char* columna;
        const char* como;
        const char* rotulo;
    };
    static constexpr std::array<Cifra, 4> cifras{
        {{"N", "T_Vacas.Id_Vaca", "Terneros destetados.", "Muerte"},
         {"Edad", "T_Partos.EdadDestete", "Media de los días de edad al destete.", "Días"},
         {"Peso", "T_Partos.PesoDestete", "Media de los kilos al destete.", "kg"},
         {"Ganancia", "T_Partos.GDestete", "Media de los gramos diarios ganados hasta el destete.",
          "g/día"}}};
    const std::string criterio = p.Detalle(0);
    const auto* cifra = Buscar(cifras, p.Detalle(1));
    if (!cifra || (criterio != "=" && criterio != ">"))
        return std::nullopt;
    Explicacion e;
    e.titulo = std::string("Destete de terneros de ") + (criterio == "=" ? "novilla" : "vaca");
    e.como = std::string(cifra->como) +
             " Cuentan los vivos al destete, con 120 días o más y más de 500 g diarios.";
    e.fechas = p.Año();
    e.rotuloFecha = "Parto";
    e.rotuloDato = cifra->rotulo;
    e.contados = PartosConMuerte(p.c, Destetados(p.g, p.y, criterio, cifra->columna));
    e.porqueFuera = "Los demás terneros de esos partos:";
    e.fuera = Resto(PartosConMuerte(p.c, PartosDe(p.g, p.y, criterio)), e.contados);
    for (AnimalContado& a : e.fuera)
        a.dato = a.dato == "No"   ? "vivo, sin destete válido"
                 : a.dato.empty() ? "sin anotar si vive"
                                  : "muerto: " + a.dato;
    const bool cuenta = p.Detalle(1) == "N";
    if (!cuenta) {
        for (AnimalContado& a : e.contados)
            a.dato = TextoNumero(a.valor);
    }
    e.valor = cuenta               ? Cuantos(e.contados)
              : e.contados.empty() ? 0
                                   : Round(Suma(e.contados) / Cuantos(e.contados));
    return e;
}

Respuesta TodosLosPartos(const Pregunta& p) {
    Explicacion e;
    e.titulo = "Partos " + p.DelAño();
    e.como = "Registros de parto del año, uno por ternero.";
    e.fechas = p.Año();
    e.rotuloFecha = "Parto";
    e.rotuloDato = "Muerte";
    e.contados = PartosConMuerte(p.c, RegistrosPartosDelAño(p.g, p.y));
    e.valor = Cuantos(e.contados);
    return e;
}

Respuesta Abortos(const Pregunta& p) {
    Explicacion e;
    e.titulo = "Abortos " + p.DelAño();
    e.como = "Registros de cubrición con aborto, por cada 100 registros del año y de los del anterior que "
             "siguen abiertos.";
    e.fechas = p.Año();
    e.rotuloDato = "Año";
    e.porqueFuera = "Registros sin aborto, que están en el divisor:";
    for (const AnimalContado& a : CubricionesParaAbortos(p.c, p.g, p.y))
        (a.valor == 1 ? e.contados : e.fuera).push_back(a);
    const double todos = Cuantos(e.contados) + Cuantos(e.fuera);
    e.valor = todos == 0 ? 0 : Val(FormatoNumero(Cuantos(e.contados) / todos * 100, "###0"));
    return e;
}

} // namespace

std::optional<Explicacion> ExplicarFigura(Conexion& c, std::string_view clave) {
    std::vector<std::string> partes;
    for (std::size_t fin = 0; fin != std::string_view::npos;) {
        fin = clave.find(';');
        partes.emplace_back(clave.substr(0, fin));
        clave.remove_prefix(fin == std::string_view::npos ? clave.size() : fin + 1);
    }
    if (partes.size() < 3)
        return std::nullopt;
    const Pregunta p{c, Val(partes[1]), Val(partes[2]), {partes.begin() + 3, partes.end()}};
    static const std::map<std::string, Respuesta (*)(const Pregunta&)> clases{
        {"Censo", Censo},
        {"Bajas", Bajas},
        {"Partos", Partos},
        {"Muertos", [](const Pregunta& q) { return Mortalidad(q, false); }},
        {"Mortalidad", [](const Pregunta& q) { return Mortalidad(q, true); }},
        {"Perdida", Perdida},
        {"Intervalo", Intervalo},
        {"Destete", Destete},
        {"PartosDelAño", TodosLosPartos},
        {"Abortos", Abortos},
        {"Cularidad", ExplicarCularidad},
        {"CularidadDestete", ExplicarCularidadAlDestete},
        {"Epoca", ExplicarEpoca},
        {"Inseminacion", ExplicarInseminacion},
        {"Inventario", ExplicarInventario},
        {"Cebo", ExplicarCebo},
        {"Reparto", ExplicarReparto},
        {"VacasMedias", ExplicarVacasMedias}};
    const auto clase = clases.find(partes[0]);
    auto e = clase == clases.end() ? std::nullopt : clase->second(p);
    if (e) {
        Nombrar(c, p.g, e->contados);
        Nombrar(c, p.g, e->fuera);
    }
    return e;
}

} // namespace pastorix
