#include "frame/selector/FranjaFiltros.h"

#include "frame/selector/FiltroSelector.h"
#include "frame/selector/ModSelector.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>
#include <QValidator>

#include <algorithm>

namespace pastorix {

namespace {

constexpr const char* kTitulo = "titulo";
constexpr const char* kColumna = "columna";

// Drops what may not stand in the box, whether it is typed or pasted.
class FiltroDeTeclas : public QValidator {
public:
    FiltroDeTeclas(int tipo, QObject* padre)
        : QValidator(padre)
        , m_tipo(tipo) {}
    State validate(QString& texto, int&) const override {
        const bool bien = std::all_of(texto.begin(), texto.end(),
                                      [this](QChar c) { return TeclaDeFiltro(m_tipo, c.unicode()); });
        return bien ? Acceptable : Invalid;
    }

private:
    int m_tipo;
};

} // namespace

FranjaFiltros::FranjaFiltros(const std::vector<std::string>& titulos, const std::vector<int>& tipos,
                             QTableView* lista, QWidget* padre)
    : QWidget(padre)
    , m_lista(lista)
    , m_ventana(new QWidget(this)) {
    for (std::size_t i = 0; i < std::min(titulos.size(), tipos.size()); ++i)
        CrearCaja(static_cast<int>(i), QString::fromStdString(titulos[i]), tipos[i]);
    if (!m_cajas.empty())
        setFixedHeight(m_titulos.front()->sizeHint().height() + m_cajas.front()->sizeHint().height() + 4);
    connect(lista->horizontalHeader(), &QHeaderView::sectionResized, this, &FranjaFiltros::Colocar);
    connect(lista->horizontalHeader(), &QHeaderView::geometriesChanged, this, &FranjaFiltros::Colocar);
    connect(lista->horizontalScrollBar(), &QScrollBar::valueChanged, this, &FranjaFiltros::Colocar);
    lista->viewport()->installEventFilter(this);
}

void FranjaFiltros::CrearCaja(int columna, const QString& titulo, int tipo) {
    auto* rotulo = new QLabel(titulo, m_ventana);
    rotulo->setObjectName(QStringLiteral("Et_Estandar(%1)").arg(columna));
    rotulo->setTextFormat(Qt::PlainText);
    const auto explicacion = ExplicacionDeTitulo(titulo.toStdString());
    rotulo->setToolTip(explicacion.empty() ? titulo : QString::fromUtf8(explicacion.data()));
    rotulo->setProperty(kTitulo, titulo);
    rotulo->setProperty(kColumna, columna);
    rotulo->installEventFilter(this);
    auto* caja = new QLineEdit(m_ventana);
    caja->setObjectName(QStringLiteral("CTexto(%1)").arg(columna));
    caja->setAccessibleName(QStringLiteral("Filtro de ") + titulo);
    caja->setEnabled(tipo == TipoTexto || tipo == TipoFecha || tipo == TipoNumero);
    if (tipo != TipoTexto)
        caja->setValidator(new FiltroDeTeclas(tipo, caja));
    caja->setProperty(kColumna, columna);
    caja->setToolTip(tipo == TipoTexto    ? QStringLiteral("Intro filtra; * vale por cualquier texto")
                     : tipo == TipoNumero ? QStringLiteral("Intro filtra; admite >, < y =")
                                          : QStringLiteral("Intro filtra; dd/mm/aa"));
    caja->installEventFilter(this);
    connect(caja, &QLineEdit::returnPressed, this, &FranjaFiltros::Filtrar);
    rotulo->setBuddy(caja);
    m_titulos.push_back(rotulo);
    m_cajas.push_back(caja);
}

std::vector<std::string> FranjaFiltros::Textos() const {
    std::vector<std::string> textos;
    for (const auto* caja : m_cajas)
        textos.push_back(caja->text().toStdString());
    return textos;
}

void FranjaFiltros::PermitirOrden() {
    m_ordenable = true;
    for (auto* rotulo : m_titulos) {
        rotulo->setCursor(Qt::PointingHandCursor);
        rotulo->setToolTip(rotulo->toolTip() + QStringLiteral("\nClic, o Ctrl+O en su casilla: ordenar"));
    }
}

void FranjaFiltros::MostrarOrden(int columna, bool descendente) {
    for (int i = 0; i < static_cast<int>(m_titulos.size()); ++i) {
        auto* rotulo = m_titulos[static_cast<std::size_t>(i)];
        const auto titulo = rotulo->property(kTitulo).toString();
        rotulo->setText(i != columna ? titulo
                                     : (descendente ? QStringLiteral("▼ ") : QStringLiteral("▲ ")) + titulo);
    }
}

int FranjaFiltros::AnchoDeTitulo(int columna) const {
    return m_titulos[static_cast<std::size_t>(columna)]->sizeHint().width() + 6;
}

bool FranjaFiltros::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == m_lista->viewport()) {
        if (evento->type() == QEvent::Resize || evento->type() == QEvent::Move)
            Colocar();
        return false;
    }
    const int columna = objeto->property(kColumna).toInt();
    auto* caja = qobject_cast<QLineEdit*>(objeto);
    if (!caja) {
        if (m_ordenable && evento->type() == QEvent::MouseButtonRelease)
            Q_EMIT Ordenar(columna);
        return false;
    }
    if (evento->type() == QEvent::FocusIn) {
        DejarVer(columna);
        caja->selectAll();
    } else if (evento->type() == QEvent::KeyPress) {
        const auto& tecla = static_cast<QKeyEvent&>(*evento);
        const bool orden = tecla.modifiers() == Qt::ControlModifier && tecla.key() == Qt::Key_O;
        if (tecla.key() == Qt::Key_Down)
            Q_EMIT Bajar();
        else if (orden && m_ordenable)
            Q_EMIT Ordenar(columna);
        else
            return false;
        return true;
    }
    return false;
}

void FranjaFiltros::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    Colocar();
}

void FranjaFiltros::Colocar() {
    const auto* cabecera = m_lista->horizontalHeader();
    const auto* vista = m_lista->viewport();
    const int izquierda = mapFromGlobal(vista->mapToGlobal(QPoint())).x();
    m_ventana->setGeometry(izquierda, 0, vista->width(), height());
    for (int i = 0; i < static_cast<int>(m_cajas.size()) && i < cabecera->count(); ++i) {
        auto* rotulo = m_titulos[static_cast<std::size_t>(i)];
        auto* caja = m_cajas[static_cast<std::size_t>(i)];
        const int x = cabecera->sectionViewportPosition(i);
        const int ancho = cabecera->sectionSize(i);
        rotulo->setGeometry(x + 4, 0, ancho - 6, rotulo->sizeHint().height());
        caja->setGeometry(x + 1, rotulo->height() + 2, ancho - 2, caja->sizeHint().height());
    }
}

// Tabbing into a box that is scrolled out brings its column in.
void FranjaFiltros::DejarVer(int columna) {
    const auto* cabecera = m_lista->horizontalHeader();
    auto* barra = m_lista->horizontalScrollBar();
    const int x = cabecera->sectionPosition(columna);
    const int fin = x + cabecera->sectionSize(columna);
    if (x < barra->value())
        barra->setValue(x);
    else if (fin > barra->value() + m_lista->viewport()->width())
        barra->setValue(fin - m_lista->viewport()->width());
}

} // namespace pastorix
