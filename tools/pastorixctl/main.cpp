#include "pastorixctl/Ordenes.h"

#include "frame/Aplicacion.h"
#include "frame/Mensajes.h"
#include "store/LocaleNumerico.h"

#include <QApplication>

#include <algorithm>
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
    bool conVentanas = false; // runs the code of forms
};

constexpr Orden kOrdenes[] = {
    {"crear", Crear, "crear CARPETA",
     "Crea en CARPETA las tres bases de datos vacías, con lo que necesita una instalación nueva.\n"
     "No hay ningún usuario central; se da de alta con clave-central."},
    {"clave-central", ClaveCentral, "clave-central FICHERO USUARIO",
     "Da de alta en una base de datos un usuario central, o le cambia la contraseña. La contraseña se lee de "
     "la\n"
     "entrada estándar, en una línea."},
    {"ejemplo", Ejemplo, "ejemplo CARPETA",
     "Deja en CARPETA una instalación de ejemplo tal como se entrega: las tres bases de datos Access.\n"
     "El primer arranque sobre ella las convierte."},
    {"diseños", Disenos, "diseños CARPETA",
     "Escribe en CARPETA los diseños de los informes que lleva el programa. Un diseño cambiado vale cuando "
     "está "
     "en la\n"
     "carpeta Informes de la instalación; los que no se cambian es mejor que no estén en ella."},
    {"convertir", Convertir, "convertir ORIGEN DESTINO",
     "Convierte un fichero Access en una base de datos del programa y escribe la hoja de lo leído. DESTINO "
     "no puede existir."},
    {"verificar", Verificar, "verificar FICHERO...",
     "Comprueba que cada fichero es una base de datos del programa, íntegra y con sus tablas."},
    {"informe", Informe,
     "informe NOMBRE --carpeta DIR --base personal|principal [opciones del informe]\n"
     "       [--hoy AAAA-MM-DD] [--pdf F] [--xlsx F] [--csv CARPETA]\n"
     "  informe --lista",
     "Arranca sobre la instalación DIR como el programa, entra en la base y saca el informe sin pantalla.\n"
     "--lista nombra los informes y las opciones de cada uno. Las opciones valen también como --x=y, y "
     "--anyo\n"
     "como --año. Con --ganadero todos sale un fichero por ganadero, y F es la carpeta donde quedan; los\n"
     "ganaderos de los que no hay informe se nombran y se pasan por alto, y la orden termina con 1.",
     true},
    {"exportar", OrdenExportar, "exportar --carpeta DIR --usuario U --destino CARPETA",
     "La central prepara el fichero de un veterinario; con --usuario todos, el de cada uno.", true},
    {"importar", OrdenImportar,
     "importar --carpeta DIR --usuario U --origen CARPETA [--simular] [--codigo N --acceso LOGIN --ganaderos "
     "VIEJO:NUEVO,...]",
     "La central toma el fichero de un veterinario. --simular solo dice qué cambiaría. Con el usuario "
     "VETERINARIO "
     "se une uno\n"
     "nuevo, que recibe código, acceso y los códigos de sus ganaderos; los que no se nombran quedan fuera.",
     true},
    {"enviar", OrdenEnviar, "enviar --carpeta DIR [--usuario U] --destino CARPETA",
     "Una estación deja en CARPETA su base de datos entera para la central.", true},
    {"recibir", OrdenRecibir, "recibir --carpeta DIR [--usuario U] --origen CARPETA [--simular]",
     "Una estación pone en el lugar de su base de datos el fichero que le preparó la central.", true},
    {"exportar-toros", OrdenExportarToros, "exportar-toros --carpeta DIR --destino CARPETA",
     "La central deja en CARPETA los toros de inseminación, xToros.mdb.", true},
    {"importar-toros", OrdenImportarToros,
     "importar-toros --carpeta DIR --origen CARPETA --base principal|personal [--simular]",
     "Toma los toros de inseminación de xToros.mdb.", true},
    {"pasar", OrdenPasar, "pasar --carpeta DIR --base principal|personal --ganadero N",
     "Copia un ganadero de baja de esa base de datos a la otra.", true},
    {"historial", OrdenHistorial, "historial --carpeta DIR --base principal|personal [--vaciar]",
     "Escribe el historial de transacciones; con --vaciar lo guarda en un texto y lo vacía.", true},
    {"compactar", OrdenCompactar, "compactar --carpeta DIR --base principal|personal",
     "Quita de una base de datos el sitio de lo borrado; como estaba queda en BackUp.", true},
    {"restaurar", OrdenRestaurar, "restaurar --carpeta DIR --base principal|personal --copia FICHERO",
     "Pone una copia de seguridad en el lugar de una base de datos, que queda como una copia más.", true},
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
               "mal escrita.\nLas órdenes del intercambio toman --hoy AAAA-MM-DD, y a las preguntas "
               "contestan lo que no cambia nada, salvo con "
               "--si.\nCon --detalle sale tras el motivo lo que solo le sirve a un técnico.\n",
               salida);
}

// Reports are laid out with the toolkit's fonts and the routes are gone through the forms, though no window is ever opened; the other
// commands do without the toolkit, which takes longer to start than they take to run.
std::unique_ptr<QCoreApplication> CrearAplicacion(int& argc, char** argv) {
    const auto* orden = std::find_if(std::begin(kOrdenes), std::end(kOrdenes), [&](const Orden& o) {
        return argc > 1 && std::strcmp(argv[1], o.nombre) == 0;
    });
    if (orden == std::end(kOrdenes) || !orden->conVentanas)
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    auto aplicacion = std::make_unique<QApplication>(argc, argv);
    pastorix::PrepararAplicacion(*aplicacion);
    return aplicacion;
}

} // namespace

int main(int argc, char** argv) {
    const auto aplicacion = CrearAplicacion(argc, argv);
    pastorix::FijarLocaleNumerico();
    auto argumentos = QCoreApplication::arguments().mid(1);
    conDetalle = argumentos.removeAll(QStringLiteral("--detalle")) > 0;
    const auto nombre = argumentos.isEmpty() ? QString() : argumentos.takeFirst();
    if (nombre == QLatin1String("--version")) {
        std::printf("pastorixctl %s\n", PASTORIX_VERSION);
        return 0;
    }
    if (nombre == QLatin1String("--help") || nombre == QLatin1String("-h") ||
        (nombre == QLatin1String("help") && argumentos.isEmpty())) {
        Uso(stdout, nullptr);
        return 0;
    }
    if (nombre == QLatin1String("help"))
        argumentos = {argumentos.first(), QStringLiteral("--help")};
    const auto pedida = nombre == QLatin1String("help") ? argumentos.takeFirst() : nombre;
    for (const auto& o : kOrdenes) {
        if (pedida != QString::fromUtf8(o.nombre))
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
            if (const auto detalle = pastorix::DetalleDe(e); conDetalle && !detalle.isEmpty())
                std::fprintf(stderr, "%s\n", qPrintable(detalle));
            return 1;
        }
    }
    Uso(stderr, nullptr);
    return 2;
}
