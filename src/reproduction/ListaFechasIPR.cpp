#include "reproduction/ListaFechasIPR.h"

#include "frame/Mensajes.h"
#include "frame/Tablas.h"
#include "reproduction/datos/Cubricion.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace pastorix {

ListaFechasIPR::ListaFechasIPR(Conexion& c, QWidget& icono)
    : QTableWidget(0, 2, &icono)
    , m_c(c)
    , m_icono(icono) {
    setObjectName(QStringLiteral("GridFechaIPR"));
    setAccessibleName(QStringLiteral("Fechas de I.P.R."));
    setWindowFlags(Qt::Popup);
    VestirTabla(*this);
    horizontalHeader()->hide();
    setColumnWidth(0, fontMetrics().averageCharWidth() * 20);
    setColumnWidth(1, fontMetrics().averageCharWidth() * 12);
    connect(this, &QTableWidget::cellDoubleClicked, this, [this] { Elegir(true); });
    hide();
}

void ListaFechasIPR::Mostrar(const CicloDeVaca& ciclo, double idGanadero, std::optional<Fecha> primeraFecha) {
    try {
        const auto fechas = FechasIPROfrecidas(m_c, ciclo, idGanadero, primeraFecha);
        setRowCount(static_cast<int>(fechas.size()));
        for (int i = 0; i < rowCount(); ++i) {
            const auto& f = fechas[static_cast<std::size_t>(i)];
            setItem(i, 0, new QTableWidgetItem(QString::fromStdString(f.nombre)));
            setItem(i, 1, new QTableWidgetItem(QString::fromStdString(f.fecha)));
        }
    } catch (const std::exception& e) {
        return AvisarError(m_icono.window(), e);
    }
    resize(columnWidth(0) + columnWidth(1) + 4, verticalHeader()->defaultSectionSize() * rowCount() + 4);
    move(m_icono.mapToGlobal(QPoint(0, m_icono.height())));
    show();
    setCurrentCell(0, 0);
    setFocus();
}

void ListaFechasIPR::Elegir(bool calcular) {
    const auto* celda = item(currentRow(), 1);
    hide();
    if (celda && alElegir)
        alElegir(celda->text(), calcular);
}

void ListaFechasIPR::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter)
        Elegir(false);
    else if (evento->key() == Qt::Key_Escape)
        hide();
    else
        QTableWidget::keyPressEvent(evento);
}

} // namespace pastorix
