// The mating record: its window.
#include "frame/Atajos.h"
#include "frame/Mensajes.h"
#include "frame/Principal.h"
#include "frame/Ventanas.h"
#include "frame/ficha/Aspecto.h"
#include "frame/ficha/TiraNavegacion.h"
#include "registers/vacas/ObsControlRebano.h"
#include "reproduction/CamposDeCubricion.h"
#include "reproduction/Cubriciones.h"
#include "reproduction/EncabezadoVaca.h"
#include "reproduction/ListaFechasIPR.h"
#include "reproduction/PaginaCausas.h"
#include "reproduction/PaginaServicios.h"
#include "reproduction/PiezasDeCiclo.h"
#include "reproduction/datos/Cubricion.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QGridLayout>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace pastorix {

namespace c = campo_cubricion;

Cubriciones::Cubriciones(Principal& marco, const VacaEnMano& vaca, const CicloDeVaca& ciclo, QWidget* padre)
    : QDialog(padre)
    , m_marco(marco)
    , m_sesion(marco.LaSesion())
    , m_vaca(vaca)
    , m_ciclo(ciclo)
    , m_hoja(new HojaDeCampos(HojaDeCubricion(), this)) {
    setObjectName(QStringLiteral("Cubriciones"));
    setWindowTitle(QStringLiteral("Cubriciones"));
    setAcceptDrops(true);
    m_encabezado = new EncabezadoVaca({{QStringLiteral("Et_Vaca(0)"), QStringLiteral("Ganadero")},
                                       {QStringLiteral("Et_Vaca(1)"), {}},
                                       {QStringLiteral("Et_Vaca(2)"), QStringLiteral("Vaca")},
                                       {QStringLiteral("Et_Vaca(3)"), QStringLiteral("Crotal")},
                                       {QStringLiteral("Et_Vaca(4)"), QStringLiteral("Fecha de Compra")},
                                       {QStringLiteral("Et_Vaca(5)"), QStringLiteral("Fecha de Baja")},
                                       {QStringLiteral("Et_Vaca(6)"), QStringLiteral("Dificultad Parto")}},
                                      this);
    m_avisos = new QLabel(this);
    m_avisos->setObjectName(QStringLiteral("Avisos"));
    m_tira = new TiraNavegacion(this, true);
    m_tira->Añadir("hoja", QStringLiteral(" General"), CrearGeneral());
    m_tira->Añadir("sistema", QStringLiteral("Causas Demora Preñez"), CrearCausas());
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(m_encabezado);
    todo->addWidget(m_avisos);
    CuerpoDesplazable(*this, *todo)->addWidget(m_tira);
    todo->addWidget(m_hoja->CrearPie(this));
    todo->addLayout(CrearPie());
    Conectar();
    resize(1080, 580);
    RecordarVentana(*this);
    m_servicios->setFocus();
}

Cubriciones::~Cubriciones() = default;

QWidget* Cubriciones::CrearGeneral() {
    auto* general = new QWidget(this);
    general->setObjectName(QStringLiteral("FrmOpciones(1)"));
    auto* todo = new QVBoxLayout(general);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->setSpacing(2);
    todo->addWidget(m_hoja->CrearRejilla(general, hoja_cubricion::General));
    m_hoja->Rejilla()->setVerticalSpacing(3);
    auto* lista = m_hoja->PonerIcono(1, c::FechaIPR, QStringLiteral("Fechas de I.P.R."), [this] {
        m_fechasIPR->Mostrar(m_ciclo, m_vaca.idGanadero, PrimeraFechaIPR(Datos()));
    });
    lista->setToolTip(QStringLiteral("Fechas de I.P.R."));
    m_fechasIPR = new ListaFechasIPR(Base(), *lista);
    m_servicios = new PaginaServicios(Base(), m_vaca.idGanadero, general);
    todo->addWidget(m_servicios, 1);
    todo->addWidget(m_hoja->CrearRejilla(general, hoja_cubricion::Resultado));
    m_hoja->Rejilla()->setVerticalSpacing(3);
    m_causaPpal = Titular({}, general);
    m_causaPpal->setObjectName(QStringLiteral("ET_Estandar(27)"));
    m_causaPpal->setContentsMargins(9, 0, 9, 0);
    todo->addWidget(m_causaPpal);
    return general;
}

