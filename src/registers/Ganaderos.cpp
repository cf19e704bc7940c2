#include "registers/Ganaderos.h"

#include "frame/Ciclo.h"
#include "frame/Mensajes.h"
#include "frame/ficha/Aspecto.h"
#include "frame/ficha/Pestanas.h"
#include "registers/DarBaja.h"
#include "registers/Listas.h"
#include "registers/PaginaCebo.h"
#include "registers/datos/Borrados.h"
#include "registers/datos/Direccion.h"
#include "registers/explotacion/PaginaMateria.h"
#include "store/Recordset.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace pastorix {

namespace {

constexpr CampoFicha kCampos[] = {
    {0, "Id_Ganadero", "Códig&o", ClaseCampo::Codigo, 0, 0, 0},
    {1, "DNI", "&D.N.I.", ClaseCampo::Texto, 50, 1, 0},
    {16, "NSocio", "Nº &Socio", ClaseCampo::Texto, 50, 1, 1},
    {2, "Nombre", "&Nombre", ClaseCampo::Texto, 50, 2, 0},
    {3, "Apellidos", "A&pellidos", ClaseCampo::Texto, 50, 2, 1},
    {15, "Apodo", "Apodo", ClaseCampo::Texto, 50, 3, 0},
    {14, "Concejo", "Concejo", ClaseCampo::Texto, 50, 3, 1},
    {4, nullptr, "D&irección", ClaseCampo::Texto, 50, 4, 0, 2},
    {5, nullptr, "", ClaseCampo::Texto, 50, 5, 0, 2, "Complemento de la dirección"},
    {6, nullptr, "Cód. Postal", ClaseCampo::Texto, 5, 6, 0},
    {7, nullptr, "&Localidad", ClaseCampo::Texto, 30, 6, 1},
    {8, nullptr, "Provincia", ClaseCampo::Texto, 30, 7, 0},
    {9, nullptr, "Telé&fono", ClaseCampo::Texto, 20, 7, 1},
    {10, nullptr, "Tlf. Móvil", ClaseCampo::Texto, 20, 8, 0},
    {11, nullptr, "e-mail", ClaseCampo::Texto, 25, 8, 1},
    {12, "FechaAlta", "Fec&ha de Alta", ClaseCampo::Fecha, 10, 9, 0, 1, "", 0, SiNoVale::Conserva},
    {13, "FechaBaja", "Fecha de &Baja", ClaseCampo::Fecha, 10, 9, 1, 1, "", 0, SiNoVale::Vacia},
};

// Telephone and mobile stand the other way round than on the sheet of veterinarians.
constexpr CampoDireccion kDireccion[] = {{"Direccion", 4},  {"Complemento", 5}, {"Codigo_Postal", 6},
                                         {"Localidad", 7},  {"Provincia", 8},   {"TelefonoP", 9},
                                         {"TelefonoM", 10}, {"Email", 11}};

constexpr int kFechaBaja = 13;

enum Tab { kTabCebo = 1, kTabIPR, kTabManejo };

constexpr DefinicionFicha kDefinicion{"Ganaderos",
                                      {"CT_Estandar", "T_Ganaderos", kCampos},
                                      "Id_Ganadero",
                                      "Debe incluir como mínimo el Código y el Nombre",
                                      2,
                                      12,
                                      "dd/mm/yyyy"};

} // namespace

Ganaderos::Ganaderos(Sesion& sesion, OrdenesDeGanadero ordenes, QWidget* padre)
    : Ficha(sesion, kDefinicion, padre)
    , m_ordenes(std::move(ordenes))
    , m_datos(sesion.conexion)
    , m_tab(new QTabWidget(this))
    , m_encabezado(new QLabel(this)) {
    setObjectName(QStringLiteral("Ganaderos"));
    m_tab->setObjectName(QStringLiteral("TabGanaderos"));
    Barra()[BarraFicha::Eliminar]->setObjectName(QStringLiteral("B_Borrar"));
    Barra()[BarraFicha::Cerrar]->setObjectName(QStringLiteral("B_CerrarGeneral"));
    auto fuente = m_encabezado->font();
    fuente.setPointSizeF(fuente.pointSizeF() * 1.3);
    fuente.setBold(true);
    m_encabezado->setFont(fuente);
    m_encabezado->setObjectName(QStringLiteral("Encabezado"));
    auto lugar = m_encabezado->sizePolicy();
    lugar.setRetainSizeWhenHidden(true); // the tabs stay where they are
    m_encabezado->setSizePolicy(lugar);
    Cuerpo()->addWidget(m_encabezado);
    Cuerpo()->addWidget(m_tab);
    m_tab->addTab(CrearGeneral(), QStringLiteral(" General "));
    CrearCebo();
    m_tab->addTab(m_cebo, QStringLiteral(" Cebo "));
    m_tab->addTab(CrearIPR(), QStringLiteral(" Inicio Periodo Reproductivo "));
    m_tab->addTab(m_datos.CrearManejo(m_tab), QStringLiteral(" Manejo "));
    PonerPestañas();
    LlenarVeterinarios();
    RefrescarEncabezado();
    ConectarPestañas(*m_tab);
    resize(1040, 620); // room for the lists of the yearly data
    TerminarConstruccion(m_bajas[1]);
}

