#include "frame/ficha/RejillaHijos.h"

#include "frame/Tablas.h"

#include <QKeyEvent>
#include <QSignalBlocker>

#include <algorithm>

namespace pastorix {

RejillaHijos::RejillaHijos(std::span<const ColumnaHijos> columnas, QWidget* padre)
    : QTableWidget(0, static_cast<int>(columnas.size()), padre)
    , m_columnas(columnas) {
    QStringList titulos;
    for (const auto& c : columnas)
        titulos << QString::fromUtf8(c.titulo);
    setHorizontalHeaderLabels(titulos);
    VestirTabla(*this);
    for (int i = 0; i < columnCount(); ++i) {
        const auto& c = columnas[static_cast<std::size_t>(i)];
        setColumnWidth(i, fontMetrics().averageCharWidth() * (c.caracteres + 2));
        setColumnHidden(i, c.caracteres == 0);
        horizontalHeaderItem(i)->setToolTip(QString::fromUtf8(c.explicacion));
    }
    connect(this, &QTableWidget::itemSelectionChanged, this, [this] {
        if (alCambiarSeleccion)
            alCambiarSeleccion();
    });
    connect(this, &QTableWidget::currentCellChanged, this, [this](int fila, int, int antes, int) {
        if (fila >= 0 && fila != antes && alElegir)
            alElegir(fila);
    });
    connect(this, &QTableWidget::cellDoubleClicked, this, [this](int fila, int) {
        if (alAbrir)
            alAbrir(fila);
    });
}

std::vector<std::vector<Valor>> RejillaHijos::FilasDe(Recordset& rs) const {
    std::vector<std::vector<Valor>> filas;
    for (rs.Primero(); !rs.Eof(); rs.Siguiente()) {
        auto& valores = filas.emplace_back();
        for (const auto& c : m_columnas)
            valores.push_back(rs[c.columna].Leer());
    }
    return filas;
}

void RejillaHijos::Llenar(Recordset& rs) {
    Llenar(FilasDe(rs));
}

void RejillaHijos::LlenarDeNuevo(Recordset& rs, std::size_t clave) {
    LlenarDeNuevo(FilasDe(rs), clave);
}

void RejillaHijos::LlenarDeNuevo(std::vector<std::vector<Valor>> filas, std::size_t clave) {
    const int fila = currentRow();
    const bool elegida = fila >= 0 && !selectedItems().isEmpty();
    const auto antes = fila >= 0 ? De(fila, clave) : Valor();
    Llenar(std::move(filas));
    if (fila < 0 || rowCount() == 0)
        return;
    int ahora = 0;
    while (ahora < rowCount() && De(ahora, clave) != antes)
        ++ahora;
    const QSignalBlocker silencio(this);
    setCurrentCell(ahora < rowCount() ? ahora : std::min(fila, rowCount() - 1), PrimeraVisible());
    if (!elegida)
        clearSelection();
    if (alCambiarSeleccion)
        alCambiarSeleccion();
}

void RejillaHijos::Llenar(std::vector<std::vector<Valor>> filas) {
    {
        const QSignalBlocker silencio(this); // filling chooses nothing
        m_valores = std::move(filas);
        setRowCount(static_cast<int>(m_valores.size()));
        for (int f = 0; f < rowCount(); ++f)
            for (int i = 0; i < columnCount(); ++i) {
                const auto& valor = De(f, static_cast<std::size_t>(i));
                auto* celda = new QTableWidgetItem(QString::fromStdString(TextoDe(valor)));
                if (std::holds_alternative<double>(valor) || std::holds_alternative<std::int64_t>(valor))
                    celda->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
                setItem(f, i, celda);
            }
        if (rowCount() > 0)
            setCurrentCell(
                0,
                PrimeraVisible()); // screen readers need a current cell, and the arrows one that is in sight
    }
    clearSelection();
    if (alCambiarSeleccion)
        alCambiarSeleccion();
}

int RejillaHijos::PrimeraVisible() const {
    int i = 0;
    while (i + 1 < columnCount() && isColumnHidden(i))
        ++i;
    return i;
}

void RejillaHijos::Vaciar() {
    Llenar(std::vector<std::vector<Valor>>());
}

void RejillaHijos::focusInEvent(QFocusEvent* evento) {
    QTableWidget::focusInEvent(evento);
    const bool porTecla =
        evento->reason() != Qt::MouseFocusReason && evento->reason() != Qt::ActiveWindowFocusReason;
    if (porTecla && currentRow() >= 0 && selectedItems().isEmpty())
        selectRow(currentRow());
}

void RejillaHijos::keyPressEvent(QKeyEvent* evento) {
    if ((evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) && currentRow() >= 0 && alAbrir)
        alAbrir(currentRow());
    else if (evento->key() == Qt::Key_Insert && alInsertar)
        alInsertar();
    else if (evento->key() == Qt::Key_Delete && alEliminar)
        alEliminar();
    else
        QTableWidget::keyPressEvent(evento);
}

} // namespace pastorix
