#include "registers/vacas/PaginaCiclos.h"

#include "frame/Iconos.h"
#include "frame/Mensajes.h"
#include "frame/calendario/Reloj.h"
#include "frame/ficha/RejillaHijos.h"
#include "registers/vacas/LineaDeTiempo.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace pastorix {

namespace {

constexpr ColumnaHijos kColumnasPartos[] = {{nullptr, "Nº de Parto", 12},
                                            {nullptr, "Fecha de Parto", 16},
                                            {nullptr, "Año Ref", 10, "Año de referencia"},
                                            {nullptr, "Datos Completos", 18}};
constexpr ColumnaHijos kColumnasCubriciones[] = {{nullptr, "Id_Cubricion", 0},
                                                 {nullptr, "Año de Referencia", 20},
                                                 {nullptr, "Nº de Parto", 12},
                                                 {nullptr, "Datos Completos", 18}};

Valor Entero(const std::optional<int>& n) {
    return n ? Valor(std::int64_t{*n}) : Valor();
}
Valor Completo(const CicloDeVaca& c) {
    return std::string(c.completo ? "Sí" : "No");
}
// What a record is known by when the list is read anew; a mating record may have changed year and parity meanwhile.
Valor ClaveDe(const CicloDeVaca& c) {
    return c.idCubricion != 0 ? Valor(c.idCubricion)
                              : Valor(TextoDe(Entero(c.añoRef)) + "/" + TextoDe(Entero(c.nParto)));
}
QString EnLetra(const std::optional<int>& n) {
    return QString::fromStdString(TextoDe(Entero(n)));
}

} // namespace

const DefinicionCiclos kPartosDeVaca{
    "GridPartos",
    "Partos",
    "B_AñadirParto",
    "B_EliminarPC(0)",
    "Añadir Parto...",
    kColumnasPartos,
    PartosDeVaca,
    [](const CicloDeVaca& c) {
        return std::vector<Valor>{Entero(c.nParto), c.fechaParto, Entero(c.añoRef), Completo(c)};
    },
    EliminarParto,
    [](const CicloDeVaca& c) {
        return QStringLiteral("Confirme eliminar el Parto Nº : ") + EnLetra(c.nParto);
    },
    "Sin partos. «Añadir Parto...», o la tecla Insert, anota el primero."};

const DefinicionCiclos kCubricionesDeVaca{
    "GridCubriciones",
    "Cubriciones",
    "B_AñadirCubricion",
    "B_EliminarPC(1)",
    "Añadir Cubrición...",
    kColumnasCubriciones,
    CubricionesDeVaca,
    [](const CicloDeVaca& c) {
        return std::vector<Valor>{c.idCubricion, Entero(c.añoRef), Entero(c.nParto), Completo(c)};
    },
    EliminarCubricion,
    [](const CicloDeVaca& c) {
        return QStringLiteral("Confirme eliminar la Cubrición del Año de Referencia : %1 y Nº de Parto: ")
                   .arg(EnLetra(c.añoRef)) +
               EnLetra(c.nParto);
    },
    "Sin cubriciones. «Añadir Cubrición...», o la tecla Insert, anota la primera.",
    true};

PaginaCiclos::PaginaCiclos(Conexion& c, const DefinicionCiclos& definicion, QWidget* padre)
    : QWidget(padre)
    , m_c(c)
    , m_definicion(definicion)
    , m_rejilla(new RejillaHijos(definicion.columnas, this))
    , m_comienzo(new QLabel(QString::fromUtf8(definicion.comienzo), this)) {
    m_rejilla->setObjectName(QString::fromUtf8(definicion.rejilla));
    m_rejilla->setAccessibleName(QString::fromUtf8(definicion.nombre));
    m_rejilla->alAbrir = [this](int fila) { Abrir(m_ciclos[static_cast<std::size_t>(fila)]); };
    m_rejilla->alCambiarSeleccion = [this] { Habilitar(); };
    m_rejilla->alInsertar = [this] { Añadir(); };
    m_rejilla->alEliminar = [this] { Eliminar(); };
    const auto boton = [this](const char* nombre, const QString& texto, const char* icono) {
        auto* b = new QPushButton(Icono(icono), texto, this);
        b->setObjectName(QString::fromUtf8(nombre));
        b->setAutoDefault(false);
        return b;
    };
    m_añadir = boton(definicion.botonAñadir, QString::fromUtf8(definicion.textoAñadir), "anadir");
    m_eliminar = boton(definicion.botonEliminar, QStringLiteral("Eliminar..."), "eliminar");
    connect(m_añadir, &QPushButton::clicked, this, [this] { Añadir(); });
    connect(m_eliminar, &QPushButton::clicked, this, [this] { Eliminar(); });
    Colocar();
    Habilitar();
}

