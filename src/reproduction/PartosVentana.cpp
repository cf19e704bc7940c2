// The calving: its window.
#include "frame/Atajos.h"
#include "frame/Mensajes.h"
#include "frame/Principal.h"
#include "frame/Ventanas.h"
#include "frame/ficha/Pestanas.h"
#include "registers/vacas/ObsControlRebano.h"
#include "reproduction/CamposDeParto.h"
#include "reproduction/EncabezadoVaca.h"
#include "reproduction/PaginaTernero.h"
#include "reproduction/Partos.h"
#include "reproduction/PiezasDeCiclo.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace pastorix {

namespace g = campo_parto;

Partos::Partos(Principal& marco, const VacaEnMano& vaca, const CicloDeVaca& ciclo, QWidget* padre)
    : QDialog(padre)
    , m_marco(marco)
    , m_sesion(marco.LaSesion())
    , m_vaca(vaca)
    , m_ciclo(ciclo)
    , m_hoja(new HojaDeCampos(HojaDeParto(), this))
    , m_encabezado(new EncabezadoVaca({{QStringLiteral("Ct_Cab(0)"), QStringLiteral("Ganadero")},
                                       {QStringLiteral("Ct_Cab(1)"), {}},
                                       {QStringLiteral("Ct_Cab(2)"), QStringLiteral("Vaca")},
                                       {QStringLiteral("Ct_Cab(3)"), QStringLiteral("Crotal")}},
                                      this))
    , m_tab(new QTabWidget(this))
    , m_avisos(new QLabel(this)) {
    setObjectName(QStringLiteral("Partos"));
    m_tab->setObjectName(QStringLiteral("TabGeneral"));
    m_avisos->setObjectName(QStringLiteral("Avisos"));
    m_avisos->setWordWrap(true);
    m_tab->addTab(CrearGeneral(), QStringLiteral(" Ficha General"));
    for (int i = 0; i < 2; ++i) {
        m_terneros[static_cast<std::size_t>(i)] = new PaginaTernero(Base(), i, m_tab);
        m_tab->addTab(m_terneros[static_cast<std::size_t>(i)], {});
        Conectar(i);
    }
    PonerPestañas(false);
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(m_encabezado);
    todo->addWidget(m_avisos);
    CuerpoDesplazable(*this, *todo)->addWidget(m_tab);
    todo->addLayout(CrearPie());
    ConectarPestañas(*m_tab);
    resize(1040, 560);
    RecordarVentana(*this);
    m_hoja->Campo(g::Fecha).setFocus();
}

QWidget* Partos::CrearGeneral() {
    auto* general = new QWidget(m_tab);
    auto* todo = new QVBoxLayout(general);
    todo->addWidget(m_hoja->CrearRejilla(general, 0), 0, Qt::AlignLeft);
    todo->addWidget(m_hoja->CrearRejilla(general, 1));
    todo->addStretch();
    todo->addWidget(m_hoja->CrearPie(general));
    m_hoja->Poner(g::FechaCompra,
                  FechaDeVaca(m_vaca.fechaCompra, m_vaca.textoCompra, "dd/mm/yy").toStdString());
    m_hoja->Poner(g::FechaBaja, FechaDeVaca(m_vaca.fechaBaja, m_vaca.textoBaja, "dd/mm/yy").toStdString());
    m_hoja->alDejar = [this](QWidget& campo) {
        if (&campo == &m_hoja->Campo(g::Fecha))
            AlDejarFecha();
        Repasar();
    };
    m_hoja->alDecidir = [this](QComboBox& combo) {
        if (&combo == &m_hoja->Combo("Cd_G(2)"))
            AlDecidirGemelar();
    };
    connect(&m_hoja->Marca(0), &QCheckBox::clicked, this, [this] { RotularCompletos(m_hoja->Marca(0)); });
    return general;
}

void Partos::Conectar(int i) {
    auto* ternero = m_terneros[static_cast<std::size_t>(i)];
    const auto otro = [this, i] { return m_terneros[static_cast<std::size_t>(1 - i)]; };
    ternero->alCambiarCuartos = [otro](const QString& texto) { otro()->PonerCuartos(texto); };
    ternero->alPedirCebo = [this, i] { AbrirCebo(i); };
    ternero->alBuscarToro = [this, i] { BuscarToro(i); };
    if (i == 0) // the fattening record follows the origin of the first calf at once
        ternero->alElegirOrigen = [this, ternero] {
            try {
                EnGrupo(Base(), [&] { ActualizarCebo(Base(), ternero->Ternero()); });
            } catch (const std::exception& e) {
                AvisarError(this, e);
            }
        };
}

void Partos::PonerPestañas(bool gemelar) {
    m_tab->setTabText(1, gemelar ? QStringLiteral(" Ficha - Ternero 1") : QStringLiteral(" Ficha - Ternero"));
    m_tab->setTabText(2, QStringLiteral(" Ternero 2"));
    m_tab->setTabVisible(2, gemelar && m_filas.size() > 1);
}

QLayout* Partos::CrearPie() {
    auto* pie = new QHBoxLayout;
    PonerBoton(*pie, {"B_Anterior", "", "Parto A&nterior", "Ctrl+Re Pág", Qt::CTRL | Qt::Key_PageUp},
               [this] { Pasar(-1); });
    PonerBoton(*pie, {"B_Siguiente", "", "Parto Siguien&te", "Ctrl+Av Pág", Qt::CTRL | Qt::Key_PageDown},
               [this] { Pasar(1); });
    PonerBoton(*pie, {"B_IrCubricion", "", "Ir a Cu&briciones", ""}, [this] { IrACubriciones(); });
    pie->addStretch();
    PonerBoton(*pie, {"B_Aceptar", "aceptar", "&Aceptar", "Ctrl+S", Qt::CTRL | Qt::Key_S},
               [this] { Aceptar(); });
    PonerAtajo(*this, Qt::CTRL | Qt::Key_E, QStringLiteral("Observaciones para el control del rebaño"),
               [this] { ObsControlRebaño(Base(), m_vaca.idVaca, this).exec(); });
    PonerAtajo(*this, Qt::Key_F9, QStringLiteral("Calcular de nuevo los datos del destete"), [this] {
        for (std::size_t i = 0; i < m_terneros.size() && i < m_filas.size(); ++i)
            m_terneros[i]->Calcular();
    });
    try {
        m_encabezado->PonerVaca(Base(), m_vaca);
    } catch (const std::exception& e) {
        AvisarError(this, e);
    }
    return pie;
}

} // namespace pastorix
