#pragma once

#include <QWidget>

#include <string>
#include <vector>

class QLabel;
class QLineEdit;
class QTableView;

namespace pastorix {

// The strip above the list: over each shown column its heading Et_Estandar(i) and its filter box CTexto(i). It follows the widths of
// the columns and the horizontal scroll of the list.
class FranjaFiltros : public QWidget {
    Q_OBJECT

public:
    // tipos[i] is the type code of the column under titulos[i]; a box over a type that cannot be filtered is disabled.
    FranjaFiltros(const std::vector<std::string>& titulos, const std::vector<int>& tipos, QTableView* lista,
                  QWidget* padre);

    // The texts of all boxes in column order.
    std::vector<std::string> Textos() const;
    // The box to begin with: the first over a text, or the first that is enabled; null if there is none.
    QLineEdit* PrimeraDeTexto() const;
    const std::vector<QLineEdit*>& Cajas() const { return m_cajas; }
    // Width in pixels that a heading needs.
    int AnchoDeTitulo(int columna) const;

Q_SIGNALS:
    void Filtrar(); // Enter in a box
    void Bajar();   // the down key in a box

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    void CrearCaja(int columna, const QString& titulo, int tipo);
    void Colocar();
    void DejarVer(int columna);

    QTableView* m_lista;
    QWidget* m_ventana; // as wide as the list's viewport, so that boxes scrolled out are cut off
    std::vector<QLabel*> m_titulos;
    std::vector<QLineEdit*> m_cajas;
};

} // namespace pastorix
