#pragma once

#include "frame/campos/Lineas.h"
#include "frame/ficha/Ficha.h"

#include <QStringList>

#include <array>
#include <optional>
#include <vector>

class QPushButton;
class QTabWidget;

namespace pastorix {

class EncabezadoGanadero;
class RejillaPatologia;

// The sheet of bulls: identity, descent and genetic merit on its first tab, the yearly health records on the second, the removal on
// the third; the farmer, the code and the names stand above them all.
class Sementales : public Ficha {
public:
    explicit Sementales(Sesion& sesion, QWidget* padre = nullptr);

protected:
    std::vector<PaginaPendiente> Pendientes() override;
    bool PermiteAñadir() override;
    std::string CodigoPropuesto() override;
    void AlAñadir() override;
    void LimpiarPropios() override;
    void MostrarPropios(Recordset& rs) override;
    bool Recoger() override;
    bool ComprobarMinimos() override;
    void AlDejar(QWidget& campo) override;
    void DespuesDeBorrar() override;
    void EscribirPropios(Recordset& rs) override;
    void EscribirHijos(double codigo) override;
    void DespuesDeGuardar(double clave) override;
    QString PreguntaEliminar() const override;
    void Borrar(double clave) override;
    void NoEncontrado(double clave) override;
    void BuscarDato(int icono) override;

private:
    // SementalesPestanas.cpp: the window
    QWidget* CrearEncabezado();
    QWidget* CrearGeneral();
    QWidget* CrearPatologias();
    QWidget* CrearObservaciones(QWidget* padre);
    void OrdenarTabulador();
    void Conectar();

    // The heading and what follows from it
    void MostrarGanadero(std::optional<double> idGanadero);
    void Renombrar(); // the compound name follows name and class

    // SementalesBusqueda.cpp: the five search icons
    void CargarElegido(int icono);
    void ElegirGanaderoPropietario();
    void ElegirPadre();
    void ElegirMadre();

    // SementalesPatologias.cpp: the health tab
    void PermitirSanidad(bool si);
    void MostrarSanidad();
    void VaciarSanidad();
    bool TerminarCeldas(); // false when what stood in an open one was refused
    bool GuardarPendientes();
    bool SanidadPendiente() const;
    void LlenarVacunas();
    void GuardarRejilla(RejillaPatologia& rejilla);
    void GuardarPato();
    void CancelarPato();
    void TerminarObservaciones(const std::string& texto);
    void MostrarCausa(const std::exception& error);

    QTabWidget* m_tab; // TabSementales
    EncabezadoGanadero* m_ganadero = nullptr;
    std::array<RejillaPatologia*, 2> m_rejillas{};
    std::array<QPushButton*, 2> m_botonesPato{};
    std::array<bool, 2> m_porGuardar{}; // the last save of a grid failed
    double m_deQuien = 0;               // the bull whose lines stand in the grids
    QString m_nombre;                   // the name that the compound one was last made of
    std::optional<double> m_ganaderoLeido;
    std::string m_errorDeNombre; // why the save at hand could not carry the name on
};

} // namespace pastorix
