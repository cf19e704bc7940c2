#include "exchange/VeterinarioImp.h"

#include "frame/ErrorInesperado.h"
#include "frame/Mensajes.h"
#include "store/Ficheros.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

namespace pastorix {

namespace {

QString De(const std::string& s) {
    return QString::fromStdString(s);
}

} // namespace

VeterinarioImp::VeterinarioImp(Sesion& sesion, EstadoDeUnion& estado, QWidget* padre)
    : QDialog(padre)
    , m_sesion(sesion)
    , m_estado(estado) {
    setObjectName(QStringLiteral("VeterinarioImp"));
    setWindowTitle(QStringLiteral("Importación de Veterinario Nuevo"));
    setWindowModality(Qt::WindowModal);
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(new QLabel(QStringLiteral("Detectado el Veterinario:"), this));
    for (std::size_t i = 0; i < m_rotulos.size(); ++i) {
        m_rotulos[i] = new QLabel(this);
        m_rotulos[i]->setObjectName(QStringLiteral("Label1(%1)").arg(i + 4));
        m_rotulos[i]->setTextFormat(Qt::PlainText);
        todo->addWidget(m_rotulos[i]);
    }
    auto* aviso = new QLabel(
        QStringLiteral("Indique el nuevo código y el usuario para la distribución de datos."), this);
    aviso->setWordWrap(true);
    todo->addWidget(aviso);
    auto* campos = new QFormLayout;
    for (std::size_t i = 0; i < m_campos.size(); ++i) {
        m_campos[i] = new QLineEdit(this);
        m_campos[i]->setObjectName(QStringLiteral("Ct_Est(%1)").arg(i));
        campos->addRow(i == 0 ? QStringLiteral("&Código:") : QStringLiteral("&Usuario:"), m_campos[i]);
    }
    m_campos[0]->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]{0,9}")), m_campos[0]));
    m_campos[1]->setMaxLength(25);
    todo->addLayout(campos);
    setMinimumWidth(420); // the title would not fit
    auto* botones = new QDialogButtonBox(this);
    m_aceptar = botones->addButton(QStringLiteral("&Aceptar"), QDialogButtonBox::ActionRole);
    m_aceptar->setObjectName(QStringLiteral("B_Aceptar"));
    m_aceptar->setDefault(true);
    auto* cancelar = botones->addButton(QStringLiteral("&Cancelar"), QDialogButtonBox::ActionRole);
    cancelar->setObjectName(QStringLiteral("B_Cancelar"));
    todo->addWidget(botones);
    connect(m_aceptar, &QPushButton::clicked, this, [this] { Aceptar(); });
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    Cargar();
}

void VeterinarioImp::Cargar() {
    m_estado.ResultadoImportacion = 99;
    try {
        m_paquete = AbrirDeTrabajo(m_estado.PaqueteImportado);
        const auto lista = VeterinariosDelPaquete(m_paquete);
        if (lista.size() != 1)
            m_aceptar->setEnabled(false);
        if (lista.size() > 1) {
            Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"),
                   QStringLiteral("La Base de datos a unir al Central, no es válida por tener mas de 1 "
                                  "veterinario, aparte de VALNOR"));
        } else if (lista.empty()) {
            m_rotulos[0]->setText(QStringLiteral("(No se ha encontrado ninguno)"));
        } else {
            m_nuevo = lista.front();
            m_rotulos[0]->setText(QStringLiteral("Nombre: ") + De(m_nuevo.nombre));
            m_rotulos[1]->setText(QStringLiteral("Código: ") + De(TextoNumero(m_nuevo.id)));
            m_rotulos[2]->setText(QStringLiteral("Usuario: ") + De(m_nuevo.usuario));
        }
    } catch (const ErrorAlmacen& e) {
        m_aceptar->setEnabled(false);
        AvisarFallo(this, QStringLiteral("Importación Fallida"), e.Numero(), e);
    }
}

void VeterinarioImp::Poner(const QString& codigo, const QString& usuario) {
    m_campos[0]->setText(codigo);
    m_campos[1]->setText(usuario);
}

bool VeterinarioImp::Aceptar() {
    const auto avisar = [this](const QString& texto) {
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"), texto);
        return false;
    };
    const auto codigo = m_campos[0]->text().toStdString();
    const auto usuario = m_campos[1]->text().toStdString();
    if (!m_aceptar->isEnabled())
        return false;
    if (codigo.empty())
        return avisar(QStringLiteral("Debe indicar el código del veterinario para unirse a la base central"));
    if (usuario.empty())
        return avisar(
            QStringLiteral("Debe indicar el nombre que usará el veterinario para iniciar la sesión"));
    try {
        if (const auto objecion = ObjecionAlVeterinario(m_sesion.conexion, m_nuevo, codigo, usuario);
            !objecion.empty())
            return avisar(De(objecion));
        // These two names mean something else at the login.
        const auto mayusculas = m_campos[1]->text().toUpper();
        if ((mayusculas == QLatin1String("CENTRAL") || mayusculas == QLatin1String("VETERINARIO")) &&
            !Preguntar(
                this, QStringLiteral("Atención"),
                QStringLiteral("Con el usuario %1 no se distinguirá a este veterinario de la central o "
                               "de uno sin nombre. ¿Desea dárselo?")
                    .arg(m_campos[1]->text()),
                TipoMensaje::Atencion))
            return false;
        RenumerarVeterinario(m_paquete, m_nuevo.id, codigo, usuario);
    } catch (const ErrorAlmacen& e) {
        AvisarErrorInesperado(this, e.Numero(), QString::fromUtf8(e.what()), DetalleDe(e));
        return false;
    }
    m_paquete.Cerrar();
    m_estado.ResultadoImportacion = 0;
    accept();
    return true;
}

} // namespace pastorix
