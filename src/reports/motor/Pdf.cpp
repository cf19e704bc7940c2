#include "reports/motor/Pdf.h"

#include "reports/motor/Dibujante.h"
#include "reports/motor/ErrorInforme.h"
#include "reports/motor/Escritura.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>

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

// Which pages, from 1, and in which order.
struct Tramo {
    int desde = 1;
    int hasta = 1;
    bool alReves = false;
};

// escala: device units per millimetre.
void DibujarTramo(const Paginas& paginas, QPagedPaintDevice& papel, const Tramo& tramo, double escala) {
    QPainter pintor;
    if (!pintor.begin(&papel))
        throw ErrorInforme(CodigoInforme::Escritura, "La impresora no acepta el informe");
    for (int k = 0; k <= tramo.hasta - tramo.desde; ++k) {
        const int pagina = tramo.alReves ? tramo.hasta - k : tramo.desde + k;
        if (k > 0 && !papel.newPage())
            throw ErrorInforme(CodigoInforme::Escritura, "La impresora ha dejado de aceptar el informe");
        DibujarPagina(pintor, paginas, static_cast<std::size_t>(pagina - 1), escala);
    }
}

// Composed in memory, so that the disk sees it whole or not at all. encoger: 1 is the size on paper.
void EscribirPdf(const InformeTerminado& informe, const QPageLayout& hoja, const Tramo& tramo, double encoger,
                 const QString& fichero) {
    QByteArray bytes;
    {
        QBuffer memoria(&bytes);
        memoria.open(QIODevice::WriteOnly);
        QPdfWriter pdf(&memoria);
        pdf.setTitle(informe.titulo.trimmed());
        pdf.setCreator(QStringLiteral("PASTORIX"));
        pdf.setResolution(PuntosPorPulgada);
        pdf.setPageLayout(hoja);
        DibujarTramo(informe.paginas, pdf, tramo, PuntosPorPulgada / MmPorPulgada * encoger);
    }
    EscribirFicheros({{fichero, bytes}});
}

} // namespace

void GuardarPdf(const InformeTerminado& informe, const QString& fichero) {
    EscribirPdf(informe, HojaDe(informe.paginas), {1, static_cast<int>(informe.paginas.paginas.size())}, 1,
                fichero);
}

void Imprimir(const InformeTerminado& informe, QPrinter& impresora) {
    impresora.setFullPage(true);
    impresora.setDocName(informe.titulo.trimmed());
    const int total = static_cast<int>(informe.paginas.paginas.size());
    const bool rango = impresora.printRange() == QPrinter::PageRange;
    Tramo tramo{1, total, impresora.pageOrder() == QPrinter::LastPageFirst};
    if (rango) {
        tramo.desde = std::clamp(impresora.fromPage(), 1, total);
        tramo.hasta = impresora.toPage() > 0 ? std::clamp(impresora.toPage(), tramo.desde, total) : total;
    }
    // A sheet smaller than the report's takes it whole, in small.
    const QRectF hoja = impresora.pageLayout().fullRect(QPageLayout::Millimeter);
    const QSizeF pedida = informe.paginas.tamaño;
    const double encoger = std::min({1.0, hoja.width() / pedida.width(), hoja.height() / pedida.height()});
    // What is printed into a file is an export like the others.
    if (impresora.outputFormat() == QPrinter::PdfFormat)
        EscribirPdf(informe, impresora.pageLayout(), tramo, encoger, impresora.outputFileName());
    else
        DibujarTramo(informe.paginas, impresora, tramo, impresora.resolution() / MmPorPulgada * encoger);
}

} // namespace pastorix
