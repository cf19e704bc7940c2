#pragma once

#include "frame/ficha/EntradaDeLinea.h"

#include <QWidget>

#include <functional>

class QLabel;
class QLayout;
class QTableWidget;
class QToolButton;

namespace pastorix {

// What a table of lines says and allows. Texts go into boxes as they stand.
struct DefinicionLineas {
    const char* rejilla; // object name of the grid
    const char* nombre;  // accessible name
    std::span<const ColumnaLinea> columnas;
    std::span<const AspectoColumna> aspectos; // one a column
    bool conAltas = true; // lines are added and removed here; otherwise only their fields are edited
    int columnaAño =
        0; // the column that may not be empty nor repeat, and by which lines stand in order; -1 none
    bool descendente = false;
    const char* sinAño = "";      // box when the year is empty
    const char* repetido = "";    // box when another line has the year: this text, the year...
    const char* repetidoFin = ""; // ... and this text
    const char* tituloAviso = "Atención";
    const char* eliminar = ""; // question before a line goes: this text and its year (or the column below)
    const char* tituloEliminar = "Eliminar";
    int columnaNombre = -1;    // by which a line without year is called; -1 its place
    int limite = 0;            // most lines; a further one takes the place of the last; 0 any number
    bool introAcepta = false;  // Enter in any field puts the line into the list, not in the last one alone
    bool tecleadoVale = false; // dates and numbers go into the list as typed
    bool clicSoloLimpia =
        false; // a click chooses nothing: a double click or Enter brings a line into the fields
};

// A grid of lines and, below it, the strip of fields in which a line is entered: choosing a line brings it into the fields, Enter in the last one
// puts it back (or adds it), Escape abandons it; Insert begins a new line and Delete removes one. Nothing is written to any
// database: the owner is told through alCambiar.
class LineasEditables : public QWidget {
public:
    explicit LineasEditables(const DefinicionLineas& definicion, QWidget* padre = nullptr);

    // Shows lines; the fields are cleared.
    void Mostrar(std::vector<Linea> lineas);
    // The same lines read anew: what is being entered stays in the fields.
    void MostrarDeNuevo(std::vector<Linea> lineas);
    const std::vector<Linea>& Lineas() const { return m_lineas; }
    // Items of the combo of a column that come from the database.
    void FijarLista(std::size_t columna, const QStringList& valores);
    // What stands in the field of a column.
    QString EnCampo(std::size_t columna) const;
    void PonerEnCampo(std::size_t columna, const QString& texto);
    int FilaEnCampos() const { return m_fila; } // the line in the fields; -1 a new one
    QTableWidget& Rejilla() const { return *m_rejilla; }
    QWidget* Control(std::size_t columna) const;
    // Nothing can be entered while no record is on the sheet.
    void Permitir(bool si);

    void Nueva();         // Insert
    void Quitar();        // Delete
    void Abandonar();     // Escape
    void Confirmar();     // Enter in the last field
    bool EnCurso() const; // something stands in the fields that is not in the grid
    // Before it is left: the line goes into the list or is given up, as the user says. False when the fields keep what stands in them.
    bool Resolver();
    // A further button beside those of the strip.
    void PonerMando(QWidget* mando);

    std::function<void()> alCambiar;            // a line was added, replaced or removed
    std::function<void(const Linea&)> alQuitar; // before that, for one that was removed
    std::function<void()> alTeclear;            // something was typed or chosen in the fields
    std::function<void(std::size_t columna)>
        alEntrar;                                // the same, for the field of a column: others may follow
    std::function<void()> alProponer;            // a new line was begun by Insert, or by its button
    std::function<bool(const Linea&)> comprobar; // a line about to go in; false after its own box

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void CrearRejilla();
    void CrearFranja();
    QWidget* CrearEntrada(std::size_t columna);
    QLayout* CrearMandos();
    QString Celda(int fila, std::size_t columna) const; // "" for row -1
    void Elegir(int fila);                              // its values into the fields
    void Pasar(int fila);
    void Situar(int fila);
    Linea Escrita() const;
    const EntradaDeLinea* Entrada(std::size_t columna) const;
    bool EnBlanco() const;
    void Ofrecer();
    void Colocar(Linea linea);
    void Ordenar();
    void LimpiarEntradas();
    void Pintar();
    void PintarFila(int fila);
    void Rotular();
    void Habilitar();
    bool Valida(const Linea& linea);
    bool ValidaCeldas(const Linea& linea);
    bool Escapar();
    bool TeclaDeRejilla(int tecla);
    bool TeclaDeEntrada(QObject* objeto, int tecla);
    QString AñoDe(const Linea& linea) const;

    const DefinicionLineas& m_definicion;
    std::vector<Linea> m_lineas;
    QTableWidget* m_rejilla;
    std::vector<EntradaDeLinea> m_entradas;
    QStringList m_ofrecido;     // what stood in the fields before anybody typed
    QLabel* m_estado = nullptr; // which line the fields belong to
    QToolButton* m_nueva = nullptr;
    QToolButton* m_quitar = nullptr;
    QToolButton* m_poner = nullptr;
    QLayout* m_mandos = nullptr;
    bool m_permitido = true;
    int m_fila = -1; // the line in the fields; -1 a new one
};

} // namespace pastorix
