#pragma once

#include <QWidget>

#include <array>

class QLabel;
class QPushButton;

namespace pastorix {

// What a sheet is doing. It decides which commands are on, and not the other way round.
#ifndef Q_MOC_RUN // Qt's moc stops at enumerators with an ñ, in whatever header it meets them
enum class ModoFicha { Vacia, Añadiendo, Modificando, Mostrando };
#endif

// The six standard commands of a sheet, and a place for what the sheet has to tell between them.
class BarraFicha : public QWidget {
public:
#ifndef Q_MOC_RUN
    enum Boton { Añadir, Modificar, Eliminar, Guardar, Cancelar, Cerrar };
#endif

    // Object names may differ from sheet to sheet (B_Borrar, B_CerrarGeneral).
    explicit BarraFicha(QWidget* padre = nullptr);
    QPushButton* operator[](Boton boton) const {
        return m_botones[boton];
    }

    void Poner(ModoFicha modo);
    // A word in passing ("Guardado 10:42"); screen readers hear it too.
    void Decir(const QString& texto);

private:
    std::array<QPushButton*, 6> m_botones{};
    QLabel* m_estado;
};

} // namespace pastorix
