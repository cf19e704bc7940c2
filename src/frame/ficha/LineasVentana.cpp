// The window of the lines: grid, strip of fields, keys.
#include "frame/Iconos.h"
#include "frame/Tablas.h"
#include "frame/ficha/Aspecto.h"
#include "frame/ficha/CampoTexto.h"
#include "frame/ficha/LineasEditables.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace pastorix {

LineasEditables::LineasEditables(const DefinicionLineas& definicion, QWidget* padre)
    : QWidget(padre)
    , m_definicion(definicion)
    , m_rejilla(new QTableWidget(0, static_cast<int>(definicion.columnas.size()), this)) {
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->addWidget(m_rejilla, 1);
    CrearRejilla();
    CrearFranja();
    setFocusProxy(m_rejilla);
    Pintar();
    Rotular();
}

void LineasEditables::CrearRejilla() {
    QStringList titulos;
    for (const auto& c : m_definicion.aspectos)
        titulos << QString::fromUtf8(c.titulo);
    m_rejilla->setObjectName(QString::fromUtf8(m_definicion.rejilla));
    m_rejilla->setAccessibleName(QString::fromUtf8(m_definicion.nombre));
    m_rejilla->setHorizontalHeaderLabels(titulos);
    const auto& metrica = m_rejilla->fontMetrics();
    for (int i = 0; i < m_rejilla->columnCount(); ++i) {
        const auto& c = m_definicion.aspectos[static_cast<std::size_t>(i)];
        m_rejilla->setColumnWidth(i, std::max(metrica.averageCharWidth() * (c.caracteres + 2) + 8,
                                              metrica.horizontalAdvance(titulos[i]) + 16));
        m_rejilla->setColumnHidden(i, c.caracteres == 0);
        m_rejilla->horizontalHeaderItem(i)->setToolTip(QString::fromUtf8(c.explicacion));
    }
    VestirTabla(*m_rejilla);
    m_rejilla->installEventFilter(this);
    if (m_definicion.clicSoloLimpia) {
        connect(m_rejilla, &QTableWidget::cellClicked, this, [this] {
            if (Resolver())
                Abandonar();
        });
    } else {
        connect(m_rejilla, &QTableWidget::currentCellChanged, this, [this](int fila, int, int antes, int) {
            if (fila != antes)
                Pasar(fila);
        });
        connect(m_rejilla, &QTableWidget::cellClicked, this, [this](int fila, int) { Pasar(fila); });
    }
    connect(m_rejilla, &QTableWidget::cellDoubleClicked, this,
            [this](int, int) { TeclaDeRejilla(Qt::Key_Return); });
}

void LineasEditables::CrearFranja() {
    auto* franja = new QHBoxLayout;
    for (std::size_t i = 0; i < m_definicion.columnas.size(); ++i) {
        const auto& aspecto = m_definicion.aspectos[i];
        if (!aspecto.control)
            continue;
        auto* rotulo = new QLabel(QString::fromUtf8(aspecto.titulo), this);
        auto* control = CrearEntrada(i);
        rotulo->setBuddy(control);
        rotulo->setVisible(aspecto.caracteres > 0);
        auto* pareja = new QVBoxLayout;
        pareja->setSpacing(1);
        pareja->addWidget(rotulo);
        pareja->addWidget(control);
        franja->addLayout(pareja);
    }
    franja->addStretch();
    franja->addLayout(CrearMandos());
    static_cast<QVBoxLayout*>(layout())->addLayout(franja);
}

QWidget* LineasEditables::CrearEntrada(std::size_t columna) {
    const bool esAño = static_cast<int>(columna) == m_definicion.columnaAño;
    const auto& entrada = m_entradas.emplace_back(m_definicion.columnas[columna],
                                                  m_definicion.aspectos[columna], columna, esAño, this);
    const auto tecleado = [this, columna] {
        if (alEntrar)
            alEntrar(columna);
        if (alTeclear)
            alTeclear();
    };
    // Two lists of one page may have columns of one name.
    auto* control = entrada.Control();
    control->setAccessibleName(
        QStringLiteral("%1 (%2)").arg(control->accessibleName(), QString::fromUtf8(m_definicion.nombre)));
    if (entrada.Combo()) {
        connect(entrada.Combo(), &QComboBox::activated, this, tecleado);
        if (entrada.Combo()->isEditable())
            connect(entrada.Combo()->lineEdit(), &QLineEdit::textEdited, this, tecleado);
    } else {
        connect(entrada.Texto(), &QLineEdit::textEdited, this, tecleado);
    }
    entrada.Control()->installEventFilter(this);
    return entrada.Control();
}

