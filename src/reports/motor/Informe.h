#pragma once

#include "reports/motor/Evaluador.h"
#include "reports/motor/Pagina.h"

namespace pastorix {

// One sheet of an exported report: the rows behind the pages, as values.
struct HojaDatos {
    struct Columna {
        QString titulo;
        std::string formato; // number or date mask, may be empty
    };
    QString nombre;
    std::vector<Columna> columnas;
    std::vector<std::vector<Valor>> filas;
};

// A report that has been run: pages to show and rows to export. Owns everything it holds.
struct InformeTerminado {
    QString titulo;          // of the window, as the form gave it
    QString nombrePropuesto; // for files, without ending
    QString encabezado;      // above exported sheets: report, farmer and year
    QString aviso;           // to be told once, in the foot of the preview
    bool maximizada = false;
    Paginas paginas;
    std::vector<HojaDatos> hojas;
};

// What a run needs besides layout and tables.
struct PeticionInforme {
    QString titulo;
    std::string formulaSeleccion;
    std::map<std::string, std::string> parametros; // name -> value
    double ganadero = 0;                           // of a report on one farmer
};

// Runs a report: layout and tables become pages. Needs a QApplication, and no display. Throws ErrorInforme; an error of the source
// passes through.
InformeTerminado GenerarInforme(const Disposicion& disposicion, const FuenteDeTablas& fuente,
                                const PeticionInforme& peticion);

} // namespace pastorix
