#include "reproduction/PaginaTernero.h"

#include "frame/Mensajes.h"
#include "frame/ficha/Aspecto.h"
#include "reproduction/CamposDeParto.h"
#include "reproduction/datos/Destete.h"
#include "reproduction/datos/Limites.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace pastorix {

namespace t = campo_ternero;

PaginaTernero::PaginaTernero(Conexion& c, int ternero, QWidget* padre)
    : QWidget(padre)
    , m_c(c)
    , m_ternero(ternero)
    , m_hoja(new HojaDeCampos(HojaDeTernero(ternero), this)) {
    auto* todo = new QVBoxLayout(this);
    todo->setSpacing(4);
    todo->addWidget(m_hoja->CrearRejilla(this, 0));
    m_hoja->Rejilla()->setVerticalSpacing(4);
    const auto buscar = [this] {
        if (alBuscarToro)
            alBuscarToro();
    };
    DarTecla(*m_hoja->PonerIcono(ternero, t::Semental, QStringLiteral("Seleccionar semental padre"), buscar),
             QKeySequence(Qt::Key_F3));
    m_hoja->Campo(t::IdSemental).hide();
    m_hoja->Rotulo(t::IdSemental)->hide();
    m_fichaCebo = new QPushButton(QStringLiteral("Fi&cha de Cebo"), this);
    m_fichaCebo->setObjectName(ternero == 0 ? QStringLiteral("B_FichaCebo")
                                            : QStringLiteral("B_FichaCeboT2"));
    m_fichaCebo->setAutoDefault(false);
    m_avisoCebo = new QLabel(this);
    m_avisoCebo->setObjectName(ternero == 0 ? QStringLiteral("AvisoCebo") : QStringLiteral("AvisoCeboT2"));
    auto* cebo = new QHBoxLayout;
    cebo->addWidget(m_fichaCebo);
    cebo->addWidget(m_avisoCebo, 1);
    todo->addLayout(cebo);
    todo->addWidget(Titular(QStringLiteral("Indices           Productivos"), this));
    todo->addWidget(CrearDestete());
    todo->addWidget(m_hoja->CrearRejilla(this, 2), 1);
    todo->addWidget(m_hoja->CrearPie(this));
    Conectar();
    PonerBoton();
}

QWidget* PaginaTernero::CrearDestete() {
    auto* destete = m_hoja->CrearRejilla(this, 1);
    m_hoja->Rejilla()->setVerticalSpacing(4);
    m_avisoDestete =
        new QLabel(QStringLiteral("Las cifras del destete no son de esta fecha de parto"), destete);
    m_recalcular = new QPushButton(QStringLiteral("Recalcular (F9)"), destete);
    m_recalcular->setObjectName(m_ternero == 0 ? QStringLiteral("B_Recalcular")
                                               : QStringLiteral("B_RecalcularT2"));
    m_recalcular->setAutoDefault(false);
    connect(m_recalcular, &QPushButton::clicked, this, [this] { Calcular(); });
    m_hoja->Rejilla()->addWidget(m_avisoDestete, 2, 0, 1, 4);
    m_hoja->Rejilla()->addWidget(m_recalcular, 2, 4, 1, 2, Qt::AlignLeft);
    FijarFechaDeParto({}, false);
    return destete;
}

void PaginaTernero::Conectar() {
    // The figures follow what is typed, not what is read.
    for (const int campo : {t::PesoNac, t::FechaDestete, t::FechaPeso, t::Peso})
        connect(&m_hoja->Campo(campo), &QLineEdit::textEdited, this, [this] { Calcular(); });
    connect(&m_hoja->Campo(t::CuartosPerdidos), &QLineEdit::textEdited, this, [this](const QString& texto) {
        if (alCambiarCuartos)
            alCambiarCuartos(texto);
    });
    connect(&m_hoja->Campo(t::Semental), &QLineEdit::textEdited, this,
            [this] { m_hoja->Poner(t::IdSemental, {}); });
    connect(m_fichaCebo, &QPushButton::clicked, this, [this] {
        if (alPedirCebo)
            alPedirCebo();
    });
    m_hoja->alDecidir = [this](QComboBox& combo) { AlDecidir(combo); };
    m_hoja->alDejar = [this](QWidget&) {
        Repasar();
        RevisarCebo();
    };
}

void PaginaTernero::Mostrar(Recordset& rs, const TerneroDeParto& claves) {
    m_claves = claves;
    m_hoja->Mostrar(rs);
    const bool conFechas = claves.fechaParto && m_hoja->FechaDe(t::FechaDestete);
    if (!rs["EdadDestete"].Nulo())
        m_hoja->Poner(t::EdadDestete, EdadMostrada(rs["EdadDestete"].Texto(), conFechas));
    m_teniaCebo = TieneCebo(m_c, claves);
    m_retirado.clear();
    FijarFechaDeParto(claves.fechaParto, false);
    PonerBoton();
    Repasar();
    RevisarCebo();
    m_hoja->DarPorGuardado();
}

