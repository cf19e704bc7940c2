#pragma once

#include "reports/motor/Conjuntos.h"

#include <QString>

#include <deque>
#include <map>
#include <optional>

namespace pastorix {

// Where the report stands: the current row of a table, within that of an outer section. Owned by the composer, and alive as
// long as the composing.
struct Contexto {
    const Contexto* fuera = nullptr;
    int tabla = -1;
    std::size_t fila = 0;
    const std::vector<std::size_t>* filas =
        nullptr; // rows that totals run over here: of the group or the section
};

// What is known of the run beyond the tables.
struct DatosDeInforme {
    QString titulo;                                // of the window
    std::map<std::string, std::string> parametros; // as given, by name
    Fecha fecha;                                   // of print
    double ganadero = 0;                           // of a report on one farmer
};

// Where a page stands: in the report, and in the group that begins its own pages (of a farmer, say).
struct NumeroDePagina {
    int pagina = 0; // from 1; 0 outside the bands of the page
    int paginas = 0;
    int paginaGrupo = 0;
    int paginasGrupo = 0;
};

// Turns templates and conditions into texts and answers for a row.
class Evaluador {
public:
    // Throws ErrorInforme(Parametro) when a parameter is not declared, or a declared one without default is missing.
    Evaluador(const Disposicion& disposicion, const Conjuntos& conjuntos, const DatosDeInforme& datos);

    // A text whose fields are all blank is blank as a whole: no unit or label is left without its figure.
    QString Texto(const Plantilla& plantilla, const Contexto* contexto, const NumeroDePagina& n = {}) const;
    bool Cumple(const Formula& formula, const Contexto* contexto) const;
    // Null when no section around has a row of that table.
    const Valor& Celda(RefCampo campo, const Contexto* contexto) const;
    const Contexto* ContextoDe(int tabla, const Contexto* contexto) const;

private:
    QString Trozo(const Pieza& pieza, const Contexto* contexto, const NumeroDePagina& n) const;
    // Throws ErrorInforme(Disposicion) with file and line for a text that cannot be added up.
    QString Agregado(const Pieza& pieza, const Contexto* contexto) const;

    const Disposicion& m_disposicion;
    const Conjuntos& m_conjuntos;
    const DatosDeInforme& m_datos;
    std::vector<Valor> m_parametros; // texts
};

// The number that a cell stands for: a text as the program writes numbers, "7,4" or "1.234,50". Empty for Null, blanks and other texts.
std::optional<double> NumeroDeCelda(const Valor& valor);

// A value as it is printed: Null blank, dates dd/mm/yy, numbers with decimal comma, by the mask if there is one. A text that is a number
// takes the mask of numbers; any other text stays as it is.
std::string TextoConMascara(const Valor& valor, const std::string& mascara);

} // namespace pastorix
