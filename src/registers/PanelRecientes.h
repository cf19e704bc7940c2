#pragma once

#include "frame/Sesion.h"
#include "registers/datos/QueSeHizo.h"

#include <QFrame>

#include <functional>

class QHBoxLayout;

namespace pastorix {

// The farmers and cows that the user had on screen last in this database, as buttons in one line that open them again. Those that are gone since
// are left out.
class PanelRecientes : public QFrame {
public:
    explicit PanelRecientes(Sesion& sesion, QWidget* padre = nullptr);

    void Refrescar();

    std::function<void(const Hecho&)> alAbrir;

private:
    void Poner(FichaDe ficha, const char* columnaClave, const char* nombre);

    Sesion& m_sesion;
    QHBoxLayout* m_fila;
};

} // namespace pastorix
