#pragma once

#include <QApplication>

namespace pastorix {

// The wait cursor for as long as a report is made or written.
struct Espera {
    Espera() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Espera() { QApplication::restoreOverrideCursor(); }
    Espera(const Espera&) = delete;
    Espera& operator=(const Espera&) = delete;
};

} // namespace pastorix
