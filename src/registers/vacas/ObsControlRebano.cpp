#include "registers/vacas/ObsControlRebano.h"

#include "frame/Atajos.h"
#include "frame/Mensajes.h"
#include "frame/Ventanas.h"
#include "frame/ficha/CampoMemo.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace pastorix {

ObsControlRebaño::ObsControlRebaño(Conexion& c, double idVaca, QWidget* padre)
    : QDialog(padre)
    , m_c(c)
    , m_idVaca(idVaca)
    , m_nota(new CampoMemo(this))
    , m_chequeo(new QComboBox(this)) {
    setObjectName(QStringLiteral("ObsControlRebaño"));
    setWindowTitle(QStringLiteral("Observaciones para los controles de rebaño"));
    m_nota->setObjectName(QStringLiteral("Ct_E"));
    m_nota->setAccessibleName(QStringLiteral("Observaciones"));
    m_chequeo->setObjectName(QStringLiteral("Cd_1"));
    m_chequeo->setAccessibleName(QStringLiteral("Chequeo"));
    m_chequeo->addItems({QString(), QStringLiteral("Parto + 40d"), QStringLiteral("X")});
    auto* todo = new QVBoxLayout(this);
    auto* rotulo = new QLabel(QStringLiteral("&Observaciones"), this);
    rotulo->setBuddy(m_nota);
    todo->addWidget(rotulo);
    todo->addWidget(m_nota, 1);
    auto* abajo = new QHBoxLayout;
    auto* chequeo = new QLabel(QStringLiteral("C&hequeo"), this);
    chequeo->setBuddy(m_chequeo);
    abajo->addWidget(chequeo);
    abajo->addWidget(m_chequeo);
    abajo->addStretch();
    auto* aceptar = new QPushButton(QStringLiteral("&Aceptar"), this);
    aceptar->setObjectName(QStringLiteral("B_Aceptar"));
    aceptar->setDefault(true);
    connect(aceptar, &QPushButton::clicked, this, [this] { Aceptar(); });
    auto* cancelar = new QPushButton(QStringLiteral("&Cancelar"), this);
    cancelar->setObjectName(QStringLiteral("B_Cancelar"));
    cancelar->setAutoDefault(false);
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    // Enter is a line break in the note.
    PonerAtajo(*this, Qt::CTRL | Qt::Key_Return, QStringLiteral("Aceptar"), [this] { Aceptar(); });
    aceptar->setToolTip(QStringLiteral("Ctrl+Intro"));
    abajo->addWidget(aceptar);
    abajo->addWidget(cancelar);
    todo->addLayout(abajo);
    resize(fontMetrics().averageCharWidth() * 90, fontMetrics().lineSpacing() * 16);
    RecordarVentana(*this);
    Cargar();
    m_nota->setFocus();
}

void ObsControlRebaño::Cargar() {
    try {
        Recordset rs(m_c,
                     "Select ObsControlRebaño, Chekeo FROM T_Vacas Where ID_Vaca = " + NumeroSql(m_idVaca));
        if (rs.Eof())
            return;
        m_nota->Poner(rs["ObsControlRebaño"].Texto());
        const auto item = QString::fromStdString(rs["Chekeo"].Texto());
        m_leido = std::max(0, m_chequeo->findText(item, Qt::MatchFixedString));
        m_chequeo->setCurrentIndex(m_leido);
    } catch (const ErrorAlmacen& e) {
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"),
               QStringLiteral("Se ha producido un Error"), QString::fromUtf8(e.what()));
    }
}

void ObsControlRebaño::reject() {
    const bool cambiada = m_nota->Cambiado() || m_chequeo->currentIndex() != m_leido;
    const auto salida =
        cambiada ? PreguntarGuardar(this, QStringLiteral("Hay cambios sin guardar. ¿Desea guardarlos?"))
                 : AntesDeDejar::Descartar;
    if (salida == AntesDeDejar::Guardar)
        Aceptar();
    else if (salida == AntesDeDejar::Descartar)
        QDialog::reject();
}

void ObsControlRebaño::Aceptar() {
    auto nota = m_nota->Texto();
    if (nota.empty())
        nota = " "; // the list prints a line for it
    const auto item = m_chequeo->currentText().toStdString();
    try {
        const long filas = EnGrupo(m_c, [&] {
            return m_c.Execute("UPDATE T_Vacas set ObsControlRebaño = " + TextoSql(nota) +
                               " , Chekeo = " + (item.empty() ? std::string("Null") : TextoSql(item)) +
                               " Where ID_Vaca = " + NumeroSql(m_idVaca));
        });
        if (filas > 0)
            return accept();
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención..."),
               QStringLiteral("No Encuentro el Codigo: ") + QString::fromStdString(TextoNumero(m_idVaca)));
    } catch (const ErrorAlmacen& e) {
        // The form stays, with what was typed: an apostrophe cannot be stored by this statement.
        AvisarError(this, e);
    }
}

} // namespace pastorix
