#include "reports/motor/Exportacion.h"

#include "reports/motor/Plantilla.h"

#include <QRegularExpression>

#include <set>

namespace pastorix {

namespace {
constexpr int LargoDeHoja = 31;
constexpr int LargoDeFichero = 120;

enum class Especie { Nada, Numero, Fecha, Texto };

Especie EspecieDe(const Valor& valor) {
    if (EsNulo(valor))
        return Especie::Nada;
    if (std::holds_alternative<std::string>(valor))
        return Especie::Texto;
    return std::holds_alternative<Fecha>(valor) ? Especie::Fecha : Especie::Numero;
}

// A text as what its column says that it is, where it can be read so.
Valor Leida(const Valor& valor, ClaseDeMascara clase, const std::string& formato) {
    const auto* texto = std::get_if<std::string>(&valor);
    if (!texto)
        return valor;
    if (texto->find_first_not_of(' ') == std::string::npos)
        return {};
    if (clase == ClaseDeMascara::Limpio)
        return TextoConMascara(valor, formato);
    if (clase == ClaseDeMascara::Numero) {
        const auto n = NumeroDeCelda(valor);
        return n ? Valor(*n) : valor;
    }
    const auto fecha = clase == ClaseDeMascara::Fecha ? FechaDeTexto(*texto) : std::nullopt;
    return fecha ? Valor(*fecha) : valor;
}

} // namespace

void UnTipoPorColumna(HojaDatos& hoja) {
    for (std::size_t c = 0; c < hoja.columnas.size(); ++c) {
        const std::string& formato = hoja.columnas[c].formato;
        const ClaseDeMascara clase = ClaseDe(formato);
        std::set<Especie> especies;
        for (auto& fila : hoja.filas) {
            fila[c] = Leida(fila[c], clase, formato);
            especies.insert(EspecieDe(fila[c]));
        }
        especies.erase(Especie::Nada);
        if (especies.size() < 2)
            continue;
        for (auto& fila : hoja.filas) {
            if (EspecieDe(fila[c]) != Especie::Nada)
                fila[c] = TextoConMascara(fila[c], formato);
        }
    }
}

QString NombreDeFichero(const QString& texto) {
    static const QRegularExpression prohibidos(QStringLiteral("[\\[\\]:*?/\\\\<>|\"\\x00-\\x1f]"));
    static const QRegularExpression puntosDelante(QStringLiteral("^[. ]+"));
    return QString(texto).remove(prohibidos).remove(puntosDelante).left(LargoDeFichero).trimmed();
}

QStringList NombresDeHojas(const std::vector<HojaDatos>& hojas) {
    QStringList nombres;
    for (const HojaDatos& hoja : hojas) {
        QString base = NombreDeFichero(hoja.nombre).remove(QLatin1Char('\'')).left(LargoDeHoja).trimmed();
        if (base.isEmpty())
            base = QStringLiteral("Hoja");
        QString nombre = base;
        for (int n = 2; nombres.contains(nombre, Qt::CaseInsensitive); ++n) {
            const QString cola = QStringLiteral(" (%1)").arg(n);
            nombre = base.left(LargoDeHoja - cola.size()) + cola;
        }
        nombres << nombre;
    }
    return nombres;
}

} // namespace pastorix
