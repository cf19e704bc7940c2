#include "reports/motor/Miniaturas.h"

#include "reports/motor/Dibujante.h"

#include <QAbstractListModel>
#include <QCache>
#include <QPainter>
#include <QPixmap>
#include <QResizeEvent>
#include <QStyledItemDelegate>

#include <algorithm>

namespace pastorix {

namespace {

constexpr int AnchoPropuesto = 104; // pixels of a small page
constexpr int AnchoMaximo = 320;
constexpr int Orla = 8;
constexpr int DibujosGuardados = 200;

class ModeloDePaginas : public QAbstractListModel {
public:
    ModeloDePaginas(int total, QObject* padre)
        : QAbstractListModel(padre)
        , m_total(total) {}
    int rowCount(const QModelIndex& padre = {}) const override { return padre.isValid() ? 0 : m_total; }
    QVariant data(const QModelIndex& indice, int papel) const override {
        if (papel == Qt::AccessibleTextRole || papel == Qt::ToolTipRole)
            return QStringLiteral("Página %1").arg(indice.row() + 1);
        return papel == Qt::DisplayRole ? QVariant(indice.row() + 1) : QVariant();
    }

private:
    int m_total;
};

class DibujanteDeMiniaturas : public QStyledItemDelegate {
public:
    DibujanteDeMiniaturas(const Paginas& paginas, QObject* padre)
        : QStyledItemDelegate(padre)
        , m_paginas(paginas)
        , m_dibujos(DibujosGuardados) {}

    void PonerAncho(int ancho) {
        if (ancho != m_ancho)
            m_dibujos.clear();
        m_ancho = ancho;
    }

    QSize sizeHint(const QStyleOptionViewItem& opcion, const QModelIndex&) const override {
        return {m_ancho + 2 * Orla, Alto() + 2 * Orla + opcion.fontMetrics.height()};
    }

    void paint(QPainter* pintor, const QStyleOptionViewItem& opcion,
               const QModelIndex& indice) const override {
        const bool elegida = opcion.state & QStyle::State_Selected;
        if (elegida)
            pintor->fillRect(opcion.rect, opcion.palette.brush(QPalette::Highlight));
        const QRect hoja(opcion.rect.left() + (opcion.rect.width() - m_ancho) / 2, opcion.rect.top() + Orla,
                         m_ancho, Alto());
        pintor->drawPixmap(hoja.topLeft(), Dibujo(indice.row(), pintor->device()->devicePixelRatioF()));
        pintor->setPen(opcion.palette.color(QPalette::Mid));
        pintor->drawRect(hoja.adjusted(-1, -1, 0, 0));
        pintor->setPen(opcion.palette.color(elegida ? QPalette::HighlightedText : QPalette::Text));
        pintor->drawText(
            QRect(opcion.rect.left(), hoja.bottom() + 2, opcion.rect.width(), opcion.fontMetrics.height()),
            Qt::AlignCenter, indice.data().toString());
    }

private:
    int Alto() const { return qRound(m_ancho * m_paginas.tamaño.height() / m_paginas.tamaño.width()); }

    QPixmap Dibujo(int pagina, double densidad) const {
        if (const QPixmap* hecho = m_dibujos.object(pagina); hecho && hecho->devicePixelRatioF() == densidad)
            return *hecho;
        QPixmap dibujo((QSizeF(m_ancho, Alto()) * densidad).toSize());
        dibujo.setDevicePixelRatio(densidad);
        dibujo.fill(Qt::white);
        QPainter pintor(&dibujo);
        DibujarPagina(pintor, m_paginas, static_cast<std::size_t>(pagina),
                      m_ancho / m_paginas.tamaño.width());
        pintor.end();
        m_dibujos.insert(pagina, new QPixmap(dibujo)); // which may let it go at once
        return dibujo;
    }

    const Paginas& m_paginas;
    int m_ancho = AnchoPropuesto;
    mutable QCache<int, QPixmap> m_dibujos;
};

} // namespace

Miniaturas::Miniaturas(const Paginas& paginas, QWidget* padre)
    : QListView(padre) {
    setObjectName(QStringLiteral("Miniaturas"));
    setAccessibleName(QStringLiteral("Páginas del informe"));
    setModel(new ModeloDePaginas(static_cast<int>(paginas.paginas.size()), this));
    auto* dibujante = new DibujanteDeMiniaturas(paginas, this);
    setItemDelegate(dibujante);
    m_alCambiarDeAncho = [this, dibujante](int ancho) {
        dibujante->PonerAncho(std::clamp(ancho - 2 * Orla, AnchoPropuesto / 2, AnchoMaximo));
        scheduleDelayedItemsLayout();
    };
    setUniformItemSizes(true);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // or pages and bar would change each other's width
    setMinimumWidth(AnchoPropuesto + 2 * Orla + 24);
    Marcar(0);
}

void Miniaturas::resizeEvent(QResizeEvent* evento) {
    QListView::resizeEvent(evento);
    if (evento->size().width() != evento->oldSize().width())
        m_alCambiarDeAncho(viewport()->width());
}

void Miniaturas::Marcar(int pagina) {
    m_marcando = true;
    setCurrentIndex(model()->index(pagina, 0));
    m_marcando = false;
}

void Miniaturas::currentChanged(const QModelIndex& actual, const QModelIndex& anterior) {
    QListView::currentChanged(actual, anterior);
    if (!m_marcando && actual.isValid())
        Q_EMIT Elegida(actual.row());
}

} // namespace pastorix
