#include "registers/explotacion/PaginaMateria.h"

#include "frame/Iconos.h"
#include "frame/Mensajes.h"
#include "frame/ficha/CampoMemo.h"
#include "frame/ficha/Ficha.h"
#include "store/Catalogo.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace pastorix {

PaginaMateria::PaginaMateria(Conexion& base, const DefinicionMateria& materia, QWidget* padre)
    : QWidget(padre)
    , m_base(base)
    , m_materia(materia)
    , m_lineas(new LineasEditables(materia.lineas, this)) {
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(m_lineas, 1);
    setFocusProxy(m_lineas);
    m_lineas->alCambiar = [this] { GuardarTodo(); };
    PonerAnchuras();
    VigilarEntradas();
    if (materia.columnaNota)
        CrearNota();
    FijarGanadero(0);
}

void PaginaMateria::CrearNota() {
    m_nota = new CampoMemo(this);
    m_nota->setObjectName(QString::fromUtf8(m_materia.campoNota));
    m_nota->setAccessibleName(QStringLiteral("Observaciones"));
    m_nota->setMaximumHeight(m_nota->sizeHint().height());
    auto* rotulo = new QLabel(QStringLiteral("Observaciones"), this);
    rotulo->setBuddy(m_nota);
    const auto boton = [this](const char* nombre, const char* icono, const QString& texto,
                              void (PaginaMateria::*orden)()) {
        auto* b = new QPushButton(Icono(icono), texto, this);
        b->setObjectName(QString::fromUtf8(nombre));
        b->setAutoDefault(false); // Enter belongs to the fields
        connect(b, &QPushButton::clicked, this, [this, orden] { (this->*orden)(); });
        return b;
    };
    m_guardar = boton(m_materia.botonGuardar, "guardar", QStringLiteral("Guardar"), &PaginaMateria::Guardar);
    MarcarGuardarDePagina(*m_guardar);
    m_cancelar =
        boton(m_materia.botonCancelar, "cancelar", QStringLiteral("Cancelar"), &PaginaMateria::Cancelar);
    connect(m_nota, &QPlainTextEdit::modificationChanged, this, [this] { EstadoBotones(); });
    auto* botones = new QVBoxLayout;
    botones->addWidget(m_guardar);
    botones->addWidget(m_cancelar);
    botones->addStretch();
    auto* fila = new QHBoxLayout;
    fila->addWidget(m_nota, 1);
    fila->addLayout(botones);
    auto* todo = static_cast<QVBoxLayout*>(layout());
    todo->addWidget(rotulo);
    todo->addLayout(fila);
}

// A text that its column does not take must not get as far as a save, which deletes before it writes.
void PaginaMateria::PonerAnchuras() {
    const auto* tabla = CatalogoCanonico(ClaseDeBase::Principal).Buscar(m_materia.tabla);
    for (const auto& c : m_materia.lineas.columnas) {
        if (!c.control || !c.columna || c.clase != ClaseCampo::Texto)
            continue;
        const int lugar = tabla->Buscar(c.columna);
        auto* campo = m_lineas->findChild<QLineEdit*>(QString::fromUtf8(c.control));
        if (campo && lugar >= 0 && tabla->columnas[static_cast<std::size_t>(lugar)].anchura > 0)
            campo->setMaxLength(tabla->columnas[static_cast<std::size_t>(lugar)].anchura);
    }
}

void PaginaMateria::VigilarEntradas() {
    for (const auto& c : m_materia.lineas.columnas) {
        if (!c.control)
            continue;
        const auto nombre = QString::fromUtf8(c.control);
        if (auto* campo = m_lineas->findChild<QLineEdit*>(nombre))
            connect(campo, &QLineEdit::textChanged, this, [this] { EstadoBotones(); });
        if (auto* combo = m_lineas->findChild<QComboBox*>(nombre))
            connect(combo, &QComboBox::currentIndexChanged, this, [this] { EstadoBotones(); });
    }
}

void PaginaMateria::FijarGanadero(double idGanadero) {
    if (idGanadero == m_ganadero && idGanadero != 0 && Pendiente())
        return;
    m_ganadero = idGanadero;
    m_leida = false;
    if (idGanadero != 0 && isVisible())
        Cargar();
    else
        Mostrar({});
}

void PaginaMateria::showEvent(QShowEvent* evento) {
    QWidget::showEvent(evento);
    if (!m_leida && m_ganadero != 0)
        Cargar();
}

DatosMateria PaginaMateria::Leer() {
    return LeerMateria(m_base, m_materia, m_ganadero);
}

void PaginaMateria::Cargar() {
    m_leida = false;
    DatosMateria datos;
    try {
        datos = Leer();
        m_leida = true;
    } catch (const std::exception& e) {
        Avisar(e);
    }
    Mostrar(std::move(datos));
}

void PaginaMateria::Mostrar(DatosMateria datos) {
    m_porGuardar = false;
    m_ocultas = std::move(datos.ocultas);
    m_lineas->Permitir(m_leida);
    m_lineas->Mostrar(std::move(datos.lineas));
    if (m_nota) {
        m_nota->Poner(datos.nota);
        m_nota->setReadOnly(!m_leida);
    }
    EstadoBotones();
}

bool PaginaMateria::Pendiente() const {
    return m_leida && (m_porGuardar || m_lineas->EnCurso() || (m_nota && m_nota->Cambiado()));
}

void PaginaMateria::EstadoBotones() {
    if (!m_guardar || !m_cancelar)
        return;
    m_guardar->setEnabled(Pendiente());
    m_cancelar->setEnabled(Pendiente());
}

std::string PaginaMateria::Nota() const {
    return m_nota ? m_nota->Texto() : std::string();
}

void PaginaMateria::Guardar() {
    if (!m_lineas->EnCurso())
        GuardarTodo();
    else
        m_lineas->Confirmar(); // which saves, unless the line is refused
}

void PaginaMateria::GuardarTodo() {
    if (!m_leida)
        return;
    try {
        m_porGuardar = true;
        const auto nota = Nota();
        GuardarMateria(m_base, m_materia, m_ganadero, m_lineas->Lineas(), m_ocultas, nota);
        m_porGuardar = false;
        if (m_nota && m_nota->Cambiado())
            m_nota->Poner(nota);
        DespuesDeGuardar();
    } catch (const std::exception& e) {
        Avisar(e); // the grid keeps its lines, so that saving again completes what is missing
    }
    EstadoBotones();
}

void PaginaMateria::Cancelar() {
    Cargar();
}

void PaginaMateria::Avisar(const std::exception& error) {
    pastorix::Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"),
                     QString::fromUtf8(error.what()));
}

} // namespace pastorix
