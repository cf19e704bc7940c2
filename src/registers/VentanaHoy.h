#pragma once

#include "frame/Sesion.h"
#include "registers/datos/QueSeHizo.h"

#include <QDialog>

#include <functional>

class QTableWidget;

namespace pastorix {

// What was done in this session, the latest first: each line opens its record, and can be put back as long as nobody changed it since.
class VentanaHoy : public QDialog {
public:
    explicit VentanaHoy(Sesion& sesion, QWidget* padre = nullptr);

    std::function<void(const Hecho&)> alAbrir;

private:
    void Llenar();
    void Abrir();
    void Deshacer();
    std::size_t Accion() const; // of the current line

    Sesion& m_sesion;
    QTableWidget* m_tabla;
    std::vector<Hecho> m_hechos; // by line
};

} // namespace pastorix
