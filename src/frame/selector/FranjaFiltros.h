#pragma once

#include <QWidget>

#include <string>
#include <vector>

class QLabel;
class QLineEdit;
class QTableView;

namespace pastorix {

// The strip above the list: over each shown column its heading Et_Estandar(i) and its filter box CTexto(i). It follows the widths of
// the columns and the horizontal scroll of the list. A heading that is clicked, or Ctrl+O in its box, asks for the list by that column.
class FranjaFiltros : public QWidget {
    Q_OBJECT

public:
    // tipos[i] is the type code of the column under titulos[i]; a box over a type that cannot be filtered is disabled.
    FranjaFiltros(const std::vector<std::string>& titulos, const std::vector<int>& tipos, QTableView* lista,
                  QWidget* padre);

    // The texts of all boxes in column order.
    std::vector<std::string> Textos() const;
    // From now on the list can be sorted.
    void PermitirOrden();
    // Tells by which column it is, with an arrow: upwards, downwards, or by none (-1).
    void MostrarOrden(int columna, bool descendente);
    const std::vector<QLineEdit*>& Cajas() const { return m_cajas; }
    // Width in pixels that a heading needs.
    int AnchoDeTitulo(int columna) const;

Q_SIGNALS:
    void Filtrar(); // Enter in a box
    void Bajar();   // the down key in a box
    void Ordenar(int columna);

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    void CrearCaja(int columna, const QString& titulo, int tipo);
    void Colocar();
    void DejarVer(int columna);

    QTableView* m_lista;
    QWidget* m_ventana; // as wide as the list's viewport, so that boxes scrolled out are cut off
    bool m_ordenable = false;
    std::vector<QLabel*> m_titulos;
    std::vector<QLineEdit*> m_cajas;
};

} // namespace pastorix
