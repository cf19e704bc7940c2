#include "frame/ficha/Aspecto.h"

#include <QComboBox>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>

namespace pastorix {

QLabel* Titular(const QString& texto, QWidget* padre) {
    auto* rotulo = new QLabel(texto, padre);
    auto fuente = rotulo->font();
    fuente.setBold(true);
    rotulo->setFont(fuente);
    return rotulo;
}

void VestirTabla(QTableWidget& tabla) {
    tabla.setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabla.setSelectionBehavior(QAbstractItemView::SelectRows);
    tabla.setSelectionMode(QAbstractItemView::SingleSelection);
    tabla.setAlternatingRowColors(true);
    tabla.setTabKeyNavigation(false);
    tabla.horizontalHeader()->setHighlightSections(false); // bold headings would not fit
    tabla.verticalHeader()->hide();
    tabla.verticalHeader()->setDefaultSectionSize(tabla.fontMetrics().lineSpacing() + 8);
}

bool EsRuedaAjena(const QObject* objeto, const QEvent& evento) {
    if (evento.type() != QEvent::Wheel)
        return false;
    const auto* combo = qobject_cast<const QComboBox*>(objeto);
    return combo && !combo->hasFocus();
}

} // namespace pastorix
