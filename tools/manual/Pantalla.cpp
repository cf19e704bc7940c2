#include "manual/Pantalla.h"

namespace pastorix::manual {

namespace {

QString Tabla(const Bloque& bloque) {
    QString html = QStringLiteral("<table border=\"1\" cellspacing=\"0\" cellpadding=\"4\" width=\"100%\">");
    bool cabecera = true;
    for (const auto& fila : bloque.filas) {
        const QString celda = cabecera ? QStringLiteral("th") : QStringLiteral("td");
        html += QStringLiteral("<tr>");
        for (qsizetype c = 0; c < fila.size(); ++c) {
            const auto ancho =
                static_cast<std::size_t>(c) < bloque.anchos.size()
                    ? QString::number(static_cast<int>(100 * bloque.anchos[static_cast<std::size_t>(c)]))
                    : QString();
            html += QStringLiteral("<%1 width=\"%2%\" align=\"left\">%3</%1>").arg(celda, ancho, fila[c]);
        }
        html += QStringLiteral("</tr>");
        cabecera = false;
    }
    return html + QStringLiteral("</table>\n");
}

} // namespace

QString PaginaHtml(const Documento& documento) {
    // Figures are as wide as a share of this, in points of the screen, for the page itself does not know how wide it is shown.
    constexpr int anchoDelTexto = 640;
    QString html = QStringLiteral("<html><head><meta charset=\"utf-8\"><title>%1</title></head><body>\n")
                       .arg(documento.portada.value(0).toHtmlEscaped());
    int titulo = 0;
    QString lista; // the element that stands open
    const auto abrir = [&](const QString& elemento) {
        if (lista == elemento)
            return;
        if (!lista.isEmpty())
            html += QStringLiteral("</%1>\n").arg(lista);
        lista = elemento;
        if (!elemento.isEmpty())
            html += QStringLiteral("<%1>\n").arg(elemento);
    };
    for (const Bloque& b : documento.bloques) {
        using enum Bloque::Clase;
        abrir(b.clase == Punto ? QStringLiteral("ul") : b.clase == Numero ? QStringLiteral("ol") : QString());
        switch (b.clase) {
        case Titulo:
            html +=
                QStringLiteral("<h%1><a name=\"t%2\"></a>%3</h%1>\n").arg(b.nivel).arg(++titulo).arg(b.texto);
            break;
        case Parrafo:
            html += QStringLiteral("<p>%1</p>\n").arg(b.texto);
            break;
        case Punto:
        case Numero:
            html += QStringLiteral("<li>%1</li>\n").arg(b.texto);
            break;
        case Nota:
            html += QStringLiteral("<blockquote><i>%1</i></blockquote>\n").arg(b.texto);
            break;
        case Figura:
            html += QStringLiteral("<p><img src=\"%1\" width=\"%2\"><br><small>Figura %3. %4</small></p>\n")
                        .arg(b.fichero)
                        .arg(anchoDelTexto * b.ancho / 100)
                        .arg(b.numero)
                        .arg(b.texto);
            break;
        case Tabla:
            html += pastorix::manual::Tabla(b);
            break;
        }
    }
    abrir({});
    return html + QStringLiteral("</body></html>\n");
}

} // namespace pastorix::manual