void PaginaTernero::Limpiar() {
    m_claves = {};
    m_hoja->Limpiar();
    PonerBoton();
}

void PaginaTernero::DarPorGuardado(const CicloDeVaca& parto) {
    m_claves.parto = parto;
    m_hoja->DarPorGuardado();
    m_avisoCebo->clear();
}

TerneroDeParto PaginaTernero::Ternero() const {
    auto ternero = m_claves;
    const auto& combos = CombosDe(m_ternero);
    ternero.sexo = m_hoja->Combo(combos.sexo).currentText().toStdString();
    ternero.fechaDestete = m_hoja->FechaDe(t::FechaDestete);
    ternero.regSaneam = m_hoja->TextoStd(t::RegSaneam);
    ternero.origen = m_hoja->Combo(combos.origen).currentText().toStdString();
    return ternero;
}

void PaginaTernero::FijarFechaDeParto(std::optional<Fecha> fecha, bool cambiada) {
    m_claves.fechaParto = fecha;
    const bool quedan =
        cambiada && !(m_hoja->Texto(t::EdadDestete) + m_hoja->Texto(t::PesoDestete)).isEmpty();
    for (QWidget* w : {static_cast<QWidget*>(m_avisoDestete), static_cast<QWidget*>(m_recalcular)})
        w->setVisible(quedan);
}

void PaginaTernero::Calcular() {
    const auto f =
        CalcularDestete({m_claves.fechaParto, m_hoja->FechaDe(t::FechaDestete), m_hoja->FechaDe(t::FechaPeso),
                         m_hoja->TextoStd(t::PesoNac), m_hoja->TextoStd(t::Peso)});
    m_hoja->Poner(t::EdadDestete, f.edadDestete);
    m_hoja->Poner(t::PesoDestete, f.pesoDestete);
    m_hoja->Poner(t::GDestete, f.gDestete);
    FijarFechaDeParto(m_claves.fechaParto, false);
}

void PaginaTernero::Repasar() {
    m_hoja->Señalar(t::PesoNac, ReparoDePesoNac(m_hoja->TextoStd(t::PesoNac)));
    m_hoja->Señalar(t::EdadDestete, ReparoDeEdadDestete(m_hoja->TextoStd(t::EdadDestete)));
}

void PaginaTernero::PonerCuartos(const QString& texto) {
    m_hoja->Poner(t::CuartosPerdidos, texto.toStdString());
}

// --- fattening

bool PaginaTernero::EsCebo() const {
    return m_hoja->Combo(CombosDe(m_ternero).destino).currentText().toUpper() == QLatin1String("CEBO");
}

void PaginaTernero::PonerBoton() {
    m_fichaCebo->setEnabled(EsCebo());
}

void PaginaTernero::AlDecidir(QComboBox& combo) {
    const auto& combos = CombosDe(m_ternero);
    if (&combo == &m_hoja->Combo(combos.destino))
        DecidirDestino();
    else if (&combo == &m_hoja->Combo(combos.origen) && alElegirOrigen)
        alElegirOrigen();
    RevisarCebo();
}

void PaginaTernero::DecidirDestino() {
    PonerBoton();
    try {
        if (EsCebo())
            CrearCebo(m_c, Ternero(), m_retirado);
        else if (auto retirado = QuitarCebo(m_c, Ternero()); !retirado.empty())
            m_retirado = std::move(retirado);
    } catch (const std::exception& e) {
        AvisarError(window(), e);
    }
}

void PaginaTernero::DeshacerCebo() {
    const bool tiene = TieneCebo(m_c, m_claves);
    if (m_teniaCebo && !tiene)
        CrearCebo(m_c, m_claves, m_retirado);
    else if (!m_teniaCebo && tiene)
        QuitarCebo(m_c, m_claves);
}

void PaginaTernero::RevisarCebo() {
    try {
        QStringList cambian;
        if (m_claves.idParto != 0 && EsCebo())
            for (const auto& campo : ActualizarCebo(m_c, Ternero(), false))
                cambian << QString::fromStdString(campo);
        m_avisoCebo->setText(cambian.isEmpty() ? QString()
                                               : QStringLiteral("Al guardar cambiará en la ficha de cebo: ") +
                                                     cambian.join(QStringLiteral(", ")));
    } catch (const ErrorAlmacen& e) {
        m_avisoCebo->setText(QStringLiteral("No se puede mirar la ficha de cebo: ") +
                             QString::fromUtf8(e.what()));
    }
}

} // namespace pastorix