QLayout* LineasEditables::CrearMandos() {
    const auto boton = [this](const char* icono, const QString& texto, bool visible,
                              void (LineasEditables::*orden)()) {
        auto* b = new QToolButton(this);
        b->setIcon(Icono(icono));
        b->setToolTip(texto);
        b->setAccessibleName(QStringLiteral("%1: %2").arg(texto, QString::fromUtf8(m_definicion.nombre)));
        b->setAutoRaise(true);
        b->setVisible(visible);
        connect(b, &QToolButton::clicked, this, [this, orden] { (this->*orden)(); });
        return b;
    };
    m_estado = Explicacion({}, this);
    const bool altas = m_definicion.conAltas;
    m_poner =
        boton("aceptar", QStringLiteral("Poner en la lista (Intro)"), true, &LineasEditables::Confirmar);
    m_nueva = boton("anadir", QStringLiteral("Línea nueva (Insert)"), altas, &LineasEditables::Nueva);
    m_quitar = boton("eliminar", QStringLiteral("Eliminar línea (Supr)"), altas, &LineasEditables::Quitar);
    auto* botones = new QHBoxLayout;
    m_mandos = botones;
    botones->setSpacing(2);
    for (auto* b : {m_poner, m_nueva, m_quitar})
        botones->addWidget(b);
    auto* mandos = new QVBoxLayout; // as high as a field with its caption
    mandos->setSpacing(1);
    mandos->addWidget(m_estado, 0, Qt::AlignRight);
    mandos->addLayout(botones);
    return mandos;
}

void LineasEditables::PonerMando(QWidget* mando) {
    static_cast<QHBoxLayout*>(m_mandos)->insertWidget(0, mando);
}

// False when there is nothing to abandon: the sheet's own Escape.
bool LineasEditables::Escapar() {
    if (m_fila < 0 && !EnCurso())
        return false;
    Abandonar();
    return true;
}

bool LineasEditables::TeclaDeRejilla(int tecla) {
    switch (tecla) {
    case Qt::Key_Insert:
        Nueva();
        return true;
    case Qt::Key_Delete:
        Quitar();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Pasar(m_rejilla->currentRow());
        if (!m_entradas.empty())
            m_entradas.front().Control()->setFocus();
        return true;
    default:
        return false;
    }
}

bool LineasEditables::TeclaDeEntrada(QObject* objeto, int tecla) {
    switch (tecla) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_definicion.introAcepta || objeto == m_entradas.back().Control()) {
            Confirmar();
        } else {
            const auto it = std::find_if(m_entradas.begin(), m_entradas.end(),
                                         [&](const auto& e) { return e.Control() == objeto; });
            (it + 1)->Control()->setFocus(Qt::TabFocusReason);
        }
        return true;
    case Qt::Key_Insert:
        Nueva();
        return true;
    case Qt::Key_Delete: // takes a choice back
        if (auto* combo = qobject_cast<QComboBox*>(objeto); combo && !combo->isEditable()) {
            combo->setCurrentIndex(0);
            Q_EMIT combo->activated(0);
            return true;
        }
        return false;
    default:
        return false;
    }
}

bool LineasEditables::eventFilter(QObject* objeto, QEvent* evento) {
    if (EsRuedaAjena(objeto, *evento))
        return true;
    if (evento->type() == QEvent::KeyPress) {
        const int tecla = static_cast<QKeyEvent&>(*evento).key();
        if (tecla == Qt::Key_Escape ? Escapar()
            : objeto == m_rejilla   ? TeclaDeRejilla(tecla)
                                    : TeclaDeEntrada(objeto, tecla))
            return true;
    }
    return QWidget::eventFilter(objeto, evento);
}

} // namespace pastorix
