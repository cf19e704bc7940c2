#include "registers/sementales/RejillaPatologia.h"

#include "frame/Mensajes.h"
#include "frame/Tablas.h"
#include "frame/ficha/CampoTexto.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>

#include <algorithm>

namespace pastorix {

namespace {

constexpr AspectoColumna kAspectosSem[] = {
    {"Año Nat.", 8, "Ct_ANatural", false, 0, "Año natural"},
    {"Edad", 5},
    {"IBR sp", 13, "Cb_IBR(0)", false, 0, "IBR, primera muestra (sp)"},
    {"IBR bp", 13, "Cb_IBR(1)", false, 0, "IBR, segunda muestra (bp)"},
    {"BVD sp", 13, "Cb_IBR(2)", false, 0, "BVD, primera muestra (sp)"},
    {"BVD bp", 13, "Cb_IBR(3)", false, 0, "BVD, segunda muestra (bp)"},
    {"Neosp. sp", 13, "Cb_IBR(4)", false, 0, "Neospora, primera muestra (sp)"},
    {"Neosp. bp", 13, "Cb_IBR(5)", false, 0, "Neospora, segunda muestra (bp)"},
};

constexpr AspectoColumna kAspectosSemR[] = {
    {"Año Nat.", 8, "Ct_ANaturalR", false, 0, "Año natural"},
    {"V.IBR", 13, "Cb_IBN(0)", true, 0, "Vacuna de IBR"},
    {"V.BVD", 13, "Cb_IBN(1)", true, 0, "Vacuna de BVD"},
    {"V.Neospora", 13, "Cb_IBN(2)", true, 0, "Vacuna de Neospora"},
    {"IBR", 13, "Cb_IBN(3)", false, 0, "Rinotraqueítis infecciosa bovina: resultado"},
    {"BVD", 13, "Cb_IBN(4)", false, 0, "Diarrea vírica bovina: resultado"},
    {"Neospora", 13, "Cb_IBN(5)"},
};

constexpr int kCifrasDelAño = 4;
constexpr const char* kDesplegada = "desplegada"; // the editor was opened with its list down

// The editors of the cells: a box for the year, a combo for the rest.
class DelegadoPatologia : public QStyledItemDelegate {
public:
    explicit DelegadoPatologia(RejillaPatologia& rejilla)
        : QStyledItemDelegate(&rejilla)
        , m_rejilla(rejilla) {}

    QWidget* createEditor(QWidget* padre, const QStyleOptionViewItem&,
                          const QModelIndex& celda) const override {
        const auto columna = static_cast<std::size_t>(celda.column());
        const auto& c = m_rejilla.Definicion().aspectos[columna];
        QWidget* editor = nullptr;
        if (columna == 0) {
            editor = new CampoTexto(ClaseCampo::Numero, kCifrasDelAño, padre);
        } else {
            auto* combo = new QComboBox(padre);
            combo->addItem(QString());
            combo->addItems(m_rejilla.ListaDe(columna));
            // With its list down, choosing is the answer; without it, arrows and letters only look for one.
            connect(combo, &QComboBox::activated, this, [this, combo] {
                if (!combo->property(kDesplegada).toBool())
                    return;
                auto* yo = const_cast<DelegadoPatologia*>(this);
                Q_EMIT yo->commitData(combo);
                Q_EMIT yo->closeEditor(combo);
            });
            editor = combo;
        }
        editor->setObjectName(QString::fromUtf8(c.control));
        editor->setAccessibleName(QString::fromUtf8(c.titulo));
        return editor;
    }

    void setEditorData(QWidget* editor, const QModelIndex& celda) const override {
        const auto texto = celda.data().toString();
        if (auto* campo = dynamic_cast<CampoTexto*>(editor)) {
            campo->Mostrar(texto);
            return;
        }
        auto* combo = static_cast<QComboBox*>(editor);
        if (combo->findText(texto, Qt::MatchExactly) < 0)
            combo->addItem(texto); // a stored value outside the list can be kept
        combo->setCurrentIndex(combo->findText(texto, Qt::MatchExactly));
    }

    void setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& celda) const override {
        const auto* campo = dynamic_cast<CampoTexto*>(editor);
        const auto* combo = dynamic_cast<QComboBox*>(editor);
        m_rejilla.Cambiar(celda.row(), celda.column(),
                          campo   ? campo->text()
                          : combo ? combo->currentText()
                                  : QString());
    }

private:
    RejillaPatologia& m_rejilla;
};

} // namespace

const DefinicionPatologia& RejillaSem() {
    static const DefinicionPatologia d{"GridPatologia", "Serologías por año natural", PatologiaSem(),
                                       kAspectosSem};
    return d;
}

