#include "reports/motor/VentanaInforme.h"

#include "frame/Ajustes.h"
#include "frame/Mensajes.h"
#include "frame/Ventanas.h"
#include "reports/motor/CopiaDeTabla.h"
#include "reports/motor/Espera.h"
#include "reports/motor/Exportacion.h"
#include "reports/motor/IndiceDePaginas.h"
#include "reports/motor/Miniaturas.h"
#include "reports/motor/Pdf.h"
#include "reports/motor/VistaPaginas.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPrintDialog>
#include <QPrinter>
#include <QSpinBox>
#include <QStandardPaths>
#include <QStatusBar>
#include <QWindow>

#include <cmath>

namespace pastorix {

namespace {

constexpr int AnchoDePaneles = 170; // pixels, as they come; their user moves the edges
constexpr int AnchoDeCifra = 330;
const QString UltimaCarpeta = QStringLiteral("carpeta de informes");

// In the folder into which the user wrote a report last, as long as it is there.
QString PropuestaDe(const InformeTerminado& informe, const QString& sufijo) {
    QString carpeta = AjusteDeVentana(UltimaCarpeta).toString();
    if (carpeta.isEmpty() || !QDir(carpeta).exists())
        carpeta = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(carpeta).filePath(informe.nombrePropuesto + sufijo);
}

} // namespace

VentanaInforme::VentanaInforme(InformeTerminado informe, PreguntasDeCifra preguntas, QWidget* padre)
    : QMainWindow(padre)
    , m_informe(std::move(informe))
    , m_preguntas(std::move(preguntas)) {
    setObjectName(QStringLiteral("VentanaInforme"));
    setWindowTitle(m_informe.titulo);
    setWindowIcon(QApplication::windowIcon());
    m_vista = new VistaPaginas(m_informe.paginas, this);
    setCentralWidget(m_vista);
    CrearPaneles();
    CrearOrdenes();
    CrearBarra();
    m_estado = new QLabel(this);
    statusBar()->addPermanentWidget(m_estado);
    statusBar()->showMessage(m_informe.aviso);
    connect(m_vista, &VistaPaginas::PaginaCambiada, this, &VentanaInforme::MostrarPagina);
    connect(m_vista, &VistaPaginas::ZoomCambiado, this, &VentanaInforme::MostrarZoom);
    setMinimumSize(480, 360);
    resize(1100, 680);
    RecordarVentana(*this);
    MostrarPagina(0);
    MostrarZoom();
    m_vista->setFocus();
}

VentanaInforme* VentanaInforme::Abrir(InformeTerminado informe, PreguntasDeCifra preguntas, bool comoIcono) {
    const bool maximizada = informe.maximizada;
    auto* ventana = new VentanaInforme(std::move(informe), std::move(preguntas));
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

void VentanaInforme::CrearPaneles() {
    const auto panel = [&](const char* nombre, const QString& titulo, QWidget* dentro, bool visible,
                           Qt::DockWidgetArea lado = Qt::LeftDockWidgetArea) {
        auto* nuevo = new QDockWidget(titulo, this);
        nuevo->setObjectName(QString::fromUtf8(nombre));
        nuevo->setFeatures(QDockWidget::DockWidgetClosable);
        nuevo->setWidget(dentro);
        addDockWidget(lado, nuevo);
        nuevo->setVisible(visible);
        return nuevo;
    };
    m_miniaturas = new Miniaturas(m_informe.paginas, this);
    m_indice = new IndiceDePaginas(m_informe.paginas.indice, this);
    auto* paginas = panel("PanelMiniaturas", QStringLiteral("Páginas"), m_miniaturas,
                          m_informe.paginas.paginas.size() > 1);
    auto* indice =
        panel("PanelIndice", QStringLiteral("Índice"), m_indice, m_informe.paginas.indice.size() > 1);
    tabifyDockWidget(paginas, indice);
    paginas->raise();
    resizeDocks({paginas}, {AnchoDePaneles}, Qt::Horizontal);
    connect(m_miniaturas, &Miniaturas::Elegida, this, &VentanaInforme::IrAPagina);
    connect(m_indice, &IndiceDePaginas::Elegida, this, &VentanaInforme::IrAPagina);
    m_cifra = new PanelDeCifra(this);
    panel("PanelCifra", QStringLiteral("De dónde sale"), m_cifra, false, Qt::RightDockWidgetArea);
    connect(m_vista, &VistaPaginas::CifraElegida, this, &VentanaInforme::ExplicarCifra);
    connect(m_cifra, &PanelDeCifra::VacaElegida, this, [this](double vaca) {
        if (m_preguntas.abrirVaca)
            m_preguntas.abrirVaca(this, vaca);
    });
}

void VentanaInforme::IrAPagina(int pagina) {
    m_vista->IrA(pagina);
}

void VentanaInforme::MostrarPagina(int pagina) {
    const int ultima = static_cast<int>(m_informe.paginas.paginas.size()) - 1;
    const QSignalBlocker callar(m_pagina);
    m_pagina->setValue(pagina + 1);
    m_miniaturas->Marcar(pagina);
    m_indice->Marcar(pagina);
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

// The only table at once; of several the one that is chosen.
void VentanaInforme::CopiarTabla() {
    const auto copiar = [this](std::size_t hoja) {
        const HojaDatos& tabla = m_informe.hojas[hoja];
        QApplication::clipboard()->setMimeData(CopiaDeTabla(tabla).release());
        statusBar()->showMessage(
            QStringLiteral("Copiada la tabla «%1»: %2 filas").arg(tabla.nombre).arg(tabla.filas.size()),
            8000);
    };
    if (m_informe.hojas.size() == 1)
        return copiar(0);
    QMenu menu(this);
    for (std::size_t i = 0; i < m_informe.hojas.size(); ++i)
        menu.addAction(m_informe.hojas[i].nombre, this, [copiar, i] { copiar(i); });
    if (!menu.isEmpty())
        menu.exec(mapToGlobal(m_vista->geometry().topLeft()));
}

void VentanaInforme::PreguntarCifras() {
    const bool hay = m_preguntas.explicar && m_vista->PreguntarCifras();
    statusBar()->showMessage(hay ? QStringLiteral("Flechas: otra cifra. Entrar: de dónde sale. Esc: terminar")
                                 : QStringLiteral("Este informe no tiene cifras que se puedan preguntar"),
                             8000);
}

void VentanaInforme::ExplicarCifra(int figura, const QString& impreso) {
    if (!m_preguntas.explicar)
        return;
    try {
        const Espera espera;
        const auto explicacion = m_preguntas.explicar(m_informe.paginas.figuras.at(figura));
        if (!explicacion)
            return;
        m_cifra->Mostrar(*explicacion, impreso);
        auto* panel = findChild<QDockWidget*>(QStringLiteral("PanelCifra"));
        if (!panel->isVisible()) {
            panel->show();
            resizeDocks({panel}, {AnchoDeCifra}, Qt::Horizontal);
        }
        panel->raise();
        m_cifra->setFocus();
    } catch (const std::exception& e) {
        AvisarFallo(this, QStringLiteral("Atención"), e);
    }
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
        AvisarFallo(this, QStringLiteral("Atención"), e);
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
        GuardarAjusteDeVentana(UltimaCarpeta, QFileInfo(fichero).absolutePath());
        statusBar()->showMessage(QStringLiteral("Guardado en %1").arg(QDir::toNativeSeparators(fichero)),
                                 15000);
    } catch (const std::exception& e) {
        AvisarFallo(this, QStringLiteral("Atención"), e);
    }
}

} // namespace pastorix
