// The orders of the preview: one table for menus, shortcuts and tool bar.
#include "reports/motor/VentanaInforme.h"

#include "reports/motor/Exportacion.h"
#include "reports/motor/Pdf.h"
#include "reports/motor/VistaPaginas.h"

#include <QAction>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QSpinBox>
#include <QToolBar>
#include <QToolButton>

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

} // namespace

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
        {nullptr, "CopiarTabla", "C&opiar tabla", "Ctrl+C", nullptr, [this] { CopiarTabla(); }},
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
        {nullptr, "Preguntar", "&De dónde sale una cifra", "F2", nullptr, [this] { PreguntarCifras(); }},
        {nullptr, "BuscarSiguiente", "Buscar si&guiente", "F3", nullptr, [this] { Buscar(false); }},
        {nullptr, "BuscarAnterior", "Buscar an&terior", "Shift+F3", nullptr, [this] { Buscar(true); }},
    };
    QMenu* menu = nullptr;
    for (const Fila& fila : filas) {
        if (!menu || fila.menu)
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
            menu->addSeparator();
            menu->addAction(
                OrdenDePanel("PanelMiniaturas", "VerMiniaturas", "&Miniaturas", Qt::Key_F4, "miniaturas"));
            menu->addAction(OrdenDePanel("PanelIndice", "VerIndice", "Ín&dice", Qt::Key_F6, nullptr));
        }
    }
}

// Brings a panel to the front and goes into it; hides it when it is there.
QAction* VentanaInforme::OrdenDePanel(const char* panel, const char* nombre, const char* texto, int tecla,
                                      const char* icono) {
    auto* suyo = findChild<QDockWidget*>(QString::fromUtf8(panel));
    auto* orden = new QAction(IconoDeInforme(icono), QString::fromUtf8(texto), this);
    orden->setObjectName(QString::fromUtf8(nombre));
    orden->setCheckable(true);
    orden->setShortcut(QKeySequence(tecla));
    orden->setToolTip(QStringLiteral("%1 (%2)").arg(QString::fromUtf8(texto).remove(QLatin1Char('&')),
                                                    orden->shortcut().toString(QKeySequence::NativeText)));
    connect(suyo, &QDockWidget::visibilityChanged, orden, &QAction::setChecked);
    connect(orden, &QAction::triggered, this, [this, suyo] {
        const bool delante = suyo->isVisible() && !suyo->widget()->visibleRegion().isEmpty();
        suyo->setVisible(!delante);
        if (!delante)
            suyo->raise();
        (delante ? static_cast<QWidget*>(m_vista) : suyo->widget())->setFocus();
    });
    return orden;
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
    auto* rotulo = new QLabel(m_zoom->accessibleName(),
                              barra); // for screen readers, to whom a list tells its value only
    rotulo->setBuddy(m_zoom);
    rotulo->hide();
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

} // namespace pastorix
