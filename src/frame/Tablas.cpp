#include "frame/Tablas.h"

#include "store/Textos.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QTableWidget>

#include <functional>

namespace pastorix {

namespace {

// One line of texts; what would break it apart is a blank.
QString EnLinea(const QTableView& tabla, const std::function<QVariant(int columna)>& celda) {
    QStringList textos;
    const auto& cabecera = *tabla.horizontalHeader();
    for (int i = 0; i < cabecera.count(); ++i)
        if (const int columna = cabecera.logicalIndex(i); !tabla.isColumnHidden(columna))
            textos << celda(columna).toString().simplified();
    return textos.join(QLatin1Char('\t'));
}

QString Fila(const QTableView& tabla, int fila) {
    return EnLinea(tabla, [&](int columna) { return tabla.model()->index(fila, columna).data(); });
}

QString Titulos(const QTableView& tabla) {
    return EnLinea(tabla, [&](int columna) {
        const auto titulo = tabla.model()->headerData(columna, Qt::Horizontal);
        return titulo.isValid() ? titulo // else it stands elsewhere, and screen readers are told of it
                                : tabla.model()->headerData(columna, Qt::Horizontal, Qt::AccessibleTextRole);
    });
}

void CopiarFila(const QTableView& tabla) {
    if (const int fila = tabla.currentIndex().row(); fila >= 0)
        QGuiApplication::clipboard()->setText(Fila(tabla, fila));
}

void CopiarTabla(const QTableView& tabla) {
    QString todo = Titulos(tabla) + QLatin1Char('\n');
    for (int f = 0; f < tabla.model()->rowCount(); ++f)
        todo += Fila(tabla, f) + QLatin1Char('\n');
    QGuiApplication::clipboard()->setText(todo);
}

// Sorts like the lists of the database do, whatever the system's language.
class CeldaOrdenable : public QTableWidgetItem {
public:
    explicit CeldaOrdenable(const QTableWidgetItem& celda)
        : QTableWidgetItem(celda) {}
    bool operator<(const QTableWidgetItem& otra) const override {
        return CompararEspañol(text().toStdString(), otra.text().toStdString()) < 0;
    }
};

} // namespace

void VestirTabla(QTableView& tabla) {
    tabla.setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabla.setSelectionBehavior(QAbstractItemView::SelectRows);
    tabla.setSelectionMode(QAbstractItemView::SingleSelection);
    tabla.setAlternatingRowColors(true);
    tabla.setTabKeyNavigation(false);
    tabla.horizontalHeader()->setHighlightSections(false); // bold headings would not fit
    tabla.horizontalHeader()->setStretchLastSection(true);
    tabla.verticalHeader()->hide();
    tabla.verticalHeader()->setDefaultSectionSize(tabla.fontMetrics().lineSpacing() + 8);
    CopiarConTeclas(tabla);
}

void CopiarConTeclas(QTableView& tabla) {
    const auto orden = [&tabla](const QString& texto, const QKeySequence& tecla, auto copiar) {
        auto* accion = new QAction(texto, &tabla);
        accion->setShortcut(tecla);
        accion->setShortcutContext(Qt::WidgetShortcut); // not while a cell is being edited
        QObject::connect(accion, &QAction::triggered, &tabla, [&tabla, copiar] { copiar(tabla); });
        tabla.addAction(accion);
    };
    orden(QStringLiteral("&Copiar la fila"), QKeySequence(Qt::CTRL | Qt::Key_C), CopiarFila);
    orden(QStringLiteral("Copiar la &tabla"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C), CopiarTabla);
    tabla.setContextMenuPolicy(Qt::ActionsContextMenu);
}

void OrdenarPorTitulos(QTableWidget& tabla) {
    for (int f = 0; f < tabla.rowCount(); ++f)
        for (int c = 0; c < tabla.columnCount(); ++c)
            if (const auto* celda = tabla.item(f, c))
                tabla.setItem(f, c, new CeldaOrdenable(*celda));
    tabla.horizontalHeader()->setSortIndicator(-1,
                                               Qt::AscendingOrder); // as it was filled, until somebody clicks
    tabla.setSortingEnabled(true);
}

} // namespace pastorix
