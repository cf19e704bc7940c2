#include "frame/Volando.h"

#include "frame/Iconos.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QTimer>
#include <QVBoxLayout>

namespace pastorix {

namespace {

// The flight of a sheet between two folders, in the colours of the desktop.
class Vuelo : public QWidget {
public:
    explicit Vuelo(QWidget* padre)
        : QWidget(padre)
        , m_carpeta(Icono("carpeta"))
        , m_hoja(Icono("hoja")) {
        setObjectName(QStringLiteral("Animation1"));
        setFixedHeight(64);
        auto* paso = new QTimer(this);
        connect(paso, &QTimer::timeout, this, [this] {
            m_paso = (m_paso + 1) % pasos;
            update();
        });
        paso->start(60);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter pintor(this);
        constexpr int lado = 48;
        const int base = height() - lado;
        m_carpeta.paint(&pintor, 0, base, lado, lado);
        m_carpeta.paint(&pintor, width() - lado, base, lado, lado);
        const double t = static_cast<double>(m_paso) / pasos;
        const double x = 12 + t * (width() - lado);
        const double y = base - 4 - 40 * t * (1 - t);
        m_hoja.paint(&pintor, static_cast<int>(x), static_cast<int>(y), 24, 24);
    }

private:
    static constexpr int pasos = 40;
    QIcon m_carpeta, m_hoja;
    int m_paso = 0;
};

} // namespace

Volando::Volando(QWidget* padre)
    : QDialog(padre, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    , m_animacion(new Vuelo(this))
    , m_barra(new QProgressBar(this))
    , m_porcentaje(new QLabel(this)) {
    setObjectName(QStringLiteral("Volando"));
    setWindowTitle(QStringLiteral("Importar / Exportar"));
    setWindowModality(Qt::ApplicationModal);
    m_barra->setObjectName(QStringLiteral("Pbar1"));
    m_barra->setRange(0, 100);
    m_barra->setTextVisible(false);
    m_barra->setAccessibleName(QStringLiteral("Progreso"));
    m_porcentaje->setObjectName(QStringLiteral("Porcentaje"));
    m_porcentaje->setTextFormat(Qt::PlainText);
    m_porcentaje->setAlignment(Qt::AlignCenter);

    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(20, 16, 20, 16);
    columna->addWidget(m_animacion);
    columna->addWidget(m_barra);
    columna->addWidget(m_porcentaje);
    setMinimumWidth(380);
    if (padre) // 1500 by 2000 twips from the corner of the main window
        move(padre->mapToGlobal(QPoint(100, 133)));
}

void Volando::PonerRotulo(const QString& texto) {
    m_porcentaje->setText(texto);
}

void Volando::OcultarBarra() {
    m_barra->hide();
}

void Volando::MostrarProgreso(int porcentaje) {
    m_barra->setValue(porcentaje);
    m_porcentaje->setText(QString::number(porcentaje) + QStringLiteral(" %"));
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    repaint();
}

void Volando::keyPressEvent(QKeyEvent* evento) {
    evento->accept();
}

} // namespace pastorix
