#include "frame/AbrirSesion.h"

#include "frame/Ciclo.h"
#include "frame/FondoPrincipal.h"
#include "frame/Iconos.h"
#include "frame/Mensajes.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <memory>

namespace pastorix {

namespace {

// An entry from the login form: the main window behind, the boxes and progress forms on top of the login.
class EntradaDesdeFormulario : public EntradaEnPrincipal {
public:
    EntradaDesdeFormulario(Principal& principal, QWidget* formulario)
        : EntradaEnPrincipal(principal)
        , m_formulario(formulario) {}

    QWidget* Ventana() override { return m_formulario; }

    bool PreguntarAñosNaturales() override {
        return Preguntar(m_formulario, QStringLiteral(" Confirme"),
                         QStringLiteral("Desea inicializar los Años Naturales ? "));
    }

    FuncionAvance EmpezarAvance(const QString& texto) override {
        m_ciclo = std::make_unique<Ciclo>(m_formulario, texto);
        m_ciclo->show();
        return [this](int hecho, int total) { m_ciclo->Avance(hecho, total); };
    }

    void TerminarAvance() override { m_ciclo.reset(); }

    FuncionAvance AvanceSiTarda(const QString& texto) override { return AvanceTardio(m_formulario, texto); }

private:
    QWidget* m_formulario;
    std::unique_ptr<Ciclo> m_ciclo;
};

} // namespace

AbrirSesion::AbrirSesion(Sesion& sesion, Principal& principal, bool entradaPrincipal)
    : m_sesion(sesion)
    , m_principal(principal) {
    setObjectName(QStringLiteral("AbrirSesion"));
    setWindowTitle(QStringLiteral("Inicio de Sesión"));
    m_principal.setEnabled(false);

    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(28, 24, 28, 24);
    columna->setSpacing(20);
    columna->addWidget(CrearCampos());
    columna->addWidget(CrearBotones());
    columna->setSizeConstraint(QLayout::SetFixedSize);

    m_textos[0]->setFocus();
    m_aceptar[1]->setToolTip(QStringLiteral(" No es necesario que indique contraseña, déjelo en blanco "));
    m_aceptar[0]->setEnabled(entradaPrincipal); // the delivered form enters the personal database only
}

AbrirSesion::~AbrirSesion() {
    m_principal.setEnabled(true);
}

QWidget* AbrirSesion::CrearCampos() {
    auto* campos = new QWidget(this);
    auto* rejilla = new QGridLayout(campos);
    rejilla->setContentsMargins(0, 0, 0, 0);
    rejilla->setHorizontalSpacing(16);
    rejilla->setVerticalSpacing(6);

    auto* emblema = new QLabel(campos);
    emblema->setPixmap(Icono("pastorix").pixmap(QSize(96, 96), devicePixelRatioF()));
    rejilla->addWidget(emblema, 0, 0, 4, 1, Qt::AlignCenter);

    const std::array rotulos{QStringLiteral("&Usuario"), QStringLiteral("C&ontraseña")};
    for (int i = 0; i < 2; ++i) {
        auto* texto = new QLineEdit(campos);
        texto->setObjectName(QStringLiteral("Text1(%1)").arg(i));
        texto->setMinimumWidth(260);
        texto->installEventFilter(this);
        auto* rotulo = new QLabel(rotulos[static_cast<std::size_t>(i)], campos);
        rotulo->setBuddy(texto);
        texto->setAccessibleName(QString(rotulo->text()).remove(QLatin1Char('&')));
        rejilla->addWidget(rotulo, i * 2, 1);
        rejilla->addWidget(texto, i * 2 + 1, 1);
        m_textos[static_cast<std::size_t>(i)] = texto;
    }
    m_textos[1]->setEchoMode(QLineEdit::Password);
    return campos;
}

QWidget* AbrirSesion::CrearBotones() {
    auto* botones = new QWidget(this);
    auto* fila = new QHBoxLayout(botones);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(10);
    const auto crear = [&](const QString& nombre, const QString& texto, const char* icono) {
        auto* boton = new QPushButton(Icono(icono), texto, botones);
        boton->setObjectName(nombre);
        boton->setIconSize(QSize(28, 28));
        boton->setMinimumHeight(42);
        boton->setAutoDefault(false); // Enter means the personal entry wherever the focus is
        boton->setCursor(CursorMano());
        boton->installEventFilter(this);
        fila->addWidget(boton, 1);
        return boton;
    };
    m_aceptar[0] = crear(QStringLiteral("B_Aceptar(0)"), QStringLiteral("&Pastorix"), "base");
    m_aceptar[1] = crear(QStringLiteral("B_Aceptar(1)"), QStringLiteral("Pastorix P&ersonal"), "personal");
    m_cancelar = crear(QStringLiteral("IDF_Cancelar"), QStringLiteral("&Cancelar"), "cancelar");
    connect(m_aceptar[0], &QPushButton::clicked, this, [this] { Entrar(0); });
    connect(m_aceptar[1], &QPushButton::clicked, this, [this] { Entrar(1); });
    connect(m_cancelar, &QPushButton::clicked, this, &AbrirSesion::reject);
    return botones;
}

bool AbrirSesion::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::KeyPress) {
        const int tecla = static_cast<QKeyEvent*>(evento)->key();
        if (tecla == Qt::Key_Return || tecla == Qt::Key_Enter) {
            Entrar(1);
            return true;
        }
        if (tecla == Qt::Key_Escape) {
            reject();
            return true;
        }
    }
    if (evento->type() == QEvent::FocusIn)
        if (auto* texto = qobject_cast<QLineEdit*>(objeto))
            QTimer::singleShot(
                0, texto, &QLineEdit::selectAll); // after the click that gave the focus has set its caret
    return QDialog::eventFilter(objeto, evento);
}

void AbrirSesion::Entrar(int indice) {
    if (m_entrando)
        return; // a key that repeats while a box or the progress form is up
    m_entrando = true;
    EntradaDesdeFormulario interfaz(m_principal, this);
    const bool dentro = EntrarEnBase(m_sesion, indice, m_textos[0]->text(), m_textos[1]->text(), interfaz);
    m_entrando = false;
    if (!dentro) {
        m_textos[1]->clear();
        m_textos[0]->setFocus();
        return;
    }
    hide();
    m_principal.setEnabled(true);
    m_principal.show();
    m_principal.activateWindow();
    Q_EMIT Abierta();
}

void AbrirSesion::reject() {
    if (m_entrando)
        return;
    Q_EMIT Salida();
    QDialog::reject();
    QCoreApplication::quit();
}

void AbrirSesion::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintor.fillRect(rect(), DegradadoDeFondo(palette(), rect()));
}

} // namespace pastorix
