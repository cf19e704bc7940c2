#pragma once

#include "registers/explotacion/PaginaMateria.h"

#include <optional>
#include <string>

namespace pastorix {

// The production system, shown in the summary of all the farm's yearly figures: a line for each year of the reproductive period, worked out
// anew whenever the page comes up. Types of years without such a line are kept, unseen.
class PaginaSistema : public PaginaMateria {
public:
    explicit PaginaSistema(Conexion& base, QWidget* padre = nullptr);

protected:
    DatosMateria Leer() override;
    std::vector<Linea> PorGuardar() const override;
    void DespuesDeGuardar() override;
    void showEvent(QShowEvent* evento) override;

private:
    bool ComprobarAño(const Linea& linea);

    std::optional<std::string> m_quitado; // the year whose line was just removed
};

} // namespace pastorix
