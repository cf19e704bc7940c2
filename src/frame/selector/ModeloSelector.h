#pragma once

#include "store/Recordset.h"

#include <QAbstractTableModel>

#include <memory>
#include <string>
#include <vector>

namespace pastorix {

// The open recordset as a read-only table, all of it or those rows that hold a text. Cells are read when the view asks for them; what is kept
// beside the recordset's own rows are flags, and once somebody searches, the rows as they are searched for.
class ModeloSelector : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit ModeloSelector(std::vector<std::string> titulos, QObject* padre = nullptr);
    ~ModeloSelector() override;

    // Records whose key is among these (ascending) are told apart as having left. Holds for the lists that are put from then on.
    void FijarBajas(std::string clave, std::vector<double> claves);
    // Takes the list's new rows in place of the former ones.
    void Poner(std::unique_ptr<Recordset> lista);
    // Rows that hold every word of the text in some shown column, whatever its case and accents; with "" all.
    void Buscar(const QString& texto);
    const QString& Buscado() const { return m_buscado; }
    int Bajas() const;     // shown rows of those who have left
    bool HayBajas() const; // whatever is searched for
    // Row of a key, -1 when it is not shown.
    int FilaDe(std::string_view clave, double codigo) const;
    const Recordset& Lista() const { return *m_lista; }

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int papel) const override;
    // No caption is painted: the headings stand above the filter boxes. Screen readers get them. Those who have left have a word before their row.
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;

    // The recordset with the given row current.
    Recordset& EnFila(int fila) const;

private:
    QString Texto(const QModelIndex& indice) const;
    Recordset& Ir(int registro) const;
    int Registro(int fila) const {
        return m_buscado.isEmpty() ? fila : m_hallados[static_cast<std::size_t>(fila)];
    }
    bool DeBaja(int fila) const {
        return !m_deBaja.empty() && m_deBaja[static_cast<std::size_t>(Registro(fila))];
    }
    void MarcarBajas();
    void PrepararBusqueda();
    void Hallar();

    std::vector<std::string> m_titulos;
    std::unique_ptr<Recordset> m_lista;
    mutable int m_actual = 0; // record on which the recordset stands
    std::string m_clave;
    std::vector<double> m_claves; // of those who have left
    std::vector<bool> m_deBaja;   // by record; empty when nobody has left
    QString m_buscado;
    std::vector<std::u32string> m_palabras; // records as they are searched for
    std::vector<int> m_hallados;            // records that hold what is searched for
};

} // namespace pastorix
