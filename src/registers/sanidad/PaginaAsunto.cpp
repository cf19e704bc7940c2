#include "registers/sanidad/PaginaAsunto.h"

#include "frame/Iconos.h"
#include "frame/Mensajes.h"
#include "frame/ficha/Aspecto.h"
#include "frame/ficha/CampoMemo.h"
#include "frame/ficha/Ficha.h"
#include "registers/datos/FechasVacu.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace pastorix {

PaginaAsunto::PaginaAsunto(Conexion& base, const DefinicionPagina& definicion, QWidget* padre)
    : PaginaSanidad(base, padre)
    , m_definicion(definicion) {
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(CrearRejillas(), 1);
    todo->addWidget(CrearPie());
    m_naturales->alQuitar = [this](const Linea& linea) { QuitarAño(linea); };
    Habilitar(false);
    RefrescarBotones();
}

QWidget* PaginaAsunto::CrearRejillas() {
    const QString recuadro = QString::fromUtf8(m_definicion.recuadro);
    auto* caja = recuadro.isEmpty() ? new QWidget(this) : new QGroupBox(recuadro, this);
    auto* lado = new QHBoxLayout(caja);
    if (recuadro.isEmpty())
        lado->setContentsMargins(0, 0, 0, 0);
    lado->setSpacing(14);
    const auto poner = [&](const char* titulo, LineasEditables*& lineas, const DefinicionLineas& definicion,
                           int ancho) {
        auto* columna = new QVBoxLayout;
        columna->setSpacing(6);
        columna->addWidget(Titular(QString::fromUtf8(titulo), caja));
        lineas = CrearLineas(definicion, caja);
        columna->addWidget(lineas, 1);
        lado->addLayout(columna, ancho);
    };
    const auto naturales = [&] {
        poner("Por año natural", m_naturales, m_definicion.naturales, m_definicion.anchoNaturales);
    };
    const auto ciclos = [&] {
        poner("Por cubrición", m_ciclos, m_definicion.ciclos, m_definicion.anchoCiclos);
    };
    if (m_definicion.asunto.primeroCiclo) {
        ciclos();
        naturales();
    } else {
        naturales();
        ciclos();
    }
    return caja;
}

LineasEditables* PaginaAsunto::CrearLineas(const DefinicionLineas& definicion, QWidget* padre) {
    auto* lineas = new LineasEditables(definicion, padre);
    lineas->alCambiar = [this] { Tocar(); };
    lineas->alTeclear = [this] { RefrescarBotones(); };
    return lineas;
}

QWidget* PaginaAsunto::CrearPie() {
    auto* pie = new QWidget(this);
    auto* fila = new QHBoxLayout(pie);
    fila->setContentsMargins(0, 0, 0, 0);
    m_observacion = new CampoMemo(pie);
    m_observacion->setObjectName(QString::fromUtf8(m_definicion.observacion));
    m_observacion->setAccessibleName(QStringLiteral("Observaciones ") + Titulo());
    m_observacion->setFixedHeight(m_observacion->sizeHint().height());
    connect(m_observacion, &QPlainTextEdit::modificationChanged, this, [this] { RefrescarBotones(); });
    auto* rotulo = new QLabel(QStringLiteral("Observaciones"), pie);
    rotulo->setBuddy(m_observacion);
    fila->addWidget(rotulo, 0, Qt::AlignTop);
    fila->addWidget(m_observacion, 1);
    m_aviso = Explicacion(QStringLiteral("Sin cubriciones: lo que se anote aquí no se guarda"), pie);
    fila->addWidget(m_aviso);
    const auto boton = [&](const char* nombre, const char* texto, const char* icono,
                           std::function<void()> orden) {
        auto* b = new QPushButton(Icono(icono), QString::fromUtf8(texto) + Titulo(), pie);
        b->setObjectName(QString::fromUtf8(nombre));
        b->setAutoDefault(false); // Enter belongs to the fields
        connect(b, &QPushButton::clicked, this, std::move(orden));
        fila->addWidget(b, 0, Qt::AlignBottom);
        return b;
    };
    m_guardar = boton(m_definicion.guardar, "Guardar ", "guardar", [this] { Guardar(); });
    MarcarGuardarDePagina(*m_guardar);
    m_cancelar = boton(m_definicion.cancelar, "Cancelar ", "cancelar", [this] { Cancelar(); });
    return pie;
}

