#pragma once

#include "reports/motor/Pagina.h"

#include <QTreeWidget>

namespace pastorix {

// The groups of a report beside its pages: choosing one goes to where it begins.
class IndiceDePaginas : public QTreeWidget {
    Q_OBJECT
public:
    explicit IndiceDePaginas(const std::vector<Paginas::Entrada>& indice, QWidget* padre = nullptr);

    // The last group that has begun on that page becomes the current one.
    void Marcar(int pagina);

Q_SIGNALS:
    void Elegida(int pagina);

private:
    std::vector<QTreeWidgetItem*> m_entradas; // in the order of the pages
    bool m_marcando = false;
};

} // namespace pastorix
