#include "reports/motor/Dibujante.h"

#include <QFontMetricsF>
#include <QGraphicsLayout>
#include <QGraphicsScene>
#include <QPainter>

#include <QtCharts/QBarCategoryAxis>
#include <QtCharts/QBarSeries>
#include <QtCharts/QBarSet>
#include <QtCharts/QChart>
#include <QtCharts/QLegend>
#include <QtCharts/QStackedBarSeries>
#include <QtCharts/QValueAxis>

#include <algorithm>
#include <cmath>

namespace pastorix {

namespace {

// The chart is laid out in units of which a millimetre has so many, near to what its built-in distances are made for.
constexpr double UnidadesPorMm = 6;
constexpr double MmPorPunto = 25.4 / 72;

QColor De(Color color) {
    return QColor::fromRgb(static_cast<QRgb>(color | 0xFF000000U));
}

double Mayor(const DatosGrafico& datos) {
    double mayor = 0;
    for (qsizetype i = 0; i < datos.categorias.size(); ++i) {
        double suma = 0;
        for (const DatosGrafico::Serie& serie : datos.series) {
            const double valor = serie.valores[static_cast<std::size_t>(i)];
            if (!std::isfinite(valor))
                continue;
            suma = datos.apilado ? suma + valor : std::max(suma, valor);
        }
        mayor = std::max(mayor, suma);
    }
    return mayor;
}

// Height, as a part of the plot's, that the figure on top of a bar takes; a bar that comes nearer to the edge would lose it.
double ParteDelRotulo(const QFont& fuente, double alto) {
    const QFontMetricsF medidas(fuente);
    const double eje = 2 * medidas.height(); // what stands below the bars, roughly
    return std::clamp(1.5 * medidas.height() / std::max(1.0, alto - eje), 0.0, 0.5);
}

// Whole steps of 1, 2 or 5 times a power of ten, four to six of them.
void PonerEscala(QValueAxis& eje, double mayor) {
    double paso = std::pow(10, std::floor(std::log10(std::max(mayor, 1.0) / 4)));
    for (const double factor : {2.0, 2.5, 2.0}) {
        if (mayor / paso > 5)
            paso *= factor;
    }
    paso = std::max(paso, 1.0);
    paso = std::ceil(paso);
    const double pasos = std::max(2.0, std::ceil(mayor / paso));
    eje.setRange(0, paso * pasos);
    eje.setTickCount(static_cast<int>(pasos) + 1);
    eje.setLabelFormat(QStringLiteral("%.0f"));
}

QAbstractBarSeries* Barras(const DatosGrafico& datos, const QFont& fuente) {
    QAbstractBarSeries* barras = datos.apilado ? static_cast<QAbstractBarSeries*>(new QStackedBarSeries)
                                               : static_cast<QAbstractBarSeries*>(new QBarSeries);
    for (const DatosGrafico::Serie& serie : datos.series) {
        auto* conjunto = new QBarSet(serie.nombre);
        for (const double valor : serie.valores)
            conjunto->append(std::isfinite(valor) ? valor : 0);
        conjunto->setColor(De(serie.color));
        conjunto->setBorderColor(De(serie.color).darker(150));
        conjunto->setLabelColor(De(datos.color));
        conjunto->setLabelFont(fuente);
        barras->append(conjunto);
    }
    barras->setBarWidth(datos.apilado ? 0.62 : 0.78);
    return barras;
}

} // namespace

void DibujarGrafico(QPainter& pintor, const QRectF& lugar, const DatosGrafico& datos) {
    if (lugar.isEmpty() || datos.categorias.isEmpty())
        return;
    QFont fuente(datos.letra.familia);
    fuente.setPixelSize(
        std::max(4, static_cast<int>(std::lround(datos.letra.tamaño * MmPorPunto * UnidadesPorMm))));
    fuente.setHintingPreference(QFont::PreferNoHinting);

    QGraphicsScene escena;
    auto* grafico = new QChart; // the scene owns it
    escena.addItem(grafico);
    grafico->setAnimationOptions(QChart::NoAnimation);
    grafico->setBackgroundVisible(false);
    grafico->setMargins(QMargins(0, 0, 0, 0));
    grafico->layout()->setContentsMargins(0, 0, 0, 0);

    QAbstractBarSeries* barras = Barras(datos, fuente);
    if (datos.valores) {
        barras->setLabelsVisible(true);
        barras->setLabelsPosition(datos.apilado ? QAbstractBarSeries::LabelsCenter
                                                : QAbstractBarSeries::LabelsOutsideEnd);
    }
    grafico->addSeries(barras);

    auto* categorias = new QBarCategoryAxis;
    categorias->append(datos.categorias);
    auto* valores = new QValueAxis;
    const double libre =
        datos.valores && !datos.apilado ? ParteDelRotulo(fuente, lugar.height() * UnidadesPorMm) : 0;
    PonerEscala(*valores, Mayor(datos) / (1 - libre));
    for (QAbstractAxis* eje :
         {static_cast<QAbstractAxis*>(categorias), static_cast<QAbstractAxis*>(valores)}) {
        eje->setLabelsFont(fuente);
        eje->setLabelsColor(De(datos.color));
        eje->setLinePen(QPen(De(0x8A8A8A), 1));
        eje->setTitleFont(fuente);
        eje->setTitleBrush(De(datos.color));
    }
    categorias->setGridLineVisible(false);
    valores->setGridLinePen(QPen(De(0xDDDDDD), 0.8));
    valores->setLineVisible(false);
    if (!datos.eje.isEmpty())
        valores->setTitleText(datos.eje);
    grafico->addAxis(categorias, Qt::AlignBottom);
    grafico->addAxis(valores, Qt::AlignLeft);
    barras->attachAxis(categorias);
    barras->attachAxis(valores);

    grafico->legend()->setVisible(datos.series.size() > 1);
    grafico->legend()->setAlignment(Qt::AlignTop);
    grafico->legend()->setFont(fuente);
    grafico->legend()->setLabelColor(De(datos.color));
    grafico->legend()->setMarkerShape(QLegend::MarkerShapeRectangle);

    const QRectF hoja(0, 0, lugar.width() * UnidadesPorMm, lugar.height() * UnidadesPorMm);
    grafico->resize(hoja.size());
    escena.setSceneRect(hoja);
    pintor.save();
    escena.render(&pintor, lugar, hoja, Qt::IgnoreAspectRatio);
    pintor.restore();
}

} // namespace pastorix
