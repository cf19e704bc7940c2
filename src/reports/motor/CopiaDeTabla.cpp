#include "reports/motor/CopiaDeTabla.h"

#include <QMimeData>

namespace pastorix {

namespace {

QString TextoDeCelda(const Valor& valor, const HojaDatos::Columna& columna) {
    return QString::fromStdString(TextoConMascara(
        valor,
        std::holds_alternative<Fecha>(valor) && columna.formato.empty() ? "dd/mm/yyyy" : columna.formato));
}

// A cell is one line between tabulators.
QString EnUnaLinea(QString texto) {
    return texto.replace(QLatin1Char('\t'), QLatin1Char(' '))
        .replace(QLatin1String("\r\n"), QLatin1String(" "))
        .replace(QLatin1Char('\n'), QLatin1Char(' '));
}

} // namespace

std::unique_ptr<QMimeData> CopiaDeTabla(const HojaDatos& hoja) {
    QStringList llanas;
    QString html = QStringLiteral("<table>");
    const auto fila = [&](const char* etiqueta, const QStringList& celdas) {
        QStringList lineas;
        html += QStringLiteral("<tr>");
        for (const QString& celda : celdas) {
            lineas << EnUnaLinea(celda);
            html += QStringLiteral("<%1>%2</%1>").arg(QLatin1String(etiqueta), celda.toHtmlEscaped());
        }
        html += QStringLiteral("</tr>");
        llanas << lineas.join(QLatin1Char('\t'));
    };
    QStringList titulos;
    for (const auto& columna : hoja.columnas)
        titulos << columna.titulo;
    fila("th", titulos);
    for (const auto& valores : hoja.filas) {
        QStringList celdas;
        for (std::size_t c = 0; c < hoja.columnas.size(); ++c)
            celdas << TextoDeCelda(valores[c], hoja.columnas[c]);
        fila("td", celdas);
    }
    auto copia = std::make_unique<QMimeData>();
    copia->setText(llanas.join(QLatin1Char('\n')) + QLatin1Char('\n'));
    copia->setHtml(html + QStringLiteral("</table>"));
    return copia;
}

} // namespace pastorix
