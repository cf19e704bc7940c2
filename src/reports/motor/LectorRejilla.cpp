// Lists and tables of figures from one line per column or row: "rejilla" and "filas" become bands like those written by hand.
#include "reports/motor/Lectura.h"

#include "store/Textos.h"

namespace pastorix {

namespace {

constexpr double Lejos = 500; // mm; no page is larger
constexpr double Holgura = 0.01;
constexpr double AltoSobre = 4.6; // mm of a heading over several columns, with its line
constexpr double GrosorRegla = 0.35;
constexpr double GrosorDetalle = 0.1;

Aspecto Estilo(const Lectura& l, Argumentos& a, const char* opcion, const Aspecto& sinEl) {
    const auto nombre = a.Opcion(opcion);
    if (!nombre)
        return sinEl;
    const auto it = l.estilos.find(Minusculas(*nombre));
    if (it == l.estilos.end())
        a.Fallo("el estilo \"" + *nombre + "\" no está declarado");
    return it->second;
}

std::optional<Color> ColorDe(const Lectura& l, Argumentos& a, const char* opcion) {
    const auto color = a.Opcion(opcion);
    return color ? std::optional(l.LeerColor(a, *color)) : std::nullopt;
}

Elemento Raya(double x, double y, double ancho, Color color, double grosor, bool estirar) {
    Elemento raya;
    raya.tipo = Elemento::Tipo::Linea;
    raya.x = x;
    raya.y = y;
    raya.ancho = ancho;
    raya.estirar = estirar;
    raya.aspecto.color = color;
    raya.aspecto.grosor = grosor;
    return raya;
}

// Heading and detail of a list while its columns are read.
class Rejilla {
public:
    Rejilla(Lectura& l, Argumentos& a, double ancho, const Ambito& ambito, const Seccion& seccion)
        : m_l(l)
        , m_ancho(ancho)
        , m_ambito(ambito)
        , m_arriba(ambito) {
        m_arriba.agregados = seccion.tabla;
        cabecera.alto = a.Numero("el alto de la cabecera", 0, 100);
        detalle.alto = a.Numero("el alto del detalle", 1, 100);
        m_x = a.OpcionNumero("x", 0, Lejos).value_or(0);
        m_separacion = a.OpcionNumero("separacion", 0, 20).value_or(1.5);
        m_regla = ColorDe(l, a, "regla");
        m_reglaDetalle = ColorDe(l, a, "regla-detalle");
        detalle.alterno = ColorDe(l, a, "alterno");
        cabecera.fondo = ColorDe(l, a, "fondo-cabecera");
        m_dato = l.letraBase;
        m_titulo = l.letraBase;
        m_titulo.negrita = true;
        m_titulo = Estilo(l, a, "estilo-cabecera", m_titulo);
        l.LeerAspecto(a, m_dato);
        a.Terminar();
        m_inicio = m_x;
        m_fin = m_x;
    }

    void Columna(Argumentos& c, double bajo = 0) {
        if (c.Orden() != "col")
            c.Fallo("dentro de una rejilla sólo hay líneas \"col\" y bloques \"sobre\"");
        Elemento e;
        e.aspecto = m_dato;
        e.x = m_x;
        e.ancho = c.Numero("el ancho de la columna", 1, Lejos);
        e.alto = detalle.alto;
        const std::string rotulo = c.Texto("el título de la columna");
        e.plantilla = m_l.Texto(c, c.Texto("el texto de la columna"), m_ambito);
        e.figura = m_l.Texto(c, c.Opcion("figura").value_or(""), m_ambito);
        m_l.LeerAspecto(c, e.aspecto);
        e.si = m_l.Condicion(c, "si", m_ambito);
        c.Terminar();
        if (e.x + e.ancho > m_ancho + Holgura)
            c.Fallo("la columna se sale por la derecha: hay " + TextoNumero(m_ancho) + " mm");
        m_l.ContarElemento(c);
        cabecera.elementos.push_back(Titulo(c, rotulo, e.x, bajo, e.ancho, e.aspecto.alineacion));
        m_fin = e.x + e.ancho;
        m_x = m_fin + m_separacion;
        detalle.elementos.push_back(std::move(e));
    }

