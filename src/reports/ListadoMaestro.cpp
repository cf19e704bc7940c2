#include "reports/ListadoMaestro.h"

#include "frame/Mensajes.h"
#include "reports/motor/ControlInforme.h"
#include "reports/motor/ErrorInforme.h"

namespace pastorix {

void ListadoMaestro(int tipo, Sesion& sesion, ControlInforme& control, QWidget* padre) {
    if (tipo != 1 && tipo != 2)
        return;
    const bool veterinarios = tipo == 1;
    const auto avisar = [&](const auto& error) {
        AvisarFallo(padre, QStringLiteral("Atención..."), error.Numero(), error);
    };
    try {
        control.Reiniciar();
        control.FormulaSeleccion.clear();
        control.TituloVentana = veterinarios ? QStringLiteral(" Veterinarios") : QStringLiteral(" Ganaderos");
        control.FicheroInforme = sesion.rutas.Informe(veterinarios ? QStringLiteral("Veterinarios.rpt")
                                                                   : QStringLiteral("Ganaderos.rpt"));
        control.Destino = 0;
        control.Action(1);
    } catch (const ErrorInforme& e) {
        avisar(e);
    } catch (const ErrorAlmacen& e) {
        avisar(e);
    }
}

} // namespace pastorix
