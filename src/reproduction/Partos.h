#pragma once

#include "frame/Sesion.h"
#include "frame/ficha/HojaDeCampos.h"
#include "registers/datos/VacaEnMano.h"

#include <QDialog>

#include <array>
#include <vector>

class QLabel;
class QTabWidget;

namespace pastorix {

class EncabezadoVaca;
class PaginaTernero;
class Principal;

// The sheet of a calving: a page for the calving as a whole and one for each calf. Twins are two rows; what the first page tells goes to both. It is
// written when it is accepted, when another calving comes, and before the fattening record of a calf opens.
class Partos : public QDialog {
public:
    Partos(Principal& marco, const VacaEnMano& vaca, const CicloDeVaca& ciclo, QWidget* padre = nullptr);

    // Finds the rows of the working key and shows them. False after its box.
    bool CargarParto();
    // The sheet to its rows, without the check of the date. False after its box.
    bool GuardarParto();

    const CicloDeVaca& Ciclo() const { return m_ciclo; }
    void reject() override; // Escape and the window's cross: unsaved changes are asked about

private:
    QWidget* CrearGeneral();
    QLayout* CrearPie();
    void Conectar(int ternero);
    Conexion& Base() const { return m_sesion.conexion; }

    void MostrarFilas();
    void EscribirFilas();
    void ResolverClave(); // asks when year and parity were overtyped with another calving's
    void PonerPestañas(bool gemelar);
    CicloDeVaca CicloEscrito() const;

    bool ExigirFecha(); // "Debe indicar la fecha de parto"
    bool Cambiada() const;
    void Asentar(); // what is being typed counts as left
    void Aceptar();
    void Pasar(int paso);
    void IrACubriciones();
    void AbrirCebo(int ternero);
    void BuscarToro(int ternero);

    void AlDejarFecha();
    void Repasar(); // remarks on what cannot be, or will not stay
    void AlDecidirGemelar();
    void CrearSegundo();
    void QuitarSegundo();

    Principal& m_marco;
    Sesion& m_sesion;
    const VacaEnMano m_vaca;
    CicloDeVaca m_ciclo;         // the working key
    std::vector<double> m_filas; // Id_Parto(1), Id_Parto(2), and any that the sheet has no page for
    HojaDeCampos* m_hoja;
    EncabezadoVaca* m_encabezado;
    QTabWidget* m_tab; // TabGeneral
    std::array<PaginaTernero*, 2> m_terneros{};
    QLabel* m_avisos;
    QString m_gemelar; // as it was before the list was left
};

} // namespace pastorix
