#include "app/Ordenes.h"

#include "frame/Mensajes.h"
#include "frame/Principal.h"
#include "registers/Ganaderos.h"
#include "registers/Veterinarios.h"
#include "registers/sementales/Sementales.h"
#include "registers/vacas/Vacas.h"
#include "reports/ListadoMaestro.h"
#include "reports/Lst_IndicesTecnicos.h"
#include "reproduction/AbrirCiclos.h"
#include "reproduction/Cebo.h"
#include "reproduction/FichaIPR.h"

#include <QDialog>
#include <QShortcut>

#include <functional>

namespace pastorix {

namespace {

// A form belongs to the frame, which is out of reach while the form is open; it goes when it is closed. What cannot be opened (the
// database fails) is told.
template <typename Hacer>
void Abrir(Principal& principal, Hacer hacer) {
    try {
        QDialog* f = hacer();
        f->setAttribute(Qt::WA_DeleteOnClose);
        f->show();
    } catch (const ErrorAlmacen& e) {
        Avisar(&principal, TipoMensaje::Atencion, QStringLiteral("Atención"), QString::fromUtf8(e.what()));
    }
}

// What the cow's sheet asks of the sheets of her cycles.
OrdenesDeVaca OrdenesDeCiclos(Principal& principal) {
    return {
        [&](QWidget* w, const VacaEnMano& v, const CicloDeVaca& c) { AbrirCubricion(principal, w, v, c); },
        [&](QWidget* w, const VacaEnMano& v, const CicloDeVaca& c) { AbrirParto(principal, w, v, c); },
        [&](QWidget* w, const VacaEnMano& v) { AñadirCubricion(principal, w, v); },
        [&](QWidget* w, const VacaEnMano& v) { AñadirParto(principal, w, v); }};
}

// What the farmer's sheet asks of the sheets of his animals in fattening and of his start of reproduction.
OrdenesDeGanadero OrdenesDeCebo(Sesion& sesion) {
    return {[&](QWidget* w, double ganadero, std::optional<double> cebo) {
                Cebo(sesion, ganadero, cebo, {}, w).exec();
            },
            [&](QWidget* w, double ganadero) { FichaIPR(sesion, ganadero, w).exec(); }};
}

} // namespace

void VincularOrdenes(Principal& principal, Sesion& sesion, ControlInforme& informe) {
    principal.Vincular(QStringLiteral("MnuPpal"), [] {}); // the mating sheet acts on it itself
    const auto listado = [&](int tipo) {
        return [&, tipo] { ListadoMaestro(tipo, sesion, informe, &principal); };
    };
    principal.Vincular(QStringLiteral("Menu_Herr(1)"), listado(1));
    principal.Vincular(QStringLiteral("Menu_Herr(2)"), listado(2));
    const auto formulario = [&](const char* orden, std::function<QDialog*()> hacer) {
        principal.Vincular(QString::fromUtf8(orden), [&principal, hacer] { Abrir(principal, hacer); });
    };
    formulario("Mnu_Veterinarios", [&] { return new Veterinarios(sesion, &principal); });
    formulario("Mnu_Ganaderos", [&] { return new Ganaderos(sesion, OrdenesDeCebo(sesion), &principal); });
    formulario("Mnu_Vacas", [&] { return new Vacas(sesion, OrdenesDeCiclos(principal), &principal); });
    formulario("Mnu_Sementales", [&] { return new Sementales(sesion, &principal); });
    // No menu entry leads to the sheet of the reproductive period.
    QObject::connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_I), &principal), &QShortcut::activated,
                     &principal,
                     [&] { Abrir(principal, [&] { return new FichaIPR(sesion, {}, &principal); }); });
    formulario("Mnu_IndicesTecnicos", [&] { return new Lst_IndicesTecnicos(sesion, informe, &principal); });
}

} // namespace pastorix