const DefinicionPatologia& RejillaSemR() {
    static const DefinicionPatologia d{"GridPatologiaR", "Vacunas y resultados por año natural",
                                       PatologiaSemR(), kAspectosSemR};
    return d;
}

RejillaPatologia::RejillaPatologia(const DefinicionPatologia& definicion, QWidget* padre)
    : QTableWidget(0, static_cast<int>(definicion.aspectos.size()), padre)
    , m_definicion(definicion) {
    setObjectName(QString::fromUtf8(definicion.rejilla));
    setAccessibleName(QString::fromUtf8(definicion.nombre));
    setToolTip(QStringLiteral("Supr elimina la línea"));
    QStringList titulos;
    for (std::size_t i = 0; i < definicion.aspectos.size(); ++i) {
        const auto& c = definicion.tabla.columnas[i];
        titulos << QString::fromUtf8(definicion.aspectos[i].titulo);
        setColumnWidth(static_cast<int>(i),
                       fontMetrics().averageCharWidth() * (definicion.aspectos[i].caracteres + 2));
        if (c.clase == ClaseCampo::Texto)
            horizontalHeader()->setSectionResizeMode(static_cast<int>(i), QHeaderView::Stretch);
        for (const char* valor : c.lista)
            m_listas[i] << QString::fromUtf8(valor);
    }
    setHorizontalHeaderLabels(titulos);
    for (std::size_t i = 0; i < definicion.aspectos.size(); ++i)
        horizontalHeaderItem(static_cast<int>(i))
            ->setToolTip(QString::fromUtf8(definicion.aspectos[i].explicacion));
    setItemDelegate(new DelegadoPatologia(*this));
    setEditTriggers(AnyKeyPressed);
    setSelectionMode(SingleSelection);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false); // from a cell that is not being edited, Tab leaves the grid
    CopiarConTeclas(*this);
    horizontalHeader()->setMinimumSectionSize(fontMetrics().averageCharWidth() * 10);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(QComboBox().sizeHint().height());
    connect(this, &QTableWidget::cellClicked, this,
            [this](int fila, int columna) { Abrir(model()->index(fila, columna), true); });
    Mostrar({});
}

void RejillaPatologia::Mostrar(std::vector<Linea> lineas) {
    Abandonar(); // its line may no longer be there
    m_lineas = std::move(lineas);
    // Ages follow a corrected birth date; without one there is none.
    if (m_definicion.tabla.columnaEdad >= 0 && edadDe)
        for (auto& linea : m_lineas)
            linea.celdas[static_cast<std::size_t>(m_definicion.tabla.columnaEdad)] = edadDe(linea.celdas[0]);
    Pintar();
    setCurrentCell(0, 0); // screen readers need a current cell
    clearSelection();
}

std::vector<Linea> RejillaPatologia::SinAño() const {
    std::vector<Linea> salida;
    std::copy_if(m_lineas.begin(), m_lineas.end(), std::back_inserter(salida), [](const Linea& linea) {
        return linea.celdas[0].empty() && std::any_of(linea.celdas.begin(), linea.celdas.end(),
                                                      [](const std::string& c) { return !c.empty(); });
    });
    return salida;
}

void RejillaPatologia::FijarLista(std::size_t columna, const QStringList& valores) {
    m_listas[columna] = valores;
}

QStringList RejillaPatologia::ListaDe(std::size_t columna) const {
    const auto it = m_listas.find(columna);
    return it == m_listas.end() ? QStringList() : it->second;
}

void RejillaPatologia::Abandonar() {
    if (auto* editor = indexWidget(currentIndex()))
        closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
}

bool RejillaPatologia::Terminar() {
    m_rechazado = false;
    if (state() == EditingState)
        setFocus(); // an editor that loses the focus puts its text into the cell
    return !m_rechazado;
}

void RejillaPatologia::AvisarDespues(const QString& texto, int fila, int columna) {
    QMetaObject::invokeMethod(
        this,
        [this, texto, fila, columna] {
            Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"), texto);
            setCurrentCell(fila, columna);
            setFocus();
        },
        Qt::QueuedConnection);
}

void RejillaPatologia::Pintar() {
    const QSignalBlocker silencio(this);
    setRowCount(static_cast<int>(m_lineas.size()) + 1);
    for (int f = 0; f < rowCount(); ++f)
        PintarFila(f);
}

void RejillaPatologia::PintarFila(int fila) {
    const auto lugar = static_cast<std::size_t>(fila);
    for (int c = 0; c < columnCount(); ++c) {
        auto* celda = item(fila, c);
        if (!celda) {
            setItem(fila, c, celda = new QTableWidgetItem);
            if (!Editable(c))
                celda->setFlags(celda->flags() & ~Qt::ItemIsEditable);
            if (m_definicion.tabla.columnas[static_cast<std::size_t>(c)].clase == ClaseCampo::Numero)
                celda->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        }
        celda->setText(lugar < m_lineas.size()
                           ? QString::fromStdString(m_lineas[lugar].celdas[static_cast<std::size_t>(c)])
                           : QString());
    }
}

