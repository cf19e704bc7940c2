#pragma once

#include "reports/motor/Pagina.h"

#include <QListView>

namespace pastorix {

// The pages of a report in small, to go from one to another. Pictures are drawn when they come in sight.
class Miniaturas : public QListView {
    Q_OBJECT
public:
    // The pages must outlive the list.
    explicit Miniaturas(const Paginas& paginas, QWidget* padre = nullptr);

    void Marcar(int pagina);

Q_SIGNALS:
    void Elegida(int pagina);

protected:
    void currentChanged(const QModelIndex& actual, const QModelIndex& anterior) override;

private:
    bool m_marcando = false;
};

} // namespace pastorix
