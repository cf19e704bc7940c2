#include "frame/ficha/Ficha.h"

#include "frame/Mensajes.h"
#include "frame/ficha/Aspecto.h"
#include "store/Recordset.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QRegularExpression>
#include <QShortcut>
#include <QToolButton>

#include <algorithm>

namespace pastorix {

namespace {

// A key that changes a text, as against one that moves about or asks for something.
bool EsDeEscritura(const QKeyEvent& e) {
    if (e.key() == Qt::Key_Delete || e.key() == Qt::Key_Backspace)
        return true;
    if (e.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    return !e.text().isEmpty() && e.text().at(0).isPrint();
}

// A value is found in the list by its text, whatever its case. Where texts outside the list are allowed it shows all the same.
void MostrarEn(QComboBox& combo, const QString& valor) {
    const int i = combo.findText(valor, Qt::MatchFixedString);
    combo.setCurrentIndex(std::max(i, 0)); // the first item is the empty one
    if (i < 0 && combo.isEditable())
        combo.setEditText(valor);
}

} // namespace

Ficha::Ficha(Sesion& sesion, const DefinicionFicha& definicion, QWidget* padre)
    : QDialog(padre)
    , m_sesion(sesion)
    , m_definicion(definicion)
    , m_barra(new BarraFicha(this)) {
    setWindowTitle(QString::fromUtf8(definicion.titulo));
    setWindowModality(Qt::WindowModal);
    ConectarBarra();
    m_barra->EstadoBotones(0);
}

void Ficha::ConectarBarra() {
    const auto alPulsar = [this](BarraFicha::Boton boton, void (Ficha::*orden)()) {
        connect((*m_barra)[boton], &QPushButton::clicked, this, [this, orden] { (this->*orden)(); });
    };
    alPulsar(BarraFicha::Añadir, &Ficha::Añadir);
    alPulsar(BarraFicha::Modificar, &Ficha::Modificar);
    alPulsar(BarraFicha::Eliminar, &Ficha::Eliminar);
    alPulsar(BarraFicha::Guardar, &Ficha::Guardar);
    alPulsar(BarraFicha::Cancelar, &Ficha::Cancelar);
    connect((*m_barra)[BarraFicha::Cerrar], &QPushButton::clicked, this, &QDialog::close);
    (*m_barra)[BarraFicha::Cerrar]->setFocusPolicy(Qt::StrongFocus);
    (*m_barra)[BarraFicha::Guardar]->setToolTip(QStringLiteral("Ctrl+S"));
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_S), this), &QShortcut::activated, this,
            [this] { GuardarLoCercano(); });
}

void Ficha::TerminarConstruccion(QWidget* ultimo) {
    for (auto* boton : m_barra->findChildren<QPushButton*>()) {
        setTabOrder(ultimo, boton);
        ultimo = boton;
    }
    Campo(0).setFocus();
}

void Ficha::Vigilar(QWidget* control) {
    if (auto* combo = qobject_cast<QComboBox*>(control))
        connect(combo, &QComboBox::activated, this, [this] { EntrarEnModificar(); });
    control->installEventFilter(this);
}

bool Ficha::Editando() const {
    return (*m_barra)[BarraFicha::Guardar]->isEnabled();
}

// A change that is made already cannot be refused: what stood against it (a code typed and not entered) is told and put right.
void Ficha::EntrarEnModificar() {
    if (m_clave == 0 || !(*m_barra)[BarraFicha::Modificar]->isEnabled())
        return;
    Modificar();
    if (!Editando())
        Modificar();
}

// Enter goes from field to field, and from the last one to the button that saves; icons, tabs and other buttons have keys of their own.
void Ficha::PasarAlSiguiente() {
    const auto esParada = [this](QWidget* w) {
        return qobject_cast<QLineEdit*>(w) || qobject_cast<QComboBox*>(w) ||
               qobject_cast<QPlainTextEdit*>(w) || qobject_cast<QAbstractItemView*>(w) ||
               w == (*m_barra)[BarraFicha::Guardar];
    };
    constexpr int kMasQueControles = 200;
    for (int i = 0; i < kMasQueControles && focusNextChild() && !esParada(focusWidget());)
        ++i;
}

// A box or another window over the sheet is no leaving of the field.
void Ficha::CampoDejado(QWidget& campo, Qt::FocusReason razon) {
    if (razon == Qt::ActiveWindowFocusReason || razon == Qt::PopupFocusReason ||
        razon == Qt::MenuBarFocusReason)
        return;
    if (&campo == m_campos.at(0))
        CodigoDejado();
    AlDejar(campo);
}

