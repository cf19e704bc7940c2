// The cow's sheet: its layout, and what its controls are bound to.
#include "frame/Atajos.h"
#include "frame/ficha/Aspecto.h"
#include "frame/ficha/Pestanas.h"
#include "registers/EncabezadoGanadero.h"
#include "registers/sanidad/PaginaCC.h"
#include "registers/sanidad/PaginaIBR.h"
#include "registers/sanidad/PaginaMamitis.h"
#include "registers/sanidad/PaginaNeospora.h"
#include "registers/vacas/CamposDeVaca.h"
#include "registers/vacas/FranjaSituacion.h"
#include "registers/vacas/PaginaCiclos.h"
#include "registers/vacas/Vacas.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QVBoxLayout>

namespace pastorix {

using namespace campo_vaca;

Vacas::Vacas(Sesion& sesion, const OrdenesDeVaca& ordenes, QWidget* padre)
    : Ficha(sesion, kFichaDeVaca, padre)
    , m_tab(new QTabWidget(this)) {
    setObjectName(QStringLiteral("Vacas"));
    m_tab->setObjectName(QStringLiteral("TabVacas"));
    Barra()[BarraFicha::Eliminar]->setObjectName(QStringLiteral("B_Borrar"));
    Construir();
    ConectarCiclos(ordenes);
    ConectarTeclas();
    VaciarPaginas();
    setTabOrder(&Campo(Crotal), m_situacion->Control());
    setTabOrder(m_situacion->Control(), m_tab);
    QWidget* ultimo = m_tab;
    for (auto* w = m_tab->nextInFocusChain(); w != m_tab; w = w->nextInFocusChain())
        if (m_tab->isAncestorOf(w))
            ultimo = w;
    resize(1180, 620); // of 1280 x 720 it leaves the frame its menu
    TerminarConstruccion(ultimo);
}

void Vacas::Construir() {
    Cuerpo()->addWidget(CrearCabecera());
    Cuerpo()->addWidget(m_tab, 1);
    m_partos = new PaginaCiclos(Base(), kPartosDeVaca, m_tab);
    m_cubriciones = new PaginaCiclos(Base(), kCubricionesDeVaca, m_tab);
    m_mamitis = new PaginaMamitis(Base(), m_tab);
    m_mamitis->PonerCuartosPerdidos(CrearRejilla(m_mamitis, hoja_vaca::Mamitis));
    m_mamitis->puedeTocar = [this] { return Clave() != 0 || Editando(); };
    m_mamitis->alTocar = [this] { EntrarEnModificar(); };
    for (auto* campo :
         m_mamitis->findChildren<QLineEdit*>(QRegularExpression(QStringLiteral("^CT_Estandar"))))
        Vigilar(campo); // Enter moves on there too
    m_sanidad = {new PaginaCC(Base(), m_tab), new PaginaIBR(Base(), m_tab),
                 new PaginaNeospora(Base(), m_tab)};
    m_tab->addTab(CrearGeneral(), QStringLiteral(" General "));
    m_tab->addTab(m_partos, QStringLiteral(" Partos "));
    m_tab->addTab(m_cubriciones, QStringLiteral(" Cubriciones "));
    m_tab->addTab(m_mamitis, QStringLiteral(" Mamitis "));
    m_tab->addTab(m_sanidad[0], QStringLiteral(" C.C. "));
    m_tab->addTab(CrearRejilla(m_tab, hoja_vaca::Desecho), QStringLiteral(" Desecho "));
    m_tab->addTab(CrearRejilla(m_tab, hoja_vaca::Patologia), QStringLiteral(" Patología "));
    m_tab->addTab(m_sanidad[1], QStringLiteral(" IBR/BVD "));
    m_tab->addTab(m_sanidad[2], QStringLiteral(" Neospora "));
    connect(m_tab, &QTabWidget::currentChanged, this, [this](int i) { AlCambiarDePestaña(i); });
}

QWidget* Vacas::CrearCabecera() {
    auto* cabecera = new QWidget(this);
    auto* todo = new QVBoxLayout(cabecera);
    todo->setContentsMargins(0, 0, 0, 0);
    m_ganadero = new EncabezadoGanadero(Base(), 1, cabecera);
    m_ganadero->alBuscar = [this] { BuscarDato(1); };
    m_ganadero->layout()->addWidget(
        Explicacion(QStringLiteral("CTRL + E para Controles de Rebaño"), m_ganadero));
    todo->addWidget(m_ganadero);
    todo->addWidget(CrearRejilla(cabecera, hoja_vaca::Cabecera));
    PonerIconoBusDato(0, Codigo, "Seleccionar vaca");
    m_situacion = new FranjaSituacion(cabecera);
    m_situacion->alPasar = [this](int paso) { PasarAVecina(paso); };
    m_situacion->alControl = [this] { AbrirObservaciones(); };
    todo->addWidget(m_situacion);
    Campo(Crotal).Explicar(QStringLiteral(
        "Intro busca el crotal; las flechas recorren los que acaban en las mismas cuatro cifras"));
    return cabecera;
}

QWidget* Vacas::CrearGeneral() {
    auto* general = new QWidget(m_tab);
    auto* todo = new QVBoxLayout(general);
    todo->addWidget(CrearRejilla(general, hoja_vaca::General));
    for (const auto& [fila, texto] : {std::pair{3, "Genealogía"}, {6, "Valoración"}}) {
        auto* titular = Titular(QString::fromUtf8(texto), general);
        titular->setContentsMargins(0, 10, 0, 2);
        Rejilla()->addWidget(titular, fila, 0, 1, 6);
    }
    PonerIconoBusDato(2, NombrePadre, "Seleccionar padre", QKeySequence(Qt::Key_F6));
    PonerIconoBusDato(3, NombreMadre, "Seleccionar madre", QKeySequence(Qt::Key_F7));
    todo->addStretch();
    connect(&Combo("CD_Cularidad"), &QComboBox::activated, this, [this] { ComponerNombre(); });
    return general;
}

void Vacas::ConectarCiclos(const OrdenesDeVaca& ordenes) {
    const auto conCiclo = [this](auto orden) -> std::function<void(const CicloDeVaca&)> {
        if (!orden)
            return {};
        return [this, orden](const CicloDeVaca& ciclo) { orden(this, EnMano(), ciclo); };
    };
    const auto conVaca = [this](auto orden) -> std::function<void()> {
        if (!orden)
            return {};
        return [this, orden] { orden(this, EnMano()); };
    };
    m_partos->FijarOrdenes(conCiclo(ordenes.abrirParto), conVaca(ordenes.añadirParto));
    m_cubriciones->FijarOrdenes(conCiclo(ordenes.abrirCubricion), conVaca(ordenes.añadirCubricion));
    for (auto* pagina : {m_partos, m_cubriciones}) {
        pagina->alCambiar = [this] { AlCambiarCiclos(); };
        pagina->puedeOperar = [this] {
            return !Editando() ||
                   Rechazar(QStringLiteral("Debe Guardar los cambios antes de efectuar esta operación"),
                            m_tab);
        };
    }
}

void Vacas::ConectarTeclas() {
    PonerAtajo(*this, Qt::CTRL | Qt::Key_E, QStringLiteral("Observaciones para el control del rebaño"),
               [this] { AbrirObservaciones(); });
    for (const auto& [pagina, tecla, texto, que] :
         {std::tuple{m_cubriciones, Qt::Key_F5, "%1; F5 abre la última", "Abrir su última cubrición"},
          {m_partos, Qt::Key_F8, "%1; F8 abre el último", "Abrir su último parto"}}) {
        PonerAtajo(*this, tecla, QString::fromUtf8(que), [pagina = pagina] { pagina->AbrirUltimo(); });
        const int i = m_tab->indexOf(pagina);
        m_tab->setTabToolTip(i, QString::fromUtf8(texto).arg(m_tab->tabToolTip(i)));
    }
    Campo(Crotal).installEventFilter(this); // before the fields' own
    ConectarPestañas(*m_tab);
}

} // namespace pastorix
