#include "frame/selector/Selector.h"

#include "frame/Iconos.h"
#include "frame/Mensajes.h"
#include "frame/selector/FranjaFiltros.h"
#include "frame/selector/GridSelector.h"
#include "frame/selector/ModeloSelector.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QScreen>
#include <QScrollBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace pastorix {

namespace {

constexpr int kFilasDeMuestra = 60; // rows by which the first widths are judged
constexpr int kAnchoMaximo = 240;   // of a column at first, pixels
constexpr int kAnchoDeVentana = 1240;

std::unique_ptr<Recordset> AbrirLista(Conexion& conexion, const SentenciaDeLista& sentencia,
                                      std::string_view filtro = {}) {
    return std::make_unique<Recordset>(conexion, sentencia.Completa(filtro), Cursor::Estatico,
                                       Bloqueo::SoloLectura);
}

template <typename Hacer>
std::optional<Eleccion> ConAviso(QWidget* padre, Hacer hacer) {
    try {
        return hacer();
    } catch (const ErrorAlmacen& error) {
        Avisar(padre, TipoMensaje::Atencion, QStringLiteral("Atención..."),
               QString::number(error.Numero()) + QStringLiteral(" ... ") + QString::fromUtf8(error.what()));
        return std::nullopt;
    }
}

} // namespace

const Valor& Eleccion::De(std::string_view campo) const {
    static const Valor nulo;
    const auto buscado = QString::fromUtf8(campo.data(), static_cast<qsizetype>(campo.size()));
    for (const auto& [nombre, valor] : fila)
        if (QString::fromStdString(nombre).compare(buscado, Qt::CaseInsensitive) == 0)
            return valor;
    return nulo;
}

Selector::Selector(Conexion& conexion, ListaSelector lista, QWidget* padre)
    : QDialog(padre)
    , m_conexion(conexion)
    , m_lista(std::move(lista)) {
    setObjectName(QStringLiteral("Selector"));
    setWindowTitle(QString::fromStdString(m_lista.titulo));
    setWindowModality(Qt::WindowModal);
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(8, 4, 8, 6);
    columna->setSpacing(2);
    CrearBarra();
    CrearLista(AbrirLista(m_conexion, m_lista.Sentencia(m_conBajas)));
    m_estado = new QLabel(this);
    m_estado->setObjectName(QStringLiteral("Estado"));
    columna->addWidget(m_estado);
    AjustarColumnas();
    Contar();
    if (auto* caja = m_filtros->PrimeraDeTexto())
        caja->setFocus();
    else
        m_rejilla->setFocus();
}

Selector::~Selector() {
    delete m_filtros; // it watches the list, which as the older child would go first
}

void Selector::CrearBarra() {
    auto* barra = new QToolBar(this);
    barra->setObjectName(QStringLiteral("BarraHerr"));
    barra->setAccessibleName(QStringLiteral("Barra de herramientas"));
    m_boton = new QToolButton(barra);
    m_boton->setObjectName(QStringLiteral("BarraHerr(1)"));
    m_boton->setAccessibleName(QStringLiteral("Mostrar los sementales de baja"));
    m_boton->setIcon(Icono("toros"));
    m_boton->setText(m_lista.ocultaBajas ? QString() : QStringLiteral("Bajas"));
    m_boton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_boton->setCheckable(true);
    m_boton->setFocusPolicy(Qt::StrongFocus);
    m_boton->setEnabled(m_lista.ocultaBajas);
    barra->addWidget(m_boton);
    connect(m_boton, &QToolButton::toggled, this, [this](bool accionado) {
        m_conBajas = accionado;
        m_boton->setToolTip(accionado ? QStringLiteral(" Accionado ") : QString());
        Filtrar();
    });
    layout()->addWidget(barra);
}

