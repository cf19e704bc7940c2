#pragma once

#include "registers/datos/CiclosDeVaca.h"
#include "store/Fecha.h"

#include <QTableWidget>

#include <functional>
#include <optional>

namespace pastorix {

// The dates offered for the start of a cow's reproduction (GridFechaIPR), shown on demand below their icon. A double click or Enter chooses one, Escape
// leaves it; the list is then gone.
class ListaFechasIPR : public QTableWidget {
public:
    ListaFechasIPR(Conexion& c, QWidget& icono);

    void Mostrar(const CicloDeVaca& ciclo, double idGanadero, std::optional<Fecha> primeraFecha);

    std::function<void(const QString& fecha, bool calcular)> alElegir; // `calcular`: by double click

protected:
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void Elegir(bool calcular);

    Conexion& m_c;
    QWidget& m_icono;
};

} // namespace pastorix
