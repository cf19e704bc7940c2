#include "reports/ListadoMaestro.h"

#include "frame/Mensajes.h"
#include "reports/motor/ControlInforme.h"
#include "reports/motor/ErrorInforme.h"

namespace pastorix {

void ListadoMaestro(int tipo, Sesion& sesion, ControlInforme& control, QWidget* padre) {
    if (tipo != 1 && tipo != 2)
        return;
    const bool veterinarios = tipo == 1;
    const auto avisar = [&](long numero, const char* texto) {
        Avisar(padre, TipoMensaje::Atencion, QStringLiteral("Atención..."),
               QString::number(numero) + QStringLiteral(" ... ") + QString::fromUtf8(texto));
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
        avisar(e.Numero(), e.what());
    } catch (const ErrorAlmacen& e) {
        avisar(e.Numero(), e.what());
    }
}

} // namespace pastorix
