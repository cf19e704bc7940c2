#pragma once

#include "registers/datos/VacaEnMano.h"

#include <QWidget>

#include <vector>

class QLabel;

namespace pastorix {

// The heading of a sheet about a cow's cycle: whose she is and which one, when she came and when she left, and what else the sheet tells there.
class EncabezadoVaca : public QWidget {
public:
    // One entry: a control's name, and the caption before it ("" for none).
    struct Dato {
        QString control;
        QString rotulo;
    };
    explicit EncabezadoVaca(const std::vector<Dato>& datos, QWidget* padre = nullptr);

    void Poner(std::size_t dato, const QString& texto);
    // The first four entries: farmer, locality, compound name, ear tag. Throws ErrorAlmacen.
    void PonerVaca(Conexion& c, const VacaEnMano& vaca);

private:
    std::vector<QLabel*> m_rotulos;
    std::vector<QLabel*> m_valores;
};

// A date of the cow by the mask, or what stands in her field when that is no date.
QString FechaDeVaca(const std::optional<Fecha>& fecha, const std::string& texto, const char* mascara);

} // namespace pastorix
