#pragma once

#include "frame/campos/Lineas.h"

#include <QStringList>

class QComboBox;
class QWidget;

namespace pastorix {

class CampoTexto;

// How a column of lines looks: in the grid, and in the strip in which a line is entered. Apart from the column itself, which is data.
struct AspectoColumna {
    const char* titulo;            // heading of the grid
    int caracteres;                // width in the grid; 0 hides the column there
    const char* control = nullptr; // name of its entry control; nullptr: shown, not entered
    bool esLista = false; // a combo whose items come from the database; coded columns are combos anyway
    int maximo = 0;       // most characters that its text box takes; 0 no limit
    const char* explicacion = ""; // in words, where the heading is a code
    bool libre = false;           // a combo in which other texts can be typed
};

// One field of the strip in which a line is entered: a text box or a combo. It belongs to its widget parent's tree.
class EntradaDeLinea {
public:
    // `esAño`: the column of the year, which has four digits.
    EntradaDeLinea(const ColumnaLinea& dato, const AspectoColumna& aspecto, std::size_t columna, bool esAño,
                   QWidget* padre);

    std::size_t Columna() const { return m_columna; }
    QWidget* Control() const;
    CampoTexto* Texto() const { return m_texto; } // nullptr for a combo
    QComboBox* Combo() const { return m_combo; }  // nullptr for a text box

    QString Leer() const;
    // A value outside the list can be kept: it is offered as long as it is the one shown.
    void Poner(const QString& valor);
    // The items of a combo, behind the empty one.
    void Listar(const QStringList& valores);

private:
    std::size_t m_columna;
    CampoTexto* m_texto = nullptr;
    QComboBox* m_combo = nullptr;
    int m_propios = 0; // items of the combo's own list
};

} // namespace pastorix
