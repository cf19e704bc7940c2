#pragma once

#include "registers/explotacion/PaginaMateria.h"

namespace pastorix {

// The production system, shown in the summary of all the farm's yearly figures: a line for each year of the reproductive period, worked out
// anew whenever the page comes up. Types of years without such a line are kept, unseen.
class PaginaSistema : public PaginaMateria {
public:
    explicit PaginaSistema(Conexion& base, QWidget* padre = nullptr);

protected:
    DatosMateria Leer() override;
    void DespuesDeGuardar() override;
    void showEvent(QShowEvent* evento) override;

private:
    bool ComprobarAño(const Linea& linea);
};

} // namespace pastorix
