#include "manual/Pintura.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextOption>

namespace pastorix::manual {

QFont Letra(const Estilo& estilo) {
    QFont letra(QStringList{QStringLiteral("Nimbus Sans"), QStringLiteral("Liberation Sans"),
                            QStringLiteral("Arial"), QStringLiteral("DejaVu Sans")});
    letra.setPointSizeF(estilo.tamaño);
    letra.setBold(estilo.negrita);
    letra.setHintingPreference(QFont::PreferNoHinting);
    return letra;
}

TextoCompuesto::TextoCompuesto(QPaintDevice& papel, const QString& html, double ancho, const Estilo& estilo)
    : m_texto(std::make_shared<QTextDocument>())
    , m_interlinea(estilo.interlinea) {
    m_texto->documentLayout()->setPaintDevice(&papel);
    m_texto->setDocumentMargin(0);
    m_texto->setDefaultFont(Letra(estilo));
    QTextOption opcion(estilo.alinear);
    m_texto->setDefaultTextOption(opcion);
    m_texto->setHtml(QStringLiteral("<span style=\"color:%1\">%2</span>").arg(estilo.color.name(), html));
    m_texto->setTextWidth(ancho);
    m_texto->documentLayout()->documentSize(); // lays it out
}

QTextLine TextoCompuesto::Linea(int linea) const {
    return m_texto->firstBlock().layout()->lineAt(linea);
}

int TextoCompuesto::Lineas() const {
    return m_texto->firstBlock().layout()->lineCount();
}

double TextoCompuesto::AltoDeLinea(int linea) const {
    return Linea(linea).height() * m_interlinea;
}

double TextoCompuesto::Alto() const {
    double alto = 0;
    for (int i = 0; i < Lineas(); ++i)
        alto += AltoDeLinea(i);
    return alto;
}

void TextoCompuesto::DibujarLinea(QPainter& pintor, int linea, QPointF sitio) const {
    const QTextLine l = Linea(linea);
    l.draw(&pintor, sitio - QPointF(0, l.y()));
}

void TextoCompuesto::Dibujar(QPainter& pintor, QPointF sitio) const {
    for (int i = 0; i < Lineas(); ++i) {
        DibujarLinea(pintor, i, sitio);
        sitio.ry() += AltoDeLinea(i);
    }
}

} // namespace pastorix::manual
