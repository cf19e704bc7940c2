#include "app/Ordenes.h"

#include "frame/Principal.h"
#include "reports/ListadoMaestro.h"
#include "reports/Lst_IndicesTecnicos.h"

namespace pastorix {

namespace {

// A report form belongs to the frame, which is out of reach while the form is open; it goes when it is closed.
template <typename Formulario>
void Abrir(Principal& principal, Sesion& sesion, ControlInforme& informe) {
    auto* f = new Formulario(sesion, informe, &principal);
    f->setAttribute(Qt::WA_DeleteOnClose);
    f->show();
}

} // namespace

void VincularOrdenes(Principal& principal, Sesion& sesion, ControlInforme& informe) {
    const auto listado = [&](int tipo) {
        return [&, tipo] { ListadoMaestro(tipo, sesion, informe, &principal); };
    };
    principal.Vincular(QStringLiteral("Menu_Herr(1)"), listado(1));
    principal.Vincular(QStringLiteral("Menu_Herr(2)"), listado(2));
    principal.Vincular(QStringLiteral("Mnu_IndicesTecnicos"),
                       [&] { Abrir<Lst_IndicesTecnicos>(principal, sesion, informe); });
}

} // namespace pastorix
