#include "registers/sementales/Sementales.h"

#include "frame/Mensajes.h"
#include "frame/ficha/Pestanas.h"
#include "registers/EncabezadoGanadero.h"
#include "registers/datos/NombreCompuesto.h"
#include "registers/datos/ReglasSemental.h"
#include "registers/sementales/DefinicionSementales.h"
#include "registers/sementales/RejillaPatologia.h"
#include "store/Recordset.h"

#include <QComboBox>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace pastorix {

Sementales::Sementales(Sesion& sesion, QWidget* padre)
    : Ficha(sesion, DefinicionSementales(), padre)
    , m_tab(new QTabWidget(this)) {
    setObjectName(QStringLiteral("Sementales"));
    m_tab->setObjectName(QStringLiteral("TabSementales"));
    Barra()[BarraFicha::Eliminar]->setObjectName(QStringLiteral("B_Borrar"));
    Cuerpo()->addWidget(CrearEncabezado());
    Cuerpo()->addWidget(m_tab, 1);
    m_tab->addTab(CrearGeneral(), QStringLiteral(" General "));
    m_tab->addTab(CrearPatologias(), QStringLiteral(" Patologías "));
    m_tab->addTab(CrearRejilla(m_tab, 3), QStringLiteral(" Baja "));
    ConectarPestañas(*m_tab);
    OrdenarTabulador();
    Conectar();
    MostrarGanadero({});
    LimpiarPropios();
    TerminarConstruccion(&Memo(kObsBaja));
}

void Sementales::Conectar() {
    m_ganadero->alBuscar = [this] { BuscarDato(1); };
    const auto& clase = Combo("CD_Cularidad");
    connect(&clase, &QComboBox::currentIndexChanged, this, [this] {
        if (Editando()) // not while a bull is being shown
            Renombrar();
    });
    connect(&clase, &QComboBox::activated, this, [this] { Renombrar(); });
}

// The farmer stays when the sheet is cleared: he is whom the next bull is added to.
void Sementales::MostrarGanadero(std::optional<double> idGanadero) {
    if (idGanadero)
        m_ganadero->Poner(*idGanadero);
    else
        m_ganadero->Limpiar();
    LlenarVacunas();
}

void Sementales::Renombrar() {
    m_nombre = Texto(1);
    Poner(2, NombreCompuesto(TextoStd(1), Combo("CD_Cularidad").currentText().toStdString(),
                             m_ganadero->Codigo().toStdString()));
}

// A compound name written by hand stays until the name changes, or the bull comes to the insemination bulls or leaves them: then it would tell
// something else than it means.
void Sementales::AlDejar(QWidget& campo) {
    const auto deInseminacion = [](const std::optional<double>& id) { return id == 1; };
    const bool otroDueño = deInseminacion(m_ganadero->Id()) != deInseminacion(m_ganaderoLeido);
    if (&campo == &Campo(1) && Editando() && (Texto(1) != m_nombre || otroDueño) &&
        !Combo("CD_Cularidad").currentText().isEmpty())
        Renombrar();
}

// What no save has seen: lines without a year, grids and remarks that could not be written. While the sheet is edited the remarks belong to it.
bool Sementales::SanidadPendiente() const {
    bool pendiente = Clave() != 0 && Memo(kObsPatologia).Cambiado();
    for (std::size_t i = 0; i < m_rejillas.size(); ++i)
        pendiente = pendiente || m_porGuardar[i] || !m_rejillas[i]->SinAño().empty();
    return pendiente;
}

std::vector<PaginaPendiente> Sementales::Pendientes() {
    TerminarCeldas(); // a refused one tells so, and stays a line without year
    if (Editando() || !SanidadPendiente())
        return {};
    const auto guardar = [this] {
        GuardarPato();
        return !SanidadPendiente();
    };
    return {{QStringLiteral("Patologías"), guardar, [this] { VaciarSanidad(); }}};
}

bool Sementales::PermiteAñadir() {
    return m_ganadero->Id() || Rechazar(QStringLiteral("Seleccione el Ganadero al que le va añadir un Toro"),
                                        m_ganadero->Icono());
}

std::string Sementales::CodigoPropuesto() {
    return CodigoDeSemental(Base(), *m_ganadero->Id());
}

void Sementales::AlAñadir() {
    VaciarSanidad();
    m_nombre.clear();
    Campo(0).setFocus();
    Campo(0).selectAll();
}

void Sementales::LimpiarPropios() {
    PermitirSanidad(false); // the lines stay: they may be of the bull who comes back
}

void Sementales::MostrarPropios(Recordset& rs) {
    MostrarGanadero(rs["Id_Ganadero"].Nulo() ? std::nullopt : std::optional(rs["Id_Ganadero"].Numero()));
    MostrarSanidad();
    m_ganaderoLeido = m_ganadero->Id();
    m_nombre = Texto(1);
}

bool Sementales::Recoger() {
    return TerminarCeldas() && GuardarPendientes();
}

bool Sementales::ComprobarMinimos() {
    if (!m_ganadero->Id())
        return Rechazar(QStringLiteral("Debe indicar el ganadero al que pertenece"), m_ganadero->Icono());
    if (CodigoTecleado().toDouble() != 0 && Texto(1).isEmpty())
        return Rechazar(QString::fromUtf8(DefinicionSementales().minimos), &Campo(1));
    return Ficha::ComprobarMinimos();
}

void Sementales::EscribirPropios(Recordset& rs) {
    rs["Id_Ganadero"] = *m_ganadero->Id();
}

// A name that cannot be carried on is told once the record is on screen again: the bull himself is saved.
void Sementales::EscribirHijos(double codigo) {
    m_errorDeNombre.clear();
    try {
        ExtenderNombre(Base(), TextoStd(2), codigo);
    } catch (const ErrorAlmacen& e) {
        m_errorDeNombre = e.what();
    }
}

void Sementales::DespuesDeGuardar(double clave) {
    CargarFicha(clave);
    if (!m_errorDeNombre.empty())
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"),
               QString::fromStdString(m_errorDeNombre));
}

QString Sementales::PreguntaEliminar() const {
    return QStringLiteral("Eliminar Semental: ") + Texto(1);
}

void Sementales::Borrar(double clave) {
    if (clave != 0)
        BorrarSemental(Base(), clave);
}

void Sementales::DespuesDeBorrar() {
    VaciarSanidad();
}

void Sementales::NoEncontrado(double) {
    Vaciar();
    VaciarSanidad();
}

} // namespace pastorix
