#include "exchange/ServidorDS.h"

#include "exchange/datos/BasesEnteras.h"
#include "exchange/datos/Historial.h"
#include "frame/Mensajes.h"
#include "frame/calendario/Reloj.h"
#include "store/Apertura.h"
#include "store/Catalogo.h"
#include "store/Esquema.h"
#include "store/Ficheros.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QStorageInfo>

namespace pastorix {

namespace fs = std::filesystem;

namespace {

const auto kSinBase = QStringLiteral("SIN BASE DE DATOS: salga del programa y vuelva a entrar");

} // namespace

FormularioDS::FormularioDS(Sesion& sesion, const QString& titulo, const QString& fallo, const QString& nombre,
                           QWidget* padre)
    : FormularioDeRuta(sesion, titulo, fallo, "Ct_E(0)", padre)
    , m_nombre(new QLineEdit(nombre, this)) {
    m_nombre->setObjectName(QStringLiteral("Ct_E(1)"));
    auto* campos = new QFormLayout;
    campos->addRow(QStringLiteral("&Nombre:"), m_nombre);
    Cuerpo()->addLayout(campos);
    connect(m_nombre, &QLineEdit::textChanged, this, &FormularioDS::RecomputarRuta);
}

void FormularioDS::PonerNombre(const QString& nombre) {
    m_nombre->setText(nombre);
}

QString FormularioDS::NombreSinExtension() const {
    return m_nombre->text();
}

QWidget* FormularioDS::Primero() const {
    return m_nombre;
}

bool FormularioDS::Terminar() {
    QuitarOcupado();
    QuitarVolando();
    Avisar(this, TipoMensaje::Informacion, QStringLiteral("Información"),
           QStringLiteral("Proceso Finalizado con éxito"));
    accept();
    return true;
}

ExportarDS::ExportarDS(Sesion& sesion, QWidget* padre)
    : FormularioDS(
          sesion, QStringLiteral("Exportar Datos al Servidor"), QStringLiteral("Exportación Fallida"),
          sesion.UsuarioSesion.empty() ? QStringLiteral("VETERINARIO") : Texto(sesion.UsuarioSesion), padre) {
    setObjectName(QStringLiteral("ExportarDS"));
    TerminarConstruccion(Primero());
}

bool ExportarDS::Aceptar() {
    auto& sesion = LaSesion();
    const auto base = Camino(Texto(sesion.conexion.Fichero()));
    const auto destino = Camino(Fichero());
    std::error_code error;
    if (!fs::is_regular_file(base, error)) {
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"),
               QStringLiteral("No existe el fichero de Exportación: \r\n\r\n") + Texto(TextoDeRuta(base)));
        return false;
    }
    try {
        ExigirBaseDeLaSesion(sesion);
        ExigirNombreDeFichero(TextoDeRuta(destino.stem()));
        if (MismoFichero(destino, base))
            throw ErrorDeIntercambio("El fichero de destino es la propia base de datos: " +
                                     TextoDeRuta(destino));
        const auto hueco = fs::space(CarpetaDe(destino), error);
        if (!error && hueco.available < fs::file_size(base))
            throw ErrorDeIntercambio("En el disco de destino no cabe la base de datos: " +
                                     TextoDeRuta(destino));
        PonerOcupado();
        EscribirHistorial(sesion.conexion, sesion.UsuarioSesion, Ahora(), "Exportar Datos al Servidor");
        sesion.conexion.Cerrar();
        MostrarVolando(QStringLiteral("Exportación de Datos"),
                       QStringLiteral("Exportando datos para el Servidor"));
        Correr([&](const Progreso&) {
            EnviarBase(base, destino, [](int) {});
            return 0;
        });
        AbrirConexion(sesion);
    } catch (const std::exception& e) {
        if (ElVolando())
            ElVolando()->hide();
        Fallar(e);
        if (!sesion.conexion.Abierta())
            MostrarPeligro(kSinBase);
        return false;
    }
    return Terminar();
}

ImportarDS::ImportarDS(Sesion& sesion, QWidget* padre)
    : FormularioDS(sesion, QStringLiteral("Importar Datos del Servidor"),
                   QStringLiteral("Importación Fallida"), Texto(sesion.UsuarioSesion), padre) {
    setObjectName(QStringLiteral("ImportarDS"));
    AñadirQueVaACambiar([this] { return Existe(); }, [this] { return Simular(); });
    TerminarConstruccion(Primero());
}

fs::path ImportarDS::Etapa() const {
    return Temporal(QStringLiteral("xImportarDS.mdb"));
}

bool ImportarDS::Existe() {
    const auto origen = Camino(Fichero());
    std::error_code error;
    if (fs::is_regular_file(origen, error))
        return true;
    Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"),
           QStringLiteral("No existe el fichero de Importación: \r\n\r\n") + Texto(TextoDeRuta(origen)));
    return false;
}

Comparacion ImportarDS::Comparar() {
    ExigirBaseDeLaSesion(LaSesion());
    const auto base = Camino(Texto(LaSesion().conexion.Fichero()));
    const auto origen = Camino(Fichero());
    const auto etapa = Etapa();
    if (MismoFichero(origen, base) || MismoFichero(origen, etapa))
        throw ErrorDeIntercambio("El fichero de origen es del propio programa: " + TextoDeRuta(origen));
    return Correr([&](const Progreso&) {
        Conexion paquete;
        AbrirPaquete(paquete, origen, etapa, kClave);
        if (!paquete.Esquema().Buscar("T_Vacas"))
            throw ErrorDeIntercambio("El fichero no es una base de datos de ganaderos: " +
                                     TextoDeRuta(origen));
        auto aqui = AbrirParaLeer(base);
        return CompararReemplazo(aqui, paquete);
    });
}

Comparacion ImportarDS::Simular() {
    const FicheroTemporal fin(Etapa());
    return Comparar();
}

bool ImportarDS::Aceptar() {
    if (!Existe())
        return false;
    auto& sesion = LaSesion();
    const auto base = Camino(Texto(sesion.conexion.Fichero()));
    const FicheroTemporal etapa(Etapa());
    try {
        PonerOcupado();
        if (!PermiteSeguir(Comparar())) {
            QuitarOcupado();
            return false;
        }
        EscribirHistorial(sesion.conexion, sesion.UsuarioSesion, Ahora(), "Importar Datos del Servidor");
        sesion.conexion.Cerrar();
        MostrarVolando(QStringLiteral("Importación de Datos"), QStringLiteral("Importando datos"));
        const LugarDeCopia copia{BackUp(), TextoDeRuta(base.stem()), Ahora()};
        Correr([&](const Progreso&) { return PonerBase(base, etapa.Nombre(), copia); });
        AbrirConexion(sesion);
    } catch (const std::exception& e) {
        QuitarVolando();
        Fallar(e);
        if (!sesion.conexion.Abierta())
            MostrarPeligro(kSinBase);
        return false;
    }
    return Terminar();
}

} // namespace pastorix
