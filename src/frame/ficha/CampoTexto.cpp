#include "frame/ficha/CampoTexto.h"

#include "frame/Iconos.h"
#include "frame/Mensajes.h"
#include "frame/calendario/Calendario.h"
#include "frame/ficha/Aspecto.h"
#include "frame/ficha/CalendarioDeCampo.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QMenu>
#include <QMimeData>
#include <QValidator>

#include <memory>

namespace pastorix {

namespace {

// Drops what the class does not take instead of refusing the whole edit, and only then what does not fit the width.
class Tamiz : public QValidator {
public:
    explicit Tamiz(CampoTexto& campo)
        : QValidator(&campo)
        , m_campo(campo) {}
    State validate(QString& texto, int& posicion) const override {
        const auto limpio = Filtrado(texto, m_campo.Clase());
        if (limpio != texto) {
            posicion = static_cast<int>(Filtrado(texto.left(posicion), m_campo.Clase()).size());
            texto = limpio;
        }
        if (const int anchura = m_campo.Anchura(); anchura > 0 && texto.size() > anchura) {
            const int sobran = static_cast<int>(texto.size()) - anchura;
            posicion = std::max(0, posicion - sobran); // what came last goes
            texto.remove(posicion, sobran);
        }
        return Acceptable;
    }

private:
    CampoTexto& m_campo;
};

} // namespace

CampoTexto::CampoTexto(ClaseCampo clase, int anchura, QWidget* padre)
    : QLineEdit(padre)
    , m_clase(clase)
    , m_anchura(anchura) {
    setValidator(new Tamiz(*this));
    if (clase == ClaseCampo::Fecha)
        setPlaceholderText(QStringLiteral("dd/mm/aa"));
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (m_porFecha || !hasFocus()) // while a date is being typed it is not judged
            RevisarFecha();
    });
}

void CampoTexto::Mostrar(const QString& texto) {
    const auto* tamiz = validator();
    setValidator(nullptr);
    setText(texto);
    setValidator(tamiz);
    setCursorPosition(0); // of a long text its beginning shows
    RevisarFecha();
}

void CampoTexto::Pegar(const QString& texto) {
    if (isReadOnly())
        return;
    const auto leido = LeerPegado(texto, m_clase);
    if (!leido.cabe) {
        Avisar(window(), TipoMensaje::Atencion, QStringLiteral("Atención"),
               QStringLiteral("Este campo lleva un número entero; no se pega: ") + texto.trimmed());
        return;
    }
    const bool millares =
        !leido.otraLectura.isEmpty() &&
        Preguntar(window(), QStringLiteral("Atención"),
                  QStringLiteral("«%1» puede leerse de dos maneras. ¿Es %2, con el punto de los "
                                 "millares? (Con «No» se pega %3.)")
                      .arg(texto.trimmed(), leido.otraLectura, leido.texto));
    insert(millares ? leido.otraLectura : leido.texto);
}

bool CampoTexto::NoEsFecha() const {
    return m_clase == ClaseCampo::Fecha && !text().isEmpty() && !EsFechaValida(text().toStdString());
}

void CampoTexto::RevisarFecha() {
    if (NoEsFecha()) {
        Señalar(QStringLiteral("No es una fecha: ") +
                    (siNoEsFecha ? siNoEsFecha() : QStringLiteral("se guardará vacía")),
                true);
        m_porFecha = true;
    } else if (m_porFecha) {
        Señalar({});
    }
}

void CampoTexto::Explicar(const QString& explicacion) {
    m_explicacion = explicacion;
    setWhatsThis(explicacion);
    if (m_señal.isEmpty()) {
        setToolTip(explicacion);
        setAccessibleDescription(explicacion);
    }
}

void CampoTexto::Señalar(const QString& porQue, bool grave) {
    m_porFecha = false;
    if (porQue == m_señal && grave == m_grave)
        return;
    m_señal = porQue;
    m_grave = grave;
    setToolTip(porQue.isEmpty() ? m_explicacion : porQue);
    setAccessibleDescription(toolTip());
    if (!m_icono && !porQue.isEmpty()) {
        m_icono = addAction(Icono("aviso"), QLineEdit::TrailingPosition);
        connect(m_icono, &QAction::triggered, this, [this] {
            Avisar(window(), TipoMensaje::Informacion, QStringLiteral("Información"), m_señal);
        });
    }
    if (m_icono) {
        m_icono->setVisible(!porQue.isEmpty());
        m_icono->setText(porQue);
        m_icono->setToolTip(porQue);
    }
    Pintar();
    if (alSeñalar)
        alSeñalar();
}

