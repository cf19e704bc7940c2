#include "exchange/ImportarDC.h"

#include "exchange/VeterinarioImp1.h"
#include "exchange/datos/BasesEnteras.h"
#include "exchange/datos/FundirPaquete.h"
#include "exchange/datos/Historial.h"
#include "frame/Mensajes.h"
#include "frame/calendario/Reloj.h"
#include "store/Apertura.h"
#include "store/Esquema.h"
#include "store/Ficheros.h"

#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QPushButton>

namespace pastorix {

namespace fs = std::filesystem;

ImportarDC::ImportarDC(Sesion& sesion, QWidget* padre)
    : FormularioDeRuta(sesion, QStringLiteral("Importar Datos"), QStringLiteral("Importación Fallida"),
                       "Ct_E", padre)
    , m_usuarios(new QComboBox(this)) {
    setObjectName(QStringLiteral("ImportarDC"));
    m_usuarios->setObjectName(QStringLiteral("Cb_E"));
    m_usuarios->setEditable(true);
    m_usuarios->setInsertPolicy(QComboBox::NoInsert);
    m_usuarios->setCompleter(nullptr); // what is typed is the name, though a longer one begins with it
    Recordset rs(sesion.conexion, "Select * FROM T_Veterinarios ORDER BY Usuario", Cursor::Keyset,
                 Bloqueo::SoloLectura);
    for (; !rs.Eof(); rs.Siguiente())
        m_usuarios->addItem(Texto(rs["Usuario"].Texto()));
    auto* campos = new QFormLayout;
    campos->addRow(QStringLiteral("&Veterinario:"), m_usuarios);
    Cuerpo()->addLayout(campos);
    connect(m_usuarios, &QComboBox::currentTextChanged, this, &ImportarDC::RecomputarRuta);
    AñadirQueVaACambiar(
        [this] {
            fs::path origen;
            fs::path destino;
            return Localizar(origen, destino);
        },
        [this] { return Simular(); });
    TerminarConstruccion(m_usuarios);
}

void ImportarDC::PonerUsuario(const QString& usuario) {
    m_usuarios->setEditText(usuario);
}

QString ImportarDC::NombreSinExtension() const {
    return m_usuarios->currentText();
}

std::string ImportarDC::Usuario() const {
    return m_usuarios->currentText().toStdString();
}

// Files that come from other systems may be spelt with other capitals.
fs::path ImportarDC::Origen() const {
    const auto escrito = Camino(Fichero());
    return EntradaSinCaso(CarpetaDe(escrito), TextoDeRuta(escrito.filename()));
}

fs::path ImportarDC::Etapa() const {
    return Temporal(QStringLiteral("Imp_Cli_") + m_usuarios->currentText() + QStringLiteral(".mdb"));
}

// After a failed merge the session stands on the working copy; the centre is still where it was.
fs::path ImportarDC::Central() const {
    return Camino(Texto(LaSesion().origenes.Resolver("dsn=OD_PRADALC").fichero));
}

bool ImportarDC::Localizar(fs::path& origen, fs::path& destino) {
    const auto falta = [this](const char* titulo, const fs::path& ruta) {
        std::error_code error;
        if (fs::is_regular_file(ruta, error))
            return false;
        Avisar(this, TipoMensaje::Critico, QString::fromUtf8(titulo),
               QStringLiteral("Base de Datos: ") + Texto(TextoDeRuta(ruta)) +
                   QStringLiteral(" ...  no encontrada"));
        return true;
    };
    origen = Origen();
    if (falta("Error en el Origen", origen))
        return false;
    destino = Central();
    return !falta("Error en el Destino", destino);
}

void ImportarDC::PrepararEtapa(const fs::path& origen) {
    const auto etapa = Etapa();
    if (MismoFichero(origen, Central()) || MismoFichero(origen, etapa))
        throw ErrorDeIntercambio("El fichero de origen es del propio programa: " + TextoDeRuta(origen));
    Correr([&](const Progreso&) {
        Conexion paquete;
        AbrirPaquete(paquete, origen, etapa, kClave);
        if (!paquete.Esquema().Buscar("T_Vacas"))
            throw ErrorDeIntercambio("El fichero no es una base de datos de ganaderos: " +
                                     TextoDeRuta(origen));
        return 0;
    });
}

Comparacion ImportarDC::Simular() {
    ExigirNombreDeFichero(Usuario());
    const auto origen = Origen();
    PrepararEtapa(origen);
    const auto etapa = Etapa();
    const auto usuario = Usuario();
    const auto destino = Central();
    return Correr([&](const Progreso&) {
        auto central = AbrirParaLeer(destino);
        auto paquete = AbrirParaLeer(etapa);
        return CompararFusion(central, paquete, usuario);
    });
}

bool ImportarDC::Aceptar() {
    fs::path origen;
    fs::path destino;
    if (!Localizar(origen, destino))
        return false;
    QuitarVolando();
    if (!EsSuFichero(m_usuarios->currentText()))
        return false;
    try {
        ExigirNombreDeFichero(Usuario());
        if (!LaSesion().conexion.Abierta() || LaSesion().conexion.Fichero() != TextoDeRuta(destino)) {
            AbrirConexion(LaSesion()); // what a failed merge has left is nobody's to ask
            MostrarPeligro({});
        }
        PonerOcupado();
        PrepararEtapa(origen);
        QuitarOcupado();
        const bool nuevo = m_usuarios->currentText().toUpper() == QLatin1String("VETERINARIO");
        if ((nuevo && !Unir()) || !Comprobar(destino))
            return false;
        if (nuevo) {
            auto paquete = AbrirDeTrabajo(Etapa());
            DarDeAltaVeterinario(LaSesion().conexion, paquete);
        }
    } catch (const std::exception& e) {
        Fallar(e);
        return false;
    }
    try {
        Fundir(destino);
    } catch (const PaqueteSinGanaderos& e) {
        // Pointer, progress and connection stay as they are until the form goes or tries again.
        QuedarseEnLaCopia(destino, e);
        return false;
    } catch (const std::exception& e) {
        QuedarseEnLaCopia(destino, e);
        return false;
    }
    Terminar(destino);
    return true;
}

template <typename Formulario, typename Responder>
bool ImportarDC::PedirUnion(Responder responder) {
    m_union = {Etapa(), 0};
    Formulario formulario(LaSesion(), m_union, this);
    if (m_respuestas)
        responder(formulario);
    else
        formulario.exec();
    m_union.PaqueteImportado.clear();
    if (m_union.ResultadoImportacion != 0)
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"),
               QStringLiteral("Operación Cancelada por el Usuario"));
    return m_union.ResultadoImportacion == 0;
}