void Selector::CrearLista(std::unique_ptr<Recordset> filas) {
    m_columnas = ColumnasDeFiltro(*filas, m_lista.Sentencia(m_conBajas));
    auto titulos = m_lista.columnas;
    titulos.resize(std::min({titulos.size(), m_columnas.size(), std::size_t{MaximoDeColumnas}}));
    std::vector<int> tipos;
    for (std::size_t i = 0; i < titulos.size(); ++i)
        tipos.push_back(m_columnas[i].tipo);

    m_modelo = new ModeloSelector(titulos, this);
    m_modelo->Poner(std::move(filas));
    m_rejilla = new GridSelector(this);
    m_rejilla->setAccessibleName(windowTitle().trimmed());
    m_rejilla->setModel(m_modelo);
    for (int i = static_cast<int>(titulos.size()); i < m_modelo->columnCount(); ++i)
        m_rejilla->setColumnHidden(i, true);
    m_filtros = new FranjaFiltros(titulos, tipos, m_rejilla, this);
    layout()->addWidget(m_filtros);
    layout()->addWidget(m_rejilla);

    QWidget* anterior = m_boton;
    for (auto* caja : m_filtros->Cajas()) {
        setTabOrder(anterior, caja);
        anterior = caja;
    }
    setTabOrder(anterior, m_rejilla);
    connect(m_filtros, &FranjaFiltros::Filtrar, this, &Selector::Filtrar);
    connect(m_filtros, &FranjaFiltros::Bajar, m_rejilla, [this] { m_rejilla->setFocus(); });
    connect(m_rejilla, &GridSelector::Elegida, this, &Selector::Elegida);
    const auto aLosFiltros = [this](const QString& letra) {
        if (auto* caja = m_filtros->PrimeraDeTexto()) {
            caja->setFocus();
            if (!letra.isEmpty())
                caja->insert(letra); // the box's text is selected, so it is replaced
        }
    };
    connect(m_rejilla, &GridSelector::Escrito, this, aLosFiltros);
    connect(m_rejilla, &GridSelector::ArribaDelTodo, this, [aLosFiltros] { aLosFiltros({}); });
}

// First widths by heading and first rows; the window takes them, as far as the screen has room.
void Selector::AjustarColumnas() {
    const auto metrica = m_rejilla->fontMetrics();
    const int muestra = std::min(kFilasDeMuestra, m_modelo->rowCount());
    int total = 0;
    for (int c = 0; c < static_cast<int>(m_filtros->Cajas().size()); ++c) {
        const bool fecha = m_columnas[static_cast<std::size_t>(c)].tipo == TipoFecha;
        int ancho = std::max({m_filtros->AnchoDeTitulo(c), 56,
                              fecha ? metrica.horizontalAdvance(QStringLiteral("00/00/00")) + 14 : 0});
        for (int f = 0; f < muestra; ++f)
            ancho = std::max(ancho, metrica.horizontalAdvance(
                                        m_modelo->data(m_modelo->index(f, c), Qt::DisplayRole).toString()) +
                                        14);
        ancho = std::min(ancho, kAnchoMaximo);
        m_rejilla->setColumnWidth(c, ancho);
        total += ancho;
    }
    const QRect pantalla = screen()->availableGeometry();
    total += m_rejilla->verticalScrollBar()->sizeHint().width() + 24;
    resize(std::clamp(total, 480, std::max(480, std::min(kAnchoDeVentana, pantalla.width() - 40))),
           std::min(600, pantalla.height() - 60));
}

void Selector::Filtrar() {
    try {
        const auto filtro = TextoDelFiltro(m_columnas, m_filtros->Textos());
        m_modelo->Poner(AbrirLista(m_conexion, m_lista.Sentencia(m_conBajas), filtro));
        Contar();
    } catch (const ErrorAlmacen&) {
        m_estado->setText(QStringLiteral("El filtro no es correcto; la lista queda como estaba"));
    }
}

void Selector::Contar() {
    const int filas = m_modelo->rowCount();
    m_estado->setText(QLocale(QLocale::Spanish, QLocale::Spain).toString(filas) +
                      (filas == 1 ? QStringLiteral(" registro") : QStringLiteral(" registros")));
}

void Selector::Elegida(int fila) {
    if (!m_lista.clave.empty()) {
        auto& filas = m_modelo->EnFila(fila);
        for (int i = 0; i < filas.Campos(); ++i)
            m_eleccion.fila.emplace_back(filas.NombreCampo(i), filas[i].Leer());
        m_eleccion.clave = NumeroDe(m_eleccion.De(m_lista.clave));
        if (!m_lista.respuesta.empty())
            m_eleccion.texto = TextoDe(m_eleccion.De(m_lista.respuesta));
    }
    accept();
}

void Selector::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Escape)
        m_eleccion.fin = 27;
    QDialog::keyPressEvent(evento);
}

std::optional<Eleccion> Selector::Elegir(Conexion& conexion, ListaSelector lista, QWidget* padre) {
    return ConAviso(padre, [&]() -> std::optional<Eleccion> {
        Selector selector(conexion, std::move(lista), padre);
        if (selector.exec() != Accepted || selector.Resultado().fila.empty())
            return std::nullopt;
        return selector.Resultado();
    });
}

std::optional<Eleccion> Selector::Elegir(Conexion& conexion, TipoSelector tipo, std::string_view texto,
                                         QWidget* padre) {
    return ConAviso(padre, [&] { return Elegir(conexion, PrepararSelector(conexion, tipo, texto), padre); });
}

} // namespace pastorix
