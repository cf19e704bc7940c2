#pragma once

#include "reports/motor/Pagina.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHash>

#include <deque>

namespace pastorix {

// Fonts of pages are set in twentieths of a point, unhinted, and scaled by the painter: so a text is as wide on every device.
inline constexpr double MmPorUnidad = 25.4 / 1440.0;
QFont FuenteDe(const Letra& letra);

// Measures and breaks texts. Needs a QGuiApplication, and no display.
class Medidor {
public:
    // Of the families the first one that the machine has is used; the machine's own if it has none.
    explicit Medidor(const std::vector<std::string>& familias);

    // Position of the font of an aspect in Letras().
    int Indice(const Aspecto& aspecto);
    const std::vector<Letra>& Letras() const { return m_letras; }

    double Ancho(int letra, const QString& texto) const; // mm
    double Subida(int letra) const;                      // mm from the top of a line to its base line
    double AltoLinea(int letra) const;

    // Breaks at line breaks, and at blanks where a line is wider than it may be (mm); a word without blanks is cut.
    QStringList Partir(int letra, const QString& texto, double ancho) const;
    // The text, cut and closed by an ellipsis if it is too wide.
    QString Recortar(int letra, const QString& texto, double ancho) const;

private:
    const QFontMetricsF& Medidas(int letra) const { return m_medidas[static_cast<std::size_t>(letra)]; }

    QString m_familia;
    std::vector<Letra> m_letras;
    std::deque<QFontMetricsF> m_medidas;
    mutable std::vector<QHash<QString, double>> m_anchos; // lists repeat their texts
};

} // namespace pastorix
