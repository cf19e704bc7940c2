#include "frame/ficha/Ficha.h"

#include "frame/Iconos.h"
#include "frame/Mensajes.h"
#include "store/Catalogo.h"
#include "store/Recordset.h"

#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace pastorix {

namespace {

constexpr int kCifrasDeCodigo = 15; // a double holds no more of them exactly

// A key that changes a text, as against one that moves about or asks for something.
bool EsDeEscritura(const QKeyEvent& e) {
    if (e.key() == Qt::Key_Delete || e.key() == Qt::Key_Backspace)
        return true;
    if (e.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    return !e.text().isEmpty() && e.text().at(0).isPrint();
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
}

QWidget* Ficha::CrearRejilla(QWidget* padre, int hoja) {
    auto* caja = new QWidget(padre);
    m_rejilla = new QGridLayout(caja);
    m_rejilla->setHorizontalSpacing(12);
    const int anchuraMinima = fontMetrics().averageCharWidth() * 26;
    QWidget* anterior = nullptr;
    for (const auto& c : m_definicion.campos) {
        if (c.hoja != hoja)
            continue;
        auto* campo = CrearCampo(c, caja);
        auto* rotulo = new QLabel(QString::fromUtf8(c.rotulo), caja);
        rotulo->setObjectName(QStringLiteral("ET_Estandar(%1)").arg(c.indice));
        rotulo->setBuddy(campo);
        const int columna = c.columnaRejilla * 2;
        const auto altura = c.clase == ClaseCampo::Memo ? Qt::AlignTop : Qt::AlignVCenter;
        m_rejilla->addWidget(rotulo, c.fila, columna, Qt::AlignRight | altura);
        m_rejilla->addWidget(campo, c.fila, columna + 1, 1, c.ancho * 2 - 1);
        m_rejilla->setColumnMinimumWidth(columna + 1, anchuraMinima);
        m_rejilla->setColumnStretch(columna + 1, 1);
        if (anterior)
            setTabOrder(anterior, campo);
        anterior = campo;
    }
    return caja;
}

QWidget* Ficha::CrearCampo(const CampoFicha& c, QWidget* padre) {
    QWidget* campo = nullptr;
    if (c.clase == ClaseCampo::Memo)
        campo = m_memos[c.indice] = CrearMemo(padre);
    else
        campo = m_campos[c.indice] = CrearLinea(c, padre);
    campo->setObjectName(QStringLiteral("%1(%2)").arg(QString::fromUtf8(m_definicion.arreglo)).arg(c.indice));
    const auto nombre =
        QString::fromUtf8(*c.nombreAccesible ? c.nombreAccesible : c.rotulo).remove(QLatin1Char('&'));
    campo->setAccessibleName(nombre);
    campo->installEventFilter(this);
    return campo;
}

CampoMemo* Ficha::CrearMemo(QWidget* padre) {
    auto* memo = new CampoMemo(padre);
    connect(memo, &QPlainTextEdit::modificationChanged, this, [this](bool cambiado) {
        if (cambiado)
            EntrarEnModificar();
    });
    return memo;
}

CampoTexto* Ficha::CrearLinea(const CampoFicha& c, QWidget* padre) {
    int anchura = c.clase == ClaseCampo::Codigo ? kCifrasDeCodigo : c.anchura;
    if (anchura == 0 && c.columna) {
        const auto* tabla = CatalogoCanonico(ClaseDeBase::Principal).Buscar(m_definicion.tabla);
        const int lugar = tabla ? tabla->Buscar(c.columna) : -1;
        anchura = lugar < 0 ? 0 : tabla->columnas[static_cast<std::size_t>(lugar)].anchura;
    }
    if (anchura == 0 && c.clase == ClaseCampo::Fecha)
        anchura = 10;
    auto* campo = new CampoTexto(c.clase, anchura, padre);
    if (c.clase == ClaseCampo::Fecha)
        campo->setPlaceholderText(QStringLiteral("dd/mm/aa"));
    // Short fields look short: what fits can be seen before it is typed.
    if (anchura > 0 && anchura <= 15)
        campo->setMaximumWidth(campo->fontMetrics().horizontalAdvance(QLatin1Char('0')) * (anchura + 3));
    if (c.indice == 0)
        connect(campo, &QLineEdit::editingFinished, this, [this] { CodigoDejado(); });
    else
        connect(campo, &QLineEdit::textEdited, this, [this] { EntrarEnModificar(); });
    return campo;
}

void Ficha::PonerIconoBusDato(int icono, int indiceCampo) {
    auto* boton = new QToolButton(this);
    boton->setObjectName(QStringLiteral("IconoBusDato(%1)").arg(icono));
    boton->setIcon(Icono("buscar"));
    boton->setCursor(CursorMano());
    boton->setToolTip(QStringLiteral("Seleccionar (F3)"));
    boton->setAccessibleName(QStringLiteral("Seleccionar"));
    boton->setAutoRaise(true);
    if (icono == 0)
        boton->setShortcut(QKeySequence(Qt::Key_F3));
    connect(boton, &QToolButton::clicked, this, [this, icono] { BuscarDato(icono); });
    // The field shares its cell with the icon.
    auto* campo = m_campos.at(indiceCampo);
    auto* rejilla = static_cast<QGridLayout*>(campo->parentWidget()->layout());
    int fila = 0;
    int columna = 0;
    int altura = 0;
    int anchura = 0;
    rejilla->getItemPosition(rejilla->indexOf(campo), &fila, &columna, &altura, &anchura);
    rejilla->removeWidget(campo);
    auto* juntos = new QHBoxLayout;
    juntos->setSpacing(2);
    juntos->addWidget(campo);
    juntos->addWidget(boton);
    juntos->addStretch();
    rejilla->addLayout(juntos, fila, columna, altura, anchura);
    setTabOrder(campo, boton);
    m_iconos[icono] = boton;
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

void Ficha::EntrarEnModificar() {
    if ((*m_barra)[BarraFicha::Modificar]->isEnabled())
        Modificar();
}

bool Ficha::eventFilter(QObject* objeto, QEvent* evento) {
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
            focusNextChild();
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
    LimpiarPropios();
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
        MostrarPropios(rs);
        return true;
    } catch (const std::exception& e) {
        MostrarError(e);
        return false;
    }
}

void Ficha::NoEncontrado(double) {
    ReponerCodigo();
}

void Ficha::AbrirCon(double clave) {
    for (const auto& [icono, boton] : m_iconos)
        boton->hide();
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

bool Ficha::Rechazar(const QString& texto, QWidget* foco) {
    Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"), texto);
    foco->setFocus();
    return false;
}

void Ficha::MostrarError(const std::exception& error) {
    Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"), QString::fromUtf8(error.what()));
}

} // namespace pastorix