bool ImportarDC::Unir() {
    Avisar(this, TipoMensaje::Informacion, QStringLiteral("Información"),
           QStringLiteral("Detectado un veterinario nuevo que se une a la Base Central"));
    if (!PedirUnion<VeterinarioImp>([this](VeterinarioImp& f) {
            f.Poner(m_respuestas->codigo, m_respuestas->usuario);
            f.Aceptar();
        }))
        return false;
    if (!PedirUnion<VeterinarioImp1>([this](VeterinarioImp1& f) {
            for (const auto& [viejo, nuevo] : m_respuestas->ganaderos)
                if (!f.Poner(viejo, nuevo)) {
                    Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"),
                           QStringLiteral("El fichero no tiene el ganadero ") + viejo);
                    return;
                }
            f.Aceptar();
        }))
        return false;
    return m_respuestas ||
           Preguntar(this, QStringLiteral("Importación de Datos"),
                     QStringLiteral("Confirma la Importación de Datos ?"), TipoMensaje::Pregunta, true);
}

// Before anything is written. A package without farmers is told where it always was.
bool ImportarDC::Comprobar(const fs::path& destino) {
    const auto etapa = Etapa();
    const auto usuario = Usuario();
    try {
        return PermiteSeguir(Correr([&](const Progreso&) {
            auto central = AbrirParaLeer(destino);
            auto paquete = AbrirParaLeer(etapa);
            return ComprobarFusion(central, paquete, usuario);
        }));
    } catch (const PaqueteSinGanaderos&) {
        return true;
    }
}

