#include "frame/ficha/RejillaHijos.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>

namespace pastorix {

RejillaHijos::RejillaHijos(std::span<const ColumnaHijos> columnas, QWidget* padre)
    : QTableWidget(0, static_cast<int>(columnas.size()), padre)
    , m_columnas(columnas) {
    QStringList titulos;
    for (const auto& c : columnas)
        titulos << QString::fromUtf8(c.titulo);
    setHorizontalHeaderLabels(titulos);
    for (int i = 0; i < columnCount(); ++i)
        setColumnWidth(i, fontMetrics().averageCharWidth() *
                              (columnas[static_cast<std::size_t>(i)].caracteres + 2));
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false); // Tab goes on to the next control
    verticalHeader()->hide();
    connect(this, &QTableWidget::currentCellChanged, this, [this](int fila, int, int antes, int) {
        if (fila >= 0 && fila != antes && alElegir)
            alElegir(fila);
    });
    connect(this, &QTableWidget::cellDoubleClicked, this, [this](int fila, int) {
        if (alAbrir)
            alAbrir(fila);
    });
}

void RejillaHijos::Llenar(Recordset& rs) {
    Vaciar();
    const QSignalBlocker silencio(this); // filling chooses nothing
    setRowCount(static_cast<int>(rs.Contar()));
    int fila = 0;
    for (rs.Primero(); !rs.Eof(); rs.Siguiente(), ++fila) {
        auto& valores = m_valores.emplace_back();
        for (int i = 0; i < columnCount(); ++i) {
            valores.push_back(rs[m_columnas[static_cast<std::size_t>(i)].columna].Leer());
            auto* celda = new QTableWidgetItem(QString::fromStdString(TextoDe(valores.back())));
            if (std::holds_alternative<double>(valores.back()) ||
                std::holds_alternative<std::int64_t>(valores.back()))
                celda->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            setItem(fila, i, celda);
        }
    }
    if (fila > 0)
        setCurrentCell(0, 0); // screen readers need a current cell
    clearSelection();
}

void RejillaHijos::Vaciar() {
    const QSignalBlocker silencio(this);
    setRowCount(0);
    m_valores.clear();
}

void RejillaHijos::keyPressEvent(QKeyEvent* evento) {
    if ((evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) && currentRow() >= 0 && alAbrir)
        alAbrir(currentRow());
    else
        QTableWidget::keyPressEvent(evento);
}

} // namespace pastorix
