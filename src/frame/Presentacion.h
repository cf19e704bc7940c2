#pragma once

#include "frame/Sesion.h"

#include <QWidget>

#include <functional>

class QTimer;

namespace pastorix {

// The splash form: the version for five seconds and nothing to press. Then it hides and what comes next is
// called, once. Whoever made it deletes it.
class Presentacion : public QWidget {
    Q_OBJECT

public:
    Presentacion(const Sesion& sesion, std::function<void()> siguiente);

protected:
    void showEvent(QShowEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;

private:
    void Terminar();

    std::function<void()> m_siguiente;
    QTimer* m_reloj;
};

} // namespace pastorix
