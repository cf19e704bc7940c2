#include "exchange/TorosComunes.h"

#include "exchange/datos/BasesEnteras.h"
#include "frame/Mensajes.h"
#include "frame/calendario/Reloj.h"
#include "store/Apertura.h"
#include "store/Catalogo.h"
#include "store/Esquema.h"
#include "store/Ficheros.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace pastorix {

namespace fs = std::filesystem;

namespace {

OpcionesApertura DeTrabajo(const Sesion& sesion) {
    OpcionesApertura opciones;
    opciones.carpetaBackup = sesion.rutas.BackUp().toStdString();
    return opciones;
}

} // namespace

Exp_TC::Exp_TC(Sesion& sesion, QWidget* padre)
    : FormularioDeRuta(sesion, QStringLiteral("Exportar Toros de Inseminación"),
                       QStringLiteral("Exportación Fallida"), "Ct_E", padre)
    , m_toros(new QListWidget(this)) {
    setObjectName(QStringLiteral("Exp_TC"));
    m_toros->setObjectName(QStringLiteral("List1"));
    m_toros->setUniformItemSizes(true);
    auto* rotulo = new QLabel(QStringLiteral("&Relación de Toros a Exportar..."), this);
    rotulo->setBuddy(m_toros);
    Cuerpo()->addWidget(rotulo);
    Cuerpo()->addWidget(m_toros);
    TerminarConstruccion(m_toros);
    try {
        m_compartidos = LeerCompartidos(sesion.conexion);
        for (const auto& t : m_compartidos.toros)
            m_toros->addItem(Texto(t.apodo + " ... " + t.nombre));
        m_toros->setCurrentRow(0);
    } catch (const ErrorAlmacen& e) {
        Avisar(this, TipoMensaje::Critico, QStringLiteral("Error de protección general"),
               QString::number(e.Numero()) + QStringLiteral(" ... ") + QString::fromUtf8(e.what()), {},
               DetalleDe(e));
    }
}

bool Exp_TC::Aceptar() {
    const auto atencion = [this](const QString& texto) {
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"), texto);
        return false;
    };
    if (m_compartidos.toros.empty())
        return atencion(QStringLiteral("No hay Toros que Exportar"));
    if (m_compartidos.ganaderos.empty())
        return atencion(QStringLiteral("No hay Ganaderos que Exportar"));
    auto& sesion = LaSesion();
    const auto catalogo = Camino(Texto(sesion.origenes.Resolver("dsn=OD_TOROS").fichero));
    const auto destino = Camino(Fichero());
    std::error_code error;
    if (!fs::exists(catalogo, error))
        return atencion(QStringLiteral("No existe el fichero necesario para la Exportación: \r\n\r\n") +
                        Texto(TextoDeRuta(catalogo)));
    try {
        ExigirBaseDeLaSesion(sesion);
        ExigirNombreDeFichero(TextoDeRuta(destino.stem()));
        for (const auto& propio : {catalogo, Camino(Texto(sesion.conexion.Fichero()))})
            if (MismoFichero(destino, propio))
                throw ErrorDeIntercambio("El fichero de destino es del propio programa: " +
                                         TextoDeRuta(destino));
        PonerOcupado();
        const auto base = Camino(Texto(sesion.conexion.Fichero()));
        const auto opciones = DeTrabajo(sesion);
        Correr([&](const Progreso&) {
            auto central = AbrirParaLeer(base);
            Conexion toros;
            toros.AbrirFichero(TextoDeRuta(catalogo), kClave, opciones);
            LlenarCatalogo(central, toros, m_compartidos);
            return 0;
        });
        if (fs::exists(destino, error) && !fs::remove(destino, error))
            FallarFichero("No se puede borrar", destino, error);
        QuitarOcupado();
        CopiarFichero(catalogo, destino);
    } catch (const std::exception& e) {
        Fallar(e);
        return false;
    }
    Avisar(this, TipoMensaje::Informacion, QStringLiteral("Información"),
           QStringLiteral("Exportación Realizada con Éxito\r\n\r\n Recuerde Importar en cada Veterinario el "
                          "Fichero: ") +
               Fichero());
    accept();
    return true;
}

