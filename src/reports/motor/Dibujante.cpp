#include "reports/motor/Dibujante.h"

#include "reports/motor/Medidor.h"

#include <QPainter>

#include <algorithm>

namespace pastorix {

namespace {

constexpr double UnidadesPorMm = 1 / MmPorUnidad;

QColor De(Color color) {
    return QColor::fromRgb(static_cast<QRgb>(color | 0xFF000000U));
}

void DibujarCaja(QPainter& pintor, const CajaColocada& caja, double grosorMinimo) {
    const QRectF r(caja.lugar.topLeft() * UnidadesPorMm, caja.lugar.size() * UnidadesPorMm);
    const double radio = caja.radio * UnidadesPorMm;
    QPen pluma(De(caja.colorBorde), std::max(caja.grosor * UnidadesPorMm, grosorMinimo));
    pluma.setCapStyle(Qt::FlatCap);
    pluma.setJoinStyle(Qt::MiterJoin);
    if (caja.fondo && !r.isEmpty()) {
        pintor.setPen(Qt::NoPen);
        pintor.setBrush(De(*caja.fondo));
        if (radio > 0)
            pintor.drawRoundedRect(r, radio, radio);
        else
            pintor.drawRect(r);
    }
    pintor.setBrush(Qt::NoBrush);
    pintor.setPen(pluma);
    if (caja.bordes == TodosLosLados) {
        if (radio > 0)
            pintor.drawRoundedRect(r, radio, radio);
        else
            pintor.drawRect(r);
        return;
    }
    if (caja.bordes & LadoArriba)
        pintor.drawLine(r.topLeft(), r.topRight());
    if (caja.bordes & LadoAbajo)
        pintor.drawLine(r.bottomLeft(), r.bottomRight());
    if (caja.bordes & LadoIzquierdo)
        pintor.drawLine(r.topLeft(), r.bottomLeft());
    if (caja.bordes & LadoDerecho)
        pintor.drawLine(r.topRight(), r.bottomRight());
}

} // namespace

void DibujarPagina(QPainter& pintor, const Paginas& paginas, std::size_t pagina, double escala) {
    if (pagina >= paginas.paginas.size() || escala <= 0)
        return;
    std::vector<QFont> fuentes;
    for (const Letra& letra : paginas.letras)
        fuentes.push_back(FuenteDe(letra));
    pintor.save();
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setRenderHint(QPainter::TextAntialiasing);
    // All is drawn in the units of the fonts: a change of scale for every text takes longer than the text.
    pintor.scale(escala * MmPorUnidad, escala * MmPorUnidad);
    const double grosorMinimo = 0.6 / (escala * MmPorUnidad); // thinner lines would fade away on a screen
    int letraPuesta = -1;
    std::optional<Color> colorPuesto;
    for (const Trozo& trozo : paginas.paginas[pagina].trozos) {
        if (const auto* texto = std::get_if<TextoColocado>(&trozo)) {
            if (letraPuesta != texto->letra)
                pintor.setFont(fuentes[static_cast<std::size_t>(letraPuesta = texto->letra)]);
            if (colorPuesto != texto->color)
                pintor.setPen(De(*(colorPuesto = texto->color)));
            pintor.drawText(texto->base * UnidadesPorMm, texto->texto);
        } else if (const auto* caja = std::get_if<CajaColocada>(&trozo)) {
            DibujarCaja(pintor, *caja, grosorMinimo);
            colorPuesto.reset();
        } else {
            const auto& grafico = std::get<GraficoColocado>(trozo);
            pintor.save();
            pintor.scale(UnidadesPorMm, UnidadesPorMm);
            DibujarGrafico(pintor, grafico.lugar, *grafico.datos);
            pintor.restore();
        }
    }
    pintor.restore();
}

} // namespace pastorix