QWidget* Ganaderos::CrearGeneral() {
    auto* general = new QWidget(m_tab);
    auto* todo = new QVBoxLayout(general);
    todo->addWidget(CrearRejilla(general));
    PonerIconoBusDato(0, 0, "Seleccionar ganadero");
    auto* aviso = Explicacion(
        QStringLiteral("(Recuerde que el Ganadero Código 1 siempre se usa para Toros de IA)"), general);
    aviso->setWordWrap(true);
    Rejilla()->addWidget(aviso, 0, 2, 1, 2);

    m_veterinarios = new QComboBox(general);
    m_veterinarios->setObjectName(QStringLiteral("CD_Veterinarios"));
    m_torosComun = new QComboBox(general);
    m_torosComun->setObjectName(QStringLiteral("Combo1"));
    m_torosComun->addItems({QStringLiteral("Sí"), QStringLiteral("No")});
    m_torosComun->setCurrentIndex(-1);
    int columna = 0;
    for (const auto& [texto, combo] :
         {std::pair{"Ve&terinario", m_veterinarios}, {"Toros de Inseminación", m_torosComun}}) {
        auto* rotulo = new QLabel(QString::fromUtf8(texto), general);
        rotulo->setBuddy(combo);
        combo->setAccessibleName(QString::fromUtf8(texto).remove(QLatin1Char('&')));
        Rejilla()->addWidget(rotulo, 10, columna++, Qt::AlignRight | Qt::AlignVCenter);
        Rejilla()->addWidget(combo, 10, columna++);
        Vigilar(combo);
    }
    auto* baja = new QPushButton(QStringLiteral("Dar de Ba&ja..."), general);
    baja->setObjectName(QStringLiteral("B_DarBaja"));
    auto* motivo = new QPushButton(QStringLiteral("&Ver motivo de la Baja"), general);
    motivo->setObjectName(QStringLiteral("B_MotivoBaja"));
    m_bajas = {baja, motivo};
    for (auto* b : m_bajas) {
        b->setAutoDefault(false);
        b->setEnabled(false); // until a farmer is on the sheet
    }
    connect(baja, &QPushButton::clicked, this, [this] { AbrirDarBaja(); });
    connect(motivo, &QPushButton::clicked, this, [this] { MostrarMotivoBaja(); });
    auto* bajas = new QHBoxLayout;
    bajas->addWidget(baja);
    bajas->addWidget(motivo);
    bajas->addStretch();
    Rejilla()->addLayout(bajas, 11, 1, 1, 3);
    for (const int i : {2, 3, 15})
        connect(&Campo(i), &QLineEdit::textChanged, this, [this] { RefrescarEncabezado(); });
    todo->addStretch();
    return general;
}

void Ganaderos::CrearCebo() {
    m_cebo = new PaginaCebo(Base(), m_tab);
    if (m_ordenes.abrirCebo)
        m_cebo->alAbrir = [this](std::optional<double> idCebo) {
            m_ordenes.abrirCebo(this, Clave(), idCebo);
        };
}

QWidget* Ganaderos::CrearIPR() {
    auto* pagina = m_datos.CrearIPR(m_tab);
    m_fichaIPR = new QPushButton(QStringLiteral("Ficha I.P.R."), pagina);
    m_fichaIPR->setObjectName(QStringLiteral("B_FichaIPR"));
    m_fichaIPR->setToolTip(
        QStringLiteral("Las fechas del ganadero, en una ficha (Ctrl+I en la ventana principal)"));
    m_fichaIPR->setAutoDefault(false);
    connect(m_fichaIPR, &QPushButton::clicked, this, [this] { AbrirFichaIPR(); });
    static_cast<QVBoxLayout*>(pagina->layout())->addWidget(m_fichaIPR, 0, Qt::AlignLeft);
    return pagina;
}

// What is typed on the page is saved first: the sheet writes a row that the page shows, too.
void Ganaderos::AbrirFichaIPR() {
    if (!PermiteDejar())
        return;
    m_ordenes.abrirFichaIPR(this, Clave());
    m_datos.FijarGanadero(Clave());
}

// The farm's data are those of a farmer that is in the database: none while one is being added.
void Ganaderos::PonerPestañas() {
    const double ganadero = Modo() == ModoFicha::Añadiendo ? 0 : Clave();
    for (const int i : {kTabCebo, kTabIPR, kTabManejo})
        m_tab->setTabEnabled(i, ganadero != 0);
    m_cebo->FijarGanadero(ganadero);
    m_fichaIPR->setEnabled(ganadero != 0 && m_ordenes.abrirFichaIPR);
    m_datos.FijarGanadero(ganadero);
}