bool RejillaPatologia::Editable(int columna) const {
    return m_definicion.aspectos[static_cast<std::size_t>(columna)].control != nullptr;
}

void RejillaPatologia::Abrir(const QModelIndex& celda, bool desplegada) {
    if (!celda.isValid() || !Editable(celda.column()) || state() == EditingState)
        return;
    edit(celda);
    if (auto* combo = qobject_cast<QComboBox*>(indexWidget(celda)); combo && desplegada) {
        combo->setProperty(kDesplegada, true);
        combo->showPopup();
    }
}

bool RejillaPatologia::Repetido(int fila, const std::string& celda) const {
    double año = 0;
    if (!NumeroDeTexto(celda, año))
        return false;
    for (std::size_t i = 0; i < m_lineas.size(); ++i)
        if (static_cast<int>(i) != fila && !m_lineas[i].celdas[0].empty() && m_lineas[i].Numero(0) == año)
            return true;
    return false;
}

void RejillaPatologia::Cambiar(int fila, int columna, const QString& texto) {
    const auto lugar = static_cast<std::size_t>(fila);
    const bool nueva = lugar >= m_lineas.size();
    const auto celda = texto.trimmed().toStdString();
    if (nueva ? celda.empty() : celda == m_lineas[lugar].celdas[static_cast<std::size_t>(columna)])
        return; // nothing was changed
    if (columna == 0 && !celda.empty() && celda.size() != kCifrasDelAño) {
        m_rechazado = true;
        AvisarDespues(QStringLiteral("El año debe tener cuatro cifras"), fila, columna);
        return;
    }
    if (columna == 0 && Repetido(fila, celda)) {
        m_rechazado = true;
        AvisarDespues(QStringLiteral("Ya existe una línea para el año natural ") + texto.trimmed(), fila,
                      columna);
        return;
    }
    if (nueva)
        m_lineas.emplace_back().celdas.resize(m_definicion.tabla.columnas.size());
    auto& linea = m_lineas[lugar];
    const bool estaba = !linea.celdas[0].empty();
    linea.celdas[static_cast<std::size_t>(columna)] = celda;
    if (columna == 0 && m_definicion.tabla.columnaEdad >= 0)
        linea.celdas[static_cast<std::size_t>(m_definicion.tabla.columnaEdad)] =
            edadDe ? edadDe(celda) : std::string();
    const bool seGuarda = estaba || !linea.celdas[0].empty();
    if (nueva)
        Pintar(); // with a new empty line behind it
    else
        PintarFila(fila);
    if (seGuarda && alCambiar)
        alCambiar();
}

void RejillaPatologia::Quitar() {
    const int fila = currentRow();
    if (fila < 0 || fila >= static_cast<int>(m_lineas.size()))
        return;
    if (antesDeQuitar)
        antesDeQuitar();
    if (!Preguntar(this, QStringLiteral("Eliminar"), QStringLiteral("Confirme Eliminar")))
        return;
    m_lineas.erase(m_lineas.begin() + fila);
    Pintar();
    setCurrentCell(std::min(fila, rowCount() - 1), 0);
    if (alCambiar)
        alCambiar();
}

void RejillaPatologia::keyPressEvent(QKeyEvent* evento) {
    if (state() == EditingState) {
        evento->accept(); // the open editor's own key, on its way up
        return;
    }
    switch (evento->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
        Abrir(currentIndex(), true);
        return;
    case Qt::Key_Delete:
        Quitar();
        return;
    case Qt::Key_Escape:
        evento->ignore(); // the sheet's
        return;
    default:
        break;
    }
    const bool conOrden = evento->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool letra = !conOrden && !evento->text().isEmpty() && evento->text().at(0).isPrint();
    if (!letra)
        QTableWidget::keyPressEvent(evento);
    else if (currentIndex().isValid() && Editable(currentColumn()))
        edit(currentIndex(), AnyKeyPressed, evento);
}

// What Tab goes to from an open editor: the next cell that can be edited; none behind the last.
QModelIndex RejillaPatologia::moveCursor(CursorAction accion, Qt::KeyboardModifiers modificadores) {
    if (accion != MoveNext && accion != MovePrevious)
        return QTableWidget::moveCursor(accion, modificadores);
    const int paso = accion == MoveNext ? 1 : -1;
    int lugar = currentRow() * columnCount() + currentColumn() + paso;
    while (lugar >= 0 && lugar < rowCount() * columnCount()) {
        if (Editable(lugar % columnCount()))
            return model()->index(lugar / columnCount(), lugar % columnCount());
        lugar += paso;
    }
    return {};
}

} // namespace pastorix
