#pragma once

#include <QWidget>

#include <array>

class QPushButton;

namespace pastorix {

// The six standard commands of a sheet and their state machine.
class BarraFicha : public QWidget {
public:
#ifndef Q_MOC_RUN // Qt's moc stops at enumerators with an ñ, in whatever header it meets them
    enum Boton { Añadir, Modificar, Eliminar, Guardar, Cancelar, Cerrar };
#endif

    // Object names may differ from sheet to sheet (B_Borrar, B_CerrarGeneral).
    explicit BarraFicha(QWidget* padre = nullptr);
    QPushButton* operator[](Boton boton) const {
        return m_botones[boton];
    }

    // 0 nothing on screen, 1 adding, 2 modifying, 3 and 4 no change, 5 cancelled (as 0), 6 a record on screen.
    void EstadoBotones(int estado);

private:
    std::array<QPushButton*, 6> m_botones{};
};

} // namespace pastorix
