#include "app/Ordenes.h"

#include "exchange/Exportar.h"
#include "exchange/Historial.h"
#include "exchange/ImportarDC.h"
#include "exchange/PasoGanaderos.h"
#include "exchange/ServidorDS.h"
#include "exchange/TorosComunes.h"
#include "frame/Atajos.h"
#include "frame/Mensajes.h"
#include "frame/Principal.h"
#include "frame/calendario/Reloj.h"
#include "registers/Ganaderos.h"
#include "registers/PanelRecientes.h"
#include "registers/VentanaHoy.h"
#include "registers/Veterinarios.h"
#include "registers/sementales/Sementales.h"
#include "registers/vacas/Vacas.h"
#include "reports/CatalogoDeInformes.h"
#include "reports/ListadoMaestro.h"
#include "reports/figuras/Explicaciones.h"
#include "reports/formularios/FormularioDeInforme.h"
#include "reports/motor/ControlInforme.h"
#include "reproduction/AbrirCiclos.h"
#include "reproduction/Cebo.h"
#include "reproduction/FichaIPR.h"
#include "reproduction/PanelAvisos.h"

#include <QDialog>
#include <QVBoxLayout>

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
        AvisarFallo(&principal, QStringLiteral("Atención"), e);
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

// The sheet of a record; nothing for what has none.
QDialog* FichaDeHecho(Principal& principal, Sesion& sesion, const Hecho& hecho) {
    const auto con = [&](auto* ficha) -> QDialog* {
        ficha->CargarFicha(hecho.id);
        return ficha;
    };
    switch (hecho.ficha) {
    case FichaDe::Vaca:
        return con(new Vacas(sesion, OrdenesDeCiclos(principal), &principal));
    case FichaDe::Toro:
        return con(new Sementales(sesion, &principal));
    case FichaDe::Ganadero:
        return con(new Ganaderos(sesion, OrdenesDeCebo(sesion), &principal));
    case FichaDe::Veterinario:
        return con(new Veterinarios(sesion, &principal));
    case FichaDe::Ninguna:
        break;
    }
    return nullptr;
}

// Ctrl+H lists what was done in this session, and puts it back.
void PonerHoy(Principal& principal, Sesion& sesion) {
    if (!sesion.diario)
        sesion.diario = std::make_unique<Diario>(sesion.conexion, Ahora);
    PonerAtajo(principal, Qt::CTRL | Qt::Key_H, QStringLiteral("Lo hecho en esta sesión, y deshacerlo"), [&] {
        Abrir(principal, [&] {
            auto* hoy = new VentanaHoy(sesion, &principal);
            hoy->alAbrir = [&](const Hecho& hecho) {
                if (hecho.ficha != FichaDe::Ninguna)
                    Abrir(principal, [&] { return FichaDeHecho(principal, sesion, hecho); });
            };
            return hoy;
        });
    });
}

// The exchange has one pair of forms for the centre and one for the stations; who has not entered has none.
void VincularIntercambio(Principal& principal, Sesion& sesion) {
    const auto segunModo = [&](const char* orden, auto enCentral, auto enEstacion) {
        principal.Vincular(QString::fromUtf8(orden), [&principal, &sesion, enCentral, enEstacion] {
            if (sesion.ModoSesion == "CENTRAL")
                Abrir(principal, enCentral);
            else if (sesion.ModoSesion == "VETERINARIO")
                Abrir(principal, enEstacion);
        });
    };
    segunModo(
        "Mnu_Exportar", [&]() -> QDialog* { return new Exportar(sesion, &principal); },
        [&]() -> QDialog* { return new ExportarDS(sesion, &principal); });
    segunModo(
        "Mnu_Importar", [&]() -> QDialog* { return new ImportarDC(sesion, &principal); },
        [&]() -> QDialog* { return new ImportarDS(sesion, &principal); });
    const auto formulario = [&](const char* orden, auto hacer) {
        principal.Vincular(QString::fromUtf8(orden), [&principal, hacer] { Abrir(principal, hacer); });
    };
    formulario("Mnu_ExpTD", [&]() -> QDialog* { return new Exp_TC(sesion, &principal); });
    formulario("Mnu_ImpTD", [&]() -> QDialog* { return new Imp_TC(sesion, &principal); });
    formulario("MnuT1", [&]() -> QDialog* {
        return new PasoGanaderos(sesion, QStringLiteral(" Paso a Pastorix"), &principal);
    });
    formulario("MnuT2", [&]() -> QDialog* {
        return new PasoGanaderos(sesion, QStringLiteral(" Paso a Pastorix Personal"), &principal);
    });
    formulario("Mnu_BorrarBackup", [&]() -> QDialog* { return new Historial(sesion, &principal); });
    principal.Vincular(QStringLiteral("Mnu_Compactar"), [&] { CompactarEnSesion(sesion, &principal); });
}

