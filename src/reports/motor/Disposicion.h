#pragma once

#include "reports/motor/Formula.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace pastorix {

// A layout as it was read: what stands where, which tables it takes, and under which conditions. All lengths in millimetres, texts in
// UTF-8, colours as 0xRRGGBB. Nothing here can be unresolved: the reader refuses names that are not declared.

using Color = std::uint32_t;

enum class Alineacion { Izquierda, Centro, Derecha };
enum class Vertical { Arriba, Centro, Abajo };

// Sides of a border, as bits.
enum Lados : unsigned {
    SinLados = 0,
    LadoArriba = 1,
    LadoAbajo = 2,
    LadoIzquierdo = 4,
    LadoDerecho = 8,
    TodosLosLados = 15
};

// How a text or a box looks.
struct Aspecto {
    double tamaño = 9;  // points
    double encoger = 0; // points down to which a line that does not fit shrinks; 0: not at all
    bool negrita = false;
    bool cursiva = false;
    Color color = 0x000000;
    std::optional<Color> fondo;
    Alineacion alineacion = Alineacion::Izquierda;
    std::optional<Vertical> vertical; // centre for one-line texts, top for wrapping ones
    bool ajustar = false;             // wraps and grows the band
    unsigned bordes = SinLados;
    double grosor = 0.2;
    Color colorBorde = 0x000000;
    double relleno = 0; // blank at the left and right of the text
    double radio = 0;   // rounded corners of a box
    std::string vacio;  // printed in place of a text that comes out blank
};

// One piece of a text: a literal, or something that is only known when the report runs.
struct Pieza {
    enum class Tipo {
        Literal,
        Campo,
        Parametro,
        Pagina,
        Paginas,
        PaginaGrupo,
        PaginasGrupo,
        FechaImpresion,
        Titulo,
        Ganadero,
        Cuenta,
        Suma,
        Media
    };
    Tipo tipo = Tipo::Literal;
    std::string texto; // literal text
    std::string mascara;
    RefCampo campo;
    int parametro = -1;
    int tramo = -1; // optional stretch [...] it belongs to: printed only when one of its fields is filled
    int linea = 0;  // of the layout, for errors

    bool EsAgregado() const { return tipo == Tipo::Cuenta || tipo == Tipo::Suma || tipo == Tipo::Media; }
};

using Plantilla = std::vector<Pieza>;

// Ties the rows of an inner table to the row of an outer one by equality of two columns.
struct Lazo {
    RefCampo interior;
    RefCampo exterior;
};

// A bar chart over the rows of a table.
struct Grafico {
    struct Serie {
        int columna = -1;
        std::string nombre;
        Color color = 0x555555;
    };
    int tabla = -1;
    std::vector<Lazo> lazos;
    int categoria = -1;
    std::vector<Serie> series;
    bool apilado = false;
    bool valores = false; // print the figures on the bars
    std::string eje;      // caption of the value axis
};

struct Elemento {
    enum class Tipo { Texto, Linea, Caja, Grafico };
    Tipo tipo = Tipo::Texto;
    double x = 0; // of a line: x, y is one end and x + ancho, y + alto the other
    double y = 0;
    double ancho = 0;
    double alto = 0;
    Aspecto aspecto;
    bool estirar = false; // its bottom follows the bottom of the band when that grows
    Plantilla plantilla;
    Plantilla figura; // key under which the figure can be asked where it comes from
    Formula si;
    std::optional<Grafico> grafico;
};

// A horizontal strip with elements on it; it never breaks across pages unless it is taller than one.
struct Banda {
    double alto = 0;
    std::optional<Color> fondo;
    std::optional<Color> alterno; // background of every second row
    bool conSiguiente = false;    // not the last on its page
    Formula si;
    std::vector<Elemento> elementos;
};

struct Seccion;
struct Nodo;

// Things that stand side by side: each column flows by itself.
struct ColumnaFlujo {
    double x = 0;
    double ancho = 0;
    std::vector<Nodo> nodos;
};

// What flows down the page.
struct Nodo {
    enum class Tipo { Banda, Seccion, Bloque, Columnas, Salto };
    Tipo tipo = Tipo::Banda;
    Banda banda;
    std::unique_ptr<Seccion> seccion;
    std::vector<Nodo> hijos; // of a block, which is kept on one page
    std::vector<ColumnaFlujo> columnas;
    Formula si; // of a block
};

// Rows that share the values of some columns, in order of first appearance.
struct Grupo {
    std::vector<RefCampo> columnas;
    Plantilla indice;              // its entry in the index; the values of its columns when empty
    std::optional<Banda> cabecera; // repeated on each page the group reaches
    std::optional<Banda> pie;
    bool paginaNueva = false;
    bool juntos = false;
};

// The rows of a table, one after another.
struct Seccion {
    int tabla = -1;
    std::vector<Lazo> lazos;
    Formula donde;
    bool paginaNueva = false;      // each row begins a page
    Plantilla indice;              // entry of each row in the index; none when empty
    std::optional<Banda> cabecera; // repeated on each page the section reaches
    std::optional<Banda> pie;
    std::optional<Banda> vacia; // in place of the rows when there is none
    std::vector<Grupo> grupos;  // outermost first
    std::vector<Nodo> cuerpo;   // printed once per row
    std::vector<Nodo> alFinal;  // printed after the last row, which is then the current one
};

// Rows that the layout takes, and the columns of them: a table of the database, or a query that stands for one.
struct TablaUsada {
    struct Columna {
        std::string nombre;
        std::string titulo;  // heading in exports
        std::string formato; // number or date mask in exports
        int linea = 0;
    };
    std::string nombre;
    std::string consulta;   // a statement of the store; empty for the table of that name
    std::string hoja;       // name of its sheet in exports
    bool calculada = false; // the program works it out when it is asked for; without rows where nobody does
    std::vector<Columna> columnas;
    std::vector<Lazo> lazos; // in the bands of the page its row is the one tied to theirs
    int linea = 0;
};

struct ParametroUsado {
    std::string nombre;
    std::optional<std::string> defecto;
};

struct Disposicion {
    std::string fichero; // as told in error texts
    std::string titulo;
    Plantilla encabezado; // what exported sheets say of whose they are
    double anchoPagina = 210;
    double altoPagina = 297;
    double izquierda = 15, arriba = 15, derecha = 15, abajo = 15; // margins
    std::vector<std::string> familias; // the first font family that the machine has is used
    std::vector<TablaUsada> tablas;
    std::vector<ParametroUsado> parametros;
    std::optional<Banda> cabeceraPagina;
    std::optional<Banda> piePagina;
    std::vector<Nodo> cuerpo;

    bool Apaisada() const { return anchoPagina > altoPagina; }
    double AnchoUtil() const { return anchoPagina - izquierda - derecha; }
    double AltoUtil() const;
    // Index of a declared table, or of a column of it, without regard to case; -1 when there is none.
    int BuscarTabla(std::string_view nombre) const;
    int BuscarColumna(int tabla, std::string_view nombre) const;
    // Names for the reader of formulas: "Tabla.Columna".
    Nombres NombresDeclarados() const;
};

} // namespace pastorix