std::vector<PaginaPendiente> Ganaderos::Pendientes() {
    std::vector<PaginaPendiente> pendientes;
    for (auto* pagina : m_datos.Pendientes())
        pendientes.push_back({QString::fromUtf8(pagina->Hoja().nombre),
                              [pagina] { return pagina->Guardar(); }, [pagina] { pagina->Cancelar(); }});
    return pendientes;
}

void Ganaderos::LlenarVeterinarios() {
    for (Recordset rs(Base(), "Select * FROM T_Veterinarios ORDER BY NombreVet"); !rs.Eof(); rs.Siguiente()) {
        m_veterinarios->addItem(
            QString::fromStdString(rs["NombreVet"].Texto() + " " + rs["ApellidosVet"].Texto()));
        m_idsVeterinarios.push_back(rs["Id_Veterinario"].Numero());
    }
    m_veterinarios->setCurrentIndex(-1);
}

void Ganaderos::RefrescarEncabezado() {
    m_encabezado->setText(Texto(2) + QLatin1Char(' ') + Texto(3) + QStringLiteral(" (") + Texto(15) +
                          QLatin1Char(')'));
    m_encabezado->setVisible(!(Texto(2) + Texto(3) + Texto(15)).isEmpty());
}

void Ganaderos::LimpiarPropios() {
    m_veterinarios->setCurrentIndex(-1);
    m_torosComun->setCurrentIndex(-1);
    m_motivoBaja.clear();
    for (auto* b : m_bajas)
        b->setEnabled(false);
    PonerPestañas();
}

void Ganaderos::MostrarPropios(Recordset& rs) {
    m_motivoBaja = QString::fromStdString(rs["MotivoBaja"].Texto());
    for (auto* b : m_bajas)
        b->setEnabled(true);
    const auto it =
        std::find(m_idsVeterinarios.begin(), m_idsVeterinarios.end(), rs["Id_Veterinario"].Numero());
    m_veterinarios->setCurrentIndex(it == m_idsVeterinarios.end() || rs["Id_Veterinario"].Nulo()
                                        ? -1
                                        : static_cast<int>(it - m_idsVeterinarios.begin()));
    m_torosComun->setCurrentIndex(
        m_torosComun->findText(QString::fromStdString(rs["TorosComun"].Texto()), Qt::MatchFixedString));
    LeerDireccion(Base(), rs["Id_Direccion"].Numero(), Clave(), kDireccion,
                  [this](int i, const std::string& texto) { Poner(i, texto); });
    PonerPestañas();
}

// Farmer 1 alone owns the insemination bulls, whatever was chosen.
void Ganaderos::Completar() {
    m_torosComun->setCurrentIndex(CodigoTecleado() == QLatin1String("1") ? 0 : 1);
}

bool Ganaderos::Comprobar() {
    if (m_veterinarios->currentIndex() < 0)
        return Rechazar(QStringLiteral("Debe Indicar el Veterinario"), m_veterinarios);
    return true;
}

void Ganaderos::EscribirPropios(Recordset& rs) {
    if (rs["FechaBaja"].Nulo())
        rs["MotivoBaja"] = Valor(); // without the date the reason is forgotten
    rs["Id_Veterinario"] = m_idsVeterinarios[static_cast<std::size_t>(m_veterinarios->currentIndex())];
    rs["TorosComun"] = m_torosComun->currentText().toStdString();
    m_idDireccion = NumerarDireccion(Base(), rs, [this](int i) { return TextoStd(i); });
}

void Ganaderos::EscribirHijos(double codigo) {
    EscribirDireccion(Base(), m_idDireccion, codigo, kDireccion, [this](int i) { return TextoStd(i); });
}

void Ganaderos::DespuesDeGuardar(double clave) {
    CargarFicha(clave);
}

QString Ganaderos::PreguntaEliminar() const {
    return QStringLiteral("Eliminar Ganadero: ") + Texto(2) + QLatin1Char(' ') + Texto(3);
}

void Ganaderos::Borrar(double clave) {
    if (clave != 0)
        BorrarGanadero(Base(), clave);
}

void Ganaderos::DespuesDeBorrar() {
    Vaciar();
}

void Ganaderos::AbrirDarBaja() {
    if (Clave() == 0)
        return;
    DarBaja dialogo(Base(), Clave(), Texto(2) + QLatin1Char(' ') + Texto(3), this);
    if (dialogo.exec() != QDialog::Accepted)
        return;
    Poner(kFechaBaja, dialogo.Fecha().toStdString());
    m_motivoBaja = dialogo.Motivo();
}

void Ganaderos::MostrarMotivoBaja() {
    Avisar(this, TipoMensaje::Informacion, QStringLiteral("Causa de la Baja."), m_motivoBaja);
}

void Ganaderos::BuscarDato(int) {
    if (const auto clave = ElegirGanadero(LaSesion(), this); clave && PermiteCargarOtro())
        CargarFicha(*clave);
}

} // namespace pastorix
