#include "frame/Presentacion.h"

#include "frame/FondoPrincipal.h"
#include "frame/Iconos.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include <utility>

namespace pastorix {

Presentacion::Presentacion(const Sesion& sesion, std::function<void()> siguiente)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint)
    , m_siguiente(std::move(siguiente))
    , m_reloj(new QTimer(this)) {
    setObjectName(QStringLiteral("Presentacion"));
    setWindowTitle(QStringLiteral("Pastorix"));

    auto* emblema = new QLabel(this);
    emblema->setPixmap(Icono("pastorix").pixmap(QSize(120, 120), devicePixelRatioF()));
    emblema->setAlignment(Qt::AlignCenter);
    auto* version = new QLabel(QString::fromStdString(sesion.VersionPrograma), this);
    version->setObjectName(QStringLiteral("Version"));
    version->setAlignment(Qt::AlignCenter);
    QFont grande = version->font();
    grande.setPointSizeF(grande.pointSizeF() * 2);
    grande.setBold(true);
    version->setFont(grande);
    auto* lema =
        new QLabel(QStringLiteral("Fichas e índices técnicos de explotaciones de vacuno de carne"), this);
    lema->setAlignment(Qt::AlignCenter);

    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(40, 36, 40, 36);
    columna->setSpacing(14);
    columna->addWidget(emblema);
    columna->addWidget(version);
    columna->addWidget(lema);
    resize(sizeHint().expandedTo(QSize(480, 300)));
    if (const QScreen* pantalla = QGuiApplication::primaryScreen())
        move(pantalla->availableGeometry().center() - rect().center());

    m_reloj->setObjectName(QStringLiteral("Reloj"));
    m_reloj->setInterval(5000);
    m_reloj->setSingleShot(true);
    connect(m_reloj, &QTimer::timeout, this, &Presentacion::Terminar);
}

void Presentacion::showEvent(QShowEvent* evento) {
    QWidget::showEvent(evento);
    if (!m_reloj->isActive())
        m_reloj->start();
}

void Presentacion::Terminar() {
    hide();
    if (const auto siguiente = std::exchange(m_siguiente, {}))
        siguiente();
}

void Presentacion::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintor.fillRect(rect(), DegradadoDeFondo(palette(), rect()));
    pintor.setPen(palette().color(QPalette::Mid));
    pintor.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace pastorix
