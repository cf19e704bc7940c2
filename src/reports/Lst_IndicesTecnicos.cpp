#include "reports/Lst_IndicesTecnicos.h"

#include "reports/indices/IndicesTecnicosTablas.h"
#include "reports/motor/ControlInforme.h"

namespace pastorix {

Lst_IndicesTecnicos::Lst_IndicesTecnicos(Sesion& sesion, ControlInforme& control, QWidget* padre)
    : FormularioDeInforme(sesion, control, QStringLiteral("Índices Técnicos"), padre) {
    setObjectName(QStringLiteral("Lst_IndicesTecnicos"));
}

bool Lst_IndicesTecnicos::Validar() {
    if (Año().size() != 4) {
        Informar(QStringLiteral("Indique el Año de Referencia"));
        return false;
    }
    if (GanaderosMarcados().empty()) {
        Informar(QStringLiteral("Debe seleccionar algún Ganadero"));
        return false;
    }
    return true;
}

void Lst_IndicesTecnicos::Llenar(const FuncionAvance& avance) {
    LlenarIndicesTecnicos(Base(), GanaderosMarcados(), Año().toStdString(), avance);
}

void Lst_IndicesTecnicos::Lanzar(ControlInforme& control) {
    control.Reiniciar();
    control.EstadoVentana = 2;
    control.Bandera125 = true;
    control.TituloVentana = QStringLiteral(" Índices Técnicos");
    control.FicheroInforme = Carpetas().Informe(QStringLiteral("IndTecnicos.rpt"));
    control.FormulaSeleccion.clear();
    control.Action(1);
}

} // namespace pastorix
