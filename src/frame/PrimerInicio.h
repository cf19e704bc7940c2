#pragma once

#include "frame/Rutas.h"

#include <QDialog>

class QVBoxLayout;

namespace pastorix {

// The first start where no databases lie: four ways to go on. It is accepted once the three databases lie beside the program.
class PrimerInicio : public QDialog {
public:
    // `compartida` holds what a package brings: the example and the manual.
    PrimerInicio(const Rutas& rutas, const QString& compartida, QWidget* padre = nullptr);

private:
    void Ofrecer(QVBoxLayout& columna, const char* nombre, const QString& titulo, const QString& explica,
                 void (PrimerInicio::*camino)());
    void Ejemplo();
    void Vacias();
    void Carpeta();
    void Manual();
    // Makes the program's folder and has the databases put there; a failure is told, and the choice stands again.
    template <typename F>
    void Entregar(F&& poner);

    QString m_programa;
    QString m_compartida;
};

} // namespace pastorix
