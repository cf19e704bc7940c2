#include "reports/motor/PanelDeCifra.h"

#include "reports/motor/Evaluador.h"

#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace pastorix {

namespace {

constexpr int VacaDeFila = Qt::UserRole;

QString De(const std::string& texto) {
    return QString::fromStdString(texto);
}

// The number that a figure on a page begins with: "17 %", "5,0  Terneros".
std::optional<double> NumeroImpreso(const QString& impreso) {
    return NumeroDeCelda(impreso.section(QLatin1Char(' '), 0, 0).toStdString());
}

} // namespace

PanelDeCifra::PanelDeCifra(QWidget* padre)
    : QWidget(padre)
    , m_titulo(new QLabel(this))
    , m_como(new QLabel(this))
    , m_animales(new QTreeWidget(this)) {
    QFont negrita = font();
    negrita.setBold(true);
    m_titulo->setFont(negrita);
    for (QLabel* rotulo : {m_titulo, m_como}) {
        rotulo->setWordWrap(true);
        rotulo->setTextFormat(Qt::PlainText);
        rotulo->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    m_animales->setObjectName(QStringLiteral("AnimalesDeCifra"));
    m_animales->setUniformRowHeights(true);
    m_animales->setIndentation(m_animales->fontMetrics().averageCharWidth() * 2);
    m_animales->header()->setStretchLastSection(true);
    m_animales->setToolTip(QStringLiteral("Entrar: abre la ficha de la vaca"));
    connect(m_animales, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem* fila) {
        if (const QVariant vaca = fila->data(0, VacaDeFila); vaca.isValid())
            Q_EMIT VacaElegida(vaca.toDouble());
    });
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(m_titulo);
    todo->addWidget(m_como);
    todo->addWidget(m_animales, 1);
    setFocusProxy(m_animales);
}

QTreeWidgetItem* PanelDeCifra::Apartado(const QString& titulo, const Animales& animales) {
    auto* apartado = new QTreeWidgetItem(m_animales, {titulo});
    apartado->setFirstColumnSpanned(true);
    for (const AnimalContado& a : animales) {
        auto* fila = new QTreeWidgetItem(apartado, {De(a.crotal), De(a.nombre), De(a.fecha), De(a.dato)});
        if (a.vaca != 0)
            fila->setData(0, VacaDeFila, a.vaca);
        fila->setData(
            0, Qt::AccessibleTextRole,
            QStringList{De(a.crotal), De(a.nombre), De(a.fecha), De(a.dato)}.join(QStringLiteral(", ")));
    }
    return apartado;
}

void PanelDeCifra::Mostrar(const Explicacion& e, const QString& impreso) {
    m_titulo->setText(QStringLiteral("%1: %2").arg(De(e.titulo), impreso));
    QString como = De(e.como) + QLatin1Char('\n') + De(e.fechas);
    if (const auto numero = NumeroImpreso(impreso); numero && *numero != e.valor)
        como += QStringLiteral("\nLos datos han cambiado desde que se hizo el informe: ahora sería %1.")
                    .arg(De(TextoNumero(e.valor)));
    m_como->setText(como);
    m_animales->clear();
    m_animales->setAccessibleName(De(e.titulo));
    m_animales->setHeaderLabels(
        {De(e.rotuloCrotal), De(e.rotuloNombre), De(e.rotuloFecha), De(e.rotuloDato)});
    m_animales->setColumnHidden(2, e.rotuloFecha.empty());
    auto* contados = Apartado(QStringLiteral("Cuentan %1").arg(e.contados.size()), e.contados);
    contados->setExpanded(true);
    if (!e.porqueFuera.empty())
        Apartado(QStringLiteral("%1 %2").arg(De(e.porqueFuera)).arg(e.fuera.size()), e.fuera);
    for (int c = 0; c < m_animales->columnCount(); ++c)
        m_animales->resizeColumnToContents(c);
    m_animales->setCurrentItem(contados->childCount() > 0 ? contados->child(0) : contados);
}

} // namespace pastorix
