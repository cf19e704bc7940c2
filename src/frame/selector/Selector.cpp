#include "frame/selector/Selector.h"

#include "frame/Iconos.h"
#include "frame/Mensajes.h"
#include "frame/Ultimos.h"
#include "frame/Ventanas.h"
#include "frame/selector/FranjaFiltros.h"
#include "frame/selector/GridSelector.h"
#include "frame/selector/ModeloSelector.h"

#include <QHBoxLayout>
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

template <typename Hacer>
std::optional<Eleccion> ConAviso(QWidget* padre, Hacer hacer) {
    try {
        return hacer();
    } catch (const ErrorAlmacen& error) {
        AvisarFallo(padre, QStringLiteral("Atención..."), error.Numero(), error);
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
    columna->setSpacing(4);
    CrearBarra(*columna);
    CrearLista(Abrir());
    m_estado = new QLabel(this);
    m_estado->setObjectName(QStringLiteral("Estado"));
    m_estado->setTextFormat(Qt::PlainText); // it repeats what was typed
    m_estado->setWordWrap(true);
    columna->addWidget(m_estado);
    ConectarLista();
    AjustarColumnas();
    RecordarVentana(*this, objectName() + windowTitle());
    Contar();
    m_busca->setFocus();
}

Selector::~Selector() {
    delete m_filtros; // it watches the list, which as the older child would go first
}

void Selector::CrearBarra(QVBoxLayout& columna) {
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
    auto* fila = new QHBoxLayout;
    fila->addWidget(CrearBusqueda(), 1);
    fila->addWidget(barra);
    columna.addLayout(fila);
}

QWidget* Selector::CrearBusqueda() {
    auto* caja = new QWidget(this);
    auto* fila = new QHBoxLayout(caja);
    fila->setContentsMargins(0, 0, 12, 0);
    m_busca = new QLineEdit(caja);
    m_busca->setObjectName(QStringLiteral("Buscar"));
    m_busca->setPlaceholderText(QStringLiteral("en todas las columnas, según se escribe"));
    m_busca->setToolTip(QStringLiteral(
        "Parte de un nombre, de un crotal o de un código; varias palabras, en cualquier orden"));
    m_busca->setClearButtonEnabled(true);
    m_busca->installEventFilter(this);
    connect(m_busca, &QLineEdit::textChanged, this, &Selector::Buscar);
    auto* rotulo = new QLabel(QStringLiteral("&Buscar"), caja);
    rotulo->setBuddy(m_busca);
    fila->addWidget(rotulo);
    fila->addWidget(m_busca, 1);
    return caja;
}

void Selector::CrearLista(std::unique_ptr<Recordset> filas) {
    m_columnas = ColumnasDeFiltro(*filas, m_lista.Sentencia(m_conBajas));
    auto titulos = m_lista.columnas;
    titulos.resize(std::min({titulos.size(), m_columnas.size(), std::size_t{MaximoDeColumnas}}));
    std::vector<int> tipos;
    for (std::size_t i = 0; i < titulos.size(); ++i)
        tipos.push_back(m_columnas[i].tipo);

    m_modelo = new ModeloSelector(titulos, this);
    auto bajas = ClavesDeBaja(m_conexion, m_lista.clave);
    m_modelo->FijarBajas(m_lista.clave, std::move(bajas));
    m_modelo->Poner(std::move(filas));
    m_rejilla = new GridSelector(this);
    m_rejilla->setAccessibleName(windowTitle().trimmed());
    m_rejilla->setModel(m_modelo);
    m_rejilla->verticalHeader()->setVisible(m_modelo->HayBajas());
    for (int i = static_cast<int>(titulos.size()); i < m_modelo->columnCount(); ++i)
        m_rejilla->setColumnHidden(i, true);
    m_filtros = new FranjaFiltros(titulos, tipos, m_rejilla, this);
    if (m_lista.Ordenable())
        m_filtros->PermitirOrden();
    layout()->addWidget(m_filtros);
    layout()->addWidget(m_rejilla);
}

void Selector::ConectarLista() {
    QWidget* anterior = m_busca;
    const auto despues = [&](QWidget* control) {
        setTabOrder(anterior, control);
        anterior = control;
    };
    despues(m_boton);
    for (auto* caja : m_filtros->Cajas())
        despues(caja);
    despues(m_rejilla);
    connect(m_filtros, &FranjaFiltros::Filtrar, this, &Selector::Filtrar);
    connect(m_filtros, &FranjaFiltros::Ordenar, this, &Selector::Ordenar);
    connect(m_filtros, &FranjaFiltros::Bajar, this, &Selector::AlaLista);
    connect(m_rejilla, &GridSelector::Elegida, this, &Selector::Elegida);
    connect(m_rejilla, &GridSelector::Escrito, this, [this](const QString& letra) {
        m_busca->setFocus();
        m_busca->setText(letra); // another search begins
    });
    connect(m_rejilla, &GridSelector::ArribaDelTodo, this,
            [this] { (m_vuelta ? m_vuelta : m_busca)->setFocus(); });
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
    if (m_rejilla->verticalHeader()->isVisibleTo(m_rejilla))
        total += m_rejilla->verticalHeader()->width();
    total += m_rejilla->verticalScrollBar()->sizeHint().width() + 24;
    resize(std::clamp(total, 480, std::max(480, std::min(kAnchoDeVentana, pantalla.width() - 40))),
           std::min(600, pantalla.height() - 60));
}

std::unique_ptr<Recordset> Selector::Abrir() const {
    auto sentencia = m_lista.Sentencia(m_conBajas);
    if (m_columnaOrden >= 0)
        sentencia =
            sentencia.OrdenadaPor(m_columnas[static_cast<std::size_t>(m_columnaOrden)].campo, m_descendente);
    return std::make_unique<Recordset>(m_conexion, sentencia.Completa(m_filtro), Cursor::Estatico,
                                       Bloqueo::SoloLectura);
}

void Selector::Filtrar() {
    const auto anterior = m_filtro;
    try {
        m_filtro = TextoDelFiltro(m_columnas, m_filtros->Textos());
        m_modelo->Poner(Abrir());
        m_rejilla->verticalHeader()->setVisible(m_modelo->HayBajas());
        Contar();
    } catch (const ErrorAlmacen&) {
        m_filtro = anterior;
        Decir(*m_estado, QStringLiteral("El filtro no es correcto; la lista queda como estaba"));
    }
}

// Upwards, downwards, and back to the list's own order.
void Selector::Ordenar(int columna) {
    const bool otra = columna != m_columnaOrden;
    m_columnaOrden = otra || !m_descendente ? columna : -1;
    m_descendente = !otra && !m_descendente;
    m_filtros->MostrarOrden(m_columnaOrden, m_descendente);
    try {
        m_modelo->Poner(Abrir());
    } catch (const ErrorAlmacen& error) {
        Decir(*m_estado, QString::fromUtf8(error.what()));
    }
}

void Selector::Buscar(const QString& texto) {
    m_modelo->Buscar(texto);
    Contar();
}

void Selector::Contar() {
    const int filas = m_modelo->rowCount();
    const int bajas = m_modelo->Bajas();
    const QLocale español(QLocale::Spanish, QLocale::Spain);
    auto cuenta =
        español.toString(filas) + (filas == 1 ? QStringLiteral(" registro") : QStringLiteral(" registros"));
    if (bajas > 0)
        cuenta += QStringLiteral(", %1 de baja").arg(español.toString(bajas));
    Decir(*m_estado, filas > 0 ? cuenta : cuenta + PorQueNada());
}

// How to find what was not found.
QString Selector::PorQueNada() const {
    if (!m_modelo->Buscado().isEmpty())
        return QStringLiteral(" con «%1»").arg(m_modelo->Buscado()) +
               (m_filtro.empty() ? QString() : QStringLiteral(" entre los que dejan los filtros"));
    const auto textos = m_filtros->Textos();
    for (std::size_t i = 0; i < textos.size(); ++i) {
        const auto texto = QString::fromStdString(textos[i]).trimmed();
        if (m_columnas[i].tipo == TipoTexto && !texto.isEmpty() && !texto.endsWith(QLatin1Char('*')))
            return QStringLiteral(
                       ". La casilla compara el texto entero; para buscar los que lo contienen, escriba *%1*")
                .arg(QString(texto).remove(QLatin1Char('*')));
    }
    return {};
}

void Selector::AlaLista() {
    m_vuelta = focusWidget();
    m_rejilla->setFocus();
}

void Selector::Elegida(int fila) {
    if (!m_lista.clave.empty()) {
        auto& filas = m_modelo->EnFila(fila);
        for (int i = 0; i < filas.Campos(); ++i)
            m_eleccion.fila.emplace_back(filas.NombreCampo(i), filas[i].Leer());
        m_eleccion.clave = NumeroDe(m_eleccion.De(m_lista.clave));
        if (!m_lista.respuesta.empty())
            m_eleccion.texto = TextoDe(m_eleccion.De(m_lista.respuesta));
        if (m_lista.AbreFicha())
            RecordarUltimo(m_conexion, m_lista.clave, m_eleccion.clave);
    }
    accept();
}

// The rows are not laid out before.
void Selector::showEvent(QShowEvent* evento) {
    QDialog::showEvent(evento);
    if (!m_lista.AbreFicha() || evento->spontaneous())
        return;
    const int fila = m_modelo->FilaDe(m_lista.clave, Ultimo(m_conexion, m_lista.clave));
    if (fila < 0)
        return;
    m_rejilla->setCurrentIndex(m_modelo->index(fila, 0));
    m_rejilla->scrollTo(m_rejilla->currentIndex(), QAbstractItemView::PositionAtCenter);
}

// In the search box: down to the rows; Enter takes the only one that is left.
bool Selector::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto != m_busca || evento->type() != QEvent::KeyPress)
        return QDialog::eventFilter(objeto, evento);
    const int tecla = static_cast<QKeyEvent&>(*evento).key();
    const bool intro = tecla == Qt::Key_Return || tecla == Qt::Key_Enter;
    if (!intro && tecla != Qt::Key_Down)
        return QDialog::eventFilter(objeto, evento);
    if (intro && m_modelo->rowCount() == 1)
        Elegida(0);
    else
        AlaLista();
    return true;
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