void CampoTexto::Pintar() {
    auto paleta = QApplication::palette(this);
    if (m_grave)
        paleta.setColor(QPalette::Text, ColorDeReparo(paleta));
    setPalette(paleta);
}

void CampoTexto::changeEvent(QEvent* evento) {
    QLineEdit::changeEvent(evento);
    if (evento->type() == QEvent::ApplicationPaletteChange)
        Pintar();
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

void CampoTexto::focusOutEvent(QFocusEvent* evento) {
    QLineEdit::focusOutEvent(evento);
    RevisarFecha();
}

// --- a date by keys: a day on or back, and a small calendar

bool CampoTexto::TeclaDeFecha(const QKeyEvent& evento) {
    if (m_clase != ClaseCampo::Fecha || isReadOnly())
        return false;
    const bool hay = EsFechaValida(text().toStdString());
    const bool abajo = evento.key() == Qt::Key_Down;
    if (evento.key() == Qt::Key_F4 || (abajo && (!hay || evento.modifiers().testFlag(Qt::AltModifier))))
        AbrirCalendario();
    else if (hay && evento.modifiers() == Qt::NoModifier && (abajo || evento.key() == Qt::Key_Up))
        PasarDias(abajo ? -1 : 1);
    else
        return false;
    return true;
}

void CampoTexto::PasarDias(int dias) {
    const auto fecha = FechaDeTexto(text().toStdString());
    if (!fecha)
        return;
    const bool larga = text().section(QLatin1Char('/'), 2).trimmed().size() > 2;
    const auto otra = FormatoFecha(fecha->MasDias(dias), larga ? "dd/mm/yyyy" : "dd/mm/yy");
    selectAll();
    insert(QString::fromStdString(otra)); // as typed: the sheet hears of it
    selectAll();
}

void CampoTexto::AbrirCalendario() {
    if (const auto fecha = ElegirEnCalendario(*this, FechaDeTexto(text().toStdString()))) {
        selectAll();
        insert(QString::fromStdString(FormatoFecha(*fecha, "dd/mm/yy")));
    }
}

// --- pasting, by whatever way it comes

void CampoTexto::keyPressEvent(QKeyEvent* evento) {
    if (evento->matches(QKeySequence::Paste))
        return Pegar(QApplication::clipboard()->text());
    if (TeclaDeFecha(*evento))
        return;
    // Alt with the letter of a button that is off means the button, not a letter.
    if (evento->modifiers() == Qt::AltModifier && !evento->text().isEmpty())
        return evento->ignore();
    QLineEdit::keyPressEvent(evento);
}

void CampoTexto::mouseReleaseEvent(QMouseEvent* evento) {
    auto* portapapeles = QApplication::clipboard();
    if (evento->button() != Qt::MiddleButton || !portapapeles->supportsSelection())
        return QLineEdit::mouseReleaseEvent(evento);
    deselect();
    setCursorPosition(cursorPositionAt(evento->pos()));
    Pegar(portapapeles->text(QClipboard::Selection));
}

void CampoTexto::contextMenuEvent(QContextMenuEvent* evento) {
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    for (auto* accion : menu->actions())
        if (accion->objectName() == QLatin1String("edit-paste")) {
            accion->disconnect();
            connect(accion, &QAction::triggered, this, [this] { Pegar(QApplication::clipboard()->text()); });
        }
    menu->exec(evento->globalPos());
}

void CampoTexto::dropEvent(QDropEvent* evento) {
    if (evento->source() == this || !evento->mimeData()->hasText())
        return QLineEdit::dropEvent(evento);
    setCursorPosition(cursorPositionAt(evento->position().toPoint()));
    Pegar(evento->mimeData()->text());
    evento->acceptProposedAction();
}

} // namespace pastorix
