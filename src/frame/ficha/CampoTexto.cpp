#include "frame/ficha/CampoTexto.h"

#include <QFocusEvent>
#include <QValidator>

namespace pastorix {

int ComaUnica(const QString& texto, int tecla) {
    return tecla == ',' && texto.contains(QLatin1Char(',')) ? 0 : tecla;
}

QString Filtrado(const QString& texto, ClaseCampo clase) {
    if (clase == ClaseCampo::Texto || clase == ClaseCampo::Memo)
        return texto;
    const bool decimal = clase == ClaseCampo::Decimal || clase == ClaseCampo::ConSigno;
    QString salida;
    for (const QChar c : texto) {
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

// Drops what the class does not take instead of refusing the whole edit: a code pasted with blanks around it goes in without them.
class Tamiz : public QValidator {
public:
    Tamiz(ClaseCampo clase, QObject* padre)
        : QValidator(padre)
        , m_clase(clase) {}
    State validate(QString& texto, int& posicion) const override {
        // A typed point is dropped like any other key; in a number that came by pasting it is the decimal one.
        const bool tecleado = posicion > 0 && texto.at(posicion - 1) == QLatin1Char('.');
        if (!tecleado && texto.count(QLatin1Char('.')) == 1 && !texto.contains(QLatin1Char(',')))
            texto.replace(QLatin1Char('.'), QLatin1Char(','));
        const auto limpio = Filtrado(texto, m_clase);
        if (limpio != texto) {
            posicion = static_cast<int>(Filtrado(texto.left(posicion), m_clase).size());
            texto = limpio;
        }
        return Acceptable;
    }

private:
    ClaseCampo m_clase;
};

} // namespace

CampoTexto::CampoTexto(ClaseCampo clase, int anchura, QWidget* padre)
    : QLineEdit(padre)
    , m_clase(clase)
    , m_anchura(anchura) {
    if (clase != ClaseCampo::Texto)
        setValidator(new Tamiz(clase, this));
    if (anchura > 0)
        setMaxLength(anchura);
}

void CampoTexto::Mostrar(const QString& texto) {
    const auto* tamiz = validator();
    setValidator(nullptr);
    if (m_anchura > 0)
        setMaxLength(std::max(m_anchura, static_cast<int>(texto.size())));
    setText(texto);
    setValidator(tamiz);
    setCursorPosition(0); // of a long text its beginning shows
}

void CampoTexto::focusInEvent(QFocusEvent* evento) {
    QLineEdit::focusInEvent(evento);
    // After a click Qt puts the cursor where the pointer is; selecting has to wait for that.
    if (evento->reason() == Qt::MouseFocusReason)
        QMetaObject::invokeMethod(
            this, [this] { selectAll(); }, Qt::QueuedConnection);
    else if (evento->reason() != Qt::PopupFocusReason && evento->reason() != Qt::ActiveWindowFocusReason)
        selectAll();
}

} // namespace pastorix
