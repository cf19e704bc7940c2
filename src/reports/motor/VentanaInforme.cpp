#include "reports/motor/VentanaInforme.h"

#include "frame/Mensajes.h"
#include "reports/motor/Espera.h"
#include "reports/motor/Exportacion.h"
#include "reports/motor/Miniaturas.h"
#include "reports/motor/Pdf.h"
#include "reports/motor/VistaPaginas.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QSpinBox>
#include <QStandardPaths>
#include <QStatusBar>
#include <QWindow>

#include <cmath>

namespace pastorix {

namespace {

QString PropuestaDe(const InformeTerminado& informe, const QString& sufijo) {
    const QDir carpeta(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    return carpeta.filePath(informe.nombrePropuesto + sufijo);
}

} // namespace

VentanaInforme::VentanaInforme(InformeTerminado informe, QWidget* padre)
    : QMainWindow(padre)
    , m_informe(std::move(informe)) {
    setObjectName(QStringLiteral("VentanaInforme"));
    setWindowTitle(m_informe.titulo);
    setWindowIcon(QApplication::windowIcon());
    m_vista = new VistaPaginas(m_informe.paginas, this);
    setCentralWidget(m_vista);
    CrearMiniaturas();
    CrearOrdenes();
    CrearBarra();
    m_estado = new QLabel(this);
    statusBar()->addPermanentWidget(m_estado);
    connect(m_vista, &VistaPaginas::PaginaCambiada, this, &VentanaInforme::MostrarPagina);
    connect(m_vista, &VistaPaginas::ZoomCambiado, this, &VentanaInforme::MostrarZoom);
    setMinimumSize(480, 360);
    resize(1100, 680);
    MostrarPagina(0);
    MostrarZoom();
    m_vista->setFocus();
}

VentanaInforme* VentanaInforme::Abrir(InformeTerminado informe, bool comoIcono) {
    const bool maximizada = informe.maximizada;
    auto* ventana = new VentanaInforme(std::move(informe));
    ventana->setAttribute(Qt::WA_DeleteOnClose);
    // A modal form that is open would block a window that does not belong to it; it need not own it for that.
    if (const QWidget* modal = QApplication::activeModalWidget(); modal && modal->windowHandle()) {
        ventana->winId();
        ventana->windowHandle()->setTransientParent(modal->windowHandle());
    }
    if (comoIcono)
        ventana->showMinimized();
    else if (maximizada)
        ventana->showMaximized();
    else
        ventana->show();
    if (!comoIcono)
        ventana->activateWindow();
    return ventana;
}

void VentanaInforme::CrearMiniaturas() {
    auto* panel = new QDockWidget(QStringLiteral("Páginas"), this);
    panel->setObjectName(QStringLiteral("PanelMiniaturas"));
    panel->setFeatures(QDockWidget::DockWidgetClosable);
    m_miniaturas = new Miniaturas(m_informe.paginas, panel);
    panel->setWidget(m_miniaturas);
    addDockWidget(Qt::LeftDockWidgetArea, panel);
    panel->setVisible(m_informe.paginas.paginas.size() > 1);
    connect(m_miniaturas, &Miniaturas::Elegida, this, &VentanaInforme::IrAPagina);
}

void VentanaInforme::IrAPagina(int pagina) {
    m_vista->IrA(pagina);
}

void VentanaInforme::MostrarPagina(int pagina) {
    const int ultima = static_cast<int>(m_informe.paginas.paginas.size()) - 1;
    const QSignalBlocker callar(m_pagina);
    m_pagina->setValue(pagina + 1);
    m_miniaturas->Marcar(pagina);
    for (const char* atras : {"Primera", "Anterior"})
        Orden(atras)->setEnabled(pagina > 0);
    for (const char* adelante : {"Siguiente", "Ultima"})
        Orden(adelante)->setEnabled(pagina < ultima);
    m_estado->setText(QStringLiteral("Página %1 de %2").arg(pagina + 1).arg(ultima + 1));
}

void VentanaInforme::MostrarZoom() {
    const QSignalBlocker callar(m_zoom);
    switch (m_vista->AjusteActual()) {
    case VistaPaginas::Ajuste::Ancho:
        m_zoom->setCurrentText(AnchoDePagina);
        break;
    case VistaPaginas::Ajuste::Pagina:
        m_zoom->setCurrentText(PaginaEntera);
        break;
    case VistaPaginas::Ajuste::Libre:
        m_zoom->setCurrentText(QStringLiteral("%1 %").arg(std::lround(m_vista->Zoom() * 100)));
        break;
    }
}

void VentanaInforme::ElegirZoom(const QString& texto) {
    bool numero = false;
    const double porcentaje = QString(texto)
                                  .remove(QLatin1Char('%'))
                                  .replace(QLatin1Char(','), QLatin1Char('.'))
                                  .trimmed()
                                  .toDouble(&numero);
    if (texto == AnchoDePagina)
        m_vista->PonerAjuste(VistaPaginas::Ajuste::Ancho);
    else if (texto == PaginaEntera)
        m_vista->PonerAjuste(VistaPaginas::Ajuste::Pagina);
    else if (numero && porcentaje > 0)
        m_vista->PonerZoom(std::round(porcentaje) / 100);
    MostrarZoom(); // what was not understood gives way to what is
    m_vista->setFocus();
}

void VentanaInforme::Buscar(bool atras) {
    const bool hallado = m_vista->Buscar(m_busca->text(), atras);
    if (hallado)
        statusBar()->clearMessage();
    else
        statusBar()->showMessage(QStringLiteral("No se encuentra «%1»").arg(m_busca->text()), 8000);
}

void VentanaInforme::ImprimirInforme() {
    QPrinter impresora(QPrinter::HighResolution);
    const bool apaisada = m_informe.paginas.tamaño.width() > m_informe.paginas.tamaño.height();
    impresora.setPageSize(QPageSize(QPageSize::A4));
    impresora.setPageOrientation(apaisada ? QPageLayout::Landscape : QPageLayout::Portrait);
    impresora.setDocName(m_informe.titulo.trimmed());
    QPrintDialog dialogo(&impresora, this);
    dialogo.setWindowTitle(QStringLiteral("Imprimir"));
    dialogo.setMinMax(1, static_cast<int>(m_informe.paginas.paginas.size()));
    dialogo.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                       QAbstractPrintDialog::PrintCollateCopies | QAbstractPrintDialog::PrintShowPageSize);
    if (dialogo.exec() != QDialog::Accepted)
        return;
    try {
        const Espera espera;
        pastorix::Imprimir(m_informe, impresora);
    } catch (const std::exception& e) {
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"), QString::fromUtf8(e.what()));
    }
}

void VentanaInforme::Guardar(const QString& titulo, const QString& sufijo, const QString& filtro,
                             const std::function<void(const QString&)>& escribir) {
    const QString fichero = ElegirFicheroGuardar(this, titulo, PropuestaDe(m_informe, sufijo), filtro);
    if (fichero.isEmpty())
        return;
    try {
        const Espera espera;
        escribir(fichero);
        statusBar()->showMessage(QStringLiteral("Guardado en %1").arg(QDir::toNativeSeparators(fichero)),
                                 15000);
    } catch (const std::exception& e) {
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"), QString::fromUtf8(e.what()));
    }
}

} // namespace pastorix
