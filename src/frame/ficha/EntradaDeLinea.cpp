#include "frame/ficha/EntradaDeLinea.h"

#include "frame/ficha/CampoTexto.h"

#include <QComboBox>

namespace pastorix {

namespace {

constexpr int kCifrasDeAño = 4;
constexpr int kAnchuraDeFecha = 10;

} // namespace

EntradaDeLinea::EntradaDeLinea(const ColumnaLinea& dato, const AspectoColumna& c, std::size_t columna,
                               bool esAño, QWidget* padre)
    : m_columna(columna) {
    if (c.esLista || !dato.lista.empty()) {
        m_combo = new QComboBox(padre);
        m_combo->setFocusPolicy(Qt::StrongFocus); // not by the wheel
        m_combo->setMinimumContentsLength(c.caracteres - 1);
        QStringList valores;
        for (const char* v : dato.lista)
            valores << QString::fromUtf8(v);
        Listar(valores);
        if (c.libre) {
            m_combo->setEditable(true);
            m_combo->setInsertPolicy(QComboBox::NoInsert);
            if (c.maximo > 0)
                m_combo->lineEdit()->setMaxLength(c.maximo);
        }
    } else {
        const bool fecha = dato.clase == ClaseCampo::Fecha;
        m_texto = new CampoTexto(dato.clase,
                                 esAño   ? kCifrasDeAño
                                 : fecha ? kAnchuraDeFecha
                                         : c.maximo,
                                 padre);
        const int letra = m_texto->fontMetrics().averageCharWidth();
        m_texto->setMinimumWidth(letra * (c.caracteres + 3));
        if (dato.clase != ClaseCampo::Texto)
            m_texto->setMaximumWidth(letra * (c.caracteres + 8));
    }
    Control()->setObjectName(QString::fromUtf8(c.control));
    Control()->setAccessibleName(QString::fromUtf8(c.titulo));
    Control()->setToolTip(QString::fromUtf8(c.explicacion));
    Control()->setWhatsThis(QString::fromUtf8(c.explicacion));
    Control()->setVisible(c.caracteres > 0);
}

QWidget* EntradaDeLinea::Control() const {
    return m_texto ? static_cast<QWidget*>(m_texto) : m_combo;
}

QString EntradaDeLinea::Leer() const {
    return m_texto ? m_texto->text() : m_combo->currentText();
}

void EntradaDeLinea::Poner(const QString& valor) {
    if (m_texto) {
        m_texto->Mostrar(valor);
        return;
    }
    if (m_combo->isEditable())
        return m_combo->setCurrentText(valor);
    while (m_combo->count() > m_propios) // what another line brought along
        m_combo->removeItem(m_propios);
    if (m_combo->findText(valor, Qt::MatchExactly) < 0)
        m_combo->addItem(valor);
    m_combo->setCurrentIndex(m_combo->findText(valor, Qt::MatchExactly));
}

void EntradaDeLinea::Listar(const QStringList& valores) {
    m_combo->clear();
    m_combo->addItem(QString());
    m_combo->addItems(valores);
    m_propios = m_combo->count();
}

} // namespace pastorix
