#pragma once

#include "store/Recordset.h"

#include <QTableWidget>

#include <functional>
#include <span>
#include <vector>

namespace pastorix {

// A column of a grid of child rows.
struct ColumnaHijos {
    const char* columna; // field of the query; nullptr where the owner makes the values
    const char* titulo;
    int caracteres;               // width; 0 hides the column
    const char* explicacion = ""; // in words, where the heading is a code
};

// The grid of a sheet's child rows: read-only, one row chosen at a time. A click, or moving onto it with the arrows, brings a row into the
// sheet's fields; a double click or Enter opens it.
class RejillaHijos : public QTableWidget {
public:
    RejillaHijos(std::span<const ColumnaHijos> columnas, QWidget* padre = nullptr);

    // Shows the rows of the query from its first one; the recordset may be closed afterwards.
    void Llenar(Recordset& rs);
    // The same with values that the owner made, one a column.
    void Llenar(std::vector<std::vector<Valor>> filas);
    // Shows the same rows after a change: the row chosen stays chosen, known by its value in column `clave`, and the arrows go on from it. When it
    // is gone, its neighbour is.
    void LlenarDeNuevo(Recordset& rs, std::size_t clave);
    void LlenarDeNuevo(std::vector<std::vector<Valor>> filas, std::size_t clave);
    void Vaciar();
    int Filas() const { return rowCount(); }
    // Value of a field of a row as the query gave it.
    const Valor& De(int fila, std::size_t columna) const {
        return m_valores[static_cast<std::size_t>(fila)][columna];
    }

    std::function<void(int fila)> alElegir; // a row became the current one
    std::function<void(int fila)> alAbrir;  // a row is to be opened
    std::function<void()> alCambiarSeleccion;
    std::function<void()> alInsertar; // the Insert key
    std::function<void()> alEliminar; // the Delete key

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override; // by key: the current row is chosen

private:
    int PrimeraVisible() const;
    std::vector<std::vector<Valor>> FilasDe(Recordset& rs) const;

    std::span<const ColumnaHijos> m_columnas;
    std::vector<std::vector<Valor>> m_valores;
};

} // namespace pastorix
