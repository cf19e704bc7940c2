#include "reproduction/PaginaServicios.h"

#include "frame/Iconos.h"
#include "frame/Mensajes.h"
#include "frame/ficha/Aspecto.h"
#include "frame/selector/Selector.h"
#include "reproduction/datos/Limites.h"
#include "reproduction/datos/Servicios.h"
#include "store/Literales.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QShortcut>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace pastorix {

namespace {

constexpr AspectoColumna kAspectos[] = {{"Nº", 3, "Ct_S(0)", false, 4, "Número del servicio"},
                                        {"Fecha Srv", 8, "Ct_S(1)", false, 0, "Fecha del servicio"},
                                        {"Toro", 16, "Ct_S(4)", false, 100},
                                        {"Prog", 5, "Ct_S(6)", false, 50, "Progesterona"},
                                        {"Tratam", 8, "Cb_Tto", false, 50, "Tratamiento", true},
                                        {"FechaT", 8, "Ct_S(2)", false, 0, "Fecha del tratamiento"},
                                        {"Tipo Servicio", 11, "Cd_S(0)"},
                                        {"Nº Ins", 4, "Ct_S(3)", false, 4, "Número de inseminación"},
                                        {"Observaciones", 24, "Ct_S(5)"},
                                        {"Id_Toro", 0, "Id_Toro"}};

DefinicionLineas Definicion() {
    DefinicionLineas d{"GridServicios", "Servicios", ColumnasDeServicio(), kAspectos};
    d.columnaAño = -1;
    d.columnaNombre = servicio::Numero;
    d.eliminar = "Eliminar Servicio Nº: ";
    d.tituloEliminar = "Confirme Eliminar";
    d.limite = static_cast<int>(kServiciosEnRejilla);
    d.introAcepta = true;
    d.tecleadoVale = true;
    d.clicSoloLimpia = true;
    return d;
}
const DefinicionLineas kDefinicion = Definicion();

} // namespace

PaginaServicios::PaginaServicios(Conexion& c, double idGanadero, QWidget* padre)
    : QWidget(padre)
    , m_c(c)
    , m_idGanadero(idGanadero)
    , m_lineas(new LineasEditables(kDefinicion, this))
    , m_aviso(new QLabel(this)) {
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->setSpacing(2);
    m_aviso->setObjectName(QStringLiteral("AvisoServicios"));
    m_aviso->setWordWrap(true);
    todo->addWidget(m_aviso);
    todo->addWidget(m_lineas, 1);
    auto& rejilla = m_lineas->Rejilla();
    setFocusProxy(&rejilla); // where a service is begun with Insert
    rejilla.setMinimumHeight(rejilla.verticalHeader()->defaultSectionSize() * 5 +
                             8); // heading and four lines
    m_lineas->alCambiar = [this] {
        if (alCambiar)
            alCambiar();
    };
    m_lineas->alProponer = [this] {
        ProponerNumero();
        m_lineas->Control(servicio::Fecha)->setFocus();
    };
    m_lineas->alEntrar = [this](std::size_t columna) { AlEntrar(columna); };
    auto* icono = new QToolButton(this);
    icono->setObjectName(QStringLiteral("IconoBusDato(0)"));
    icono->setIcon(Icono("buscar"));
    icono->setAutoRaise(true);
    icono->setCursor(CursorMano());
    icono->setToolTip(QStringLiteral("Seleccionar"));
    icono->setAccessibleName(QStringLiteral("Seleccionar toro"));
    DarTecla(*icono, QKeySequence(Qt::Key_F3));
    connect(icono, &QToolButton::clicked, this, [this] { BuscarToro(); });
    m_lineas->PonerMando(icono);
}

void PaginaServicios::Mostrar(const CicloDeVaca& ciclo) {
    const auto todos = LeerServicios(m_c, ciclo);
    const bool elMismo =
        ciclo.idVaca == m_ciclo.idVaca && ciclo.añoRef == m_ciclo.añoRef && ciclo.nParto == m_ciclo.nParto;
    m_ciclo = ciclo;
    if (elMismo)
        m_lineas->MostrarDeNuevo(ServiciosEnRejilla(
            todos)); // leaving the date of calving loads the record, whatever is being entered
    else
        m_lineas->Mostrar(ServiciosEnRejilla(todos));
    const auto sinSitio = ServiciosSinSitio(todos);
    m_sinSitio =
        sinSitio.empty()
            ? QString()
            : QStringLiteral(
                  "Este ciclo tiene %1 servicios y aquí caben %2: al aceptar o eliminar una línea se "
                  "perderán los números %3")
                  .arg(todos.size())
                  .arg(kServiciosEnRejilla)
                  .arg(QString::fromStdString(sinSitio));
    Repasar({}, {});
}

