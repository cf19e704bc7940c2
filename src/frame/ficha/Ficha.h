#pragma once

#include "frame/Sesion.h"
#include "frame/ficha/BarraFicha.h"
#include "frame/ficha/HojaDeCampos.h"

#include <QDialog>

#include <string>
#include <string_view>
#include <vector>

class QVBoxLayout;

namespace pastorix {

// A button that saves a page by itself, apart from the sheet: Ctrl+S presses it while the focus is in the page.
void MarcarGuardarDePagina(QPushButton& boton);

// A page of a sheet with something typed that is not in the database.
struct PaginaPendiente {
    QString titulo;
    std::function<bool()> guardar; // false when it could not be saved, after its own box
    std::function<void()> descartar;
};

// The record sheet: one row of a table, shown, added, changed, deleted. A sheet derives from it with its table of fields, and says through the
// hooks below only where it differs. The database is written when the user saves, as one durable unit. What the sheet lays out in Cuerpo()
// scrolls where the screen is too small for it; the commands below stay in sight.
class Ficha : public QDialog {
public:
    Ficha(Sesion& sesion, const DefinicionFicha& definicion, QWidget* padre = nullptr);

    // Shows the record of a key; a box and false when there is none.
    bool CargarFicha(double clave);
    // The same for a sheet that another one opens: no other record is to be looked for.
    void AbrirCon(double clave);

    double Clave() const { return m_clave; } // key of the record on screen, 0 if none
    ModoFicha Modo() const { return m_modo; }

    void Añadir();
    void Modificar();
    void Eliminar();
    void Guardar();
    void Cancelar();

    // Ctrl+S: what stands around the focus is saved, by the button of its page or by the sheet's own.
    void GuardarLoCercano();

    // Alt+Left: the record that was on screen before this one; on a fresh sheet the one on which it was closed last.
    void VolverAlAnterior();

    void reject() override; // Escape, Cerrar, the window's cross: not over changes that nobody has saved

protected:
    void hideEvent(QHideEvent* evento) override;

    // Hooks, in the order in which they come into play.
    virtual std::vector<PaginaPendiente> Pendientes() {
        return {};
    }                                             // asked about before another record comes or the sheet goes
    virtual bool PermiteAñadir() { return true; } // a limit of the sheet; false after its own box
    virtual bool PermiteModificar() { return true; }
    virtual bool PermiteEliminar() { return true; }
    virtual void AlDejar(QWidget& /*campo*/) {
    }                                          // the focus left a field, or the sheet is saved from within it
    virtual std::string CodigoPropuesto();     // for the record to be added; by default the last one plus 1
    virtual void AlAñadir();                   // where the typing begins; by default in field 1
    virtual void LimpiarPropios() {}           // controls beyond the table of fields
    virtual void MostrarPropios(Recordset&) {} // the same, when a record is read
    virtual bool Recoger() {
        return true;
    }                                // what is open in grids is taken, before the checks; false to stay
    virtual bool ComprobarMinimos(); // the code and the mandatory field
    virtual void Completar() {}      // what the sheet decides by itself, whatever was chosen
    virtual bool Comprobar() {
        return true;
    } // further checks, each with its box and focus; they change nothing
    virtual void EscribirPropios(Recordset&) {}      // columns beyond the table of fields, before Update
    virtual void EscribirHijos(double /*codigo*/) {} // child tables, after Update
    virtual void DespuesDeGuardar(double clave);     // the record on screen, or read again
    virtual QString PreguntaEliminar() const { return QStringLiteral("Desea Eliminar ? "); }
    virtual void Borrar(double clave); // the row; with the cascade of the sheet
    virtual void DespuesDeBorrar() {}
    virtual void NoEncontrado(double clave);  // the code asked for has no record; before the box
    virtual void BuscarDato(int /*icono*/) {} // a search icon was pressed

    // For the sheet's constructor.
    QVBoxLayout* Cuerpo() const { return m_cuerpo; } // above the commands
    QWidget* CrearRejilla(QWidget* padre, int hoja = 0) { return m_hoja->CrearRejilla(padre, hoja); }
    QGridLayout* Rejilla() const { return m_hoja->Rejilla(); }
    // The search icon beside a field, and the key that presses it; that of the code has F3.
    void PonerIconoBusDato(int icono, int indiceCampo, const char* nombre, const QKeySequence& tecla = {});
    BarraFicha& Barra() { return *m_barra; }
    void TerminarConstruccion(QWidget* ultimo); // focus on the code; the buttons come after the last control
    void Vigilar(QWidget* control) { m_hoja->Vigilar(control); }

    // For its hooks.
    HojaDeCampos& Hoja() const { return *m_hoja; }
    CampoTexto& Campo(int indice) const { return m_hoja->Campo(indice); }
    CampoMemo& Memo(int indice) const { return m_hoja->Memo(indice); }
    QComboBox& Combo(std::string_view nombre) const { return m_hoja->Combo(nombre); }
    QString Texto(int indice) const { return m_hoja->Texto(indice); }
    std::string TextoStd(int indice) const { return m_hoja->TextoStd(indice); }
    void Poner(int indice, const std::string& texto) { m_hoja->Poner(indice, texto); }
    QString CodigoTecleado() const { return Texto(0); }
    Conexion& Base() const { return m_sesion.conexion; }
    Sesion& LaSesion() const { return m_sesion; }
    bool Fija() const { return m_fija; } // opened with its record, and for no other
    bool Editando() const { return m_modo == ModoFicha::Añadiendo || m_modo == ModoFicha::Modificando; }
    void EntrarEnModificar(); // as typing does
    bool PermiteDejar(); // pages with something unsaved: saved or given up, as the user says; false to stay
    bool PermiteCargarOtro(); // the same for the sheet's own edit and its pages
    void ReponerCodigo();     // the current key back into the code field
    bool CodigoIntacto();     // false after its box, with the loaded code back in its field
    bool Rechazar(const QString& texto, QWidget* foco); // exclamation box "Atención"; always false
    void MostrarError(const std::exception& error);
    void LimpiarCampos();
    void Vaciar(); // no record on the sheet

private:
    void ConectarBarra();
    void ConectarHoja();
    void PonerModo(ModoFicha modo);
    bool CodigoConfirmado();
    void CodigoDejado();
    void CargarOtra(double clave);
    bool PreguntarAntesDeDejar(const QString& donde, const PaginaPendiente& pagina);
    bool Escribir(double codigo, std::exception_ptr& deHijos); // false when the code is taken
    std::string SentenciaDeClave(double clave) const;

    Sesion& m_sesion;
    const DefinicionFicha& m_definicion;
    HojaDeCampos* m_hoja;
    BarraFicha* m_barra;
    QVBoxLayout* m_cuerpo;
    double m_clave = 0;
    double m_anterior = 0; // record that was on screen before
    bool m_fija = false;
    ModoFicha m_modo = ModoFicha::Vacia;
    bool m_fallo = false; // the last save failed: what is on screen stands nowhere else
};

} // namespace pastorix
