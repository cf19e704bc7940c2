#pragma once

#include "store/Conexion.h"

#include <QWidget>

#include <functional>
#include <optional>

class QLabel;
class QPushButton;

namespace pastorix {

class RejillaHijos;

// The farmer's tab of fattened animals: their list, which opens the sheet of each, and the button that adds one.
class PaginaCebo : public QWidget {
public:
    explicit PaginaCebo(Conexion& c, QWidget* padre = nullptr);

    // Read when it comes into sight. 0 for nobody. Failures of the store are told in a box.
    void FijarGanadero(double idGanadero);

    std::function<void(std::optional<double> idCebo)>
        alAbrir; // an animal's sheet, or without one that of a new animal

protected:
    void showEvent(QShowEvent* evento) override;

private:
    void Leer();
    void Abrir(std::optional<double> idCebo);

    Conexion& m_c;
    RejillaHijos* m_rejilla; // GridCebo
    QPushButton* m_añadir;   // B_AñadirCebo
    QLabel* m_resumen;
    double m_idGanadero = 0;
};

} // namespace pastorix
