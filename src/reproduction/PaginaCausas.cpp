#include "reproduction/PaginaCausas.h"

#include "frame/Principal.h"
#include "reproduction/CamposDeCubricion.h"
#include "reproduction/Colores.h"
#include "reproduction/datos/Causas.h"

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QDrag>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QVBoxLayout>

namespace pastorix {

PaginaCausas::PaginaCausas(HojaDeCampos& hoja, Principal& marco, QWidget* padre)
    : QFrame(padre)
    , m_hoja(hoja)
    , m_marco(marco) {
    setObjectName(QStringLiteral("FrmOpciones(2)"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    auto* todo = new QVBoxLayout(this);
    auto* cabecera = new QHBoxLayout;
    auto* asidero = new QLabel(
        QStringLiteral("Haga click con el botón derecho sobre la causa, para definirla como principal."),
        this);
    asidero->setObjectName(QStringLiteral("Label2"));
    asidero->setCursor(Qt::OpenHandCursor);
    asidero->installEventFilter(this);
    m_asidero = asidero;
    cabecera->addWidget(asidero, 1);
    auto* boton = new QPushButton(QStringLiteral("&Definir como Causa Principal"), this);
    boton->setObjectName(QStringLiteral("B_CausaPrincipal"));
    boton->setAutoDefault(false);
    boton->setToolTip(QStringLiteral("La causa en la que está: también Mayús+F10"));
    connect(boton, &QPushButton::clicked, this, [this] { Definir(m_enFoco); });
    cabecera->addWidget(boton);
    todo->addLayout(cabecera);
    todo->addWidget(hoja.CrearRejilla(this, hoja_cubricion::Causas));
    hoja.Rejilla()->setVerticalSpacing(2);
    todo->addStretch();
    for (const auto& causa : CausasDeDemora())
        hoja.Marca(causa.indice).installEventFilter(this);
}

bool PaginaCausas::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == m_asidero) {
        if (evento->type() == QEvent::MouseButtonPress &&
            static_cast<QMouseEvent*>(evento)->button() == Qt::LeftButton)
            Arrastrar(static_cast<QMouseEvent*>(evento)->pos());
        return QFrame::eventFilter(objeto, evento);
    }
    if (evento->type() != QEvent::ContextMenu && evento->type() != QEvent::FocusIn)
        return QFrame::eventFilter(objeto, evento);
    for (const auto& causa : CausasDeDemora())
        if (objeto == &m_hoja.Marca(causa.indice)) {
            m_enFoco = causa.indice;
            if (evento->type() == QEvent::ContextMenu) {
                OfrecerMenu(causa.indice, static_cast<QContextMenuEvent*>(evento)->globalPos());
                return true;
            }
        }
    return QFrame::eventFilter(objeto, evento);
}

void PaginaCausas::OfrecerMenu(int indice, const QPoint& donde) {
    if (m_marco.MenuCausaPrincipal()->exec(donde)) // its one entry
        Definir(indice);
}

void PaginaCausas::Definir(int indice) {
    const auto* causa = CausaDe(indice);
    if (!causa)
        return;
    if (m_hoja.alEditar)
        m_hoja.alEditar();
    m_hoja.Marca(indice).setChecked(true);
    m_hoja.Poner(
        campo_cubricion::DescCausa,
        DescripcionDeCausa(indice, causa->acompañante ? m_hoja.TextoStd(causa->acompañante) : std::string()));
    MostrarCausa(indice);
}

void PaginaCausas::MostrarCausa(int indice) {
    m_causa = indice;
    for (const auto& causa : CausasDeDemora()) {
        auto& marca = m_hoja.Marca(causa.indice);
        const bool principal = causa.indice == indice;
        PintarTexto(marca, principal ? kRojo : QColor());
        marca.setAccessibleDescription(principal ? QStringLiteral("Causa principal") : QString());
    }
}

// The free slot has no column: what stands in it is of the record in hand, and of no other.
void PaginaCausas::LimpiarLibre() {
    const auto& libre = *CausaDe(kCausaLibre);
    m_hoja.Marca(libre.indice).setChecked(false);
    m_hoja.Poner(libre.acompañante, {});
}

void PaginaCausas::PonerAmamantamiento(std::optional<int> dias) {
    auto& campo = m_hoja.Campo(campo_cubricion::Amamantamiento);
    m_hoja.Poner(campo_cubricion::Amamantamiento, dias ? std::to_string(*dias) : std::string());
    PintarFondo(campo, dias && *dias >= 0 ? kRojo : QColor());
}

// The panel goes along with the pointer: let go on the sheet it stands there, on the frame at a place that is always the same.
void PaginaCausas::Arrastrar(const QPoint& desde) {
    constexpr QPoint kEnElMarco(136, 88);
    m_asido = m_asidero->mapTo(this, desde);
    m_marco.alSoltarPanel = [this, kEnElMarco] { Soltar(kEnElMarco); };
    auto* arrastre = new QDrag(this); // Qt takes it away
    auto* datos = new QMimeData;
    datos->setData(QLatin1String(Principal::TipoDePanel()), QByteArray());
    arrastre->setMimeData(datos);
    arrastre->exec(Qt::MoveAction);
    m_marco.alSoltarPanel = nullptr;
}

void PaginaCausas::Soltar(const QPoint& punto) {
    constexpr QSize kTamaño(529, 369);
    if (auto* disposicion = parentWidget()->layout())
        disposicion->removeWidget(this); // from now on it stands where it is put
    setGeometry(QRect(punto - m_asido, kTamaño.expandedTo(minimumSizeHint())));
    raise();
}

} // namespace pastorix
