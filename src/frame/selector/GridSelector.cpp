#include "frame/selector/GridSelector.h"

#include "frame/Tablas.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace pastorix {

GridSelector::GridSelector(QWidget* padre)
    : QTableView(padre) {
    setObjectName(QStringLiteral("GridSelector"));
    VestirTabla(*this);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel); // the filter boxes go along
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setSectionsClickable(false);
    verticalHeader()->setFixedWidth(
        verticalHeader()->fontMetrics().horizontalAdvance(QStringLiteral("baja")) + 12);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setFixedHeight(7);
    horizontalHeader()->setMinimumSectionSize(30);
    horizontalHeader()->setSectionsClickable(false);
    connect(this, &QTableView::doubleClicked, this,
            [this](const QModelIndex& indice) { Q_EMIT Elegida(indice.row()); });
}

void GridSelector::setModel(QAbstractItemModel* modelo) {
    QTableView::setModel(modelo);
    connect(modelo, &QAbstractItemModel::modelReset, this, &GridSelector::PonerFilaActual);
    PonerFilaActual();
}

// Screen readers want a current cell.
void GridSelector::PonerFilaActual() {
    if (model()->rowCount() > 0)
        setCurrentIndex(model()->index(0, 0));
}

void GridSelector::keyPressEvent(QKeyEvent* evento) {
    const auto actual = currentIndex();
    const bool simple = !(evento->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    const auto texto = evento->text();
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) {
        if (actual.isValid())
            Q_EMIT Elegida(actual.row());
    } else if (evento->key() == Qt::Key_Up && simple && actual.row() <= 0) {
        Q_EMIT ArribaDelTodo();
    } else if (simple && !texto.isEmpty() && texto.at(0).isPrint() && !texto.at(0).isSpace()) {
        Q_EMIT Escrito(texto);
    } else {
        QTableView::keyPressEvent(evento);
    }
}

} // namespace pastorix
