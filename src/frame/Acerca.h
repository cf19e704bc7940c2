#pragma once

#include "frame/Sesion.h"

#include <QDialog>

namespace pastorix {

// Name and version of the program.
class Acerca : public QDialog {
    Q_OBJECT

public:
    Acerca(const Sesion& sesion, QWidget* padre);
};

} // namespace pastorix
