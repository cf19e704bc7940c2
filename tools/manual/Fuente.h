#pragma once

#include <QString>
#include <QStringList>

#include <stdexcept>
#include <vector>

namespace pastorix::manual {

// One block of the manual's source. Texts are HTML already: what was marked in the source is bold, italic or a key.
struct Bloque {
    enum class Clase { Titulo, Parrafo, Punto, Numero, Nota, Figura, Tabla };
    Clase clase = Clase::Parrafo;
    int nivel = 0;                  // of a heading, 1 to 3; the number of a numbered item
    QString texto;                  // of a figure, its caption
    QString fichero;                // of a figure, relative to the source
    int ancho = 100;                // of a figure, per cent of the text's width
    int numero = 0;                 // of a figure, from 1 on
    std::vector<QStringList> filas; // of a table, the header first
    std::vector<double> anchos;     // of a table's columns, their sum is 1
};

struct Documento {
    QStringList portada; // lines of the title page, the title first
    std::vector<Bloque> bloques;
};

// A source that does not hold to the form, told with its line.
struct ErrorFuente : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Reads the Markdown of the manual: lines "% " of the title page, headings, paragraphs, lists, notes ("> "), tables and
// figures "![caption](file){60%}"; "{figura:name}" names the figure whose file is called so. Throws ErrorFuente.
Documento LeerFuente(const QString& texto);

} // namespace pastorix::manual
