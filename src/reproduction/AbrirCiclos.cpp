#include "reproduction/AbrirCiclos.h"

#include "frame/Mensajes.h"
#include "frame/Principal.h"
#include "reproduction/AltaDeCiclo.h"
#include "reproduction/Cubriciones.h"
#include "reproduction/Partos.h"

namespace pastorix {

namespace {

using Abrir = void (*)(Principal&, QWidget*, const VacaEnMano&, const CicloDeVaca&);

void Añadir(const DefinicionAlta& definicion, Abrir abrir, Principal& marco, QWidget* padre,
            const VacaEnMano& vaca, const PropuestaDeCiclo& propuesta) {
    try {
        AltaDeCiclo dialogo(marco.LaSesion().conexion, definicion, vaca.idVaca, propuesta, padre);
        if (dialogo.exec() == QDialog::Accepted)
            abrir(marco, padre, vaca, dialogo.Ciclo());
    } catch (const std::exception& e) {
        AvisarError(padre, e);
    }
}

} // namespace

void AbrirCubricion(Principal& marco, QWidget* padre, const VacaEnMano& vaca, const CicloDeVaca& ciclo) {
    Cubriciones hoja(marco, vaca, ciclo, padre);
    if (hoja.CargarCubricion())
        hoja.exec();
}

void AbrirParto(Principal& marco, QWidget* padre, const VacaEnMano& vaca, const CicloDeVaca& ciclo) {
    Partos hoja(marco, vaca, ciclo, padre);
    if (hoja.CargarParto())
        hoja.exec();
}

void AñadirCubricion(Principal& marco, QWidget* padre, const VacaEnMano& vaca,
                     const PropuestaDeCiclo& propuesta) {
    Añadir(kAltaCubricion, AbrirCubricion, marco, padre, vaca, propuesta);
}

void AñadirParto(Principal& marco, QWidget* padre, const VacaEnMano& vaca,
                 const PropuestaDeCiclo& propuesta) {
    Añadir(kAltaParto, AbrirParto, marco, padre, vaca, propuesta);
}

} // namespace pastorix
