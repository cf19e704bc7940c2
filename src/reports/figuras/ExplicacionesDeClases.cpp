#include "reports/figuras/CifrasTecnicas.h"
#include "reports/figuras/DesteteYCebo.h"
#include "reports/figuras/Preguntas.h"

#include <algorithm>
#include <array>

namespace pastorix {

namespace {

void Anexar(Animales& lista, const Animales& mas) {
    lista.insert(lista.end(), mas.begin(), mas.end());
}

template <std::size_t N>
bool Esta(const std::array<const char*, N>& textos, const std::string& texto) {
    return std::find(textos.begin(), textos.end(), texto) != textos.end();
}

double PorcentajeODeNada(double parte, double total) {
    return total == 0 ? 0 : Porcentaje(parte, total);
}

Animales Nacidos(const Pregunta& p, const Registros& registros) {
    return Listar(p.c, registros, "T_Partos.Fecha_Parto", "T_Partos.Semental");
}

// Calvings of both parities from a day to another.
Animales PartosDeFechas(const Pregunta& p, const Periodo& periodo, const std::string& criterio) {
    return PartosContados(p.c, p.g, periodo.desde, periodo.hasta, criterio, p.y);
}

} // namespace

Respuesta ExplicarCularidad(const Pregunta& p) {
    static constexpr std::array kClasesDeVaca{"G-Normal", "G-Aculonado", "G-Culón"};
    if (!Esta(kClasesDeVaca, p.Detalle(0)))
        return std::nullopt;
    Explicacion e;
    for (const char* clase : kClasesDeVaca)
        Anexar(p.Detalle(0) == clase ? e.contados : e.fuera, VacasDeCularidad(p.c, p.g, p.y, clase));
    e.titulo = "Cularidad de las vacas: " + p.Detalle(0);
    e.como =
        "Vacas de esa clase, por cada 100 de las tres clases. Cuentan las que tienen registros de cubrición "
        "hasta el año y no se habían ido antes de él.";
    e.fechas = "Sin baja hasta el 30/11/" + TextoNumero(p.y - 1) + ".";
    e.rotuloDato = "Clase";
    e.porqueFuera = "Las de las otras dos clases, que están en el divisor:";
    e.valor = PorcentajeODeNada(Cuantos(e.contados), Cuantos(e.contados) + Cuantos(e.fuera));
    return e;
}

Respuesta ExplicarCularidadAlDestete(const Pregunta& p) {
    const std::string clase = p.Detalle(0);
    if (!Esta(std::array{"Normal", "Aculonado", "Culón", "Total"}, clase))
        return std::nullopt;
    Explicacion e;
    for (const std::string una : {"Normal", "Aculonado", "Culón"}) {
        for (const auto& escrita : {una, "G-" + una})
            Anexar(clase == una || clase == "Total" ? e.contados : e.fuera,
                   Listar(p.c, RegistrosDestetadosPorCularidad(p.g, p.y, escrita), "T_Partos.Fecha_Parto",
                          "T_Partos.Cularidad"));
    }
    const bool porcentaje = p.Detalle(1) == "%";
    e.titulo = "Cularidad al destete: " + clase;
    e.como = std::string(porcentaje ? "Terneros de esa clase, por cada 100 de las tres clases."
                                    : "Terneros de esa clase.") +
             " Cuentan los vivos al destete, con 120 días o más y más de 500 g diarios, y valen igual con la "
             "clase "
             "conocida por genotipo (G-).";
    e.fechas = p.Año();
    e.rotuloFecha = "Parto";
    e.rotuloDato = "Clase";
    if (clase != "Total")
        e.porqueFuera = "Los de las otras clases:";
    e.valor = porcentaje ? PorcentajeODeNada(Cuantos(e.contados), Cuantos(e.contados) + Cuantos(e.fuera))
                         : Cuantos(e.contados);
    return e;
}

Respuesta ExplicarEpoca(const Pregunta& p) {
    const auto epoca = std::find(kEpocasDelAño.begin(), kEpocasDelAño.end(), p.Detalle(0));
    const std::string criterio = p.Detalle(1);
    if (epoca == kEpocasDelAño.end() || (criterio != ">1" && criterio != "=1"))
        return std::nullopt;
    const auto primero = static_cast<std::size_t>(epoca - kEpocasDelAño.begin()) * 3;
    const Periodo periodo{MesDelAño(p.y, primero).desde, MesDelAño(p.y, primero + 2).hasta};
    const Periodo todo{InicioDeAño(p.y), FinDeAño(p.y)};
    Explicacion e;
    e.titulo =
        std::string("Partos de ") + (criterio == "=1" ? "novillas" : "vacas") + " por época: " + *epoca;
    e.como = "Esos partos, por cada 100 del año, de vacas y novillas juntas; los gemelos son un parto.";
    e.fechas = "De " + periodo.desde + " a " + periodo.hasta + ".";
    e.rotuloFecha = "Parto";
    e.rotuloDato = "N.º";
    e.contados = PartosDeFechas(p, periodo, criterio);
    e.porqueFuera = "Los demás partos del año, que están en el divisor:";
    Animales todos = PartosDeFechas(p, todo, ">1");
    Anexar(todos, PartosDeFechas(p, todo, "=1"));
    e.fuera = Resto(todos, e.contados);
    e.valor = PorcentajeODeNada(Cuantos(e.contados), Cuantos(todos));
    return e;
}

Respuesta ExplicarInseminacion(const Pregunta& p) {
    Explicacion e;
    e.titulo = "Nacidos por inseminación";
    e.como = "Terneros de un toro de los comunes, los del código 1, por cada 100 terneros del año.";
    e.fechas = p.Año();
    e.rotuloFecha = "Parto";
    e.rotuloDato = "Semental";
    e.contados = Nacidos(p, RegistrosNacidosIA(p.g, p.y));
    const auto todos = Nacidos(p, RegistrosNacidos(p.g, p.y));
    e.porqueFuera = "Los de otro toro, que están en el divisor:";
    e.fuera = Resto(todos, e.contados);
    e.valor = PorcentajeODeNada(Cuantos(e.contados), Cuantos(todos));
    return e;
}

Respuesta ExplicarCebo(const Pregunta& p) {
    const std::string que = p.Detalle(0);
    if (!Esta(std::array{"Machos propios", "Hembras propias", "Comprados", "Muertes", "Total", "PorPartos",
                         "PorVivos", "Resumen"},
              que))
        return std::nullopt;
    const auto lista = [&](const char* sexo, const char* origen) {
        return AnimalesCebados(p.c, p.g, p.y, sexo, origen);
    };
    const bool todos = que == "Total" || que == "PorPartos" || que == "PorVivos" || que == "Resumen";
    Explicacion e;
    e.titulo = "Cebo: " + std::string(que == "Total" ? "total" : todos ? "cebados por parto" : que);
    e.fechas = "Animales en cebo del año de referencia " + TextoNumero(p.y) + ".";
    e.rotuloCrotal = "Crotal de la madre";
    e.rotuloNombre = "Madre";
    e.rotuloFecha = "Entra en cebo";
    e.rotuloDato = "Animal";
    if (todos || que == "Machos propios")
        Anexar(e.contados, lista("Macho", "Propio"));
    if (todos || que == "Hembras propias")
        Anexar(e.contados, lista("Hembra", "Propio"));
    if (todos || que == "Comprados") {
        Anexar(e.contados, lista("Macho", "Comprado PostD"));
        Anexar(e.contados, lista("Hembra", "Comprado PostD"));
    }
    e.como = "Animales con ese sexo y origen anotados.";
    if (que == "Muertes") {
        e.como = "Animales con una causa de muerte anotada, de cualquier origen.";
        e.contados = AnimalesMuertosEnCebo(p.c, p.g, p.y);
    }
    e.valor = Cuantos(e.contados);
    if (!todos)
        return e;
    e.como = "Los machos y hembras propios y los comprados después del destete, menos las muertes.";
    e.porqueFuera = "Muertes, que se restan:";
    e.fuera = AnimalesMuertosEnCebo(p.c, p.g, p.y);
    e.valor -= Cuantos(e.fuera);
    if (que == "Total")
        return e;
    const bool vivos = que == "PorVivos";
    const double entre = vivos ? TernerosVivos(p.c, p.g, p.y) : PartosDelAño(p.c, p.g, p.y);
    e.como += std::string(" Por cada 100 ") + (vivos ? "terneros vivos" : "partos") + " del año (" +
              TextoNumero(entre) + ").";
    if (entre == 0)
        e.valor = 0;
    else
        e.valor = que == "Resumen" ? Round(e.valor / entre * 100)
                                   : Val(FormatoNumero(e.valor / entre * 100, "##0"));
    return e;
}

Respuesta ExplicarReparto(const Pregunta& p) {
    const bool primeros = p.Detalle(0) == "Dic-Feb";
    if (!primeros && p.Detalle(0) != "Sep-Nov")
        return std::nullopt;
    Explicacion e;
    e.titulo = "Partos del año: " + p.Detalle(0);
    e.como = "Partos de esos meses, por cada 100 partos del año de referencia; los gemelos son un parto.";
    e.fechas = std::string(primeros ? "Del 1 de diciembre al final de febrero"
                                    : "Del 1 de septiembre al 30 de noviembre") +
               " del año de referencia " + TextoNumero(p.y) + ".";
    e.rotuloFecha = "Parto";
    e.rotuloDato = "N.º";
    e.contados = primeros ? PrimerosPartos(p.c, p.g, p.y) : UltimosPartos(p.c, p.g, p.y);
    e.porqueFuera = "Todos los partos del año, que son el divisor:";
    e.fuera = PartosDeFechas(p, {InicioDeAño(p.y), FinDeAño(p.y)}, ">=1");
    e.valor = e.fuera.empty() ? 0 : Round(Cuantos(e.contados) * 100 / Cuantos(e.fuera));
    return e;
}

Respuesta ExplicarVacasMedias(const Pregunta& p) {
    Explicacion e;
    e.titulo = "Vacas medias " + p.DelAño();
    e.fechas = "De " + InicioDeAño(p.y) + " a " + FinDeAño(p.y) + ".";
    e.rotuloDato = "Cuenta por";
    if (p.Detalle(0) == "Presentes") {
        e.como = "Una por cada vaca parida que estuvo todo el año; las que llegaron o se fueron en él, por "
                 "los días que "
                 "estuvieron, entre 365. La suma se redondea.";
        e.contados = VacasParaMediaPresentes(p.c, p.g, p.y);
        e.valor = Val(FormatoNumero(Suma(e.contados), "######0"));
        return e;
    }
    e.como = "Una por cada vaca que parió en el año o que, parida antes, estuvo todo él; las que se fueron, "
             "por los "
             "días desde que empezó, entre 365, sumadas y redondeadas.";
    e.rotuloFecha = "Último parto";
    e.contados = VacasParaMediaPorPartos(p.c, p.g, p.y);
    double partes = 0;
    for (const AnimalContado& a : e.contados)
        (a.valor == 1 ? e.valor : partes) += a.valor;
    e.valor += Val(FormatoNumero(partes, "######0"));
    return e;
}

namespace {

// A line of the inventory: who is in it, and what each weighs in livestock units.
struct Clase {
    const char* texto;
    double peso;
    Animales (*presentes)(const Pregunta& p, const std::string& fecha, bool fin);
};
constexpr std::array<Clase, 6> kClases{
    {{"Toros", 1.5,
      [](const Pregunta& p, const std::string& f, bool) { return SementalesPresentes(p.c, p.g, f); }},
     {"Vacas (Nº parto > 0)", 1,
      [](const Pregunta& p, const std::string& f, bool fin) {
          return HembrasPresentes(p.c, p.g, f, 1, fin ? p.y + 1 : p.y);
      }},
     {"Novillas (Nº parto = 0)", 0.8,
      [](const Pregunta& p, const std::string& f, bool fin) {
          return HembrasPresentes(p.c, p.g, f, 0, fin ? p.y + 1 : p.y);
      }},
     {"Terneras (recría)", 0.4,
      [](const Pregunta& p, const std::string& f, bool fin) {
          return RecriaPresente(p.c, p.g, f, p.y, fin ? "FIN" : "INICIO");
      }},
     {"Terneros mamones", 0,
      [](const Pregunta& p, const std::string& f, bool fin) {
          return MamonesPresentes(p.c, p.g, f, p.y, fin ? "FIN" : "INICIO");
      }},
     {"Terneros en cebo", 0.6,
      [](const Pregunta& p, const std::string& f, bool) { return CeboPresente(p.c, p.g, f); }}}};

} // namespace

Respuesta ExplicarInventario(const Pregunta& p) {
    const std::string que = p.Detalle(0);
    const bool fin = p.Detalle(1) == "FIN";
    const bool carga = que == "U.G.M.";
    const auto fecha =
        fin ? FormatoFecha(FechaDeArgumento(FinDeAño(p.y)).MasDias(1), "dd/mm/yy") : InicioDeAño(p.y);
    if (!carga &&
        std::none_of(kClases.begin(), kClases.end(), [&](const Clase& c) { return que == c.texto; }))
        return std::nullopt;
    Explicacion e;
    double unidades = 0;
    for (const Clase& clase : kClases) {
        if (que != clase.texto && (!carga || clase.peso == 0))
            continue;
        const auto suyos = clase.presentes(p, fecha, fin);
        unidades += Cuantos(suyos) * clase.peso;
        Anexar(e.contados, suyos);
    }
    e.titulo = "Inventario, " + que;
    e.como = carga ? "Las cabezas de cada clase por lo que cuenta cada una, sumadas y redondeadas. Los "
                     "terneros mamones no "
                     "cuentan."
                   : "Animales presentes ese día. De recría y mamones se nombra la madre; del cebo, si es de "
                     "la casa.";
    e.fechas = "A " + fecha + ".";
    e.rotuloFecha = "Parto o entrada";
    e.rotuloDato = "Animal";
    e.valor = carga ? Val(FormatoNumero(unidades, "######0")) : Cuantos(e.contados);
    return e;
}

} // namespace pastorix
