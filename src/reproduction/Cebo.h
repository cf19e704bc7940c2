#pragma once

#include "frame/Sesion.h"
#include "frame/ficha/BarraFicha.h"
#include "frame/ficha/HojaDeCampos.h"
#include "reproduction/datos/EnlaceCebo.h"

#include <QDialog>

#include <optional>

class QLabel;

namespace pastorix {

// The sheet of a fattened animal: a calf of the farm, linked to its calving, or one that was bought. Its key is the farmer and a number within his
// animals, which is given at the first save and never shown as a code.
class Cebo : public QDialog {
public:
    // `idCebo`: the record to be shown; without one an addition begins at once. `ternero`: the calf that the sheet was opened from.
    Cebo(Sesion& sesion, double idGanadero, std::optional<double> idCebo,
         std::optional<TerneroDeParto> ternero, QWidget* padre = nullptr);

    void Añadir();
    void Modificar();
    void Guardar();
    void Cancelar();
    void reject() override;

    std::optional<double> Id() const { return m_idCebo; }

private:
    void Construir();
    void Conectar();
    void PonerModo(ModoFicha modo);
    bool Editando() const { return m_modo != ModoFicha::Mostrando && m_modo != ModoFicha::Vacia; }
    void Mostrar();
    void Calcular();
    void AlElegirOrigen();
    bool DevuelveAlParto() const;
    void Escribir(QStringList& conservados);
    void RevisarParto(); // what saving would change in the calving
    Conexion& Base() const { return m_sesion.conexion; }

    Sesion& m_sesion;
    const double m_idGanadero;
    std::optional<double> m_idCebo;
    const std::optional<TerneroDeParto> m_ternero;
    HojaDeCampos* m_hoja;
    BarraFicha* m_barra;
    QLabel* m_avisoParto;
    ModoFicha m_modo = ModoFicha::Vacia;
    bool m_fallo = false; // the last save failed: what is on screen stands nowhere else
};

} // namespace pastorix
