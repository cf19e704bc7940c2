#pragma once

#include "frame/ficha/HojaDeCampos.h"

#include <QFrame>

namespace pastorix {

class Principal;

// The page of the causes of delayed pregnancy: a check box for each, and one of them the principal cause, whose description is built from it. The
// panel can be dragged about by its heading.
class PaginaCausas : public QFrame {
public:
    // The frame lends its pop-up that names the principal cause, and takes the panel when it is let go over it.
    PaginaCausas(HojaDeCampos& hoja, Principal& marco, QWidget* padre = nullptr);

    // The index that is stored: 0 none.
    int CausaPrincipal() const { return m_causa; }
    // Shows which one it is, by colour; the description stays as it is stored.
    void MostrarCausa(int indice);
    // Days from drying off to the first service: 0 and more stand out.
    void PonerAmamantamiento(std::optional<int> dias);
    void LimpiarLibre(); // before another record comes
    // The panel is let go at a point of its parent: it moves by as much as it was dragged.
    void Soltar(const QPoint& punto);

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void Definir(int indice);
    void OfrecerMenu(int indice, const QPoint& donde);
    void Arrastrar(const QPoint& desde);

    HojaDeCampos& m_hoja;
    Principal& m_marco;
    int m_causa = 0;
    int m_enFoco = 0; // the cause that the button would name
    QWidget* m_asidero = nullptr;
    QPoint m_asido; // where the panel was taken hold of
};

} // namespace pastorix
