#include "reports/formularios/SelectorGanadero.h"

#include "reports/formularios/FormularioDeInforme.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <QFormLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

namespace pastorix {

namespace {

// A click on the name chooses the farmer as one into his box does; only the box takes the choice back.
class EleccionPorNombre : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    bool editorEvent(QEvent* e, QAbstractItemModel* modelo, const QStyleOptionViewItem& opcion,
                     const QModelIndex& fila) override {
        if (QStyledItemDelegate::editorEvent(e, modelo, opcion, fila))
            return true;
        return e->type() == QEvent::MouseButtonRelease &&
               static_cast<QMouseEvent*>(e)->button() == Qt::LeftButton &&
               modelo->setData(fila, Qt::Checked, Qt::CheckStateRole);
    }
};

} // namespace

SelectorGanadero::SelectorGanadero(Conexion& c, QFormLayout& campos, QWidget* formulario)
    : QObject(formulario)
    , m_conexion(c)
    , m_veterinario(new QComboBox(formulario))
    , m_lstGanadero(new QListWidget(formulario)) {
    m_veterinario->setObjectName(QStringLiteral("Cd_Veterinario"));
    m_veterinario->setAccessibleName(QStringLiteral("Veterinario"));
    m_veterinario->setPlaceholderText(QStringLiteral("Todos"));
    m_veterinario->setToolTip(QStringLiteral("Supr: todos los veterinarios"));
    m_veterinario->installEventFilter(this);
    connect(m_veterinario, &QComboBox::activated, this, [this] { LlenarGanaderos(); });

    m_lstGanadero->setObjectName(QStringLiteral("lstGanadero"));
    m_lstGanadero->setAccessibleName(QStringLiteral("Ganadero"));
    m_lstGanadero->setUniformItemSizes(true);
    m_lstGanadero->setItemDelegate(new EleccionPorNombre(m_lstGanadero));
    connect(m_lstGanadero, &QListWidget::itemChanged, this, [this](QListWidgetItem* i) {
        if (i->checkState() == Qt::Checked)
            DejarUnoSolo(m_lstGanadero->row(i));
        if (alCambiar)
            alCambiar();
    });
    FormularioDeInforme::PonerCampo(campos, QStringLiteral("&Veterinario"), 0, m_veterinario);
    FormularioDeInforme::PonerCampo(campos, QStringLiteral("&Ganadero"), 1, m_lstGanadero);
    LlenarVeterinarios();
    LlenarGanaderos();
    m_lstGanadero->setFocus();
}

void SelectorGanadero::LlenarVeterinarios() {
    for (Recordset rs(m_conexion, "Select * FROM T_Veterinarios ORDER BY NombreVet"); !rs.Eof();
         rs.Siguiente()) {
        m_veterinario->addItem(QString::fromStdString(rs["NombreVet"].Texto()));
        m_lst_Id_Veterinario.push_back(rs["Id_Veterinario"].Numero());
    }
    m_veterinario->setCurrentIndex(-1);
}

void SelectorGanadero::LlenarGanaderos() {
    std::string donde = " WHERE FechaBaja IS NULL";
    if (const int i = m_veterinario->currentIndex(); i >= 0)
        donde += " AND Id_Veterinario = " + NumeroSql(m_lst_Id_Veterinario[static_cast<std::size_t>(i)]);
    m_ofrecidos = LeerGanaderosOfrecidos(m_conexion, donde);
    {
        const QSignalBlocker silencio(m_lstGanadero);
        m_lstGanadero->clear();
        for (const auto& g : m_ofrecidos) {
            auto* i = new QListWidgetItem(g.nombre, m_lstGanadero);
            i->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
            i->setCheckState(Qt::Unchecked);
        }
        if (m_lstGanadero->count() > 0)
            m_lstGanadero->setCurrentRow(0);
    }
    if (alCambiar)
        alCambiar();
}

void SelectorGanadero::DejarUnoSolo(int fila) {
    const QSignalBlocker silencio(m_lstGanadero);
    for (int i = 0; i < m_lstGanadero->count(); ++i)
        if (i != fila)
            m_lstGanadero->item(i)->setCheckState(Qt::Unchecked);
    m_lstGanadero->viewport()->update();
}

bool SelectorGanadero::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == m_veterinario && evento->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(evento)->key() == Qt::Key_Delete) {
        m_veterinario->setCurrentIndex(-1);
        LlenarGanaderos();
        return true;
    }
    return QObject::eventFilter(objeto, evento);
}

bool SelectorGanadero::Elegir(double idGanadero) {
    for (std::size_t i = 0; i < m_ofrecidos.size(); ++i)
        if (m_ofrecidos[i].id == idGanadero) {
            auto* fila = m_lstGanadero->item(static_cast<int>(i));
            fila->setCheckState(Qt::Checked);
            m_lstGanadero->setCurrentItem(fila);
            m_lstGanadero->scrollToItem(fila, QAbstractItemView::PositionAtCenter);
            return true;
        }
    return false;
}

double SelectorGanadero::Elegido() const {
    const auto marcados = Marcados();
    return marcados.empty() ? 0 : marcados.front();
}

std::vector<double> SelectorGanadero::Marcados() const {
    std::vector<double> ids;
    for (int i = 0; i < m_lstGanadero->count(); ++i)
        if (m_lstGanadero->item(i)->checkState() == Qt::Checked)
            ids.push_back(m_ofrecidos[static_cast<std::size_t>(i)].id);
    return ids;
}

} // namespace pastorix
