#pragma once

#include "frame/ficha/Ficha.h"
#include "registers/datos/LineasSanidad.h"
#include "registers/vacas/OrdenesDeVaca.h"

#include <array>
#include <optional>

class QLabel;
class QTabWidget;
class QVBoxLayout;

namespace pastorix {

class EncabezadoGanadero;
class FranjaSituacion;
class PaginaCiclos;
class PaginaMamitis;
class PaginaSanidad;

// The sheet of cows: identity, cycles, health and removal. Farmer, code, name and tag stand above the tabs and stay in sight on all of them.
class Vacas : public Ficha {
public:
    Vacas(Sesion& sesion, const OrdenesDeVaca& ordenes, QWidget* padre = nullptr);

    // Opens with a new cow of that farmer begun.
    void AbrirParaAñadir(double idGanadero);
    // The cow as other sheets see her while this one is open.
    VacaEnMano EnMano() const;

protected:
    std::vector<PaginaPendiente> Pendientes() override;
    bool PermiteAñadir() override;
    bool PermiteModificar() override { return CodigoIntacto(); }
    bool PermiteEliminar() override;
    void AlDejar(QWidget& campo) override;
    std::string CodigoPropuesto() override;
    void AlAñadir() override;
    void LimpiarPropios() override;
    void MostrarPropios(Recordset& rs) override;
    void NoEncontrado(double clave) override;
    bool Recoger() override;
    bool ComprobarMinimos() override;
    bool Comprobar() override;
    void EscribirPropios(Recordset& rs) override;
    void EscribirHijos(double codigo) override;
    void DespuesDeGuardar(double clave) override;
    QString PreguntaEliminar() const override;
    void Borrar(double clave) override;
    void DespuesDeBorrar() override;
    void BuscarDato(int icono) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void Construir();
    QWidget* CrearCabecera();
    QWidget* CrearGeneral();
    void ConectarCiclos(const OrdenesDeVaca& ordenes);
    void ConectarTeclas();
    void AlCambiarDePestaña(int indice);
    void MostrarPaginas();
    void VaciarPaginas();
    void AlCambiarCiclos();
    void ElegirGanadero();
    void ElegirVaca();
    void ElegirPadre();
    void ElegirMadre();
    void ComponerNombre();
    void AbrirObservaciones();
    void MostrarSituacion();
    void PasarAVecina(int paso);

    // Ear tag as a way to a cow.
    void BuscarPorCrotal();
    void Hojear(int paso);
    void IrAVaca(double idVaca);
    bool SoloElCrotalCambio() const;

    QTabWidget* m_tab;
    EncabezadoGanadero* m_ganadero = nullptr;
    FranjaSituacion* m_situacion = nullptr;
    PaginaCiclos* m_partos = nullptr;
    PaginaCiclos* m_cubriciones = nullptr;
    PaginaMamitis* m_mamitis = nullptr;
    std::array<PaginaSanidad*, 3> m_sanidad{}; // C.C., IBR/BVD, Neospora: each saves itself
    VacaEnHoja m_mostrada;                     // the cow that they show
    std::optional<Fecha> m_fechaBaja;          // as stored
    std::optional<double> m_ganaderoLeido;     // her farmer in the database
    QString m_crotal;                          // her tag as it was read
    QString m_nombre;                          // the name that Nombre-C was last composed of
};

} // namespace pastorix
