#include "exchange/FormularioDeRuta.h"

#include "exchange/VerCambios.h"
#include "frame/Ajustes.h"
#include "frame/Mensajes.h"
#include "frame/Principal.h"
#include "frame/Ventanas.h"
#include "frame/calendario/ErrorDeEjecucion.h"
#include "store/Ficheros.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace pastorix {

namespace {

// Settings: the folder of a route, and of the one gone last.
const auto kCarpeta = QStringLiteral("/carpeta");
const auto kIntercambio = QStringLiteral("Intercambio");

} // namespace

void ExigirBaseDeLaSesion(const Sesion& sesion) {
    if (sesion.conexion.Fichero() != sesion.origenes.Resolver("dsn=OD_PRADALC").fichero)
        throw ErrorDeIntercambio(
            "La sesión está sobre la copia de trabajo de una importación fallida: repita la "
            "importación, o salga del programa y vuelva a entrar");
}

std::filesystem::path Camino(const QString& ruta) {
    return Ruta(QDir::fromNativeSeparators(ruta).toStdString());
}

QString Texto(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

FormularioDeRuta::FormularioDeRuta(Sesion& sesion, const QString& titulo, const QString& fallo,
                                   const char* campo, QWidget* padre)
    : QDialog(padre)
    , m_sesion(sesion)
    , m_fallo(fallo)
    , m_cuerpo(new QVBoxLayout)
    , m_ruta(new QLineEdit(this))
    , m_carpeta(new ElegirCarpeta(this))
    , m_botones(new QDialogButtonBox(this)) {
    setWindowTitle(titulo);
    setWindowModality(Qt::WindowModal);
    m_ruta->setObjectName(QString::fromUtf8(campo));
    m_aceptar = AñadirBoton("B_Aceptar", QStringLiteral("&Aceptar"));
    m_aceptar->setDefault(true);
    connect(m_aceptar, &QPushButton::clicked, this, [this] { Aceptar(); });
    auto* cancelar = AñadirBoton("B_Cancelar", QStringLiteral("&Cancelar"));
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
}

FormularioDeRuta::~FormularioDeRuta() {
    QuitarOcupado();
}

QPushButton* FormularioDeRuta::AñadirBoton(const char* nombre, const QString& texto) {
    auto* boton = new QPushButton(texto, this);
    boton->setObjectName(QString::fromUtf8(nombre));
    boton->setAutoDefault(false);
    m_botones->addButton(boton, QDialogButtonBox::ActionRole);
    return boton;
}

void FormularioDeRuta::TerminarConstruccion(QWidget* primero) {
    auto* rotulo = new QLabel(QStringLiteral("&Fichero:"), this);
    rotulo->setBuddy(m_ruta);
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(m_cuerpo);
    todo->addWidget(m_carpeta, 1);
    todo->addWidget(rotulo);
    todo->addWidget(m_ruta);
    todo->addWidget(m_botones);
    // A route that is gone for the first time begins where the last one ended: there is mostly one stick.
    if (!m_carpeta->PonerCarpeta(AjusteDeVentana(objectName() + kCarpeta).toString()) &&
        !m_carpeta->PonerCarpeta(AjusteDeVentana(kIntercambio + kCarpeta).toString()))
        m_carpeta->PonerCarpeta(QDir::homePath());
    connect(m_carpeta, &ElegirCarpeta::Cambiada, this, &FormularioDeRuta::RecomputarRuta);
    RecomputarRuta();
    QList<QWidget*> orden;
    if (primero)
        orden << primero;
    orden << m_carpeta->findChildren<QWidget*>(QRegularExpression(QStringLiteral("^(Drive1|Dir1)$")))
          << m_ruta;
    for (auto* boton : m_botones->buttons())
        orden << boton;
    for (qsizetype i = 1; i < orden.size(); ++i)
        setTabOrder(orden[i - 1], orden[i]);
    orden.first()->setFocus();
    resize(520, 480);
    RecordarVentana(*this);
}

void FormularioDeRuta::AñadirQueVaACambiar(std::function<bool()> hayQueMirar,
                                           std::function<Comparacion()> simular) {
    connect(AñadirBoton("B_QueVaACambiar", QStringLiteral("&Qué va a cambiar...")), &QPushButton::clicked,
            this, [this, hayQueMirar = std::move(hayQueMirar), simular = std::move(simular)] {
                if (!hayQueMirar())
                    return;
                try {
                    PonerOcupado();
                    auto c = simular();
                    QuitarOcupado();
                    VerCambios(std::move(c), this).exec();
                } catch (const std::exception& e) {
                    Fallar(e);
                }
            });
}

void FormularioDeRuta::RecomputarRuta() {
    auto carpeta = QDir::toNativeSeparators(m_carpeta->Carpeta());
    if (!carpeta.endsWith(QDir::separator()))
        carpeta += QDir::separator();
    m_ruta->setText(carpeta + NombreSinExtension() + QStringLiteral(".mdb"));
}

QString FormularioDeRuta::Fichero() const {
    return m_ruta->text();
}

void FormularioDeRuta::PonerFichero(const QString& ruta) {
    m_ruta->setText(ruta);
}

void FormularioDeRuta::MostrarVolando(const QString& titulo, const QString& rotulo) {
    m_volando = std::make_unique<Volando>(parentWidget());
    m_volando->setWindowTitle(titulo);
    if (!rotulo.isEmpty()) {
        m_volando->OcultarBarra();
        m_volando->PonerRotulo(rotulo);
    }
    if (parentWidget()) // nobody looks where there is no frame
        m_volando->show();
}

void FormularioDeRuta::QuitarVolando() {
    m_volando.reset();
}

void FormularioDeRuta::PonerOcupado() {
    if (!m_ocupado)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    m_ocupado = true;
}

void FormularioDeRuta::QuitarOcupado() {
    if (m_ocupado)
        QApplication::restoreOverrideCursor();
    m_ocupado = false;
}

void FormularioDeRuta::Fallar(const std::exception& error) {
    QuitarOcupado();
    if (const auto* delAlmacen = dynamic_cast<const ErrorAlmacen*>(&error))
        AvisarFallo(this, m_fallo, delAlmacen->Numero(), error);
    else if (const auto* deEjecucion = dynamic_cast<const ErrorDeEjecucion*>(&error))
        AvisarFallo(this, m_fallo, deEjecucion->Numero(), error);
    else
        AvisarFallo(this, m_fallo, error);
}

void FormularioDeRuta::MostrarPeligro(const QString& texto) {
    if (auto* principal = qobject_cast<Principal*>(parentWidget())) {
        principal->MostrarPeligro(texto);
        principal->MostrarSoloLectura(m_sesion.conexion.Abierta() && m_sesion.conexion.SoloLectura());
    }
}

bool FormularioDeRuta::EsSuFichero(const QString& usuario) {
    const auto nombre = QFileInfo(QDir::fromNativeSeparators(Fichero())).completeBaseName();
    return nombre.compare(usuario, Qt::CaseInsensitive) == 0 ||
           Preguntar(this, QStringLiteral("Atención"),
                     QStringLiteral("El fichero se llama %1 y el veterinario es %2. ¿Desea continuar?")
                         .arg(nombre, usuario),
                     TipoMensaje::Atencion);
}

bool FormularioDeRuta::PermiteSeguir(const Comparacion& c) {
    const auto lista = [](const std::vector<std::string>& lineas) {
        constexpr std::size_t maximo = 12;
        QString t;
        for (std::size_t i = 0; i < lineas.size() && i < maximo; ++i)
            t += QStringLiteral("\n• ") + Texto(lineas[i]);
        if (lineas.size() > maximo)
            t += QStringLiteral("\n… y %1 más").arg(lineas.size() - maximo);
        return t;
    };
    if (!c.choques.empty()) {
        QuitarOcupado();
        Avisar(this, TipoMensaje::Atencion, m_fallo,
               QStringLiteral("No se ha hecho nada, porque hay claves que estarían dos veces:") +
                   lista(c.choques));
        return false;
    }
    return c.avisos.empty() ||
           Preguntar(this, QString::fromUtf8(kTituloDeAviso),
                     lista(c.avisos).mid(1) + QStringLiteral("\n\n¿Desea continuar?"), TipoMensaje::Atencion);
}

std::filesystem::path FormularioDeRuta::Temporal(const QString& nombre) const {
    const auto carpeta = m_sesion.rutas.Temp();
    QDir().mkpath(carpeta);
    return Camino(carpeta + QLatin1Char('/') + nombre);
}

std::filesystem::path FormularioDeRuta::BackUp() const {
    const auto carpeta = m_sesion.rutas.BackUp();
    QDir().mkpath(carpeta);
    return Camino(carpeta);
}

void FormularioDeRuta::done(int resultado) {
    QuitarVolando();
    QuitarOcupado();
    const auto carpeta = QFileInfo(QDir::fromNativeSeparators(m_ruta->text())).path();
    if (QDir(carpeta).exists())
        for (const auto& ruta : {objectName(), kIntercambio})
            GuardarAjusteDeVentana(ruta + kCarpeta, carpeta);
    QDialog::done(resultado);
}

} // namespace pastorix
