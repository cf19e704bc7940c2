#include "reproduction/PanelAvisos.h"

#include "frame/Ajustes.h"
#include "frame/Colores.h"
#include "frame/Iconos.h"
#include "frame/Tablas.h"
#include "frame/calendario/Reloj.h"
#include "store/Copias.h"
#include "store/Ficheros.h"
#include "store/Recordset.h"

#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QThread>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <map>

namespace pastorix {

namespace {

constexpr const char* kCerrado = "Avisos/Cerrado";
constexpr long kVacasAlMomento = 1500; // up to so many the reading takes no time that is noticed
constexpr int kDiasDeCopia = 31;       // from which a backup is old

long Vacas(Conexion& c) {
    Recordset rs(c, "SELECT Count(Id_Vaca) AS N FROM T_Vacas", Cursor::Estatico, Bloqueo::SoloLectura);
    return static_cast<long>(rs[0].Numero());
}

} // namespace

PanelAvisos::PanelAvisos(Sesion& sesion, QWidget* padre)
    : QFrame(padre)
    , m_sesion(sesion)
    , m_ganadero(new QComboBox(this))
    , m_resumen(new QLabel(this))
    , m_copias(new QLabel(this))
    , m_tabla(new QTableWidget(0, 5, this)) {
    setObjectName(QStringLiteral("PanelAvisos"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    m_tabla->setObjectName(QStringLiteral("GridAvisos"));
    m_tabla->setAccessibleName(QStringLiteral("Avisos"));
    m_tabla->setHorizontalHeaderLabels({QStringLiteral("Aviso"), QStringLiteral("Ganadero"),
                                        QStringLiteral("Vaca"), QStringLiteral("Crotal"),
                                        QStringLiteral("Qué pasa")});
    VestirTabla(*m_tabla);
    const int letra = fontMetrics().averageCharWidth();
    for (const auto& [columna, letras] : {std::pair{0, 20}, {1, 22}, {2, 24}, {3, 24}})
        m_tabla->setColumnWidth(columna, letra * letras);
    connect(m_tabla, &QTableWidget::cellDoubleClicked, this, [this](int fila, int) { Abrir(fila); });
    m_copias->setObjectName(QStringLiteral("AvisoDeCopias"));
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(CrearCabecera());
    todo->addWidget(m_copias);
    todo->addWidget(m_tabla, 1);
    setVisible(!Cerrado());
}

PanelAvisos::~PanelAvisos() {
    if (m_lectura) {
        m_lectura->wait();
        delete m_lectura; // what it sent to the panel goes with the panel
    }
}

QLayout* PanelAvisos::CrearCabecera() {
    auto* titulo = new QLabel(QStringLiteral("Avisos"), this);
    auto fuente = titulo->font();
    fuente.setBold(true);
    fuente.setPointSizeF(fuente.pointSizeF() * 1.2);
    titulo->setFont(fuente);
    m_ganadero->setObjectName(QStringLiteral("Cb_GanaderoDeAvisos"));
    m_ganadero->setAccessibleName(QStringLiteral("Avisos de un ganadero"));
    connect(m_ganadero, &QComboBox::activated, this, [this] { Filtrar(); });
    const auto boton = [this](const char* nombre, const char* icono, const QString& texto) {
        auto* b = new QToolButton(this);
        b->setObjectName(QString::fromUtf8(nombre));
        b->setIcon(Icono(icono));
        b->setToolTip(texto);
        b->setAccessibleName(texto);
        b->setAutoRaise(true);
        return b;
    };
    auto* cerrar =
        boton("B_CerrarAvisos", "cerrar", QStringLiteral("Cerrar los avisos (F9 los muestra otra vez)"));
    connect(cerrar, &QToolButton::clicked, this, [this] { Cerrar(true); });
    auto* imprimir = boton("B_ImprimirAvisos", "imprimir", QStringLiteral("Imprimir los avisos (Ctrl+P)"));
    connect(imprimir, &QToolButton::clicked, this, [this] {
        if (alImprimir)
            alImprimir(DeQuien());
    });
    auto* cabecera = new QHBoxLayout;
    cabecera->addWidget(titulo);
    cabecera->addWidget(m_resumen, 1);
    auto* rotulo = new QLabel(QStringLiteral("&De"), this);
    rotulo->setBuddy(m_ganadero);
    cabecera->addWidget(rotulo);
    cabecera->addWidget(m_ganadero);
    cabecera->addWidget(imprimir);
    cabecera->addWidget(cerrar);
    return cabecera;
}

bool PanelAvisos::Cerrado() const {
    return AjusteDeVentana(QString::fromUtf8(kCerrado)).toBool();
}

void PanelAvisos::Cerrar(bool si) {
    GuardarAjusteDeVentana(QString::fromUtf8(kCerrado), si);
    setVisible(!si);
    if (!si)
        m_tabla->setFocus(Qt::TabFocusReason);
}

void PanelAvisos::showEvent(QShowEvent* evento) {
    QFrame::showEvent(evento);
    Refrescar();
}

// A database that fails tells so wherever it is worked with; here there is only nothing to tell.
void PanelAvisos::Refrescar() {
    if (!isVisible() || !m_sesion.conexion.Abierta() || m_lectura)
        return;
    try {
        if (Vacas(m_sesion.conexion) > kVacasAlMomento)
            return LeerAparte();
        Mostrar(LeerAvisos(m_sesion.conexion, Hoy()));
    } catch (const std::exception& e) {
        m_resumen->setText(QStringLiteral("No se pueden leer: ") + QString::fromUtf8(e.what()));
    }
}

void PanelAvisos::LeerAparte() {
    m_resumen->setText(QStringLiteral("leyendo..."));
    m_lectura = QThread::create([this, fichero = m_sesion.conexion.Fichero(), hoy = Hoy()] {
        std::vector<Aviso> avisos;
        QString fallo;
        try {
            Conexion c;
            OpcionesApertura opciones;
            opciones.trabajo = false;
            opciones.soloLectura = true;
            c.AbrirFichero(fichero, kClave, opciones);
            avisos = LeerAvisos(c, hoy);
        } catch (const std::exception& e) {
            fallo = QString::fromUtf8(e.what());
        }
        QMetaObject::invokeMethod(this, [this, fallo, leidos = std::move(avisos)]() mutable {
            m_lectura->wait();
            m_lectura->deleteLater();
            m_lectura = nullptr;
            if (fallo.isEmpty())
                Mostrar(std::move(leidos));
            else
                m_resumen->setText(QStringLiteral("No se pueden leer: ") + fallo);
        });
    });
    m_lectura->start();
}

void PanelAvisos::Mostrar(std::vector<Aviso> avisos) {
    m_todos = std::move(avisos);
    const double elegido = Ganadero();
    std::map<QString, double> ganaderos;
    for (const auto& a : m_todos)
        ganaderos[QString::fromStdString(a.ganadero)] = a.idGanadero;
    {
        const QSignalBlocker silencio(m_ganadero);
        m_ganadero->clear();
        m_ganadero->addItem(QStringLiteral("Todos los ganaderos"), 0.0);
        for (const auto& [nombre, id] : ganaderos)
            m_ganadero->addItem(nombre, id);
        m_ganadero->setCurrentIndex(std::max(0, m_ganadero->findData(elegido)));
    }
    const auto copias = TextoDeCopias();
    m_copias->setText(copias);
    m_copias->setVisible(!copias.isEmpty());
    Filtrar();
}

double PanelAvisos::Ganadero() const {
    return m_ganadero->currentData().toDouble();
}

QString PanelAvisos::DeQuien() const {
    return m_ganadero->currentText();
}

void PanelAvisos::Filtrar() {
    const double ganadero = Ganadero();
    const int antes = std::max(0, m_tabla->currentRow());
    m_avisos.clear();
    std::copy_if(m_todos.begin(), m_todos.end(), std::back_inserter(m_avisos),
                 [&](const Aviso& a) { return ganadero == 0 || a.idGanadero == ganadero; });
    m_tabla->setRowCount(static_cast<int>(m_avisos.size()));
    for (int f = 0; f < m_tabla->rowCount(); ++f) {
        const auto& a = m_avisos[static_cast<std::size_t>(f)];
        int columna = 0;
        for (const auto& texto : {std::string(NombreDe(a.clase)), a.ganadero, a.vaca, a.crotal, a.texto})
            m_tabla->setItem(f, columna++, new QTableWidgetItem(QString::fromStdString(texto)));
    }
    if (!m_avisos.empty())
        m_tabla->setCurrentCell(std::min(antes, m_tabla->rowCount() - 1), 0);
    m_resumen->setText(m_avisos.empty() ? QStringLiteral("nada pendiente")
                       : m_avisos.size() == 1
                           ? QStringLiteral("uno; Intro abre la ficha de la vaca")
                           : QStringLiteral("%1; Intro abre la ficha de la vaca").arg(m_avisos.size()));
}

QString PanelAvisos::TextoDeCopias() const {
    const auto base = QFileInfo(QString::fromStdString(m_sesion.conexion.Fichero())).fileName().toStdString();
    const auto copias = BuscarCopias(Ruta(m_sesion.rutas.BackUp().toStdString()), base);
    if (copias.empty())
        return QStringLiteral("No hay ninguna copia de seguridad de esta base de datos.");
    const auto momento = copias.front().momento;
    return Hoy().dia - momento.dia <= kDiasDeCopia
               ? QString()
               : QStringLiteral("La última copia de seguridad de esta base de datos es del %1.")
                     .arg(QString::fromStdString(FormatoFecha(momento, "dd/mm/yyyy")));
}

void PanelAvisos::Abrir(int fila) {
    if (fila >= 0 && alAbrir)
        alAbrir(m_avisos[static_cast<std::size_t>(fila)].idVaca);
}

void PanelAvisos::keyPressEvent(QKeyEvent* evento) {
    if ((evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) && m_tabla->hasFocus())
        return Abrir(m_tabla->currentRow());
    QFrame::keyPressEvent(evento);
}

} // namespace pastorix