bool Ficha::eventFilter(QObject* objeto, QEvent* evento) {
    if (EsRuedaAjena(objeto, *evento))
        return true;
    if (evento->type() == QEvent::FocusOut && objeto->isWidgetType())
        CampoDejado(static_cast<QWidget&>(*objeto), static_cast<QFocusEvent&>(*evento).reason());
    if (evento->type() == QEvent::KeyPress) {
        const auto& tecla = static_cast<QKeyEvent&>(*evento);
        const bool esCodigo = objeto == m_campos.at(0);
        const bool intro = tecla.key() == Qt::Key_Return || tecla.key() == Qt::Key_Enter;
        if (const auto* memo = qobject_cast<QPlainTextEdit*>(objeto)) {
            if (!memo->isReadOnly() && (intro || EsDeEscritura(tecla)))
                EntrarEnModificar(); // Enter is a line break there
            return QDialog::eventFilter(objeto, evento);
        }
        if (intro) {
            if (esCodigo)
                CodigoDejado();
            PasarAlSiguiente();
            return true;
        }
        const auto* linea = qobject_cast<QLineEdit*>(objeto);
        if (!esCodigo && linea && !linea->isReadOnly() && EsDeEscritura(tecla))
            EntrarEnModificar();
    }
    return QDialog::eventFilter(objeto, evento);
}

void Ficha::LimpiarCampos() {
    for (const auto& [indice, campo] : m_campos)
        campo->clear();
    for (const auto& [indice, memo] : m_memos)
        memo->Poner({});
    for (const auto& [nombre, combo] : m_combos)
        MostrarEn(*combo, {});
    LimpiarPropios();
}

void Ficha::Vaciar() {
    m_clave = 0;
    m_accion = 0;
    LimpiarCampos();
    m_barra->EstadoBotones(0);
}

// A code typed and left, or confirmed with Enter, brings its record, unless an edit is under way.
void Ficha::CodigoDejado() {
    if (Editando() || CodigoTecleado().isEmpty())
        return;
    const double codigo = CodigoTecleado().toDouble();
    if (codigo == m_clave)
        return;
    if (PermiteDejar())
        CargarFicha(codigo);
    else
        ReponerCodigo();
}

QComboBox& Ficha::Combo(std::string_view nombre) const {
    return *m_combos.find(nombre)->second;
}

std::string Ficha::TextoStd(int indice) const {
    const auto memo = m_memos.find(indice);
    return memo != m_memos.end() ? memo->second->Texto() : Campo(indice).text().toStdString();
}

void Ficha::Poner(int indice, const std::string& texto) {
    if (const auto memo = m_memos.find(indice); memo != m_memos.end())
        memo->second->Poner(texto);
    else
        Campo(indice).Mostrar(QString::fromStdString(texto));
}

void Ficha::ReponerCodigo() {
    Poner(0, m_clave == 0 ? std::string() : TextoNumero(m_clave));
}

bool Ficha::CargarFicha(double clave) {
    try {
        Recordset rs(Base(), SentenciaDeClave(clave));
        if (rs.Eof()) {
            const auto texto =
                QStringLiteral("No Encuentro el Codigo: ") + QString::fromStdString(TextoNumero(clave));
            NoEncontrado(clave); // before the box: it takes the focus from the field
            Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención..."), texto);
            return false;
        }
        LimpiarCampos();
        m_barra->EstadoBotones(6);
        m_accion = 0;
        m_clave = clave;
        for (const auto& c : m_definicion.campos)
            if (c.columna)
                Poner(c.indice, rs[c.columna].Texto());
        for (const auto& c : m_definicion.combos)
            MostrarEn(Combo(c.nombre), QString::fromStdString(rs[c.columna].Texto()));
        MostrarPropios(rs);
        return true;
    } catch (const std::exception& e) {
        // What is shown may be half of one record and half of another: it is none, and nothing of it can be saved.
        m_clave = 0;
        m_accion = 0;
        m_barra->EstadoBotones(0);
        MostrarError(e);
        return false;
    }
}

void Ficha::NoEncontrado(double) {
    ReponerCodigo();
}

void Ficha::AbrirCon(double clave) {
    for (auto* boton : findChildren<QToolButton*>(QRegularExpression(QStringLiteral("^IconoBusDato"))))
        boton->hide(); // and its key with it
    CargarFicha(clave);
}

void Ficha::Cancelar() {
    m_barra->EstadoBotones(5);
    m_accion = 0;
    LimpiarCampos();
    if (m_clave != 0)
        CargarFicha(m_clave);
}

void Ficha::reject() {
    if (Editando() && !Preguntar(this, QStringLiteral("Atención"),
                                 QStringLiteral("Hay cambios sin guardar. ¿Desea cerrar y perderlos?")))
        return;
    if (!PermiteDejar())
        return;
    QDialog::reject();
}

bool Ficha::PermiteCargarOtro() {
    return (!Editando() || Preguntar(this, QStringLiteral("Atención"),
                                     QStringLiteral("Hay cambios sin guardar. ¿Desea perderlos?"))) &&
           PermiteDejar();
}

bool Ficha::Rechazar(const QString& texto, QWidget* foco) {
    Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"), texto);
    foco->setFocus();
    return false;
}

void Ficha::MostrarError(const std::exception& error) {
    Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"), QString::fromUtf8(error.what()));
}

} // namespace pastorix
