#include "registers/sementales/Sementales.h"

#include "frame/Mensajes.h"
#include "frame/ficha/Pestanas.h"
#include "registers/EncabezadoGanadero.h"
#include "registers/sementales/DefinicionSementales.h"
#include "registers/sementales/ReglasSemental.h"
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
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(CrearEncabezado());
    todo->addWidget(m_tab, 1);
    todo->addWidget(&Barra());
    m_tab->addTab(CrearGeneral(), QStringLiteral(" General "));
    m_tab->addTab(CrearPatologias(), QStringLiteral(" Patologías "));
    m_tab->addTab(CrearBaja(), QStringLiteral(" Baja "));
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
    connect(&Combo("CD_CBaja"), &QComboBox::currentIndexChanged, this, [this] { RefrescarBaja(); });
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

// The free text goes with the cause "Otra"; what is stored beside another one is kept all the same.
void Sementales::RefrescarBaja() {
    m_otraCausa->setEnabled(Combo("CD_CBaja").currentText() == QLatin1String("Otra"));
}

QStringList Sementales::Contenido() const {
    QStringList todo;
    for (const auto& c : DefinicionSementales().campos)
        if (c.indice != kObsPatologia)
            todo << Texto(c.indice);
    for (const auto& c : DefinicionSementales().combos)
        todo << Combo(c.nombre).currentText();
    return todo << m_otraCausa->text() << m_ganadero->Codigo();
}

// A compound name written by hand stays until the name changes.
void Sementales::AlDejar(QWidget& campo) {
    if (&campo == &Campo(1) && Editando() && Texto(1) != m_nombre &&
        !Combo("CD_Cularidad").currentText().isEmpty())
        Renombrar();
}

// While nothing is being edited, what no save has seen can be lost: lines without a year, grids and remarks that could not be written.
bool Sementales::PermiteDejar() {
    if (!TerminarCeldas())
        return false;
    bool pendiente = Clave() != 0 && Memo(kObsPatologia).Cambiado();
    for (std::size_t i = 0; i < m_rejillas.size(); ++i)
        pendiente = pendiente || m_porGuardar[i] || !m_rejillas[i]->SinAño().empty();
    return Editando() || !pendiente ||
           Preguntar(this, QStringLiteral("Atención"),
                     QStringLiteral("Hay patologías sin guardar. ¿Desea seguir y perderlas?"));
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
    m_otraCausa->clear();
    RefrescarBaja();
    PermitirSanidad(false); // the lines stay: they may be of the bull who comes back
}

void Sementales::MostrarPropios(Recordset& rs) {
    m_otraCausa->Mostrar(QString::fromStdString(rs["OtraCausa"].Texto()));
    RefrescarBaja();
    MostrarGanadero(rs["Id_Ganadero"].Nulo() ? std::nullopt : std::optional(rs["Id_Ganadero"].Numero()));
    MostrarSanidad();
    m_contenido = Contenido();
    m_nombre = Texto(1);
}

bool Sementales::ComprobarMinimos() {
    if (!TerminarCeldas() || !GuardarPendientes())
        return false;
    if (!m_ganadero->Id())
        return Rechazar(QStringLiteral("Debe indicar el ganadero al que pertenece"), m_ganadero->Icono());
    if (CodigoTecleado().toDouble() != 0 && Texto(1).isEmpty())
        return Rechazar(QString::fromUtf8(DefinicionSementales().minimos), &Campo(1));
    return Ficha::ComprobarMinimos();
}

void Sementales::EscribirPropios(Recordset& rs) {
    rs["Id_Ganadero"] = *m_ganadero->Id();
    const auto causa = m_otraCausa->text().toStdString();
    rs["OtraCausa"] = causa.empty() ? Valor() : Valor(causa);
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
