#include "reports/motor/Dibujante.h"

#include "reports/motor/Medidor.h"

#include <QPainter>

#include <algorithm>

namespace pastorix {

namespace {

QColor De(Color color) {
    return QColor::fromRgb(static_cast<QRgb>(color | 0xFF000000U));
}

void DibujarCaja(QPainter& pintor, const CajaColocada& caja, double grosorMinimo) {
    const QRectF& r = caja.lugar;
    QPen pluma(De(caja.colorBorde), std::max(caja.grosor, grosorMinimo));
    pluma.setCapStyle(Qt::FlatCap);
    pluma.setJoinStyle(Qt::MiterJoin);
    if (caja.fondo && !r.isEmpty()) {
        pintor.setPen(Qt::NoPen);
        pintor.setBrush(De(*caja.fondo));
        if (caja.radio > 0)
            pintor.drawRoundedRect(r, caja.radio, caja.radio);
        else
            pintor.drawRect(r);
    }
    pintor.setBrush(Qt::NoBrush);
    pintor.setPen(pluma);
    if (caja.bordes == TodosLosLados) {
        if (caja.radio > 0)
            pintor.drawRoundedRect(r, caja.radio, caja.radio);
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
    pintor.scale(escala, escala);
    const double grosorMinimo = 0.6 / escala; // thinner lines would fade away on a screen
    // Texts come after boxes at the same place in the list, so one walk keeps the order; fonts want their own scale.
    for (const Trozo& trozo : paginas.paginas[pagina].trozos) {
        if (const auto* caja = std::get_if<CajaColocada>(&trozo)) {
            DibujarCaja(pintor, *caja, grosorMinimo);
        } else if (const auto* texto = std::get_if<TextoColocado>(&trozo)) {
            pintor.save();
            pintor.scale(MmPorUnidad, MmPorUnidad);
            pintor.setFont(fuentes[static_cast<std::size_t>(texto->letra)]);
            pintor.setPen(De(texto->color));
            pintor.drawText(texto->base / MmPorUnidad, texto->texto);
            pintor.restore();
        } else {
            const auto& grafico = std::get<GraficoColocado>(trozo);
            DibujarGrafico(pintor, grafico.lugar, *grafico.datos);
        }
    }
    pintor.restore();
}

} // namespace pastorix
