// The record sheet: its window, its modes, and a record on its way to the screen. What changes the database stands in FichaEscritura.cpp.
#include "frame/ficha/Ficha.h"

#include "frame/Atajos.h"
#include "frame/Mensajes.h"
#include "frame/Ultimos.h"
#include "frame/Ventanas.h"
#include "frame/ficha/Aspecto.h"
#include "store/Recordset.h"

#include <QHideEvent>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>

namespace pastorix {

Ficha::Ficha(Sesion& sesion, const DefinicionFicha& definicion, QWidget* padre)
    : QDialog(padre)
    , m_sesion(sesion)
    , m_definicion(definicion)
    , m_hoja(new HojaDeCampos(definicion.hoja, this))
    , m_barra(new BarraFicha(this)) {
    setWindowTitle(QString::fromUtf8(definicion.titulo));
    setWindowModality(Qt::WindowModal);
    auto* todo = new QVBoxLayout(this);
    m_cuerpo = CuerpoDesplazable(*this, *todo);
    todo->addWidget(m_hoja->CrearPie(this));
    todo->addWidget(m_barra);
    ConectarBarra();
    ConectarHoja();
    m_barra->Poner(m_modo);
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
    PonerAtajo(*this, Qt::CTRL | Qt::Key_S, QStringLiteral("Guardar"), [this] { GuardarLoCercano(); });
    PonerAtajo(*this, Qt::ALT | Qt::Key_Left, QStringLiteral("Volver al registro anterior"),
               [this] { VolverAlAnterior(); });
}

void Ficha::ConectarHoja() {
    m_hoja->trasElUltimo = (*m_barra)[BarraFicha::Guardar];
    m_hoja->alEditar = [this] { EntrarEnModificar(); };
    m_hoja->alConfirmar = [this](QWidget& campo) { return &campo == &Campo(0) && CodigoConfirmado(); };
    m_hoja->alDejar = [this](QWidget& campo) {
        if (&campo == &Campo(0))
            CodigoDejado();
        AlDejar(campo);
    };
}

void Ficha::TerminarConstruccion(QWidget* ultimo) {
    for (auto* boton : m_barra->findChildren<QPushButton*>()) {
        setTabOrder(ultimo, boton);
        ultimo = boton;
    }
    Campo(0).setFocus();
    if (Campo(0).toolTip().isEmpty())
        Campo(0).Explicar(
            QStringLiteral("Intro muestra el registro de ese código; Alt+Izquierda vuelve al anterior"));
    RecordarVentana(*this);
}

void Ficha::PonerIconoBusDato(int icono, int indiceCampo, const char* nombre, const QKeySequence& tecla) {
    auto* boton = m_hoja->PonerIcono(icono, indiceCampo, QString::fromUtf8(nombre),
                                     [this, icono] { BuscarDato(icono); });
    if (icono == 0 || !tecla.isEmpty())
        DarTecla(*boton, icono == 0 ? QKeySequence(Qt::Key_F3) : tecla);
}

void Ficha::PonerModo(ModoFicha modo) {
    m_modo = modo;
    m_fallo = false;
    m_barra->Poner(modo);
}

// A change that is made already cannot be refused: what stood against it (a code typed and not entered) is told and put right.
void Ficha::EntrarEnModificar() {
    if (m_modo != ModoFicha::Mostrando)
        return;
    Modificar();
    if (!Editando())
        Modificar();
}

void Ficha::LimpiarCampos() {
    m_hoja->Limpiar();
    LimpiarPropios();
}

void Ficha::Vaciar() {
    if (m_clave != 0)
        m_anterior = m_clave;
    m_clave = 0;
    LimpiarCampos();
    PonerModo(ModoFicha::Vacia);
}

// --- a code as a way to a record

void Ficha::CargarOtra(double clave) {
    if (clave == m_clave || PermiteDejar())
        CargarFicha(clave);
    else
        ReponerCodigo();
}

// Enter reads the record, also the one that is shown; the field keeps the focus, ready for the next code.
bool Ficha::CodigoConfirmado() {
    if (Editando() || CodigoTecleado().isEmpty())
        return false;
    CargarOtra(CodigoTecleado().toDouble());
    Campo(0).setFocus();
    Campo(0).selectAll();
    return true;
}

// A code typed and left brings its record, unless an edit is under way.
void Ficha::CodigoDejado() {
    if (Editando() || CodigoTecleado().isEmpty())
        return;
    if (const double codigo = CodigoTecleado().toDouble(); codigo == 0 || codigo != m_clave)
        CargarOtra(codigo);
}

void Ficha::ReponerCodigo() {
    Poner(0, m_clave == 0 ? std::string() : TextoNumero(m_clave));
}

bool Ficha::CodigoIntacto() {
    if (CodigoTecleado().toDouble() == m_clave)
        return true;
    ReponerCodigo(); // before the box: it takes the focus from the field
    Avisar(this, TipoMensaje::Informacion, QStringLiteral("Atención"),
           QStringLiteral("El Código no se puede cambiar"));
    return false;
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
        if (m_clave != 0 && m_clave != clave)
            m_anterior = m_clave;
        m_clave = clave;
        PonerModo(ModoFicha::Mostrando);
        m_hoja->Mostrar(rs);
        MostrarPropios(rs);
        m_hoja->DarPorGuardado();
        return true;
    } catch (const std::exception& e) {
        // What is shown may be half of one record and half of another: it is none, and nothing of it can be saved.
        m_clave = 0;
        PonerModo(ModoFicha::Vacia);
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
    m_fija = true;
    CargarFicha(clave);
}

void Ficha::VolverAlAnterior() {
    if (m_fija)
        return;
    const double clave = m_anterior != 0 ? m_anterior : Ultimo(Base(), m_definicion.columnaClave);
    if (clave == 0 || clave == m_clave)
        m_barra->Decir(QStringLiteral("No hay otro registro al que volver"));
    else if (PermiteCargarOtro())
        CargarFicha(clave);
}

void Ficha::hideEvent(QHideEvent* evento) {
    QDialog::hideEvent(evento);
    if (!evento->spontaneous())
        RecordarUltimo(Base(), m_definicion.columnaClave, m_clave);
}

// --- leaving

bool Ficha::PreguntarAntesDeDejar(const QString& donde, const PaginaPendiente& pagina) {
    switch (
        PreguntarGuardar(this, QStringLiteral("Hay cambios sin guardar%1. ¿Desea guardarlos?").arg(donde))) {
    case AntesDeDejar::Guardar:
        return pagina.guardar();
    case AntesDeDejar::Descartar:
        pagina.descartar();
        return true;
    default:
        return false;
    }
}

bool Ficha::PermiteDejar() {
    for (const auto& pagina : Pendientes())
        if (!PreguntarAntesDeDejar(QStringLiteral(" en «%1»").arg(pagina.titulo), pagina))
            return false;
    return true;
}

bool Ficha::PermiteCargarOtro() {
    const auto guardar = [this] {
        Guardar();
        return !Editando();
    };
    return (!Editando() || PreguntarAntesDeDejar({}, {{}, guardar, [] {}})) && PermiteDejar();
}

void Ficha::Cancelar() {
    if (m_fallo &&
        !Preguntar(this, QStringLiteral("Atención"),
                   QStringLiteral("Lo que se ve en la ficha no se ha podido guardar. ¿Desea perderlo?")))
        return;
    LimpiarCampos();
    PonerModo(ModoFicha::Vacia);
    if (m_clave != 0)
        CargarFicha(m_clave);
}

void Ficha::reject() {
    if (PermiteCargarOtro())
        QDialog::reject();
}

bool Ficha::Rechazar(const QString& texto, QWidget* foco) {
    Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"), texto);
    foco->setFocus();
    return false;
}

void Ficha::MostrarError(const std::exception& error) {
    AvisarError(this, error);
}

} // namespace pastorix
