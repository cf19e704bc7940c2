#pragma once

#include "frame/Sesion.h"

#include <QString>

#include <string_view>

class QWidget;

namespace pastorix {

// What an entry does to the main window and asks of the user. The login form gives one that works on Principal; whoever
// enters without windows takes this one as it is: nothing to set, no yearly question.
class InterfazDeEntrada {
public:
    virtual ~InterfazDeEntrada() = default;

    virtual QWidget* Ventana() { return nullptr; } // parent of the boxes
    virtual void FijarTitulo(const QString&) {}
    virtual void FijarPanel(const QString&) {} // panel 1 of the status bar
    virtual void Mostrar(const QString& /*orden*/, bool /*visible*/) {}
    virtual void Activar(const QString& /*orden*/, bool /*activa*/) {}
    virtual void ActivarBoton(int /*boton*/, bool /*activo*/) {} // by its number on the toolbar

    // Whether the rows of the natural year are to be opened now.
    virtual bool PreguntarAñosNaturales() { return false; }
    // A work that shows its progress. Between both calls avance is called with done and total.
    virtual FuncionAvance EmpezarAvance(const QString& /*texto*/) { return {}; }
    virtual void TerminarAvance() {}
    // Follows a work that is over in a moment or takes some time: the conversion of an Access file, the look for damage.
    virtual FuncionAvance AvanceSiTarda(const QString& /*texto*/) { return {}; }
    // The database is damaged and open to be looked at only, or not.
    virtual void MostrarSoloLectura(bool /*soloLectura*/) {}
};

// Enters the main (0) or the personal (1) database with what was typed. True when the session is open: the login form
// goes and Principal comes. False: nobody entered, the form stays as it is and a second attempt may take the other entry.
// A database that is found damaged is told, and restored from a safety copy or entered to be looked at only: then nothing of it is
// repaired. Failures on the way are swallowed, but for a personal database that does not open, which ends the attempt, and for failures of
// the file itself (lock, disk, read-only): those are told.
bool EntrarEnBase(Sesion& sesion, int indice, const QString& usuario, const QString& clave,
                  InterfazDeEntrada& interfaz);

// Finds the mode that user and password give, tells the refusal in a box, and sets mode, user, panel and entries.
bool ComprobarSesion(Sesion& sesion, const QString& usuario, const QString& clave,
                     InterfazDeEntrada& interfaz);

// True when no central user has that login name. A veterinarian who has it already does not count: the sheet of
// veterinarians minds that. Throws ErrorAlmacen for a name with an apostrophe.
bool UsuarioLibre(Conexion& conexion, std::string_view nombre);

} // namespace pastorix
