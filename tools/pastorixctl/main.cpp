#include "pastorixctl/Ordenes.h"

#include "frame/Aplicacion.h"

#include <QApplication>

#include <cstdio>
#include <cstring>
#include <memory>

using namespace pastorix::ctl;

namespace {

struct Orden {
    const char* nombre;
    int (*hacer)(const QStringList&);
    const char* uso;
    const char* ayuda;
};

constexpr Orden kOrdenes[] = {
    {"crear", Crear, "crear CARPETA",
     "Crea en CARPETA las tres bases de datos vacías, con lo que necesita una instalación nueva, y los "
     "informes.\n"
     "No hay ningún usuario central; se da de alta con clave-central."},
    {"clave-central", ClaveCentral, "clave-central FICHERO USUARIO",
     "Da de alta en una base de datos un usuario central, o le cambia la contraseña. La contraseña se lee de "
     "la\n"
     "entrada estándar, en una línea."},
    {"ejemplo", Ejemplo, "ejemplo CARPETA",
     "Deja en CARPETA una instalación de ejemplo tal como se entrega: las tres bases de datos Access y los "
     "informes.\n"
     "El primer arranque sobre ella las convierte."},
    {"convertir", Convertir, "convertir ORIGEN DESTINO",
     "Convierte un fichero Access en una base de datos del programa y escribe la hoja de lo leído. DESTINO "
     "no puede existir."},
    {"verificar", Verificar, "verificar FICHERO...",
     "Comprueba que cada fichero es una base de datos del programa, íntegra y con sus tablas."},
    {"informe", Informe,
     "informe IndTecnicos --carpeta DIR --base personal|principal --ganadero N --año AAAA\n"
     "       [--hoy AAAA-MM-DD] [--pdf F] [--xlsx F] [--csv CARPETA]",
     "Arranca sobre la instalación DIR como el programa, entra en la base y saca el informe sin pantalla. "
     "Con\n"
     "Veterinarios o Ganaderos en lugar de IndTecnicos saca esos listados (sin --ganadero ni --año)."},
};

void Uso(FILE* salida, const Orden* orden) {
    if (orden) {
        std::fprintf(salida, "Uso: pastorixctl %s\n\n%s\n", orden->uso, orden->ayuda);
        return;
    }
    std::fputs("Uso: pastorixctl ORDEN ...   (pastorixctl ORDEN --help explica cada una)\n\n", salida);
    for (const auto& o : kOrdenes)
        std::fprintf(salida, "  %s\n", o.uso);
    std::fputs("\nTermina con 0 si se hizo, con 1 si no se pudo (el motivo va a la salida de errores), con 2 "
               "si la orden está "
               "mal escrita.\n",
               salida);
}

// Reports are laid out with the toolkit's fonts, though no window is ever opened; the other commands do without the toolkit, which
// takes longer to start than they take to run.
std::unique_ptr<QCoreApplication> CrearAplicacion(int& argc, char** argv) {
    if (argc < 2 || std::strcmp(argv[1], "informe") != 0)
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    auto aplicacion = std::make_unique<QApplication>(argc, argv);
    pastorix::PrepararAplicacion(*aplicacion);
    return aplicacion;
}

} // namespace

int main(int argc, char** argv) {
    const auto aplicacion = CrearAplicacion(argc, argv);
    auto argumentos = QCoreApplication::arguments().mid(1);
    const auto nombre = argumentos.isEmpty() ? QString() : argumentos.takeFirst();
    if (nombre == QLatin1String("--help") || nombre == QLatin1String("-h")) {
        Uso(stdout, nullptr);
        return 0;
    }
    for (const auto& o : kOrdenes) {
        if (nombre != QLatin1String(o.nombre))
            continue;
        if (argumentos.contains(QStringLiteral("--help"))) {
            Uso(stdout, &o);
            return 0;
        }
        try {
            return o.hacer(argumentos);
        } catch (const ErrorDeUso& e) {
            std::fprintf(stderr, "%s\n", e.what());
            Uso(stderr, &o);
            return 2;
        } catch (const std::exception& e) {
            std::fprintf(stderr, "%s\n", e.what());
            return 1;
        }
    }
    Uso(stderr, nullptr);
    return 2;
}
