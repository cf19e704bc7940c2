#pragma once

#include "frame/ficha/Ficha.h"
#include "registers/OrdenesDeGanadero.h"
#include "registers/explotacion/DatosExplotacion.h"

#include <array>
#include <vector>

class QComboBox;
class QLabel;
class QPushButton;
class QTabWidget;

namespace pastorix {

class PaginaCebo;

// The sheet of farmers: identity and address on its first tab; the farm's data on the others.
class Ganaderos : public Ficha {
public:
    explicit Ganaderos(Sesion& sesion, OrdenesDeGanadero ordenes = {}, QWidget* padre = nullptr);

protected:
    std::vector<PaginaPendiente> Pendientes() override;
    void LimpiarPropios() override;
    void MostrarPropios(Recordset& rs) override;
    void Completar() override;
    bool Comprobar() override;
    void EscribirPropios(Recordset& rs) override;
    void EscribirHijos(double codigo) override;
    void DespuesDeGuardar(double clave) override;
    QString PreguntaEliminar() const override;
    void Borrar(double clave) override;
    void DespuesDeBorrar() override;
    void BuscarDato(int icono) override;

private:
    QWidget* CrearGeneral();
    void PonerPestañas();
    void LlenarVeterinarios();
    void RefrescarEncabezado();
    void CrearCebo();
    QWidget* CrearIPR();
    void AbrirFichaIPR();
    void AbrirDarBaja();
    void MostrarMotivoBaja();

    OrdenesDeGanadero m_ordenes;
    DatosExplotacion m_datos;
    PaginaCebo* m_cebo;
    QTabWidget* m_tab; // TabGanaderos
    QLabel* m_encabezado;
    QComboBox* m_veterinarios = nullptr;   // CD_Veterinarios
    std::vector<double> m_idsVeterinarios; // same index
    QComboBox* m_torosComun = nullptr;     // Combo1
    QPushButton* m_fichaIPR;               // B_FichaIPR
    std::array<QPushButton*, 2> m_bajas{}; // removal, and its reason
    QString m_motivoBaja;
    double m_idDireccion = 0; // of the address that the save at hand writes
};

} // namespace pastorix
