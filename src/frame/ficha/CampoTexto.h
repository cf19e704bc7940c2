#pragma once

#include "frame/campos/Pegado.h"

#include <QLineEdit>

#include <functional>

class QAction;

namespace pastorix {

// A text box of a sheet: selects its whole text when it gets the focus and takes only what its class takes, pasted or typed. What stands in
// it and will not be stored as it stands is marked: with colour and icon, and in words for tooltip and screen reader.
class CampoTexto : public QLineEdit {
public:
    // `anchura`: most characters that can be typed or pasted, after the sieve; 0 no limit.
    CampoTexto(ClaseCampo clase, int anchura, QWidget* padre = nullptr);
    ClaseCampo Clase() const { return m_clase; }
    int Anchura() const { return m_anchura; }
    void FijarAnchura(int anchura) { m_anchura = anchura; }
    // Shows a stored text as it stands, also one that could not be typed here ("1E-07", a text in a date column, one that is too long).
    void Mostrar(const QString& texto);
    // Puts a text from elsewhere at the cursor, as pasting does.
    void Pegar(const QString& texto);

    // What the field is, in words, where its caption is a code; for tooltip, help and screen reader.
    void Explicar(const QString& explicacion);
    // Remarks on what stands in the field; "" takes the remark back. `grave`: it will not be stored as it stands.
    void Señalar(const QString& porQue, bool grave = false);
    const QString& Señal() const { return m_señal; }
    // True for a date field whose text is no date.
    bool NoEsFecha() const;

    std::function<QString()>
        siNoEsFecha; // what becomes of a text that is no date; by default it is stored as nothing
    std::function<void()> alSeñalar; // a remark came or went

protected:
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;
    void dropEvent(QDropEvent* evento) override;
    void changeEvent(QEvent* evento) override;

private:
    bool TeclaDeFecha(const QKeyEvent& evento);
    void PasarDias(int dias);
    void AbrirCalendario();
    void RevisarFecha();
    void Pintar();

    ClaseCampo m_clase;
    int m_anchura;
    QString m_explicacion;
    QString m_señal;
    bool m_grave = false;
    bool m_porFecha = false; // the remark is about a text that is no date
    QAction* m_icono = nullptr;
};

} // namespace pastorix
