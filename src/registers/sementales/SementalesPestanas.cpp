// The window of the bull sheet: heading and tabs.
#include "frame/ficha/Aspecto.h"
#include "registers/EncabezadoGanadero.h"
#include "registers/datos/ReglasSemental.h"
#include "registers/sementales/DefinicionSementales.h"
#include "registers/sementales/RejillaPatologia.h"
#include "registers/sementales/Sementales.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

namespace pastorix {

namespace {

// A line of its own that says what the fields below it are about.
QLabel* Seccion(const char* texto, QWidget* padre) {
    auto* rotulo = Titular(QString::fromUtf8(texto), padre);
    rotulo->setContentsMargins(0, 6, 0, 0);
    return rotulo;
}

} // namespace

QWidget* Sementales::CrearEncabezado() {
    auto* encabezado = new QWidget(this);
    auto* todo = new QVBoxLayout(encabezado);
    todo->setContentsMargins(0, 0, 0, 0);
    m_ganadero = new EncabezadoGanadero(Base(), 1, encabezado);
    todo->addWidget(m_ganadero);
    todo->addWidget(CrearRejilla(encabezado));
    PonerIconoBusDato(0, 0, "Seleccionar semental");
    Rejilla()->setContentsMargins(0, 0, 0, 0);
    Rejilla()->setColumnStretch(1, 0); // the code is short
    return encabezado;
}

QWidget* Sementales::CrearGeneral() {
    auto* general = new QWidget(m_tab);
    auto* todo = new QVBoxLayout(general);
    todo->addWidget(CrearRejilla(general, 1));
    Rejilla()->addWidget(Seccion("Genealogía", general), 3, 0, 1, 6);
    Rejilla()->addWidget(Seccion("Valoración", general), 6, 0, 1, 6);
    PonerIconoBusDato(2, 7, "Seleccionar padre", QKeySequence(Qt::Key_F6));
    PonerIconoBusDato(3, 10, "Seleccionar madre", QKeySequence(Qt::Key_F7));
    PonerIconoBusDato(4, 13, "Seleccionar por mérito", QKeySequence(Qt::Key_F8));
    todo->addStretch();
    return general;
}

QWidget* Sementales::CrearPatologias() {
    auto* patologias = new QWidget(m_tab);
    auto* todo = new QGridLayout(patologias);
    int fila = 0;
    for (const auto* d : {&RejillaSem(), &RejillaSemR()}) {
        auto* rejilla = new RejillaPatologia(*d, patologias);
        rejilla->edadDe = [this](const std::string& año) {
            return EdadEnAño(Hoja().FechaDe(kFechaNac), año);
        };
        rejilla->antesDeQuitar = [this] { EntrarEnModificar(); };
        rejilla->alCambiar = [this, rejilla] { GuardarRejilla(*rejilla); };
        todo->addWidget(Seccion(d->nombre, patologias), fila * 2, 0);
        todo->addWidget(rejilla, fila * 2 + 1, 0);
        m_rejillas[static_cast<std::size_t>(fila++)] = rejilla;
    }
    todo->addWidget(CrearObservaciones(patologias), 0, 1, 4, 1);
    todo->setColumnStretch(0, 5);
    todo->setColumnStretch(1, 2);
    return patologias;
}

QWidget* Sementales::CrearObservaciones(QWidget* padre) {
    auto* caja = CrearRejilla(padre, 2);
    Rejilla()->setContentsMargins(12, 0, 0, 0);
    auto* rotulo = findChild<QLabel*>(QStringLiteral("ET_Estandar(%1)").arg(kObsPatologia));
    for (QWidget* w : {static_cast<QWidget*>(rotulo), static_cast<QWidget*>(&Memo(kObsPatologia))})
        Rejilla()->removeWidget(w);
    Rejilla()->addWidget(rotulo, 0, 0, 1, 2);
    Rejilla()->addWidget(&Memo(kObsPatologia), 1, 0, 1, 2);
    auto* botones = new QHBoxLayout;
    botones->setSpacing(6);
    botones->addStretch();
    std::size_t i = 0;
    for (const auto& [nombre, texto, orden] :
         {std::tuple{"B_GuardarPato", "Guardar observaciones", &Sementales::GuardarPato},
          {"B_CancelarPato", "Cancelar", &Sementales::CancelarPato}}) {
        auto* boton = new QPushButton(QString::fromUtf8(texto), caja);
        boton->setObjectName(QString::fromUtf8(nombre));
        boton->setAccessibleName(boton->text().section(QLatin1Char(' '), 0, 0) +
                                 QStringLiteral(" observaciones"));
        boton->setAutoDefault(false);
        connect(boton, &QPushButton::clicked, this, orden);
        botones->addWidget(boton);
        m_botonesPato[i++] = boton;
    }
    Rejilla()->addLayout(botones, 2, 0, 1, 2);
    return caja;
}

// Reading order, whatever order the controls were made in.
void Sementales::OrdenarTabulador() {
    const auto cadena = [](std::initializer_list<QWidget*> controles) {
        QWidget* anterior = nullptr;
        for (auto* control : controles) {
            if (anterior)
                setTabOrder(anterior, control);
            anterior = control;
        }
    };
    const auto icono = [this](int i) {
        return findChild<QToolButton*>(QStringLiteral("IconoBusDato(%1)").arg(i));
    };
    cadena({m_ganadero->Icono(),
            &Campo(0),
            icono(0),
            &Campo(1),
            &Campo(2),
            m_tab->tabBar(),
            &Combo("CD_Raza"),
            &Combo("CD_Cularidad"),
            &Combo("ToroP"),
            &Campo(3),
            &Campo(4),
            &Campo(5),
            &Campo(kFechaNac),
            &Campo(18),
            &Combo("CB_Origen"),
            &Campo(7),
            icono(2),
            &Campo(8),
            &Campo(9),
            &Campo(10),
            icono(3),
            &Campo(11),
            &Campo(12),
            &Campo(13),
            icono(4),
            &Campo(14),
            &Campo(24),
            &Campo(15),
            &Campo(25),
            &Campo(16),
            &Campo(26),
            &Campo(17),
            &Campo(27),
            m_rejillas[0],
            m_rejillas[1],
            &Memo(kObsPatologia),
            m_botonesPato[0],
            m_botonesPato[1],
            &Campo(19),
            &Combo("CD_CBaja"),
            &Campo(kOtraCausa),
            &Memo(kObsBaja)});
}

} // namespace pastorix
