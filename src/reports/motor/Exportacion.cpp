#include "reports/motor/Exportacion.h"

#include "reports/motor/Plantilla.h"

#include <QRegularExpression>

namespace pastorix {

namespace {
constexpr int LargoDeNombre = 31;
}

Valor CeldaExportada(const Valor& valor, const HojaDatos::Columna& columna) {
    const auto* texto = std::get_if<std::string>(&valor);
    if (!texto || ClaseDe(columna.formato) != ClaseDeMascara::Numero)
        return valor;
    double n = 0;
    return NumeroDeTexto(*texto, n) ? Valor(n) : valor;
}

QStringList NombresDeHojas(const std::vector<HojaDatos>& hojas) {
    static const QRegularExpression prohibidos(QStringLiteral("[\\[\\]:*?/\\\\<>|\"'\\x00-\\x1f]"));
    QStringList nombres;
    for (const HojaDatos& hoja : hojas) {
        QString base = QString(hoja.nombre).remove(prohibidos).trimmed();
        while (base.startsWith(QLatin1Char('.')))
            base.remove(0, 1);
        base = base.left(LargoDeNombre).trimmed();
        if (base.isEmpty())
            base = QStringLiteral("Hoja");
        QString nombre = base;
        for (int n = 2; nombres.contains(nombre, Qt::CaseInsensitive); ++n) {
            const QString cola = QStringLiteral(" (%1)").arg(n);
            nombre = base.left(LargoDeNombre - cola.size()) + cola;
        }
        nombres << nombre;
    }
    return nombres;
}

} // namespace pastorix