    // sobre "Hasta 400 días" ... fin: a heading over the columns of the block.
    void Sobre(Argumentos& a) {
        const std::string rotulo = a.Texto("el título");
        a.Terminar();
        const double desde = m_x;
        m_l.Bloque(a, [&](Argumentos& c) { Columna(c, AltoSobre); });
        if (m_fin <= desde || cabecera.alto < 2 * AltoSobre)
            a.Fallo("un bloque \"sobre\" necesita columnas y una cabecera de " + TextoNumero(2 * AltoSobre) +
                    " mm");
        m_l.ContarElemento(a);
        Elemento t = Titulo(a, rotulo, desde, 0, m_fin - desde, Alineacion::Centro);
        t.alto = AltoSobre - 0.6;
        t.estirar = false;
        t.aspecto.ajustar = false;
        cabecera.elementos.push_back(std::move(t));
        cabecera.elementos.push_back(Raya(desde, AltoSobre - 0.4, m_fin - desde,
                                          m_reglaDetalle.value_or(m_titulo.color), GrosorDetalle * 2, false));
    }

    void Terminar(const Argumentos& a) {
        if (detalle.elementos.empty() || cabecera.alto + detalle.alto > m_l.d.AltoUtil())
            a.Fallo("la rejilla no tiene columnas o no cabe en una página");
        const auto trazar = [&](Banda& banda, const std::optional<Color>& color, double grosor) {
            if (color)
                banda.elementos.push_back(Raya(m_inicio, banda.alto, m_fin - m_inicio, *color, grosor, true));
        };
        trazar(cabecera, m_regla, GrosorRegla);
        trazar(detalle, m_reglaDetalle, GrosorDetalle);
    }

    Banda cabecera;
    Banda detalle;

private:
    // Headings wrap between words, and stand on one line at the bottom however many lines their neighbours have.
    Elemento Titulo(const Argumentos& c, const std::string& rotulo, double x, double y, double ancho,
                    Alineacion alineacion) const {
        Elemento t;
        t.aspecto = m_titulo;
        t.aspecto.alineacion = alineacion;
        t.aspecto.vertical = Vertical::Abajo;
        t.aspecto.ajustar = true;
        t.estirar = true;
        t.x = x;
        t.y = y;
        t.ancho = ancho;
        t.alto = std::max(0.0, cabecera.alto - y - (m_regla ? 0.8 : 0));
        t.plantilla = m_l.Texto(c, rotulo, m_arriba);
        return t;
    }

    Lectura& m_l;
    double m_ancho;
    const Ambito& m_ambito;
    Ambito m_arriba;
    Aspecto m_dato;
    Aspecto m_titulo;
    double m_separacion = 0;
    std::optional<Color> m_regla;
    std::optional<Color> m_reglaDetalle;
    double m_inicio = 0;
    double m_x = 0;
    double m_fin = 0;
};

// The rows of a block of figures: the first column a label, the others numbers at the right.
class Filas {
public:
    Filas(Lectura& l, Argumentos& a, double ancho, const Ambito& ambito)
        : m_l(l)
        , m_ambito(ambito)
        , m_alto(a.Numero("el alto de cada fila", 1, 100))
        , m_dato(l.letraBase) {
        while (a.QuedaNombre() && m_anchos.size() < ColumnasMaximas)
            m_anchos.push_back(a.Numero("el ancho de una columna", 1, Lejos));
        m_raya = ColorDe(l, a, "regla");
        Aspecto titulo = l.letraBase;
        titulo.negrita = true;
        m_titulo = Estilo(l, a, "estilo-cabecera", titulo);
        l.LeerAspecto(a, m_dato);
        a.Terminar();
        for (const double uno : m_anchos)
            m_total += uno;
        if (m_anchos.empty() || m_total > ancho + Holgura)
            a.Fallo("los anchos de las columnas de las filas faltan o suman más de " + TextoNumero(ancho) +
                    " mm");
    }

