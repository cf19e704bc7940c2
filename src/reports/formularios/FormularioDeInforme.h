#pragma once

#include "frame/Sesion.h"
#include "reports/formularios/ComboGanaderos.h"

#include <QDialog>

#include <functional>
#include <map>
#include <stdexcept>
#include <vector>

class QFormLayout;
class QPushButton;
class QVBoxLayout;

namespace pastorix {

class ControlInforme;

// What is told to the report control once the tables are filled.
struct HojaDeInforme {
    QString titulo;         // of the window
    QString fichero;        // of the layout, "CEBO.RPT"
    QStringList parametros; // "AñoRef;2026"
    QString formula;
    bool deLista = false; // sets the flag 115
    bool bandera125 = true;
    bool conVeterinario = true; // the layout names the farmer's veterinarian in its foot
};

// An option that a form does not have, or a value that it does not take. what() says so in Spanish.
class ErrorDeOpcion : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The frame around B_Aceptar that all report forms share: the checks in their order, the progress, the error trap, the control. A form composes
// its pickers, fills its tables and says which layout prints them.
class FormularioDeInforme : public QDialog {
public:
    // B_Aceptar: checks, tables, layout; every failure ends in a box. True when the report was handed over.
    bool Aceptar();
    // For callers without a display: sets what a key or click would, by the option's name ("ganadero"). Throws ErrorDeOpcion.
    void PonerOpcion(const QString& nombre, const QString& valor);
    // The farmers that the form offers.
    const std::vector<GanaderoOfrecido>& Ofrecidos() const { return m_eleccion->Ofrecidos(); }

    // A field with its label Et_CR(indice) as buddy.
    static void PonerCampo(QFormLayout& campos, const QString& rotulo, int indice, QWidget* campo);

protected:
    // Lives as long as the session and the control. `nombre` is the form's own.
    FormularioDeInforme(Sesion& sesion, ControlInforme& control, const char* nombre, const QString& titulo,
                        QWidget* padre);

    // How the farmer is chosen; brings the option of that name. One whom the report must have is offered: the one that the user was with last.
    void ElegirCon(EleccionDeGanadero& eleccion, bool debeHaberlo = true);
    // A check of B_Aceptar, in their order: where it does not hold its box is shown and no table is touched.
    void Exigir(std::function<bool()> cumple, std::function<void()> avisar);
    void Exigir(std::function<bool()> cumple, const char* mensaje);
    // What a caller without a display may set; the function returns false for a value that it does not take.
    void AdmitirOpcion(const char* nombre, std::function<bool(const QString&)> poner);
    // Box with title "Información", as nearly all messages of the reports.
    void Informar(const char* texto);

    // False: what is printed is nothing, and the form has said so.
    virtual bool Llenar(const FuncionAvance& avance) = 0;
    virtual HojaDeInforme Hoja() const = 0;
    // What the files made of the report are called behind its title.
    virtual QStringList Sobre() const { return {m_eleccion->NombreElegido()}; }

    Conexion& Base() const { return m_sesion.conexion; }
    QFormLayout& Campos() { return *m_campos; }

    void showEvent(QShowEvent* evento) override;

private:
    void Construir();
    void Lanzar();
    QString Veterinario() const;

    struct Comprobacion {
        std::function<bool()> cumple;
        std::function<void()> avisar;
    };

    Sesion& m_sesion;
    ControlInforme& m_control;
    EleccionDeGanadero* m_eleccion = nullptr; // the derived form's, set as it is built
    bool m_debeHaberlo = true;
    QFormLayout* m_campos = nullptr;
    QPushButton* m_aceptar = nullptr;
    std::vector<Comprobacion> m_comprobaciones;
    std::map<QString, std::function<bool(const QString&)>> m_opciones;
};

} // namespace pastorix
