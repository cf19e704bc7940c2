#pragma once

#include "frame/ficha/EntradaDeLinea.h"
#include "registers/datos/PatologiasSemental.h"

#include <QStringList>
#include <QTableWidget>

#include <functional>
#include <map>
#include <vector>

namespace pastorix {

// How one of a bull's health tables looks.
struct DefinicionPatologia {
    const char* rejilla; // object name of the grid
    const char* nombre;  // accessible name
    const TablaPatologia& tabla;
    std::span<const AspectoColumna> aspectos;
};

const DefinicionPatologia& RejillaSem();
const DefinicionPatologia& RejillaSemR();

// A grid of yearly health lines edited in place, with an empty line at its end for the next year. A click, Enter, F2 or typing opens a cell's
// editor, Tab goes on to the next cell, Delete removes the line. A line stays where it was entered until the next Mostrar(). Nothing is
// written to any database: the owner is told through alCambiar.
class RejillaPatologia : public QTableWidget {
public:
    explicit RejillaPatologia(const DefinicionPatologia& definicion, QWidget* padre = nullptr);

    const DefinicionPatologia& Definicion() const { return m_definicion; }
    void Mostrar(std::vector<Linea> lineas);
    const std::vector<Linea>& Lineas() const { return m_lineas; }
    // Lines that something was entered in, but no year yet: they go to no database.
    std::vector<Linea> SinAño() const;
    // Items of the editor of a column that come from the database.
    void FijarLista(std::size_t columna, const QStringList& valores);
    QStringList ListaDe(std::size_t columna) const;
    // Takes what stands in an open editor; false when it was refused.
    bool Terminar();
    // Closes an open editor and forgets what stands in it.
    void Abandonar();
    // Shows a box once the editor at work has closed, and goes to a cell: a box in its midst would take the focus from the editor, and
    // end it twice.
    void AvisarDespues(const QString& texto, int fila, int columna);
    // What an editor leaves in a cell.
    void Cambiar(int fila, int columna, const QString& texto);

    std::function<void()> alCambiar;                           // a line with a year changed or went
    std::function<void()> antesDeQuitar;                       // before the question
    std::function<std::string(const std::string& año)> edadDe; // age that goes with a year

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    QModelIndex moveCursor(CursorAction accion, Qt::KeyboardModifiers modificadores) override;

private:
    void Pintar();
    void PintarFila(int fila);
    bool Editable(int columna) const;
    void Abrir(const QModelIndex& celda, bool desplegada);
    void Quitar();
    bool Repetido(int fila, const std::string& celda) const;

    const DefinicionPatologia& m_definicion;
    std::vector<Linea> m_lineas;
    std::map<std::size_t, QStringList> m_listas;
    bool m_rechazado = false; // what the last editor left
};

} // namespace pastorix