QWidget* Cubriciones::CrearCausas() {
    auto* lienzo = new QWidget(this); // the panel may be moved about on it
    auto* sitio = new QVBoxLayout(lienzo);
    sitio->setContentsMargins(0, 0, 0, 0);
    m_causas = new PaginaCausas(*m_hoja, m_marco, lienzo);
    sitio->addWidget(m_causas);
    return lienzo;
}

QLayout* Cubriciones::CrearPie() {
    auto* pie = new QHBoxLayout;
    pie->addWidget(m_hoja->CrearRejilla(this, -1)); // Ch_DatosCompletos
    pie->addStretch();
    PonerBoton(*pie, {"B_Anterior", "", "Parto Anteri&or", "Ctrl+Re Pág", Qt::CTRL | Qt::Key_PageUp},
               [this] { Pasar(-1); });
    PonerBoton(*pie, {"B_Siguiente", "", "Parto &Siguiente", "Ctrl+Av Pág", Qt::CTRL | Qt::Key_PageDown},
               [this] { Pasar(1); });
    PonerBoton(*pie, {"B_Parto", "", "Ir a Par&tos", ""}, [this] { IrAPartos(); });
    PonerBoton(*pie, {"B_Cerrar", "cerrar", "&Cerrar", "Esc; lo escrito queda guardado"},
               [this] { reject(); });
    return pie;
}

void Cubriciones::Conectar() {
    m_hoja->alDejar = [this](QWidget& campo) { AlDejar(campo); };
    m_hoja->alDecidir = [this](QComboBox& combo) { AlDecidir(combo); };
    m_servicios->alCambiar = [this] { CambiarServicios(); };
    m_tira->alCambiar = [this](int) { GuardarCubricion(); };
    m_fechasIPR->alElegir = [this](const QString& fecha, bool calcular) { ElegirFechaIPR(fecha, calcular); };
    connect(&m_hoja->Marca(kMarcaCompletos), &QCheckBox::clicked, this,
            [this] { RotularCompletos(m_hoja->Marca(kMarcaCompletos)); });
    PonerAtajo(*this, Qt::CTRL | Qt::Key_E, QStringLiteral("Observaciones para el control del rebaño"),
               [this] { ObsControlRebaño(Base(), m_vaca.idVaca, this).exec(); });
    for (int i = 0; i < 2; ++i)
        PonerAtajo(*this, Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + i),
                   QStringLiteral("Página %1").arg(i + 1), [this, i] { m_tira->Pasar(i); });
    try {
        m_encabezado->PonerVaca(Base(), m_vaca);
    } catch (const std::exception& e) {
        AvisarError(this, e);
    }
    constexpr std::size_t kCompra = 4;
    constexpr std::size_t kBaja = 5;
    m_encabezado->Poner(kCompra, FechaDeVaca(m_vaca.fechaCompra, m_vaca.textoCompra, "dd/mm/yyyy"));
    m_encabezado->Poner(kBaja, FechaDeVaca(m_vaca.fechaBaja, m_vaca.textoBaja, "dd/mm/yyyy"));
}

void Cubriciones::ElegirFechaIPR(const QString& fecha, bool calcular) {
    auto& campo = m_hoja->Campo(c::FechaIPR);
    campo.setFocus();
    campo.selectAll();
    campo.insert(fecha);
    if (calcular)
        PonerIPR_CP(Datos());
}

void Cubriciones::dragEnterEvent(QDragEnterEvent* evento) {
    if (evento->mimeData()->hasFormat(QLatin1String(Principal::TipoDePanel())))
        evento->acceptProposedAction();
}

void Cubriciones::dropEvent(QDropEvent* evento) {
    evento->acceptProposedAction();
    m_causas->Soltar(m_causas->parentWidget()->mapFrom(this, evento->position().toPoint()));
}

} // namespace pastorix
