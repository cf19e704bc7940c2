// The cow's sheet: the ear tag as a way to a cow. Enter looks a whole tag up, up and down go through the cows whose tags end alike. Typing a
// tag begins a modification like any typing; as long as nothing else was touched it may still be meant as a search.
#include "registers/vacas/Vacas.h"

#include "frame/Mensajes.h"
#include "registers/EncabezadoGanadero.h"
#include "registers/datos/Crotales.h"
#include "registers/sanidad/PaginaMamitis.h"
#include "registers/vacas/CamposDeVaca.h"

#include <QKeyEvent>

namespace pastorix {

using namespace campo_vaca;

bool Vacas::SoloElCrotalCambio() const {
    return Modo() == ModoFicha::Modificando && !Hoja().Cambiada(Crotal) &&
           m_ganadero->Id() == m_ganaderoLeido && !m_mamitis->Pendiente();
}

void Vacas::IrAVaca(double idVaca) {
    const bool sinEdicion = !Editando() || SoloElCrotalCambio();
    if (sinEdicion ? idVaca != Clave() && !PermiteDejar() : !PermiteCargarOtro())
        return;
    if (CargarFicha(idVaca))
        Campo(Crotal).selectAll();
}

void Vacas::BuscarPorCrotal() {
    if (const auto vaca = VacaDeCrotal(Base(), TextoStd(Crotal)))
        IrAVaca(*vaca);
    else
        Avisar(this, TipoMensaje::Informacion, QStringLiteral("Información"),
               QStringLiteral("Crotal no encontrado"));
}

void Vacas::Hojear(int paso) {
    if (Texto(Crotal).size() < kCrotalMinimo)
        return;
    if (const auto vaca = VecinaPorCrotal(Base(), TextoStd(Crotal), Clave(), paso))
        IrAVaca(*vaca);
}

bool Vacas::eventFilter(QObject* objeto, QEvent* evento) {
    // A cow that is being added has a new tag, which is nobody's yet.
    if (evento->type() == QEvent::KeyPress && objeto == &Campo(Crotal) && Modo() != ModoFicha::Añadiendo) {
        const int tecla = static_cast<QKeyEvent&>(*evento).key();
        // Her own tag, or none, asks for nothing: Enter moves on.
        const bool intro = (tecla == Qt::Key_Return || tecla == Qt::Key_Enter) && !Texto(Crotal).isEmpty() &&
                           Texto(Crotal) != m_crotal;
        if (intro || tecla == Qt::Key_Up || tecla == Qt::Key_Down) {
            try {
                intro ? BuscarPorCrotal() : Hojear(tecla == Qt::Key_Up ? -1 : 1);
            } catch (const ErrorAlmacen& e) {
                MostrarError(e);
            }
            return true;
        }
    }
    return QDialog::eventFilter(objeto, evento);
}

} // namespace pastorix
