#pragma once

#include "reports/motor/Informe.h"
#include "reports/motor/PanelDeCifra.h"

#include <functional>
#include <map>
#include <set>

namespace pastorix {

// The report control of the report forms. They set its members in this order, and Action(1) runs the report:
//   Reiniciar(); EstadoVentana; Bandera125; CampoParametro(i, ...); TituloVentana; FicheroInforme; FormulaSeleccion; Destino; Action(1)
class ControlInforme {
public:
    // Who takes a finished report in place of the window.
    using Destinatario = std::function<void(InformeTerminado)>;

    // The tables are read when Action runs; the source must outlive the control.
    explicit ControlInforme(const FuenteDeTablas& fuente);

    // Forgets everything that was set.
    void Reiniciar();

    int EstadoVentana = 0;   // 0 normal, 1 as an icon, 2 maximised
    bool Bandera115 = false; // both are set by the forms and change nothing here
    bool Bandera125 = false;
    QString TituloVentana;
    QString
        FicheroInforme; // path of the layout, separators of either kind; a built-in one of that name serves where there is none
    QString FormulaSeleccion;
    QString
        NombrePropuesto; // of the files that the report is exported to, without ending; the title of the window if empty
    double Ganadero = 0; // of a report on one farmer; its figures are asked by him
    int Destino = 0;     // 0, the window, is the only one

    // What previews ask about their figures; Reiniciar leaves it.
    PreguntasDeCifra Preguntas;

    // "Name;value;TRUE": the value may hold semicolons and line breaks. An empty text takes the field away again.
    void CampoParametro(int indice, const QString& texto);

    // 1 runs the report and returns when its window is open (or the installed sink has taken it). Throws ErrorInforme; an error of the
    // tables' source passes through. Nothing is opened then.
    void Action(int accion);

    // Installs who takes finished reports from every control (the command line, tests) and returns the former one; an empty function
    // brings the windows back.
    static Destinatario InstalarDestino(Destinatario destinatario);

private:
    PeticionInforme Peticion() const;

    const FuenteDeTablas& m_fuente;
    std::map<int, QString> m_parametros;
    std::set<QString> m_avisadas; // layouts of which was told that the built-in one serves
};

} // namespace pastorix
