#pragma once

#include "reports/figuras/Figuras.h"
#include "reports/formularios/FormularioDeInforme.h"

namespace pastorix {

class CampoAño;
class SelectorGanadero;

// What one report of a farmer and a year has of its own.
struct DefinicionAnual {
    const char* nombre; // of the form
    const char* titulo; // of the form
    const char* rotuloAño;
    const char* mensajeAño;
    bool añoPrimero; // the order of the two checks
    bool (*llenar)(Conexion&, const GanaderosYAño&, const AvanceDeInforme&);
    const char* nadaQueInformar; // box when the tables stay empty; nullptr where they never do
    const char* tituloVentana;
    const char* fichero;
    QStringList (*parametros)(const QString& año);
    bool conVeterinario;
};

// The form of the reports that ask for a farmer and a year and nothing else.
class InformeAnual : public FormularioDeInforme {
public:
    InformeAnual(const DefinicionAnual& definicion, Sesion& sesion, ControlInforme& control, QWidget* padre);

protected:
    bool Llenar(const FuncionAvance& avance) override;
    HojaDeInforme Hoja() const override;
    QStringList Sobre() const override;

private:
    const DefinicionAnual& m_definicion;
    SelectorGanadero* m_ganadero;
    CampoAño* m_año;
};

} // namespace pastorix
