#include "reports/motor/Pdf.h"

#include "reports/motor/Dibujante.h"
#include "reports/motor/ErrorInforme.h"

#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>

#include <algorithm>

namespace pastorix {

namespace {

constexpr int PuntosPorPulgada = 1200;
constexpr double MmPorPulgada = 25.4;

QPageLayout HojaDe(const Paginas& paginas) {
    const bool apaisada = paginas.tamaño.width() > paginas.tamaño.height();
    return QPageLayout(QPageSize(apaisada ? paginas.tamaño.transposed() : paginas.tamaño,
                                 QPageSize::Millimeter, {}, QPageSize::FuzzyMatch),
                       apaisada ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF(0, 0, 0, 0));
}

} // namespace

void GuardarPdf(const InformeTerminado& informe, const QString& fichero) {
    QSaveFile salida(fichero);
    const auto fallo = [&] {
        throw ErrorInforme(CodigoInforme::Escritura, "No se puede escribir el fichero " +
                                                         fichero.toStdString() + " (" +
                                                         salida.errorString().toStdString() + ")");
    };
    if (!salida.open(QIODevice::WriteOnly))
        fallo();
    {
        QPdfWriter pdf(&salida);
        pdf.setTitle(informe.titulo.trimmed());
        pdf.setCreator(QStringLiteral("PASTORIX"));
        pdf.setResolution(PuntosPorPulgada);
        pdf.setPageLayout(HojaDe(informe.paginas));
        QPainter pintor(&pdf);
        for (std::size_t i = 0; i < informe.paginas.paginas.size(); ++i) {
            if (i > 0)
                pdf.newPage();
            DibujarPagina(pintor, informe.paginas, i, PuntosPorPulgada / MmPorPulgada);
        }
        if (!pintor.end())
            fallo();
    }
    if (!salida.commit())
        fallo();
}

void Imprimir(const InformeTerminado& informe, QPrinter& impresora) {
    impresora.setFullPage(true);
    impresora.setDocName(informe.titulo.trimmed());
    const int total = static_cast<int>(informe.paginas.paginas.size());
    const bool rango = impresora.printRange() == QPrinter::PageRange;
    const int desde = rango ? std::clamp(impresora.fromPage(), 1, total) : 1;
    const int hasta = rango && impresora.toPage() > 0 ? std::clamp(impresora.toPage(), desde, total) : total;
    QPainter pintor;
    if (!pintor.begin(&impresora))
        throw ErrorInforme(CodigoInforme::Escritura, "La impresora no acepta el informe");
    // A sheet smaller than the report's takes it whole, in small.
    const QRectF hoja = impresora.pageLayout().fullRect(QPageLayout::Millimeter);
    const QSizeF pedida = informe.paginas.tamaño;
    const double encoger = std::min({1.0, hoja.width() / pedida.width(), hoja.height() / pedida.height()});
    const bool alReves = impresora.pageOrder() == QPrinter::LastPageFirst;
    for (int k = 0; k <= hasta - desde; ++k) {
        const int pagina = alReves ? hasta - k : desde + k;
        if (k > 0 && !impresora.newPage())
            throw ErrorInforme(CodigoInforme::Escritura, "La impresora ha dejado de aceptar el informe");
        DibujarPagina(pintor, informe.paginas, static_cast<std::size_t>(pagina - 1),
                      impresora.resolution() / MmPorPulgada * encoger);
    }
}

} // namespace pastorix
