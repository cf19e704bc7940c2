#include "frame/Ciclo.h"

#include "frame/calendario/Formatos.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace pastorix {

Ciclo::Ciclo(QWidget* padre, const QString& texto)
    : QDialog(padre, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    , m_rotulo(new QLabel(texto, this))
    , m_porcentaje(new QLabel(this))
    , m_barra(new QProgressBar(this)) {
    setObjectName(QStringLiteral("Ciclo"));
    setWindowTitle(QStringLiteral("Pastorix"));
    setWindowModality(Qt::ApplicationModal);

    m_rotulo->setObjectName(QStringLiteral("Ct_Estandar"));
    m_rotulo->setTextFormat(Qt::PlainText);
    m_barra->setObjectName(QStringLiteral("PBar"));
    m_barra->setRange(0, 100);
    m_barra->setTextVisible(false);
    m_barra->setAccessibleName(texto);
    m_porcentaje->setObjectName(QStringLiteral("Porcentaje"));
    m_porcentaje->setAlignment(Qt::AlignRight);

    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(20, 16, 20, 16);
    columna->setSpacing(8);
    columna->addWidget(m_rotulo);
    columna->addWidget(m_barra);
    columna->addWidget(m_porcentaje);
    setMinimumWidth(360);
}

void Ciclo::Avance(int hecho, int total) {
    const double proporcion = total > 0 ? hecho * 100.0 / total : 0;
    const int porcentaje = std::max(1, static_cast<int>(Round(std::clamp(proporcion, 0.0, 100.0))));
    if (porcentaje == m_mostrado)
        return;
    m_mostrado = porcentaje;
    m_barra->setValue(porcentaje);
    m_porcentaje->setText(QString::number(porcentaje) + QStringLiteral(" %"));
    // The work runs on this very thread: let the window be drawn, but take no input that would start something else.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    repaint();
}

void Ciclo::Rotular(const QString& texto) {
    m_rotulo->setText(texto);
    m_barra->setAccessibleName(texto);
}

void Ciclo::keyPressEvent(QKeyEvent* evento) {
    evento->accept();
} // Escape closes nothing here

CicloTardio::CicloTardio(QWidget* padre, QString texto)
    : m_padre(padre)
    , m_texto(std::move(texto)) {
    m_reloj.start();
}

void CicloTardio::Avance(int hecho, int total) {
    constexpr qint64 espera = 500; // ms
    if (!m_ciclo && m_reloj.elapsed() >= espera) {
        m_ciclo = std::make_unique<Ciclo>(m_padre, m_texto);
        m_ciclo->show();
    }
    if (m_ciclo)
        m_ciclo->Avance(hecho, total);
}

void CicloTardio::Rotular(const QString& texto) {
    m_texto = texto;
    if (m_ciclo)
        m_ciclo->Rotular(texto);
}

FuncionAvance AvanceTardio(QWidget* padre, const QString& texto) {
    auto ciclo = std::make_shared<CicloTardio>(padre, texto);
    return [ciclo](int hecho, int total) { ciclo->Avance(hecho, total); };
}

} // namespace pastorix
