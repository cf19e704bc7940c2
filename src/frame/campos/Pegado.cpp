#include "frame/campos/Pegado.h"

#include <QRegularExpression>

namespace pastorix {

int ComaUnica(const QString& texto, int tecla) {
    return tecla == ',' && texto.contains(QLatin1Char(',')) ? 0 : tecla;
}

QString Filtrado(const QString& texto, ClaseCampo clase) {
    if (clase == ClaseCampo::Texto || clase == ClaseCampo::Memo || clase == ClaseCampo::NumeroLibre)
        return texto;
    const bool decimal = EsNumerica(clase) && clase != ClaseCampo::Numero;
    QString salida;
    for (QChar c : texto) {
        if (clase == ClaseCampo::DecimalPunto && c == QLatin1Char('.'))
            c = QLatin1Char(',');
        const bool digito = c >= QLatin1Char('0') && c <= QLatin1Char('9');
        const bool barra = clase == ClaseCampo::Fecha && c == QLatin1Char('/');
        const bool coma = decimal && c == QLatin1Char(',') && ComaUnica(salida, ',') != 0;
        const bool signo = clase == ClaseCampo::ConSigno && c == QLatin1Char('-') && salida.isEmpty();
        if (digito || barra || coma || signo)
            salida += c;
    }
    return salida;
}

namespace {

bool Casa(const QString& texto, const char* patron) {
    return QRegularExpression(QRegularExpression::anchoredPattern(QLatin1String(patron)))
        .match(texto)
        .hasMatch();
}

// Spreadsheets put no-break and thin blanks between thousands.
QString SinBlancos(QString texto) {
    texto.remove(QRegularExpression(QStringLiteral("[\\s\\x{00A0}\\x{2007}\\x{202F}]")));
    return texto;
}

Pegado Fechado(const QString& texto) {
    auto t = texto.simplified();
    if (const auto iso = QRegularExpression(QStringLiteral("^(\\d{4})-(\\d{1,2})-(\\d{1,2})")).match(t);
        iso.hasMatch())
        t = iso.captured(3) + QLatin1Char('/') + iso.captured(2) + QLatin1Char('/') + iso.captured(1);
    t.replace(QRegularExpression(QStringLiteral("[-.]")), QStringLiteral("/"));
    return {Filtrado(t.section(QLatin1Char(' '), 0, 0), ClaseCampo::Fecha), {}, true};
}

// One number with its separators told apart; anything else goes through the sieve of the keys.
Pegado Numerado(const QString& texto, ClaseCampo clase) {
    auto t = SinBlancos(texto);
    const bool entero = clase == ClaseCampo::Numero || clase == ClaseCampo::Codigo;
    if (Casa(t, "-?\\d{1,3}(\\.\\d{3})+(,\\d*)?") &&
        (entero || t.contains(QLatin1Char(',')) || t.count(QLatin1Char('.')) > 1))
        t.remove(QLatin1Char('.'));
    else if (Casa(t, "-?\\d{1,3}(,\\d{3})+\\.\\d*") || (entero && Casa(t, "\\d{1,3}(,\\d{3}){2,}")))
        t.remove(QLatin1Char(',')).replace(QLatin1Char('.'), QLatin1Char(','));
    else if (Casa(t, "-?\\d*\\.\\d+")) {
        const auto sinPunto = QString(t).remove(QLatin1Char('.'));
        const bool dudoso = Casa(t, "-?[1-9]\\d{0,2}\\.\\d{3}");
        t.replace(QLatin1Char('.'), QLatin1Char(','));
        if (dudoso)
            return {Filtrado(t, clase), Filtrado(sinPunto, clase), true};
    }
    if (entero) {
        if (Casa(t, "\\d+,0*"))
            t = t.section(QLatin1Char(','), 0, 0);
        else if (Casa(t, "\\d*,\\d+"))
            return {{}, {}, false};
    }
    return {Filtrado(t, clase), {}, true};
}

} // namespace

Pegado LeerPegado(const QString& texto, ClaseCampo clase) {
    switch (clase) {
    case ClaseCampo::Memo:
        return {texto, {}, true};
    case ClaseCampo::NumeroLibre:
    case ClaseCampo::Texto: {
        auto t = texto;
        t.replace(QRegularExpression(QStringLiteral("[\\x00-\\x1F\\x7F\\x{0085}\\x{2028}\\x{2029}]+")),
                  QStringLiteral(" "));
        return {t.trimmed(), {}, true};
    }
    case ClaseCampo::Fecha:
        return Fechado(texto);
    default:
        return Numerado(texto, clase);
    }
}

} // namespace pastorix
