#pragma once

#include "reports/motor/Pagina.h"

#include <QListView>

#include <functional>

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
    void resizeEvent(QResizeEvent* evento) override;
    void currentChanged(const QModelIndex& actual, const QModelIndex& anterior) override;

private:
    std::function<void(int)> m_alCambiarDeAncho; // pages are as wide as the panel allows
    bool m_marcando = false;
};

} // namespace pastorix
