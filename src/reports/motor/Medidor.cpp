#include "reports/motor/Medidor.h"

#include <QFontDatabase>

#include <algorithm>
#include <cmath>

namespace pastorix {

namespace {
constexpr qsizetype AnchosGuardados = 20'000; // per font
}

QStringList Pagina::Textos() const {
    QStringList textos;
    for (const Trozo& trozo : trozos) {
        if (const auto* texto = std::get_if<TextoColocado>(&trozo))
            textos << texto->texto;
    }
    return textos;
}

QFont FuenteDe(const Letra& letra) {
    QFont fuente(letra.familia);
    fuente.setPixelSize(std::max(1, static_cast<int>(std::lround(letra.tamaño * 20))));
    fuente.setBold(letra.negrita);
    fuente.setItalic(letra.cursiva);
    fuente.setHintingPreference(QFont::PreferNoHinting);
    fuente.setStyleStrategy(QFont::PreferAntialias);
    return fuente;
}

Medidor::Medidor(const std::vector<std::string>& familias)
    : m_familia(QFontDatabase::systemFont(QFontDatabase::GeneralFont).family()) {
    static const QStringList presentes = QFontDatabase::families();
    for (const std::string& familia : familias) {
        const QString nombre = QString::fromStdString(familia);
        // A family that several foundries make is listed as "Family [foundry]".
        const auto esta = std::any_of(presentes.begin(), presentes.end(), [&](const QString& p) {
            return p.section(QStringLiteral(" ["), 0, 0).compare(nombre, Qt::CaseInsensitive) == 0;
        });
        if (esta) {
            m_familia = nombre;
            break;
        }
    }
}

int Medidor::Indice(const Aspecto& aspecto) {
    const Letra letra{m_familia, aspecto.tamaño, aspecto.negrita, aspecto.cursiva};
    const auto it = std::find(m_letras.begin(), m_letras.end(), letra);
    if (it != m_letras.end())
        return static_cast<int>(it - m_letras.begin());
    m_letras.push_back(letra);
    m_medidas.emplace_back(FuenteDe(letra));
    m_anchos.emplace_back();
    return static_cast<int>(m_letras.size()) - 1;
}

double Medidor::Ancho(int letra, const QString& texto) const {
    QHash<QString, double>& anchos = m_anchos[static_cast<std::size_t>(letra)];
    if (const auto it = anchos.constFind(texto); it != anchos.constEnd())
        return *it;
    if (anchos.size() >= AnchosGuardados)
        anchos.clear();
    return anchos[texto] = Medidas(letra).horizontalAdvance(texto) * MmPorUnidad;
}

double Medidor::Subida(int letra) const {
    return Medidas(letra).ascent() * MmPorUnidad;
}

double Medidor::AltoLinea(int letra) const {
    return (Medidas(letra).ascent() + Medidas(letra).descent()) * MmPorUnidad;
}

QStringList Medidor::Partir(int letra, const QString& texto, double ancho) const {
    QStringList lineas;
    for (const QString& parrafo : texto.split(QLatin1Char('\n'))) {
        if (Ancho(letra, parrafo) <= ancho) {
            lineas << parrafo;
            continue;
        }
        QString linea;
        for (QString palabra : parrafo.split(QLatin1Char(' '))) {
            const QString candidata = linea.isEmpty() ? palabra : linea + QLatin1Char(' ') + palabra;
            if (Ancho(letra, candidata) <= ancho) {
                linea = candidata;
                continue;
            }
            if (!linea.isEmpty())
                lineas << linea;
            while (palabra.size() > 1 && Ancho(letra, palabra) > ancho) {
                qsizetype cabe = 1;
                while (cabe + 1 < palabra.size() && Ancho(letra, palabra.left(cabe + 1)) <= ancho)
                    ++cabe;
                if (const auto guion = palabra.left(cabe).lastIndexOf(QLatin1Char('-')); guion > 0)
                    cabe = guion + 1; // "Golondrina-Aculonado" has a better place
                lineas << palabra.left(cabe);
                palabra.remove(0, cabe);
            }
            linea = palabra;
        }
        lineas << linea;
    }
    return lineas;
}

QString Medidor::Recortar(int letra, const QString& texto, double ancho) const {
    if (Ancho(letra, texto) <= ancho)
        return texto;
    return Medidas(letra).elidedText(texto, Qt::ElideRight, ancho / MmPorUnidad);
}

} // namespace pastorix
