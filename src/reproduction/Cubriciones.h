#pragma once

#include "frame/Sesion.h"
#include "frame/ficha/HojaDeCampos.h"
#include "registers/datos/VacaEnMano.h"
#include "reproduction/datos/DatosDeCiclo.h"

#include <QDialog>

class QLabel;

namespace pastorix {

class EncabezadoVaca;
class ListaFechasIPR;
class PaginaCausas;
class PaginaServicios;
class Principal;
class TiraNavegacion;

// The sheet of a mating record: one cycle of a cow, from the calving that opened it to the one that closed it. It is always in editing and has no
// save of its own: the record is written when the sheet or its page is left, when the date of calving is, and with every service. It
// stays bound to the cow that it was opened from.
class Cubriciones : public QDialog {
public:
    Cubriciones(Principal& marco, const VacaEnMano& vaca, const CicloDeVaca& ciclo, QWidget* padre = nullptr);
    ~Cubriciones() override;

    // GuardarCubricion and CargarCubricion: the record of the working key. False after their box.
    bool GuardarCubricion();
    bool CargarCubricion();

    const CicloDeVaca& Ciclo() const { return m_ciclo; }
    void reject() override; // Cerrar, Escape and the window's cross: all save

protected:
    void dragEnterEvent(QDragEnterEvent* evento) override; // of the panel of causes
    void dropEvent(QDropEvent* evento) override;

private:
    QWidget* CrearGeneral();
    QWidget* CrearCausas();
    QLayout* CrearPie();
    void Conectar();
    Conexion& Base() const { return m_sesion.conexion; }

    void EscribirRegistro();
    void ResolverParidad(); // asks when the parity was overtyped
    std::optional<int> ParidadEscrita() const;
    bool Salir(); // what is in progress is resolved and saved, or given up as the user says; false to stay

    DatosDeCiclo Datos() const;
    void PonerFechas(const DatosDeCiclo& d);
    void PonerIPR_CP(const DatosDeCiclo& d);
    void PonerIEPc(const DatosDeCiclo& d);
    void Repasar(); // remarks on what cannot be
    void AlDejar(QWidget& campo);
    void AlDecidir(QComboBox& combo);
    void MostrarOtras(); // header, remarks, what other tables say

    void CambiarServicios();
    void ElegirFechaIPR(const QString& fecha, bool calcular);
    void Pasar(int paso);
    void IrAPartos();

    Principal& m_marco;
    Sesion& m_sesion;
    const VacaEnMano m_vaca;
    CicloDeVaca m_ciclo; // the working key
    HojaDeCampos* m_hoja;
    EncabezadoVaca* m_encabezado = nullptr;
    TiraNavegacion* m_tira = nullptr;
    PaginaServicios* m_servicios = nullptr;
    PaginaCausas* m_causas = nullptr;
    QLabel* m_causaPpal = nullptr; // ET_Estandar(27)
    QLabel* m_avisos = nullptr;
    ListaFechasIPR* m_fechasIPR = nullptr;
    bool m_cargando = false;
    bool m_serviciosPorGuardar = false; // their last rewrite failed
};

} // namespace pastorix
