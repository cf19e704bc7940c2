#pragma once

#include "store/Recordset.h"

#include <QAbstractTableModel>

#include <memory>
#include <string>
#include <vector>

namespace pastorix {

// The open recordset as a read-only table. Cells are read when the view asks for them; nothing is kept but the recordset's own rows.
class ModeloSelector : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit ModeloSelector(std::vector<std::string> titulos, QObject* padre = nullptr);
    ~ModeloSelector() override;

    // Takes the list's new rows in place of the former ones.
    void Poner(std::unique_ptr<Recordset> lista);
    const Recordset& Lista() const { return *m_lista; }

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int papel) const override;
    // No caption is painted: the headings stand above the filter boxes. Screen readers get them.
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;

    // The recordset with the given row current.
    Recordset& EnFila(int fila) const;

private:
    QString Texto(const QModelIndex& indice) const;

    std::vector<std::string> m_titulos;
    std::unique_ptr<Recordset> m_lista;
    mutable int m_actual = 0;
};

} // namespace pastorix