void PaginaServicios::Repasar(std::optional<Fecha> parto, std::optional<Fecha> baja) {
    QStringList avisos(m_sinSitio);
    const auto& lineas = m_lineas->Lineas();
    for (std::size_t i = 0; i < lineas.size(); ++i) {
        const auto reparo = QString::fromStdString(ReparoDeServicio(FechaDe(lineas[i]), parto, baja));
        auto* celda = m_lineas->Rejilla().item(static_cast<int>(i), servicio::Fecha);
        celda->setIcon(reparo.isEmpty() ? QIcon() : Icono("aviso"));
        celda->setToolTip(reparo);
        celda->setData(Qt::AccessibleDescriptionRole, reparo);
        if (!reparo.isEmpty())
            avisos << QStringLiteral("Nº %1: %2")
                          .arg(QString::fromStdString(lineas[i].celdas[servicio::Numero]), reparo);
    }
    avisos.removeAll(QString());
    m_aviso->setText(avisos.join(QStringLiteral(". ")));
    m_aviso->setVisible(!avisos.isEmpty());
}

void PaginaServicios::Escribir(const CicloDeVaca& ciclo) {
    GuardarServicios(m_c, ciclo, m_lineas->Lineas());
}

std::optional<Fecha> PaginaServicios::FechaDe(const Linea& linea) const {
    const auto& celda = linea.celdas[servicio::Fecha];
    if (linea.leidos.size() > servicio::Fecha && Intacto(linea.leidos[servicio::Fecha], celda))
        if (const auto* fecha = std::get_if<Fecha>(&linea.leidos[servicio::Fecha]))
            return *fecha;
    return FechaDeTexto(celda);
}

std::optional<Fecha> PaginaServicios::Primero() const {
    const auto& lineas = m_lineas->Lineas();
    return lineas.empty() ? std::nullopt : FechaDe(lineas.front());
}

std::optional<Fecha> PaginaServicios::Ultimo() const {
    const auto& lineas = m_lineas->Lineas();
    return lineas.empty() ? std::nullopt : FechaDe(lineas.back());
}

std::string PaginaServicios::DelUltimo(std::size_t columna) const {
    const auto& lineas = m_lineas->Lineas();
    return lineas.empty() ? std::string() : lineas.back().celdas[columna];
}

bool PaginaServicios::Resolver() {
    return m_lineas->Resolver();
}

// For a new line that has none, also one begun without Insert: without a number it would be dropped.
void PaginaServicios::ProponerNumero() {
    if (m_lineas->FilaEnCampos() >= 0 || !m_lineas->EnCampo(servicio::Numero).isEmpty())
        return;
    try {
        m_lineas->PonerEnCampo(servicio::Numero, QString::fromStdString(SiguienteServicio(m_c, m_ciclo)));
    } catch (const ErrorAlmacen& e) {
        AvisarError(this, e);
    }
}

// The name is the user's own, or the selector's with its number: typing in it makes it his own. The kind of service moves the count.
void PaginaServicios::AlEntrar(std::size_t columna) {
    if (columna != servicio::Numero)
        ProponerNumero();
    if (columna == servicio::Semental)
        m_lineas->PonerEnCampo(servicio::IdSemental, {});
    if (columna != servicio::Tipo || m_lineas->EnCampo(servicio::Tipo).isEmpty())
        return;
    const int fila = m_lineas->FilaEnCampos();
    const auto* linea = fila < 0 ? nullptr : &m_lineas->Lineas()[static_cast<std::size_t>(fila)];
    try {
        m_lineas->PonerEnCampo(servicio::NumeroInsem,
                               QString::fromStdString(NumeroDeInseminacion(
                                   m_c, m_ciclo, m_lineas->EnCampo(servicio::Tipo).toStdString(), linea)));
    } catch (const ErrorAlmacen& e) {
        AvisarError(this, e);
    }
}

void PaginaServicios::BuscarToro() {
    const auto toro =
        Selector::Elegir(m_c, TipoSelector::PadresParaCubriciones, NumeroSql(m_idGanadero), window());
    if (!toro || toro->clave == 0)
        return;
    const auto nombreC = TextoDe(toro->De("SementalC"));
    m_lineas->PonerEnCampo(servicio::Semental,
                           QString::fromStdString(nombreC.empty() ? TextoDe(toro->De("Semental")) : nombreC));
    m_lineas->PonerEnCampo(servicio::IdSemental, QString::fromStdString(TextoNumero(toro->clave)));
    ProponerNumero();
    m_lineas->Control(servicio::Semental)->setFocus();
}

} // namespace pastorix
