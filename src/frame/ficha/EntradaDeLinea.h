#pragma once

#include "frame/ficha/Lineas.h"

#include <QStringList>

class QComboBox;
class QWidget;

namespace pastorix {

class CampoTexto;

// One field of the strip in which a line is entered: a text box or a combo. It belongs to its widget parent's tree.
class EntradaDeLinea {
public:
    // `esAño`: the column of the year, which has four digits.
    EntradaDeLinea(const ColumnaLinea& definicion, std::size_t columna, bool esAño, QWidget* padre);

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
