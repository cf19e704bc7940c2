#include "frame/Principal.h"

#include "frame/Acerca.h"
#include "frame/Atajos.h"
#include "frame/ControlEquipos.h"
#include "frame/FondoPrincipal.h"
#include "frame/Iconos.h"
#include "frame/Manual.h"
#include "frame/OrdenesPrincipal.h"
#include "frame/Ventanas.h"
#include "frame/calendario/Reloj.h"
#include "store/Literales.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>
#include <QToolBar>

#include <utility>

namespace pastorix {

Principal::Principal(Sesion& sesion)
    : m_sesion(sesion) {
    setObjectName(QStringLiteral("Principal"));
    setWindowTitle(QStringLiteral("PASTORIX"));
    setWindowIcon(Icono("pastorix"));
    setAcceptDrops(true);
    setCentralWidget(new FondoPrincipal(this));
    CrearMenus();
    CrearBarra();
    CrearPaneles();
    VincularPropias();

    // In this order: the pop-up off the bar, the log, the transfer menu.
    m_menus.at(QStringLiteral("MnuCausaPrincipal"))->menuAction()->setVisible(false);
    PurgarHistorial();
    Activar(QStringLiteral("MnuT"), false);

    setMinimumSize(480, 320);
    resize(1180, 660);
    RecordarVentanaMaximizada(*this);
}

void Principal::CrearMenus() {
    for (const EntradaDeMenu& entrada : MenusDePrincipal()) {
        const QString nombre = QString::fromUtf8(entrada.nombre);
        const QString padre = QString::fromUtf8(entrada.padre);
        QAction* accion = nullptr;
        if (entrada.clase == EntradaDeMenu::Clase::Menu) {
            QMenu* menu = padre.isEmpty() ? menuBar()->addMenu(QString::fromUtf8(entrada.texto))
                                          : m_menus.at(padre)->addMenu(QString::fromUtf8(entrada.texto));
            menu->setObjectName(nombre);
            m_menus[nombre] = menu;
            accion = menu->menuAction();
        } else if (entrada.clase == EntradaDeMenu::Clase::Regla) {
            accion = m_menus.at(padre)->addSeparator();
        } else {
            accion = m_menus.at(padre)->addAction(QString::fromUtf8(entrada.texto));
            if (*entrada.icono)
                accion->setIcon(Icono(entrada.icono));
            connect(accion, &QAction::triggered, this, [this, nombre] { Ejecutar(nombre); });
        }
        accion->setObjectName(nombre);
        m_ordenes[nombre] = {accion, {}, true, entrada.clase == EntradaDeMenu::Clase::Orden};
        Refrescar(nombre);
    }
}

void Principal::CrearBarra() {
    QToolBar* barra = addToolBar(QStringLiteral("Barra de herramientas"));
    barra->setObjectName(QStringLiteral("BarraHerr"));
    barra->setMovable(false);
    barra->setContextMenuPolicy(Qt::PreventContextMenu); // nothing would bring a hidden toolbar back
    barra->setIconSize(QSize(32, 32));
    barra->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    for (const BotonDeBarra& boton : BarraDePrincipal()) {
        const QString texto = QString::fromUtf8(boton.texto);
        const QString orden = QString::fromUtf8(boton.orden);
        QAction* accion =
            texto.isEmpty() ? barra->addSeparator() : barra->addAction(Icono(boton.icono), texto.trimmed());
        accion->setToolTip(texto);
        accion->setObjectName(QStringLiteral("BarraHerr(%1)").arg(boton.indice));
        if (!orden.isEmpty())
            connect(accion, &QAction::triggered, this, [this, orden] { Ejecutar(orden); });
        m_botones[boton.indice] = {accion, {}, true, !orden.isEmpty()};
        ActivarBoton(boton.indice, true);
    }
}

void Principal::CrearPaneles() {
    statusBar()->setObjectName(QStringLiteral("StatusBar1"));
    statusBar()->setSizeGripEnabled(true);
    for (QLabel** panel : {&m_panelModo, &m_panelFecha}) {
        *panel = new QLabel(this);
        (*panel)->setTextFormat(Qt::PlainText); // a login name is no markup
        (*panel)->setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken));
    }
    m_panelModo->setObjectName(QStringLiteral("StatusBar1.Panel(1)"));
    m_panelModo->setAccessibleName(QStringLiteral("Modo de la sesión"));
    m_panelFecha->setObjectName(QStringLiteral("StatusBar1.Panel(2)"));
    m_panelFecha->setAccessibleName(QStringLiteral("Fecha"));
    statusBar()->addWidget(m_panelModo, 1);
    m_soloLectura = new QLabel(QStringLiteral("Base de datos dañada: solo lectura"), this);
    m_soloLectura->setObjectName(QStringLiteral("SoloLectura"));
    m_soloLectura->setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken));
    m_soloLectura->setToolTip(
        QStringLiteral("Se puede consultar, imprimir y exportar; nada de lo que se anote se "
                       "guarda. Al entrar de nuevo se ofrece restaurar una copia."));
    statusBar()->addPermanentWidget(m_soloLectura);
    m_soloLectura->hide();
    statusBar()->addPermanentWidget(m_panelFecha);
    m_peligro = new QLabel(this);
    m_peligro->setObjectName(QStringLiteral("Peligro"));
    m_peligro->setTextFormat(Qt::PlainText);
    m_peligro->setStyleSheet(QStringLiteral("color: white; background: #b00020; padding: 1px 6px"));
    statusBar()->addPermanentWidget(m_peligro);
    m_peligro->hide();
    AjustarPaneles();
}

