#include "app/Ordenes.h"

#include "frame/AbrirSesion.h"
#include "frame/Aplicacion.h"
#include "frame/Arranque.h"
#include "frame/Ciclo.h"
#include "frame/Presentacion.h"
#include "frame/Principal.h"
#include "reports/motor/ControlInforme.h"
#include "reports/motor/LectorDeTablas.h"

#include <QApplication>

#include <memory>

using namespace pastorix;

namespace {

// What the session's windows are made of, in the order in which they come and in the reverse of the one in which they go.
struct Programa {
    Sesion sesion;
    std::unique_ptr<Principal> principal;
    LectorDeTablas tablas{sesion.conexion};
    ControlInforme informe{tablas};
    std::unique_ptr<AbrirSesion> entrada;
    std::unique_ptr<Presentacion> presentacion;

    void MostrarEntrada() {
        principal = std::make_unique<Principal>(sesion);
        VincularOrdenes(*principal, sesion, informe);
        QObject::connect(principal.get(), &Principal::Salida, qApp, &QApplication::quit);
        entrada = std::make_unique<AbrirSesion>(sesion, *principal);
        QObject::connect(entrada.get(), &AbrirSesion::Salida, qApp, &QApplication::quit);
        entrada->show();
    }
};

} // namespace

int main(int argc, char** argv) {
    QApplication aplicacion(argc, argv);
    PrepararAplicacion(aplicacion);
    Programa programa;
    programa.sesion.rutas = Rutas::Buscar();
    {
        CicloTardio ciclo(nullptr, QStringLiteral("Convirtiendo la base de datos..."));
        if (!Arrancar(programa.sesion, [&](int hecho, int total) { ciclo.Avance(hecho, total); }))
            return 1;
    }
    programa.presentacion =
        std::make_unique<Presentacion>(programa.sesion, [&] { programa.MostrarEntrada(); });
    programa.presentacion->show();
    return QApplication::exec();
}
