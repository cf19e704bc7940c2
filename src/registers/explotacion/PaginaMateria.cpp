#include "registers/explotacion/PaginaMateria.h"

#include "frame/Iconos.h"
#include "frame/Mensajes.h"
#include "frame/ficha/CampoMemo.h"
#include "frame/ficha/CampoTexto.h"
#include "frame/ficha/Ficha.h"
#include "store/Catalogo.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <functional>

namespace pastorix {

PaginaMateria::PaginaMateria(Conexion& base, const DefinicionMateria& hoja, QWidget* padre)
    : QWidget(padre)
    , m_base(base)
    , m_hoja(hoja)
    , m_lineas(new LineasEditables(hoja.lineas, this)) {
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(m_lineas, 1);
    setFocusProxy(m_lineas);
    m_lineas->alCambiar = [this] { GuardarTodo(); };
    VigilarEntradas();
    if (hoja.materia.columnaNota)
        CrearNota();
    FijarGanadero(0);
}

void PaginaMateria::CrearNota() {
    m_nota = new CampoMemo(this);
    m_nota->setObjectName(QString::fromUtf8(m_hoja.campoNota));
    m_nota->setAccessibleName(QStringLiteral("Observaciones"));
    m_nota->setMaximumHeight(m_nota->sizeHint().height());
    auto* rotulo = new QLabel(QStringLiteral("Observaciones"), this);
    rotulo->setBuddy(m_nota);
    const auto boton = [this](const char* nombre, const char* icono, const QString& texto,
                              std::function<void()> orden) {
        auto* b = new QPushButton(Icono(icono), texto, this);
        b->setObjectName(QString::fromUtf8(nombre));
        b->setAccessibleName(QStringLiteral("%1: %2").arg(texto, QString::fromUtf8(m_hoja.nombre)));
        b->setAutoDefault(false); // Enter belongs to the fields
        connect(b, &QPushButton::clicked, this, std::move(orden));
        return b;
    };
    m_guardar = boton(m_hoja.botonGuardar, "guardar", QStringLiteral("Guardar"), [this] { Guardar(); });
    MarcarGuardarDePagina(*m_guardar);
    m_cancelar = boton(m_hoja.botonCancelar, "cancelar", QStringLiteral("Cancelar"), [this] { Cancelar(); });
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

// A text that its column does not take must not get as far as a save: its field takes no more.
void PaginaMateria::VigilarEntradas() {
    const auto* tabla = CatalogoCanonico(ClaseDeBase::Principal).Buscar(m_hoja.materia.tabla);
    const auto& columnas = m_hoja.materia.columnas;
    for (std::size_t i = 0; i < columnas.size(); ++i) {
        auto* control = m_lineas->Control(i);
        if (auto* combo = qobject_cast<QComboBox*>(control)) {
            connect(combo, &QComboBox::currentIndexChanged, this, [this] { EstadoBotones(); });
        } else if (auto* campo = qobject_cast<QLineEdit*>(control)) {
            connect(campo, &QLineEdit::textChanged, this, [this] { EstadoBotones(); });
            const int lugar = tabla->Buscar(columnas[i].columna);
            if (columnas[i].clase == ClaseCampo::Texto && lugar >= 0)
                static_cast<CampoTexto*>(campo)->FijarAnchura(
                    tabla->columnas[static_cast<std::size_t>(lugar)].anchura);
        }
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
    return LeerMateria(m_base, m_hoja.materia, m_ganadero);
}

void PaginaMateria::Cargar() {
    m_leida = false;
    DatosMateria datos;
    try {
        datos = Leer();
        m_leida = true;
    } catch (const std::exception& e) {
        AvisarError(this, e);
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

bool PaginaMateria::Guardar() {
    if (!m_lineas->EnCurso())
        GuardarTodo();
    else
        m_lineas->Confirmar(); // which saves, unless the line is refused
    return !Pendiente();
}

void PaginaMateria::GuardarTodo() {
    if (!m_leida)
        return;
    try {
        m_porGuardar = true;
        const auto nota = Nota();
        GuardarMateria(m_base, m_hoja.materia, m_ganadero, PorGuardar(), m_ocultas, nota);
        m_porGuardar = false;
        if (m_nota && m_nota->Cambiado())
            m_nota->Poner(nota);
        DespuesDeGuardar();
    } catch (const std::exception& e) {
        AvisarError(this,
                    e); // the rows are as they were, and the grid keeps its lines: they can be saved again
    }
    EstadoBotones();
}

void PaginaMateria::Cancelar() {
    Cargar();
}

} // namespace pastorix