void Principal::AjustarPaneles() {
    if (!m_panelFecha)
        return;
    m_panelModo->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_panelFecha->setAlignment(Qt::AlignCenter);
    m_panelFecha->setText(QString::fromStdString(FormatoFecha(Hoy(), "dd/mm/yyyy")));
    m_panelFecha->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000")) + 28);
}

void Principal::PurgarHistorial() {
    constexpr int diasQueSeGuardan = 10;
    try {
        m_sesion.conexion.Execute("DELETE FROM Historial WHERE Fecha < " +
                                  FechaSql4(Hoy().MasDias(-diasQueSeGuardan)));
    } catch (const ErrorAlmacen&) { // the log is no reason to keep anybody out
    }
}

void Principal::VincularPropias() {
    Vincular(QStringLiteral("Mnu_Salir"), [this] { close(); });
    Vincular(QStringLiteral("Mnu_Manual"), [this] { AbrirManual(this, m_sesion.rutas); });
    Vincular(QStringLiteral("Mnu_Atajos"), [this] { ListaDeAtajos(*this).exec(); });
    Vincular(QStringLiteral("Mnu_Acercade"), [this] { Acerca(m_sesion, this).exec(); });
    Vincular(QStringLiteral("Mnu_ControlCli"), [this] { MostrarControlEquipos(m_sesion, this); });
}

void Principal::Vincular(const QString& nombreDeAccion, std::function<void()> orden) {
    const auto hallada = m_ordenes.find(nombreDeAccion);
    if (hallada == m_ordenes.end() || !hallada->second.necesitaOrden) {
        qCritical("no such command: %s", qUtf8Printable(nombreDeAccion));
        return;
    }
    hallada->second.orden = std::move(orden);
    Refrescar(nombreDeAccion);
    for (const BotonDeBarra& boton : BarraDePrincipal())
        if (QString::fromUtf8(boton.orden) == nombreDeAccion && m_botones.contains(boton.indice))
            ActivarBoton(boton.indice, m_botones.at(boton.indice).activa);
}

void Principal::Ejecutar(const QString& nombre) {
    if (const std::function<void()> orden = m_ordenes.at(nombre).orden)
        orden();
}

void Principal::Refrescar(const QString& nombre) {
    const Estado& estado = m_ordenes.at(nombre);
    // A menu is a widget: disabled itself, it does not come back with the window that the login enables again.
    if (const auto menu = m_menus.find(nombre); menu != m_menus.end())
        menu->second->setEnabled(estado.activa);
    estado.accion->setEnabled(estado.activa && (!estado.necesitaOrden || estado.orden));
}

void Principal::Mostrar(const QString& orden, bool visible) {
    m_ordenes.at(orden).accion->setVisible(visible);
}

void Principal::Activar(const QString& orden, bool activa) {
    m_ordenes.at(orden).activa = activa;
    Refrescar(orden);
}

void Principal::ActivarBoton(int boton, bool activo) {
    Estado& estado = m_botones.at(boton);
    estado.activa = activo;
    bool vinculado = true;
    for (const BotonDeBarra& b : BarraDePrincipal())
        if (b.indice == boton && *b.orden)
            vinculado = static_cast<bool>(m_ordenes.at(QString::fromUtf8(b.orden)).orden);
    estado.accion->setEnabled(activo && vinculado);
}

void Principal::FijarPanel(const QString& texto) {
    m_panelModo->setText(texto);
}

void Principal::MostrarSoloLectura(bool soloLectura) {
    m_soloLectura->setVisible(soloLectura);
}

void Principal::MostrarPeligro(const QString& texto) {
    m_peligro->setText(texto);
    m_peligro->setVisible(!texto.isEmpty());
}

QString Principal::Peligro() const {
    return m_peligro->text();
}

QString Principal::Panel() const {
    return m_panelModo->text();
}

QAction* Principal::Orden(const QString& nombre) const {
    const auto hallada = m_ordenes.find(nombre);
    return hallada == m_ordenes.end() ? nullptr : hallada->second.accion;
}

QAction* Principal::Boton(int indice) const {
    return m_botones.at(indice).accion;
}

QMenu* Principal::MenuCausaPrincipal() const {
    return m_menus.at(QStringLiteral("MnuCausaPrincipal"));
}

void Principal::closeEvent(QCloseEvent* evento) {
    evento->accept();
    Q_EMIT Salida();
    QCoreApplication::quit();
}

void Principal::resizeEvent(QResizeEvent* evento) {
    QMainWindow::resizeEvent(evento);
    AjustarPaneles();
}

void Principal::changeEvent(QEvent* evento) {
    QMainWindow::changeEvent(evento);
    // Sessions last for days: the date is looked at whenever the user comes back to the window.
    if (evento->type() == QEvent::ActivationChange || evento->type() == QEvent::FontChange)
        AjustarPaneles();
    if (evento->type() == QEvent::ActivationChange && isActiveWindow())
        Q_EMIT Activada();
}

const char* Principal::TipoDePanel() {
    return "application/x-pastorix-panel";
}

void Principal::dragEnterEvent(QDragEnterEvent* evento) {
    if (alSoltarPanel && evento->mimeData()->hasFormat(QLatin1String(TipoDePanel())))
        evento->acceptProposedAction();
}

void Principal::dropEvent(QDropEvent* evento) {
    evento->acceptProposedAction();
    if (alSoltarPanel)
        alSoltarPanel();
}

} // namespace pastorix