void PaginaCiclos::Colocar() {
    auto* botones = new QVBoxLayout;
    botones->addWidget(m_añadir);
    botones->addWidget(m_eliminar);
    botones->addStretch();
    auto* listas = new QVBoxLayout;
    listas->addWidget(m_comienzo);
    listas->addWidget(m_rejilla, 1);
    if (m_definicion.conLinea) {
        m_linea = new LineaDeTiempo(this);
        m_linea->alAbrir = [this](const CicloDeVaca& ciclo) { Abrir(ciclo); };
        m_rejilla->alElegir = [this](int fila) {
            m_linea->Elegir(m_ciclos[static_cast<std::size_t>(fila)].idCubricion);
        };
        listas->addWidget(m_linea);
    }
    auto* todo = new QHBoxLayout(this);
    todo->addLayout(listas, 1);
    todo->addLayout(botones);
}

void PaginaCiclos::FijarOrdenes(std::function<void(const CicloDeVaca&)> abrir, std::function<void()> añadir) {
    m_abrir = std::move(abrir);
    m_alAñadir = std::move(añadir);
    Habilitar();
}

void PaginaCiclos::Mostrar(double idVaca) {
    const bool laMisma = idVaca == m_idVaca;
    m_idVaca = idVaca;
    m_ciclos = idVaca == 0 ? std::vector<CicloDeVaca>() : m_definicion.leer(m_c, idVaca);
    std::vector<std::vector<Valor>> filas;
    for (const auto& ciclo : m_ciclos) {
        filas.push_back(m_definicion.celdas(ciclo));
        filas.back().push_back(ClaveDe(ciclo));
    }
    if (laMisma)
        m_rejilla->LlenarDeNuevo(std::move(filas), m_definicion.columnas.size());
    else
        m_rejilla->Llenar(std::move(filas));
    m_comienzo->setVisible(idVaca != 0 && m_ciclos.empty());
    m_lineaPendiente = true;
    MostrarLinea();
    Habilitar();
}

void PaginaCiclos::MostrarLinea() {
    if (!m_linea || !m_lineaPendiente || !isVisible())
        return;
    m_lineaPendiente = false;
    m_linea->Mostrar(m_idVaca == 0 ? std::vector<CicloEnElTiempo>() : LeerLineaDeCiclos(m_c, m_idVaca),
                     Hoy());
}

void PaginaCiclos::showEvent(QShowEvent* evento) {
    QWidget::showEvent(evento);
    MostrarLinea();
}

void PaginaCiclos::Releer() {
    Mostrar(m_idVaca);
    if (alCambiar)
        alCambiar();
}

void PaginaCiclos::Habilitar() {
    m_añadir->setEnabled(m_alAñadir && m_idVaca != 0);
    m_eliminar->setEnabled(!m_rejilla->selectedItems().isEmpty());
}

void PaginaCiclos::Añadir() {
    if (!m_añadir->isEnabled() || (puedeOperar && !puedeOperar()))
        return;
    m_alAñadir();
    Releer();
}

void PaginaCiclos::Abrir(const CicloDeVaca& ciclo) {
    if ((puedeOperar && !puedeOperar()) || !m_abrir)
        return;
    m_abrir(CicloDeVaca(ciclo)); // the lists are read anew while its sheet stands open
    Releer();
}

void PaginaCiclos::AbrirUltimo() {
    if (!m_ciclos.empty())
        Abrir(m_ciclos.front());
}

void PaginaCiclos::Eliminar() {
    const int fila = m_rejilla->currentRow();
    if (!m_eliminar->isEnabled() || fila < 0)
        return;
    const auto ciclo = m_ciclos[static_cast<std::size_t>(fila)];
    if (!Preguntar(this, QStringLiteral("Eliminar"), m_definicion.pregunta(ciclo)))
        return;
    try {
        EnGrupo(m_c, [&] { m_definicion.eliminar(m_c, ciclo); });
    } catch (const ErrorAlmacen& e) {
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"), QString::fromUtf8(e.what()));
    }
    Releer();
    m_rejilla->setFocus();
}

} // namespace pastorix
