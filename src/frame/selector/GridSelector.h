#pragma once

#include <QTableView>

namespace pastorix {

// The list itself: whole rows, read-only, always with a current cell. Its header is a thin edge by which columns are widened.
class GridSelector : public QTableView {
    Q_OBJECT

public:
    explicit GridSelector(QWidget* padre = nullptr);

    void setModel(QAbstractItemModel* modelo) override;

Q_SIGNALS:
    void Elegida(int fila);             // Enter or double click
    void Escrito(const QString& letra); // a character typed in the list
    void ArribaDelTodo();               // the up key on the first row, or in an empty list

protected:
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void PonerFilaActual();
};

} // namespace pastorix
