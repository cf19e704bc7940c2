#pragma once

#include "reports/formularios/FormularioDeInforme.h"

class QCheckBox;
class QLabel;
class QListWidget;

namespace pastorix {

class SelectorGanadero;

// The main indices of a farmer, the years that are checked side by side.
class Lst_ResumenIT : public FormularioDeInforme {
public:
    Lst_ResumenIT(Sesion& sesion, ControlInforme& control, QWidget* padre = nullptr);

protected:
    bool Llenar(const FuncionAvance& avance) override;
    HojaDeInforme Hoja() const override;
    QStringList Sobre() const override;

private:
    void CargarAños();
    void MarcarTodos(bool marcados);
    bool MarcarAños(const QString& lista); // "todos", or years with commas between
    std::vector<int> AñosMarcados() const;

    SelectorGanadero* m_ganadero;
    QLabel* m_rotulo; // whose years they are
    QListWidget* m_listaAños;
    QCheckBox* m_check1;
};

} // namespace pastorix
