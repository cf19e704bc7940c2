#pragma once

#include "reports/motor/Disposicion.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace pastorix {

// A finished report is a list of pages of these primitives. All lengths in millimetres from the top left corner of the page, so
// that the same page goes to a window, a printer or a file.

// A font that the pages use, named by its position in Paginas::letras.
struct Letra {
    QString familia;
    double tamaño = 9; // points
    bool negrita = false;
    bool cursiva = false;
    friend bool operator==(const Letra&, const Letra&) = default;
};

// One line of text, already broken and cut to its place.
struct TextoColocado {
    QString texto;
    QPointF base;     // left end of the base line
    double ancho = 0; // as measured
    int letra = 0;
    Color color = 0;
    int figura = -1; // position of its key in Paginas::figuras, if it can be asked where it comes from
};

// A rectangle or a line (a rectangle without height or width): filled, framed on some sides, or both.
struct CajaColocada {
    QRectF lugar;
    std::optional<Color> fondo;
    unsigned bordes = SinLados;
    double grosor = 0.2;
    Color colorBorde = 0;
    double radio = 0;
};

struct DatosGrafico {
    struct Serie {
        QString nombre;
        Color color = 0;
        std::vector<double> valores; // one per category; not a number where there is none
    };
    QStringList categorias;
    std::vector<Serie> series;
    bool apilado = false;
    bool valores = false;
    QString eje;
    Letra letra;
    Color color = 0; // of its texts
};

struct GraficoColocado {
    QRectF lugar;
    std::shared_ptr<const DatosGrafico> datos;
};

using Trozo = std::variant<CajaColocada, TextoColocado, GraficoColocado>;

struct Pagina {
    std::vector<Trozo> trozos; // in painting order
    // Its texts in reading order as placed, for tests, search and screen readers.
    QStringList Textos() const;
};

struct Paginas {
    // Where a group begins, for the index beside the pages.
    struct Entrada {
        QString texto;
        int nivel = 0;  // 0 is outermost
        int pagina = 0; // from 0
    };
    QSizeF tamaño{210, 297};
    std::vector<Letra> letras;
    std::vector<Pagina> paginas;
    std::vector<Entrada> indice;
    QStringList figuras;
};

} // namespace pastorix