void ImportarDC::Fundir(const fs::path& destino) {
    auto& sesion = LaSesion();
    PonerOcupado();
    if (sesion.conexion.Abierta())
        sesion.conexion.Cerrar();
    const auto trabajo = Temporal(QStringLiteral("xPradalC.mdb"));
    const auto etapa = Etapa();
    const auto usuario = Usuario();
    const bool nuevo = m_usuarios->currentText().toUpper() == QLatin1String("VETERINARIO");
    MostrarVolando(QStringLiteral("Importación de Datos"));
    m_toros = Correr([&](const Progreso& p) {
        std::error_code error;
        fs::remove(trabajo, error);
        CopiarConDiarios(destino, trabajo);
        auto copia = AbrirDeTrabajo(trabajo);
        auto paquete = AbrirDeTrabajo(etapa);
        FundirPaquete(paquete, copia, usuario, p);
        return nuevo ? TorosConOtroNombre(paquete, copia) : std::vector<ToroQueCambia>();
    });
    const LugarDeCopia copia{BackUp(), "DB_PradalC", Ahora()};
    Correr([&](const Progreso&) {
        return ReemplazarBase(destino, trabajo, copia, BaseAnterior::Sana, BaseNueva::SeGasta);
    });
    std::error_code error;
    fs::remove(trabajo, error);
    fs::remove(etapa, error);
}

// The database is as it was; what the session stands on is not worth keeping, so nothing is saved into it.
void ImportarDC::QuedarseEnLaCopia(const fs::path& destino, const std::exception& fallo) {
    auto& sesion = LaSesion();
    const auto trabajo = Temporal(QStringLiteral("xPradalC.mdb"));
    std::error_code error;
    try {
        AbrirConexionEn(sesion, Texto(TextoDeRuta(fs::exists(trabajo, error) ? trabajo : destino)), true);
    } catch (const std::exception&) { // stays closed: the sign tells
    }
    MostrarPeligro(
        sesion.conexion.Abierta()
            ? QStringLiteral("COPIA DE TRABAJO de una importación fallida: nada de lo que se anote se "
                             "guarda. Repita la importación o salga del programa")
            : QStringLiteral("SIN BASE DE DATOS: salga del programa y vuelva a entrar"));
    if (dynamic_cast<const PaqueteSinGanaderos*>(&fallo)) {
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Importación Fallida"),
               QString::fromUtf8(fallo.what()));
        if (ElVolando()) { // it stays, out of the way of the form
            ElVolando()->hide();
            ElVolando()->setWindowModality(Qt::NonModal);
            ElVolando()->show();
        }
        return;
    }
    if (ElVolando())
        ElVolando()->hide();
    Fallar(fallo);
}

void ImportarDC::Terminar(const fs::path& destino) {
    auto& sesion = LaSesion();
    try {
        AbrirConexionEn(sesion, Texto(TextoDeRuta(destino)));
        MostrarPeligro({});
    } catch (const std::exception& e) {
        QuitarVolando();
        Fallar(e);
        MostrarPeligro(QStringLiteral("SIN BASE DE DATOS: salga del programa y vuelva a entrar"));
        accept();
        return;
    }
    QuitarVolando();
    QuitarOcupado();
    Avisar(this, TipoMensaje::Informacion, QStringLiteral("Información"),
           QStringLiteral("Proceso Finalizado"));
    try {
        EscribirHistorial(sesion.conexion, sesion.UsuarioSesion, Ahora(), "Importar Datos de: " + Usuario());
    } catch (const std::exception& e) {
        Fallar(e);
    }
    if (!m_toros.empty()) {
        QString texto =
            QStringLiteral("Servicios y partos antiguos llevan números de toro que en la central son de "
                           "otro, o de ninguno; su nombre se conserva:");
        for (std::size_t i = 0; i < m_toros.size() && i < 20; ++i)
            texto += QStringLiteral("\n• ") + Texto(pastorix::Texto(m_toros[i]));
        if (m_toros.size() > 20)
            texto += QStringLiteral("\n… y %1 más").arg(m_toros.size() - 20);
        Avisar(this, TipoMensaje::Informacion, QStringLiteral("Información"), texto);
    }
    accept();
}

} // namespace pastorix
