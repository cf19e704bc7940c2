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

// rejilla ALTO_CABECERA ALTO_DETALLE separacion=1.5 estilo=dato estilo-cabecera=cab regla=verde alterno=fondo
//   col ANCHO "Título" "{X_Temp.C3}" alinear=derecha
// fin
void LeerRejilla(Lectura& l, Argumentos& a, double ancho, const Ambito& ambito, Seccion& seccion) {
    Banda cabecera;
    Nodo detalle;
    cabecera.alto = a.Numero("el alto de la cabecera", 0, 100);
    detalle.banda.alto = a.Numero("el alto del detalle", 1, 100);
    double x = a.OpcionNumero("x", 0, Lejos).value_or(0);
    const double separacion = a.OpcionNumero("separacion", 0, 20).value_or(1.5);
    const auto regla = a.Opcion("regla");
    const auto reglaDetalle = a.Opcion("regla-detalle");
    if (const auto alterno = a.Opcion("alterno"))
        detalle.banda.alterno = l.LeerColor(a, *alterno);
    if (const auto fondo = a.Opcion("fondo-cabecera"))
        cabecera.fondo = l.LeerColor(a, *fondo);
    Aspecto dato = l.letraBase;
    Aspecto titulo = l.letraBase;
    titulo.negrita = true;
    if (const auto estilo = a.Opcion("estilo-cabecera")) {
        const auto it = l.estilos.find(Minusculas(*estilo));
        if (it == l.estilos.end())
            a.Fallo("el estilo \"" + *estilo + "\" no está declarado");
        titulo = it->second;
    }
    l.LeerAspecto(a, dato);
    a.Terminar();
    if (seccion.cabecera)
        a.Fallo("la sección ya tiene una cabecera");
    Ambito arriba = ambito;
    arriba.agregados = l.d.Raiz(seccion.tabla);

    const double inicio = x;
    double fin = x;
    l.Bloque(a, [&](Argumentos& c) {
        if (c.Orden() != "col")
            c.Fallo("dentro de una rejilla sólo hay líneas \"col\"");
        Elemento e;
        e.aspecto = dato;
        e.x = x;
        e.ancho = c.Numero("el ancho de la columna", 1, Lejos);
        e.alto = detalle.banda.alto;
        const std::string rotulo = c.Texto("el título de la columna");
        e.plantilla = l.Texto(c, c.Texto("el texto de la columna"), ambito);
        l.LeerAspecto(c, e.aspecto);
        e.si = l.Condicion(c, "si", ambito);
        c.Terminar();
        if (e.x + e.ancho > ancho + Holgura)
            c.Fallo("la columna se sale por la derecha: hay " + TextoNumero(ancho) + " mm");
        l.ContarElemento(c);
        Elemento t;
        t.aspecto = titulo;
        t.aspecto.alineacion = e.aspecto.alineacion;
        t.aspecto.vertical = Vertical::Abajo;
        t.x = e.x;
        t.ancho = e.ancho;
        t.alto = cabecera.alto - (regla ? 0.8 : 0);
        t.plantilla = l.Texto(c, rotulo, arriba);
        cabecera.elementos.push_back(std::move(t));
        fin = e.x + e.ancho;
        x = fin + separacion;
        detalle.banda.elementos.push_back(std::move(e));
    });
    const auto trazar = [&](const std::optional<std::string>& color, Banda& banda, double grosor) {
        if (!color)
            return;
        Elemento raya;
        raya.tipo = Elemento::Tipo::Linea;
        raya.x = inicio;
        raya.ancho = fin - inicio;
        raya.y = banda.alto;
        raya.estirar = true;
        raya.aspecto.color = l.LeerColor(a, *color);
        raya.aspecto.grosor = grosor;
        banda.elementos.push_back(std::move(raya));
    };
    trazar(regla, cabecera, 0.35);
    trazar(reglaDetalle, detalle.banda, 0.1);
    if (detalle.banda.elementos.empty() || cabecera.alto + detalle.banda.alto > l.d.AltoUtil())
        a.Fallo("la rejilla no tiene columnas o no cabe en una página");
    seccion.cabecera = std::move(cabecera);
    seccion.cuerpo.push_back(std::move(detalle));
}

} // namespace pastorix
