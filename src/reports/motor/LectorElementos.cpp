#include "reports/motor/Lectura.h"

#include "store/Textos.h"

namespace pastorix {

namespace {

constexpr double Lejos = 500; // mm; no page is larger
constexpr double Holgura = 0.01;
constexpr std::size_t SeriesMaximas = 12;

void LeerLugar(Argumentos& a, Elemento& e) {
    e.x = a.Numero("x", 0, Lejos);
    e.y = a.Numero("y", 0, Lejos);
    e.ancho = a.Numero("ancho", 0, Lejos);
    e.alto = a.Numero("alto", 0, Lejos);
}

void LeerLinea(Lectura& l, Argumentos& a, Elemento& e) {
    e.tipo = Elemento::Tipo::Linea;
    const double x1 = a.Numero("x1", 0, Lejos);
    const double y1 = a.Numero("y1", 0, Lejos);
    const double x2 = a.Numero("x2", 0, Lejos);
    const double y2 = a.Numero("y2", 0, Lejos);
    if (x2 < x1 || y2 < y1)
        a.Fallo("una línea va de izquierda a derecha y de arriba abajo");
    e.x = x1;
    e.y = y1;
    e.ancho = x2 - x1;
    e.alto = y2 - y1;
    l.LeerAspecto(a, e.aspecto);
}

void LeerSerie(Lectura& l, Argumentos& a, Grafico& grafico) {
    Grafico::Serie serie;
    serie.columna = l.Columna(a, grafico.tabla, a.Nombre("la columna de la serie"));
    serie.nombre = a.Texto("el nombre de la serie");
    if (const auto color = a.Opcion("color"))
        serie.color = l.LeerColor(a, *color);
    a.Terminar();
    if (grafico.series.size() >= SeriesMaximas)
        a.Fallo("el gráfico tiene demasiadas series");
    grafico.series.push_back(std::move(serie));
}

void LeerGrafico(Lectura& l, Argumentos& a, Elemento& e, const Ambito& ambito) {
    e.tipo = Elemento::Tipo::Grafico;
    LeerLugar(a, e);
    Grafico grafico;
    grafico.tabla = l.Tabla(a, a.Nombre("la tabla del gráfico"));
    grafico.lazos = l.Lazos(a, grafico.tabla, ambito);
    grafico.apilado = a.Bandera("apilado");
    grafico.valores = a.Bandera("valores");
    grafico.eje = a.Opcion("eje").value_or("");
    l.LeerAspecto(a, e.aspecto);
    e.si = l.Condicion(a, "si", ambito);
    a.Terminar();
    l.Bloque(a, [&](Argumentos& b) {
        if (b.Orden() == "serie") {
            LeerSerie(l, b, grafico);
        } else if (b.Orden() == "categoria") {
            grafico.categoria = l.Columna(b, grafico.tabla, b.Nombre("la columna de las categorías"));
            b.Terminar();
        } else {
            b.Fallo("dentro de un gráfico sólo hay \"categoria\" y \"serie\"");
        }
    });
    if (grafico.categoria < 0 || grafico.series.empty())
        a.Fallo("al gráfico le falta la categoría o alguna serie");
    e.grafico = std::move(grafico);
}

} // namespace

bool LeerElemento(Lectura& l, Argumentos& a, double ancho, Banda& banda, const Ambito& ambito) {
    Elemento e;
    e.aspecto = l.letraBase;
    const std::string& orden = a.Orden();
    if (orden == "texto") {
        LeerLugar(a, e);
        e.plantilla = l.Texto(a, a.Texto("el texto"), ambito);
        e.figura = l.Texto(a, a.Opcion("figura").value_or(""), ambito);
        l.LeerAspecto(a, e.aspecto);
    } else if (orden == "linea") {
        LeerLinea(l, a, e);
    } else if (orden == "caja") {
        e.tipo = Elemento::Tipo::Caja;
        LeerLugar(a, e);
        l.LeerAspecto(a, e.aspecto);
    } else if (orden == "grafico") {
        LeerGrafico(l, a, e, ambito);
    } else {
        return false;
    }
    if (e.tipo != Elemento::Tipo::Grafico) {
        e.estirar = a.Bandera("estirar");
        e.si = l.Condicion(a, "si", ambito);
        a.Terminar();
    }
    if (e.x + e.ancho > ancho + Holgura)
        a.Fallo("el elemento se sale por la derecha: hay " + TextoNumero(ancho) + " mm");
    if (e.y + e.alto > banda.alto + Holgura)
        a.Fallo("el elemento se sale por abajo: la banda tiene " + TextoNumero(banda.alto) + " mm");
    l.ContarElemento(a);
    banda.elementos.push_back(std::move(e));
    return true;
}

Banda LeerBanda(Lectura& l, Argumentos& a, double ancho, const Ambito& ambito) {
    Banda banda;
    banda.alto = a.Numero("el alto de la banda", 0, Lejos);
    banda.conSiguiente = a.Bandera("con-siguiente");
    if (const auto fondo = a.Opcion("fondo"))
        banda.fondo = l.LeerColor(a, *fondo);
    if (const auto alterno = a.Opcion("alterno"))
        banda.alterno = l.LeerColor(a, *alterno);
    banda.si = l.Condicion(a, "si", ambito);
    a.Terminar();
    if (!ambito.pagina && banda.alto > l.d.AltoUtil())
        a.Fallo("la banda no cabe en una página: hay " + TextoNumero(l.d.AltoUtil()) + " mm");
    l.Bloque(a, [&](Argumentos& b) {
        if (!LeerElemento(l, b, ancho, banda, ambito))
            b.Fallo("\"" + b.Orden() + "\" no es nada que pueda estar en una banda");
    });
    return banda;
}

} // namespace pastorix
