#include "reports/motor/VentanaInforme.h"

#include "frame/Mensajes.h"
#include "reports/motor/ErrorInforme.h"
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
#include <QMenuBar>
#include <QPrintDialog>
#include <QPrinter>
#include <QSpinBox>
#include <QStandardPaths>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>

#include <cmath>

// Outside the namespace, as Qt asks: a resource of a static library is not there until it is named.
static void CargarIconosDeInformes() {
    Q_INIT_RESOURCE(informes);
}

namespace pastorix {

namespace {

QIcon IconoDeInforme(const char* nombre) {
    CargarIconosDeInformes();
    return nombre ? QIcon(QStringLiteral(":/pastorix/informes/%1.svg").arg(QLatin1String(nombre))) : QIcon();
}

const QString AnchoDePagina = QStringLiteral("Ancho de página");
const QString PaginaEntera = QStringLiteral("Página entera");

QString PropuestaDe(const InformeTerminado& informe, const QString& sufijo) {
    const QDir carpeta(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    return carpeta.filePath(informe.nombrePropuesto + sufijo);
}

struct Espera {
    Espera() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Espera() { QApplication::restoreOverrideCursor(); }
    Espera(const Espera&) = delete;
    Espera& operator=(const Espera&) = delete;
};

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

void VentanaInforme::CrearOrdenes() {
    struct Fila {
        const char* menu; // begins a menu
        const char* nombre;
        const char* texto;
        const char* atajo;
        const char* icono;
        std::function<void()> hacer;
    };
    const auto zoom = [this](double factor) { m_vista->PonerZoom(m_vista->Zoom() * factor); };
    const std::vector<Fila> filas{
        {"&Archivo", "Imprimir", "&Imprimir...", "Ctrl+P", "imprimir", [this] { ImprimirInforme(); }},
        {nullptr, "GuardarPdf", "Guardar como &PDF...", "Ctrl+S", "pdf",
         [this] {
             Guardar(QStringLiteral("Guardar como PDF"), QStringLiteral(".pdf"),
                     QStringLiteral("Documento PDF (*.pdf)"),
                     [this](const QString& fichero) { pastorix::GuardarPdf(m_informe, fichero); });
         }},
        {nullptr, "GuardarXlsx", "Guardar como &hoja de cálculo...", "Ctrl+H", "xlsx",
         [this] {
             Guardar(QStringLiteral("Guardar como hoja de cálculo"), QStringLiteral(".xlsx"),
                     QStringLiteral("Libro de Excel (*.xlsx)"),
                     [this](const QString& fichero) { pastorix::GuardarXlsx(m_informe, fichero); });
         }},
        {nullptr, "GuardarCsv", "Guardar como &textos CSV...", "Ctrl+T", "csv",
         [this] {
             Guardar(QStringLiteral("Guardar como carpeta de textos CSV"), QStringLiteral(" CSV"),
                     QStringLiteral("Carpeta (*)"),
                     [this](const QString& carpeta) { pastorix::GuardarCsv(m_informe, carpeta); });
         }},
        {nullptr, "Cerrar", "&Cerrar", "Esc", nullptr, [this] { close(); }},
        {"&Ver", "Acercar", "&Acercar", "Ctrl++", "acercar", [zoom] { zoom(1.25); }},
        {nullptr, "Alejar", "A&lejar", "Ctrl+-", "alejar", [zoom] { zoom(0.8); }},
        {nullptr, "TamañoReal", "&Tamaño real", "Ctrl+0", nullptr, [this] { m_vista->PonerZoom(1); }},
        {nullptr, "AjustarAncho", "A&justar al ancho", "Ctrl+1", "ancho",
         [this] { m_vista->PonerAjuste(VistaPaginas::Ajuste::Ancho); }},
        {nullptr, "PaginaEntera", "Página &entera", "Ctrl+2", "entera",
         [this] { m_vista->PonerAjuste(VistaPaginas::Ajuste::Pagina); }},
        {"&Ir", "Primera", "&Primera página", "Ctrl+Home", "primera", [this] { IrAPagina(0); }},
        {nullptr, "Anterior", "Página &anterior", "Ctrl+PgUp", "anterior",
         [this] { IrAPagina(m_vista->PaginaActual() - 1); }},
        {nullptr, "Siguiente", "Página &siguiente", "Ctrl+PgDown", "siguiente",
         [this] { IrAPagina(m_vista->PaginaActual() + 1); }},
        {nullptr, "Ultima", "Ú&ltima página", "Ctrl+End", "ultima",
         [this] { IrAPagina(static_cast<int>(m_informe.paginas.paginas.size()) - 1); }},
        {nullptr, "IrA", "&Número de página", "Ctrl+G", nullptr,
         [this] {
             m_pagina->setFocus();
             m_pagina->selectAll();
         }},
        {nullptr, "Buscar", "&Buscar", "Ctrl+F", nullptr,
         [this] {
             m_busca->setFocus();
             m_busca->selectAll();
         }},
        {nullptr, "BuscarSiguiente", "Buscar si&guiente", "F3", nullptr, [this] { Buscar(false); }},
        {nullptr, "BuscarAnterior", "Buscar an&terior", "Shift+F3", nullptr, [this] { Buscar(true); }},
    };
    QMenu* menu = nullptr;
    for (const Fila& fila : filas) {
        if (fila.menu)
            menu = menuBar()->addMenu(QString::fromUtf8(fila.menu));
        if (qstrcmp(fila.nombre, "Cerrar") == 0 || qstrcmp(fila.nombre, "IrA") == 0)
            menu->addSeparator();
        auto* accion = new QAction(IconoDeInforme(fila.icono), QString::fromUtf8(fila.texto), this);
        accion->setObjectName(QString::fromUtf8(fila.nombre));
        accion->setShortcut(QKeySequence(QString::fromUtf8(fila.atajo)));
        const QString limpio =
            QString::fromUtf8(fila.texto).remove(QLatin1Char('&')).remove(QStringLiteral("..."));
        accion->setToolTip(
            QStringLiteral("%1 (%2)").arg(limpio, accion->shortcut().toString(QKeySequence::NativeText)));
        connect(accion, &QAction::triggered, this, fila.hacer);
        menu->addAction(accion);
        if (qstrcmp(fila.nombre, "PaginaEntera") == 0) {
            QAction* panel = findChild<QDockWidget*>()->toggleViewAction();
            panel->setObjectName(QStringLiteral("VerMiniaturas"));
            panel->setText(QStringLiteral("&Miniaturas"));
            panel->setIcon(IconoDeInforme("miniaturas"));
            panel->setShortcut(QKeySequence(Qt::Key_F4));
            panel->setToolTip(QStringLiteral("Miniaturas (F4)"));
            menu->addSeparator();
            menu->addAction(panel);
        }
    }
}

QAction* VentanaInforme::Orden(const char* nombre) const {
    return findChild<QAction*>(QString::fromUtf8(nombre));
}

void VentanaInforme::CrearBarra() {
    QToolBar* barra = addToolBar(QStringLiteral("Informe"));
    barra->setObjectName(QStringLiteral("BarraInforme"));
    barra->setMovable(false);
    barra->setContextMenuPolicy(Qt::PreventContextMenu);
    barra->setIconSize(QSize(22, 22));
    barra->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const auto rotulado = [&](const char* nombre, const char* rotulo) {
        QAction* accion = Orden(nombre);
        accion->setIconText(QString::fromUtf8(rotulo));
        barra->addAction(accion);
    };
    const auto soloIcono = [&](const char* nombre) {
        barra->addAction(Orden(nombre));
        if (auto* boton = qobject_cast<QToolButton*>(barra->widgetForAction(Orden(nombre))))
            boton->setToolButtonStyle(Qt::ToolButtonIconOnly);
    };
    rotulado("Imprimir", "Imprimir");
    rotulado("GuardarPdf", "PDF");
    rotulado("GuardarXlsx", "Excel");
    rotulado("GuardarCsv", "CSV");
    barra->addSeparator();
    soloIcono("VerMiniaturas");
    soloIcono("Primera");
    soloIcono("Anterior");
    m_pagina = new QSpinBox(barra);
    m_pagina->setObjectName(QStringLiteral("NumeroDePagina"));
    m_pagina->setAccessibleName(QStringLiteral("Número de página"));
    m_pagina->setRange(1, static_cast<int>(m_informe.paginas.paginas.size()));
    m_pagina->setSuffix(QStringLiteral(" de %1").arg(m_informe.paginas.paginas.size()));
    m_pagina->setKeyboardTracking(false);
    m_pagina->setAlignment(Qt::AlignCenter);
    connect(m_pagina, &QSpinBox::valueChanged, this, [this](int pagina) { IrAPagina(pagina - 1); });
    barra->addWidget(m_pagina);
    soloIcono("Siguiente");
    soloIcono("Ultima");
    barra->addSeparator();
    soloIcono("Alejar");
    m_zoom = new QComboBox(barra);
    m_zoom->setObjectName(QStringLiteral("Zoom"));
    m_zoom->setAccessibleName(QStringLiteral("Tamaño de la página en la pantalla"));
    m_zoom->setEditable(true);
    m_zoom->setInsertPolicy(QComboBox::NoInsert);
    m_zoom->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_zoom->addItems({AnchoDePagina, PaginaEntera, QStringLiteral("50 %"), QStringLiteral("75 %"),
                      QStringLiteral("100 %"), QStringLiteral("150 %"), QStringLiteral("200 %"),
                      QStringLiteral("400 %")});
    connect(m_zoom, &QComboBox::textActivated, this, &VentanaInforme::ElegirZoom);
    connect(m_zoom->lineEdit(), &QLineEdit::returnPressed, this,
            [this] { ElegirZoom(m_zoom->currentText()); });
    barra->addWidget(m_zoom);
    soloIcono("Acercar");
    barra->addSeparator();
    m_busca = new QLineEdit(barra);
    m_busca->setObjectName(QStringLiteral("TextoBuscado"));
    m_busca->setAccessibleName(QStringLiteral("Texto que se busca en el informe"));
    m_busca->setPlaceholderText(QStringLiteral("Buscar (Ctrl+F)"));
    m_busca->setClearButtonEnabled(true);
    m_busca->setMinimumWidth(110);
    m_busca->setMaximumWidth(260);
    connect(m_busca, &QLineEdit::returnPressed, this, [this] { Buscar(false); });
    connect(m_busca, &QLineEdit::textChanged, this, [this](const QString& texto) {
        if (texto.isEmpty())
            Buscar(false);
    });
    barra->addWidget(m_busca);
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
