#include "manual/Fuente.h"

#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>

#include <numeric>

namespace pastorix::manual {

namespace {

const QRegularExpression Figura(QStringLiteral(R"(^!\[(.+)\]\((.+)\)(?:\{(\d+)%\})?$)"));
const QRegularExpression Titulo(QStringLiteral(R"(^(#{1,3}) (.+)$)"));
const QRegularExpression Numerado(QStringLiteral(R"(^(\d+)\. (.+)$)"));
const QRegularExpression Raya(QStringLiteral(R"(^[-:|]+$)"));

class Lector {
public:
    explicit Lector(const QString& texto)
        : m_lineas(texto.split(QLatin1Char('\n'))) {
        for (const QString& linea : m_lineas)
            if (const auto m = Figura.match(linea); m.hasMatch()) {
                const QString nombre = QFileInfo(m.captured(2)).baseName();
                m_figuras.insert(nombre, static_cast<int>(m_figuras.size()) + 1);
            }
    }

    Documento Leer() {
        for (m_linea = 0; m_linea < m_lineas.size(); ++m_linea)
            Linea(m_lineas[m_linea]);
        Cerrar();
        return std::move(m_documento);
    }

private:
    [[noreturn]] void Fallar(const QString& causa) const {
        throw ErrorFuente(QStringLiteral("%1: %2").arg(m_linea + 1).arg(causa).toStdString());
    }

    // Marks of a line to HTML. What is between backquotes is a key or a name as it stands on the screen.
    QString EnLinea(const QString& texto) const {
        QString t = texto.toHtmlEscaped();
        t.replace(QRegularExpression(QStringLiteral(R"(\*\*(.+?)\*\*)")), QStringLiteral("<b>\\1</b>"));
        t.replace(QRegularExpression(QStringLiteral(R"(\*(.+?)\*)")), QStringLiteral("<i>\\1</i>"));
        t.replace(QRegularExpression(QStringLiteral("`(.+?)`")),
                  QStringLiteral("<span style=\"background-color:#e3ebe6\">&nbsp;\\1&nbsp;</span>"));
        static const QRegularExpression mencion(QStringLiteral(R"(\{figura:(\w+)\})"));
        for (auto m = mencion.match(t); m.hasMatch(); m = mencion.match(t)) {
            if (!m_figuras.contains(m.captured(1)))
                Fallar(QStringLiteral("no such figure: ") + m.captured(1));
            t.replace(m.capturedStart(), m.capturedLength(),
                      QStringLiteral("figura&nbsp;%1").arg(m_figuras[m.captured(1)]));
        }
        return t;
    }

    void Cerrar() {
        if (!m_abierto)
            return;
        m_abierto = false;
        m_actual.texto = EnLinea(m_actual.texto);
        m_documento.bloques.push_back(std::move(m_actual));
    }

    void Abrir(Bloque::Clase clase, const QString& texto, int nivel = 0) {
        Cerrar();
        m_actual = {};
        m_actual.clase = clase;
        m_actual.texto = texto;
        m_actual.nivel = nivel;
        m_abierto = true;
    }

    void PonerFigura(const QRegularExpressionMatch& m) {
        Abrir(Bloque::Clase::Figura, m.captured(1));
        m_actual.fichero = m.captured(2);
        m_actual.numero = m_figuras[QFileInfo(m.captured(2)).baseName()];
        if (!m.captured(3).isEmpty())
            m_actual.ancho = m.captured(3).toInt();
        Cerrar();
    }

    // A table's columns are as wide as the dashes below its header.
    void Fila(const QString& linea) {
        QStringList celdas = linea.split(QLatin1Char('|'));
        if (celdas.size() < 3 || !celdas.last().trimmed().isEmpty())
            Fallar(QStringLiteral("a table's row ends with a bar"));
        celdas = celdas.mid(1, celdas.size() - 2);
        if (!m_abierto || m_actual.clase != Bloque::Clase::Tabla)
            Abrir(Bloque::Clase::Tabla, {});
        if (Raya.match(linea).hasMatch()) {
            for (const QString& c : celdas)
                m_actual.anchos.push_back(static_cast<double>(c.size()));
            const double total = std::accumulate(m_actual.anchos.begin(), m_actual.anchos.end(), 0.0);
            for (double& a : m_actual.anchos)
                a /= total;
            return;
        }
        if (!m_actual.filas.empty() && celdas.size() != m_actual.filas.front().size())
            Fallar(QStringLiteral("a table's row with another number of cells"));
        for (QString& c : celdas)
            c = EnLinea(c.trimmed());
        m_actual.filas.push_back(celdas);
    }

    void Linea(const QString& linea) {
        if (linea.trimmed().isEmpty())
            return Cerrar();
        if (linea.startsWith(QLatin1String("% "))) {
            m_documento.portada << linea.mid(2);
        } else if (const auto t = Titulo.match(linea); t.hasMatch()) {
            Abrir(Bloque::Clase::Titulo, t.captured(2), static_cast<int>(t.capturedLength(1)));
            Cerrar();
        } else if (const auto f = Figura.match(linea); f.hasMatch()) {
            PonerFigura(f);
        } else if (const auto n = Numerado.match(linea); n.hasMatch()) {
            Abrir(Bloque::Clase::Numero, n.captured(2), n.captured(1).toInt());
        } else if (linea.startsWith(QLatin1String("- "))) {
            Abrir(Bloque::Clase::Punto, linea.mid(2));
        } else if (linea.startsWith(QLatin1Char('|'))) {
            Fila(linea);
        } else if (linea.startsWith(QLatin1String("> "))) {
            if (m_abierto && m_actual.clase == Bloque::Clase::Nota)
                m_actual.texto += QLatin1Char(' ') + linea.mid(2);
            else
                Abrir(Bloque::Clase::Nota, linea.mid(2));
        } else if (m_abierto) {
            m_actual.texto += QLatin1Char(' ') + linea.trimmed();
        } else {
            Abrir(Bloque::Clase::Parrafo, linea.trimmed());
        }
    }

    QStringList m_lineas;
    qsizetype m_linea = 0;
    QMap<QString, int> m_figuras;
    Documento m_documento;
    Bloque m_actual;
    bool m_abierto = false;
};

} // namespace

Documento LeerFuente(const QString& texto) {
    return Lector(texto).Leer();
}

} // namespace pastorix::manual
