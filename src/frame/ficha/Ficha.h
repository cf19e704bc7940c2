#pragma once

#include "frame/Sesion.h"
#include "frame/ficha/BarraFicha.h"
#include "frame/ficha/CampoFicha.h"
#include "frame/ficha/CampoMemo.h"
#include "frame/ficha/CampoTexto.h"

#include <QDialog>

#include <map>
#include <string>
#include <string_view>

class QComboBox;
class QGridLayout;
class QPushButton;
class QToolButton;

namespace pastorix {

class Recordset;

// A button that saves a page by itself, apart from the sheet: Ctrl+S presses it while the focus is in the page.
void MarcarGuardarDePagina(QPushButton& boton);

// The record sheet: one row of a table, shown, added, changed, deleted. A sheet derives from it with its table of fields, and says through the
// hooks below only where it differs. The database is written when the user saves, as one durable unit.
class Ficha : public QDialog {
public:
    Ficha(Sesion& sesion, const DefinicionFicha& definicion, QWidget* padre = nullptr);

    // Shows the record of a key; a box and false when there is none.
    bool CargarFicha(double clave);
    // The same for a sheet that another one opens: no other record is to be looked for.
    void AbrirCon(double clave);

    double Clave() const { return m_clave; } // key of the record on screen, 0 if none
    int Accion() const { return m_accion; }  // 1 adding, 2 modifying, 0 neither

    void Añadir();
    void Modificar();
    void Eliminar();
    void Guardar();
    void Cancelar();

    // Ctrl+S: what stands around the focus is saved, by the button of its page or by the sheet's own.
    void GuardarLoCercano();

    void reject() override; // Escape, Cerrar, the window's cross: not over changes that nobody has saved

protected:
    // Hooks, in the order in which they come into play.
    virtual bool PermiteDejar() {
        return true;
    } // before another record comes or the sheet goes; false to stay
    virtual bool PermiteAñadir() { return true; } // a limit of the sheet; false after its own box
    virtual bool PermiteModificar() { return true; }
    virtual bool PermiteEliminar() { return true; }
    virtual void AlDejar(QWidget& /*campo*/) {
    }                                          // the focus left a field, or the sheet is saved from within it
    virtual std::string CodigoPropuesto();     // for the record to be added; by default the last one plus 1
    virtual void AlAñadir();                   // where the typing begins; by default in field 1
    virtual void LimpiarPropios() {}           // controls beyond the table of fields
    virtual void MostrarPropios(Recordset&) {} // the same, when a record is read
    virtual bool ComprobarMinimos();           // the code and the mandatory field
    virtual bool Comprobar() { return true; }  // further checks, each with its box and focus
    virtual void EscribirPropios(Recordset&) {}      // columns beyond the table of fields, before Update
    virtual void EscribirHijos(double /*codigo*/) {} // child tables, after Update
    virtual void DespuesDeGuardar(double clave);     // buttons, or load the record again
    virtual QString PreguntaEliminar() const { return QStringLiteral("Desea Eliminar ? "); }
    virtual void Borrar(double clave); // the row; with the cascade of the sheet
    virtual void DespuesDeBorrar() {}
    virtual void NoEncontrado(double clave);  // the code asked for has no record; before the box
    virtual void BuscarDato(int /*icono*/) {} // a search icon was pressed

    // For the sheet's constructor.
    QWidget* CrearRejilla(QWidget* padre, int hoja = 0); // its fields and captions at the places of the table
    QGridLayout* Rejilla() const { return m_rejilla; }   // of the one made last, for controls between them
    void PonerIconoBusDato(int icono, int indiceCampo);  // the search icon beside a field
    BarraFicha& Barra() { return *m_barra; }
    int AnchuraDe(const char* columna) const;   // most characters that the column takes; 0 no limit
    void TerminarConstruccion(QWidget* ultimo); // focus on the code; the buttons come after the last control
    void Vigilar(QWidget* control);             // a change in it begins a modification

    // For its hooks.
    CampoTexto& Campo(int indice) const { return *m_campos.at(indice); }
    CampoMemo& Memo(int indice) const { return *m_memos.at(indice); }
    QComboBox& Combo(std::string_view nombre) const;
    QString Texto(int indice) const { return QString::fromStdString(TextoStd(indice)); }
    std::string TextoStd(int indice) const;
    void Poner(int indice, const std::string& texto);
    QString CodigoTecleado() const { return Texto(0); }
    Conexion& Base() const { return m_sesion.conexion; }
    Sesion& LaSesion() const { return m_sesion; }
    bool Editando() const;
    void EntrarEnModificar(); // as typing does
    bool PermiteCargarOtro(); // asks before an edit or unsaved pages give way to another record
    void ReponerCodigo();     // the current key back into the code field
    bool Rechazar(const QString& texto, QWidget* foco); // exclamation box "Atención"; always false
    void LimpiarCampos();
    void Vaciar(); // no record on the sheet

    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void ConectarBarra();
    QWidget* CrearCampo(const CampoFicha& campo, QWidget* padre);
    CampoTexto* CrearLinea(const CampoFicha& campo, QWidget* padre);
    CampoMemo* CrearMemo(QWidget* padre);
    QComboBox* CrearCombo(const ComboFicha& combo, QWidget* padre);
    void CodigoDejado();
    void CampoDejado(QWidget& campo, Qt::FocusReason razon);
    void PasarAlSiguiente();
    bool Escribir(double codigo); // false when the code is taken
    void EscribirCampos(Recordset& rs);
    std::string SentenciaDeClave(double clave) const;
    void MostrarError(const std::exception& error);

    Sesion& m_sesion;
    const DefinicionFicha& m_definicion;
    BarraFicha* m_barra;
    QGridLayout* m_rejilla = nullptr;
    std::map<int, CampoTexto*> m_campos;
    std::map<int, CampoMemo*> m_memos;
    std::map<std::string, QComboBox*, std::less<>> m_combos;
    double m_clave = 0;
    int m_accion = 0;
};

} // namespace pastorix
