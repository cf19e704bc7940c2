#include "reports/motor/IndiceDePaginas.h"

#include <QHeaderView>

#include <algorithm>

namespace pastorix {

namespace {
constexpr int PaginaDeEntrada = Qt::UserRole;
}

IndiceDePaginas::IndiceDePaginas(const std::vector<Paginas::Entrada>& indice, QWidget* padre)
    : QTreeWidget(padre) {
    setObjectName(QStringLiteral("IndiceDePaginas"));
    setAccessibleName(QStringLiteral("Índice del informe"));
    setColumnCount(2);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setIndentation(fontMetrics().averageCharWidth() * 2);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    std::vector<QTreeWidgetItem*> abiertas; // the entry around, by level
    for (const Paginas::Entrada& entrada : indice) {
        const auto nivel = std::min(static_cast<std::size_t>(entrada.nivel), abiertas.size());
        abiertas.resize(nivel);
        auto* fila = nivel == 0 ? new QTreeWidgetItem(this) : new QTreeWidgetItem(abiertas.back());
        fila->setText(0, entrada.texto);
        fila->setToolTip(0, entrada.texto);
        fila->setText(1, QString::number(entrada.pagina + 1));
        fila->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        fila->setData(0, PaginaDeEntrada, entrada.pagina);
        fila->setData(0, Qt::AccessibleTextRole,
                      QStringLiteral("%1, página %2").arg(entrada.texto).arg(entrada.pagina + 1));
        abiertas.push_back(fila);
        m_entradas.push_back(fila);
    }
    if (topLevelItemCount() <= 3)
        expandAll();
    connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* fila) {
        if (fila && !m_marcando)
            Q_EMIT Elegida(fila->data(0, PaginaDeEntrada).toInt());
    });
}

void IndiceDePaginas::Marcar(int pagina) {
    const auto siguiente = std::upper_bound(
        m_entradas.begin(), m_entradas.end(), pagina,
        [](int p, const QTreeWidgetItem* fila) { return p < fila->data(0, PaginaDeEntrada).toInt(); });
    if (siguiente == m_entradas.begin())
        return;
    // Of several that begin on the page the one that the user chose stays.
    if (currentItem() && currentItem()->data(0, PaginaDeEntrada).toInt() == pagina)
        return;
    m_marcando = true;
    setCurrentItem(*std::prev(siguiente));
    m_marcando = false;
}

} // namespace pastorix