// The day's work lies on the ground of the main window; F9 puts it away and brings it back.
void PonerAvisos(Principal& principal, Sesion& sesion, ControlInforme& informe) {
    auto* fondo = principal.centralWidget();
    auto* avisos = new PanelAvisos(sesion, fondo);
    avisos->alAbrir = [&principal, &sesion](double idVaca) {
        Abrir(principal, [&] { return FichaDeHecho(principal, sesion, {FichaDe::Vaca, idVaca, {}}); });
    };
    avisos->alImprimir = [&principal, &sesion, &informe, avisos](const QString& deQuien) {
        try {
            EscribirAvisos(sesion.conexion, avisos->Avisos());
            informe.Reiniciar();
            informe.CampoParametro(0, QStringLiteral("De;") + deQuien + QStringLiteral(";TRUE"));
            informe.TituloVentana = QStringLiteral(" Avisos");
            informe.FicheroInforme = sesion.rutas.Informe(QStringLiteral("Avisos.rpt"));
            informe.FormulaSeleccion.clear();
            informe.Action(1);
        } catch (const std::exception& e) {
            AvisarError(&principal, e);
        }
    };
    PonerAtajo(principal, Qt::CTRL | Qt::Key_P, QStringLiteral("Imprimir los avisos"), [avisos] {
        if (avisos->isVisible())
            avisos->alImprimir(avisos->DeQuien());
    });
    auto* recientes = new PanelRecientes(sesion, fondo);
    recientes->alAbrir = [&principal, &sesion](const Hecho& hecho) {
        Abrir(principal, [&] { return FichaDeHecho(principal, sesion, hecho); });
    };
    auto* sitio = new QVBoxLayout(fondo);
    sitio->setContentsMargins(24, 24, 24, 24);
    sitio->addWidget(recientes);
    sitio->addWidget(avisos, 1);
    sitio->addStretch();
    QObject::connect(&principal, &Principal::Activada, recientes, &PanelRecientes::Refrescar);
    PonerAtajo(principal, Qt::Key_F9, QStringLiteral("Mostrar u ocultar los avisos"),
               [avisos] { avisos->Cerrar(!avisos->Cerrado()); });
    QObject::connect(&principal, &Principal::Activada, avisos, &PanelAvisos::Refrescar);
}

} // namespace

void VincularOrdenes(Principal& principal, Sesion& sesion, ControlInforme& informe) {
    principal.Vincular(QStringLiteral("MnuPpal"), [] {}); // the mating sheet acts on it itself
    const auto listado = [&](int tipo) {
        return [&, tipo] { ListadoMaestro(tipo, sesion, informe, &principal); };
    };
    principal.Vincular(QStringLiteral("Menu_Herr(1)"), listado(1));
    principal.Vincular(QStringLiteral("Menu_Herr(2)"), listado(2));
    informe.Preguntas.explicar = [&](const QString& clave) {
        return ExplicarFigura(sesion.conexion, clave.toStdString());
    };
    informe.Preguntas.abrirVaca = [&](QWidget* sobre, double vaca) {
        Vacas ficha(sesion, OrdenesDeCiclos(principal), sobre);
        ficha.AbrirCon(vaca);
        ficha.exec();
    };
    const auto formulario = [&](const char* orden, const std::function<QDialog*()>& hacer) {
        principal.Vincular(QString::fromUtf8(orden), [&principal, hacer] { Abrir(principal, hacer); });
    };
    formulario("Mnu_Veterinarios", [&] { return new Veterinarios(sesion, &principal); });
    formulario("Mnu_Ganaderos", [&] { return new Ganaderos(sesion, OrdenesDeCebo(sesion), &principal); });
    formulario("Mnu_Vacas", [&] { return new Vacas(sesion, OrdenesDeCiclos(principal), &principal); });
    formulario("Mnu_Sementales", [&] { return new Sementales(sesion, &principal); });
    // No menu entry leads to the sheet of the reproductive period.
    PonerAtajo(principal, Qt::CTRL | Qt::Key_I, QStringLiteral("Ficha I.P.R."),
               [&] { Abrir(principal, [&] { return new FichaIPR(sesion, {}, &principal); }); });
    for (const auto& e : CatalogoDeInformes())
        formulario(e.orden, [&, crear = e.crear] { return crear(sesion, informe, &principal); });
    VincularIntercambio(principal, sesion);
    PonerAvisos(principal, sesion, informe);
    PonerHoy(principal, sesion);
}

} // namespace pastorix
