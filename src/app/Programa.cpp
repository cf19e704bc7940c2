#include "app/Programa.h"

#include "app/Ordenes.h"

#include "frame/AbrirSesion.h"
#include "frame/Aplicacion.h"
#include "frame/Arranque.h"
#include "frame/Ayuda.h"
#include "frame/Ciclo.h"
#include "frame/LoConvertido.h"
#include "frame/MirarFichero.h"
#include "frame/Presentacion.h"
#include "frame/PrimerInicio.h"
#include "frame/Principal.h"
#include "reports/TablasDeInformes.h"
#include "reports/motor/ControlInforme.h"
#include "store/LocaleNumerico.h"

#include <QApplication>
#include <QFile>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace pastorix {

namespace {

// What the session's windows are made of, in the order in which they come and in the reverse of the one in which they go.
struct Programa {
    explicit Programa(bool conEntradaPrincipal)
        : entradaPrincipal(conEntradaPrincipal) {}

    bool entradaPrincipal;
    Sesion sesion;
    std::unique_ptr<Principal> principal;
    TablasDeInformes tablas{sesion.conexion};
    ControlInforme informe{tablas};
    std::unique_ptr<AbrirSesion> entrada;
    std::unique_ptr<Presentacion> presentacion;

    void MostrarEntrada() {
        principal = std::make_unique<Principal>(sesion);
        VincularOrdenes(*principal, sesion, informe);
        QObject::connect(principal.get(), &Principal::Salida, qApp, &QApplication::quit);
        entrada = std::make_unique<AbrirSesion>(sesion, *principal, entradaPrincipal);
        QObject::connect(entrada.get(), &AbrirSesion::Salida, qApp, &QApplication::quit);
        QObject::connect(entrada.get(), &AbrirSesion::Abierta, principal.get(),
                         [this] { MostrarLoConvertido(sesion, principal.get()); });
        entrada->show();
    }
};

} // namespace

namespace {

// --help and --version, for which no window and no display is needed.
bool Responde(int argc, char** argv) {
    const std::string programa = std::filesystem::path(argv[0]).stem().string();
    for (int i = 1; i < argc; ++i) {
        const std::string_view palabra = argv[i];
        if (palabra == "--version") {
            std::printf("%s %s\n", programa.c_str(), PASTORIX_VERSION);
            return true;
        }
        if (palabra == "--help" || palabra == "-h") {
            std::printf("Uso: %s [--help] [--version] [FICHERO]\n\n"
                        "Fichas, índices técnicos e informes de explotaciones de vacuno de carne.\n\n"
                        "  --help     escribe esta ayuda y termina\n"
                        "  --version  escribe la versión y termina\n"
                        "  FICHERO    una base de datos o un paquete de Pastorix: dice lo que contiene\n\n"
                        "Los datos están en la carpeta que diga la variable PASTORIX_HOME; sin ella, en la "
                        "del programa si tiene las bases\n"
                        "de datos, y si no en la carpeta de datos del usuario.\n",
                        programa.c_str());
            return true;
        }
    }
    return false;
}

} // namespace

int CorrerPrograma(int argc, char** argv, bool entradaPrincipal) {
    if (Responde(argc, argv))
        return 0;
    QApplication aplicacion(argc, argv);
    FijarLocaleNumerico();
    PrepararAplicacion(aplicacion);
    InstalarTeclaDeAyuda(aplicacion);
    if (argc > 1 && !MirarFichero(QFile::decodeName(argv[1])))
        return 0;
    Programa programa{entradaPrincipal};
    programa.sesion.rutas = Rutas::Buscar();
    {
        CicloTardio ciclo(nullptr, QStringLiteral("Convirtiendo la base de datos..."));
        const auto pedirBases = [](const Rutas& rutas) {
            return PrimerInicio(rutas, CarpetaCompartida()).exec() == QDialog::Accepted;
        };
        if (!Arrancar(
                programa.sesion, [&](int hecho, int total) { ciclo.Avance(hecho, total); }, pedirBases))
            return 1;
    }
    MostrarLoConvertido(programa.sesion, nullptr);
    programa.presentacion =
        std::make_unique<Presentacion>(programa.sesion, [&] { programa.MostrarEntrada(); });
    programa.presentacion->show();
    return QApplication::exec();
}

} // namespace pastorix
