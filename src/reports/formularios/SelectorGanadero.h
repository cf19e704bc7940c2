#pragma once

#include "reports/formularios/ComboGanaderos.h"

#include <QObject>

#include <functional>

class QFormLayout;
class QListWidget;

namespace pastorix {

// The picker of veterinarian and farmer: active farmers, those of one veterinarian when he is chosen, of whom one at a time is checked.
class SelectorGanadero : public QObject, public EleccionDeGanadero {
public:
    // Its controls belong to the form and stand in its field rows. Throws ErrorAlmacen.
    SelectorGanadero(Conexion& c, QFormLayout& campos, QWidget* formulario);

    // Checks him and scrolls to him.
    bool Elegir(double idGanadero) override;
    double Elegido() const override;
    std::vector<double> Marcados() const;
    const std::vector<GanaderoOfrecido>& Ofrecidos() const override { return m_ofrecidos; }
    // Told whenever the checked farmer may be another one, or none.
    std::function<void()> alCambiar;

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void LlenarVeterinarios();
    void LlenarGanaderos();
    void DejarUnoSolo(int fila);

    Conexion& m_conexion;
    QComboBox* m_veterinario;                 // Cd_Veterinario
    std::vector<double> m_lst_Id_Veterinario; // same index
    QListWidget* m_lstGanadero;
    std::vector<GanaderoOfrecido> m_ofrecidos; // same index: lst_Id_Ganadero
};

} // namespace pastorix
