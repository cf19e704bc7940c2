#pragma once

#include "frame/ficha/CampoFicha.h"

#include <QLineEdit>
#include <QString>

namespace pastorix {

// The comma is dropped (0 comes back) when the text already has one; any other key passes.
int ComaUnica(const QString& texto, int tecla);

// What remains of a text when only the characters that the class takes are kept: the same rule for keys and for what is pasted.
QString Filtrado(const QString& texto, ClaseCampo clase);

// A text box of a sheet: selects its whole text when it gets the focus and takes only what its class takes, pasted or typed.
class CampoTexto : public QLineEdit {
public:
    CampoTexto(ClaseCampo clase, int anchura, QWidget* padre = nullptr);
    ClaseCampo Clase() const { return m_clase; }
    // Shows a stored text as it stands, also one that could not be typed here ("1E-07", a text in a date column, one that is too long).
    void Mostrar(const QString& texto);

protected:
    void focusInEvent(QFocusEvent* evento) override;

private:
    ClaseCampo m_clase;
    int m_anchura; // most characters that can be typed; 0 no limit
};

} // namespace pastorix