QString PaginaAsunto::Titulo() const {
    return QString::fromUtf8(m_definicion.titulo);
}

void PaginaAsunto::Mostrar(VacaEnHoja vaca) {
    auto datos = LeerAsunto(Base(), m_definicion.asunto, vaca.idVaca);
    FijarVaca(vaca);
    LlenarListas();
    const bool hay = vaca.idVaca != 0 && vaca.idGanadero != 0; // rows of no farmer could not be written back
    m_naturales->Mostrar(std::move(datos.naturales));
    m_ciclos->Mostrar(std::move(datos.ciclos));
    m_observacionLeida = std::move(datos.observacion);
    m_observacion->Poner(TextoDe(m_observacionLeida));
    Habilitar(hay);
    m_tocada = false;
    RefrescarBotones();
}

void PaginaAsunto::Habilitar(bool si) {
    const bool hayCiclos = !m_ciclos->Lineas().empty();
    m_naturales->Permitir(si);
    m_ciclos->Permitir(si && hayCiclos);
    m_observacion->setEnabled(si);
    m_aviso->setVisible(si && m_definicion.asunto.soloConCiclos && !hayCiclos);
}

void PaginaAsunto::LlenarListas() {
    if (!m_definicion.columnasVacu)
        return;
    const auto listas = LeerFechasVacu(Base(), m_definicion.columnasVacu, "Ln", Vaca().idGanadero);
    for (std::size_t i = 0; i < m_definicion.combosVacu.size(); ++i)
        m_naturales->FijarLista(m_definicion.combosVacu[i], ComoItems(listas[i]));
}

bool PaginaAsunto::Pendiente() const {
    return Vaca().idVaca != 0 &&
           (m_tocada || m_observacion->Cambiado() || m_naturales->EnCurso() || m_ciclos->EnCurso());
}

void PaginaAsunto::Tocar() {
    if (!std::exchange(m_enLaBase, false))
        m_tocada = true;
    RefrescarBotones();
}

void PaginaAsunto::RefrescarBotones() {
    const bool pendiente = Pendiente();
    m_guardar->setEnabled(pendiente);
    m_cancelar->setEnabled(pendiente);
}

// The line is out of the grid already. Of a year that stood there twice both rows are gone, so the line that is left waits for the save.
void PaginaAsunto::QuitarAño(const Linea& linea) {
    if (!m_definicion.quitaAlMomento || linea.celdas[0].empty())
        return;
    long filas = 0;
    Intentar([&] { filas = BorrarAñoNatural(Base(), m_definicion.asunto.natural, Vaca(), linea.Numero(0)); });
    const auto& quedan = m_naturales->Lineas();
    m_enLaBase = filas > 0 && std::none_of(quedan.begin(), quedan.end(), [&](const Linea& otra) {
                     return otra.celdas[0] == linea.celdas[0];
                 });
}

bool PaginaAsunto::Recoger() {
    for (auto* lineas : std::array{m_naturales, m_ciclos})
        if (lineas->EnCurso()) {
            lineas->Confirmar();
            if (lineas->EnCurso())
                return false;
        }
    return true;
}

Valor PaginaAsunto::Observacion() const {
    const auto texto = m_observacion->Texto();
    if (texto == TextoDe(m_observacionLeida))
        return m_observacionLeida;
    return texto.empty() ? Valor() : Valor(texto);
}

bool PaginaAsunto::Guardar() {
    if (!Recoger())
        return false;
    const DatosSanidad datos{m_naturales->Lineas(), m_ciclos->Lineas(), Observacion()};
    // What could not be saved stays on the page, and the tables are as they were.
    if (Intentar([&] { GuardarAsunto(Base(), m_definicion.asunto, Vaca(), datos); }))
        Cancelar();
    RefrescarBotones();
    return !Pendiente();
}

// Reads the cow again.
void PaginaAsunto::Cancelar() {
    Intentar([this] { Mostrar(Vaca()); });
}

} // namespace pastorix