    Nodo Fila(Argumentos& a) {
        const bool titulos = a.Orden() == "titulos";
        if (!titulos && a.Orden() != "fila")
            a.Fallo("dentro de unas filas sólo hay líneas \"titulos\" y \"fila\"");
        std::vector<std::string> textos;
        while (const auto texto = a.TextoSiHay())
            textos.push_back(*texto);
        if (textos.empty() || textos.size() > m_anchos.size())
            a.Fallo("una fila tiene un texto por columna: hay " + std::to_string(m_anchos.size()));
        Nodo nodo;
        nodo.banda.alto = m_alto;
        nodo.banda.conSiguiente = titulos;
        nodo.banda.fondo = ColorDe(m_l, a, "fondo");
        nodo.banda.si = m_l.Condicion(a, "si", m_ambito);
        std::vector<std::string> figuras; // figura1= that of the first figure, behind the label
        for (std::size_t i = 0; i < textos.size(); ++i)
            figuras.push_back(a.Opcion("figura" + std::to_string(i)).value_or(""));
        Aspecto aspecto = titulos ? m_titulo : m_dato;
        m_l.LeerAspecto(a, aspecto);
        a.Terminar();
        double x = 0;
        for (std::size_t i = 0; i < textos.size(); ++i) {
            m_l.ContarElemento(a);
            Elemento e;
            e.aspecto = aspecto;
            e.aspecto.alineacion = i == 0 ? Alineacion::Izquierda : Alineacion::Derecha;
            if (titulos)
                e.aspecto.vertical = Vertical::Abajo;
            e.aspecto.ajustar = titulos || i == 0;
            e.estirar = titulos;
            e.x = x;
            e.ancho = m_anchos[i];
            e.alto = m_alto - 0.2;
            e.plantilla = m_l.Texto(a, textos[i], m_ambito);
            e.figura = m_l.Texto(a, figuras[i], m_ambito);
            x += m_anchos[i];
            nodo.banda.elementos.push_back(std::move(e));
        }
        if (m_raya)
            nodo.banda.elementos.push_back(
                Raya(0, m_alto, m_total, *m_raya, titulos ? GrosorDetalle * 2 : GrosorDetalle, true));
        return nodo;
    }

private:
    static constexpr std::size_t ColumnasMaximas = 20;
    Lectura& m_l;
    const Ambito& m_ambito;
    double m_alto;
    Aspecto m_dato;
    Aspecto m_titulo;
    std::vector<double> m_anchos;
    double m_total = 0;
    std::optional<Color> m_raya;
};

} // namespace

// rejilla ALTO_CABECERA ALTO_DETALLE separacion=1.5 estilo=dato estilo-cabecera=cab regla=verde alterno=fondo
//   col ANCHO "Título" "{X_Temp.C3}" alinear=derecha
// fin
void LeerRejilla(Lectura& l, Argumentos& a, double ancho, const Ambito& ambito, Seccion& seccion) {
    Rejilla rejilla(l, a, ancho, ambito, seccion);
    if (seccion.cabecera)
        a.Fallo("la sección ya tiene una cabecera");
    l.Bloque(a, [&](Argumentos& c) {
        if (c.Orden() == "sobre")
            rejilla.Sobre(c);
        else
            rejilla.Columna(c);
    });
    rejilla.Terminar(a);
    Nodo nodo;
    nodo.banda = std::move(rejilla.detalle);
    seccion.cabecera = std::move(rejilla.cabecera);
    seccion.cuerpo.push_back(std::move(nodo));
}

// filas ALTO ANCHO ANCHO ... regla=raya
//   titulos "" "De novilla" "De vaca"
//   fila "Edad media (días)" "{X_Tmp4.EdadN:##0}" "{X_Tmp4.EdadV:##0}"
// fin
void LeerFilas(Lectura& l, Argumentos& a, double ancho, const Ambito& ambito, std::vector<Nodo>& nodos) {
    Filas filas(l, a, ancho, ambito);
    l.Bloque(a, [&](Argumentos& b) { nodos.push_back(filas.Fila(b)); });
}

} // namespace pastorix