Imp_TC::Imp_TC(Sesion& sesion, QWidget* padre)
    : FormularioDeRuta(sesion, QStringLiteral("Importar Toros de Inseminación"),
                       QStringLiteral("Exportación Fallida"), "Ct_E", padre) {
    setObjectName(QStringLiteral("Imp_TC"));
    AñadirQueVaACambiar([this] { return Existe(); }, [this] { return Simular(); });
    TerminarConstruccion();
}

fs::path Imp_TC::Etapa() const {
    return Temporal(QStringLiteral("xImportarToros.mdb"));
}

bool Imp_TC::Existe() {
    std::error_code error;
    if (fs::is_regular_file(Camino(Fichero()), error))
        return true;
    Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"),
           QStringLiteral("El fichero de Importación: ") + Fichero() + QStringLiteral(" no Existe"));
    return false;
}

void Imp_TC::Preparar() {
    ExigirBaseDeLaSesion(LaSesion());
    const auto origen = Camino(Fichero());
    const auto etapa = Etapa();
    const auto catalogo = Camino(Texto(LaSesion().origenes.Resolver("dsn=OD_TOROS").fichero));
    if (MismoFichero(origen, catalogo) || MismoFichero(origen, etapa))
        throw ErrorDeIntercambio("El fichero de origen es del propio programa: " + TextoDeRuta(origen));
    Correr([&](const Progreso&) {
        Conexion paquete;
        AbrirPaquete(paquete, origen, etapa, kClave);
        if (paquete.Esquema().Buscar("T_Vacas"))
            throw ErrorDeIntercambio("El fichero no es un catálogo de toros: " + TextoDeRuta(origen));
        return 0;
    });
}

Comparacion Imp_TC::Simular() {
    const FicheroTemporal fin(Etapa());
    Preparar();
    const auto base = Camino(Texto(LaSesion().conexion.Fichero()));
    const auto etapa = Etapa();
    return Correr([&](const Progreso&) {
        auto aqui = AbrirParaLeer(base);
        auto catalogo = AbrirParaLeer(etapa);
        return CompararToros(aqui, catalogo);
    });
}

bool Imp_TC::PermiteNombres(const std::vector<ToroQueCambia>& toros) {
    if (toros.empty())
        return true;
    long servicios = 0;
    long partos = 0;
    QString lista;
    for (const auto& t : toros) {
        servicios += t.servicios;
        partos += t.partos;
        if (&t - toros.data() < 12)
            lista += QStringLiteral("\n• ") + Texto(pastorix::Texto(t));
    }
    return Preguntar(
        this, QStringLiteral("Atención"),
        QStringLiteral("%1 servicios y %2 partos cambiarán el nombre del toro, porque su número es de "
                       "otro en el catálogo:%3\n\n¿Desea importarlo?")
            .arg(servicios)
            .arg(partos)
            .arg(lista),
        TipoMensaje::Atencion);
}

bool Imp_TC::Aceptar() {
    if (!Existe())
        return false;
    auto& sesion = LaSesion();
    const FicheroTemporal etapa(Etapa());
    try {
        PonerOcupado();
        Preparar();
        const auto base = Camino(Texto(sesion.conexion.Fichero()));
        const auto reparos = Correr([&](const Progreso&) {
            auto aqui = AbrirParaLeer(base);
            auto catalogo = AbrirParaLeer(etapa.Nombre());
            return MirarCatalogo(catalogo, aqui);
        });
        QuitarOcupado();
        Comparacion soloClaves;
        soloClaves.choques = reparos.claves;
        if (!PermiteSeguir(soloClaves) || !PermiteNombres(reparos.nombres))
            return false;
        PonerOcupado();
        const auto toros = Camino(Texto(sesion.origenes.Resolver("dsn=OD_TOROS").fichero));
        const LugarDeCopia copia{BackUp(), "Toros", Ahora()};
        Correr([&](const Progreso&) {
            PonerBase(toros, etapa.Nombre(), copia);
            auto catalogo = AbrirParaLeer(toros);
            Conexion aqui;
            aqui.AbrirFichero(TextoDeRuta(base), kClave);
            TomarCatalogo(catalogo, aqui);
            return 0;
        });
    } catch (const std::exception& e) {
        Fallar(e);
        return false;
    }
    QuitarOcupado();
    Avisar(this, TipoMensaje::Informacion, QStringLiteral("Información"),
           QStringLiteral("Importación Realizada con Éxito"));
    accept();
    return true;
}

} // namespace pastorix
