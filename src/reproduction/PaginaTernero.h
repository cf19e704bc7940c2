#pragma once

#include "frame/ficha/HojaDeCampos.h"
#include "reproduction/datos/EnlaceCebo.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace pastorix {

// The page of one calf on the sheet of its calving. The sheet says which row it shows and when it is written; sending a calf to fattening, or taking
// it back, is done at once.
class PaginaTernero : public QWidget {
public:
    // `ternero`: 0 the first, 1 the second.
    PaginaTernero(Conexion& c, int ternero, QWidget* padre = nullptr);

    void Mostrar(Recordset& rs, const TerneroDeParto& claves); // throws ErrorAlmacen
    void Limpiar();
    void Escribir(Recordset& rs) const { m_hoja->Escribir(rs); }
    bool Cambiada() const { return m_hoja->Cambiada(); }
    void DarPorGuardado(const CicloDeVaca& parto); // which the save may have moved to another year or parity

    // The calf as it stands on the page; its keys and the date of calving are the sheet's.
    TerneroDeParto Ternero() const;
    // The date of the calving as the sheet has it. A new one leaves the weaning figures behind, which the page then says.
    void FijarFechaDeParto(std::optional<Fecha> fecha, bool cambiada);
    // Works the weaning figures out from what stands on the page.
    void Repasar(); // remarks on what cannot be
    void Calcular();
    void PonerCuartos(const QString& texto);
    // Puts back what sending to fattening, or taking back, changed since the row was read. Throws ErrorAlmacen.
    void DeshacerCebo();
    // What accepting the page would change in the fattening record.
    void RevisarCebo();

    std::function<void(const QString&)> alCambiarCuartos; // typed here
    std::function<void()> alPedirCebo;                    // its sheet is to be opened
    std::function<void()> alElegirOrigen;
    std::function<void()> alBuscarToro;
    HojaDeCampos& Hoja() const { return *m_hoja; }

private:
    QWidget* CrearDestete();
    void Conectar();
    void AlDecidir(QComboBox& combo);
    void DecidirDestino();
    bool EsCebo() const;
    void PonerBoton();

    Conexion& m_c;
    const int m_ternero;
    HojaDeCampos* m_hoja;
    QPushButton* m_fichaCebo = nullptr; // B_FichaCebo, B_FichaCeboT2
    QPushButton* m_recalcular = nullptr;
    QLabel* m_avisoDestete = nullptr;
    QLabel* m_avisoCebo = nullptr;
    TerneroDeParto m_claves;
    bool m_teniaCebo = false; // when the row was read
    CeboRetirado m_retirado;  // the record as it was withdrawn here
};

} // namespace pastorix
