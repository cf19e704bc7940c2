#include "exchange/VerCambios.h"

#include "frame/Tablas.h"
#include "frame/Ventanas.h"
#include "store/Literales.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTableWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace pastorix {

namespace {

constexpr std::size_t kFilasPorTabla = 500; // nobody reads more in a tree
constexpr std::size_t kFilasALaVista = 12;  // tables with more stay closed
constexpr int kCambio = Qt::UserRole;
constexpr int kFila = Qt::UserRole + 1;

QString De(const std::string& s) {
    return QString::fromStdString(s);
}

} // namespace

VerCambios::VerCambios(Comparacion comparacion, QWidget* padre)
    : QDialog(padre)
    , m_comparacion(std::move(comparacion))
    , m_arbol(new QTreeWidget(this))
    , m_fila(new QTableWidget(0, 3, this)) {
    setObjectName(QStringLiteral("VerCambios"));
    setWindowTitle(QStringLiteral("Qué va a cambiar"));
    setWindowModality(Qt::WindowModal);
    m_arbol->setObjectName(QStringLiteral("Cambios"));
    m_arbol->setAccessibleName(QStringLiteral("Cambios por ganadero y tabla"));
    m_arbol->setHeaderLabels({QStringLiteral("Ganadero, tabla, registro"), QStringLiteral("Vienen"),
                              QStringLiteral("Se van"), QStringLiteral("Cambian")});
    m_arbol->setColumnWidth(0, 420);
    m_arbol->setUniformRowHeights(true);
    m_fila->setObjectName(QStringLiteral("Fila"));
    m_fila->setAccessibleName(QStringLiteral("El registro, antes y después"));
    m_fila->setHorizontalHeaderLabels(
        {QStringLiteral("Campo"), QStringLiteral("Ahora"), QStringLiteral("Después")});
    VestirTabla(*m_fila);
    m_fila->setColumnWidth(0, 150);
    m_fila->setColumnWidth(1, 270);

    auto* avisos = new QPlainTextEdit(this);
    avisos->setObjectName(QStringLiteral("Avisos"));
    avisos->setAccessibleName(QStringLiteral("Avisos"));
    avisos->setReadOnly(true);
    avisos->setTabChangesFocus(true);
    QStringList lineas;
    for (const auto& x : m_comparacion.choques)
        lineas << QStringLiteral("CHOCA: ") + De(x);
    for (const auto& x : m_comparacion.avisos)
        lineas << QStringLiteral("ATENCIÓN: ") + De(x);
    avisos->setPlainText(lineas.join(QLatin1Char('\n')));
    avisos->setVisible(!lineas.isEmpty());

    auto* partes = new QSplitter(Qt::Vertical, this);
    for (QWidget* w : std::initializer_list<QWidget*>{avisos, m_arbol, m_fila})
        partes->addWidget(w);
    partes->setSizes({90, 240, 190});
    partes->setChildrenCollapsible(false);
    auto* botones = new QDialogButtonBox(this);
    connect(botones->addButton(QStringLiteral("&Cerrar"), QDialogButtonBox::RejectRole),
            &QPushButton::clicked, this, &QDialog::reject);
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(new QLabel(QStringLiteral("Registros que vienen: %1; que se van: %2; que cambian: %3.")
                                   .arg(m_comparacion.vienen)
                                   .arg(m_comparacion.seVan)
                                   .arg(m_comparacion.cambian),
                               this));
    todo->addWidget(partes, 1);
    todo->addWidget(botones);
    connect(m_arbol, &QTreeWidget::currentItemChanged, this, &VerCambios::MostrarFila);
    Llenar();
    resize(760, 560);
    RecordarVentana(*this);
}

void VerCambios::Llenar() {
    QTreeWidgetItem* ganadero = nullptr;
    for (std::size_t i = 0; i < m_comparacion.cambios.size(); ++i) {
        const auto& c = m_comparacion.cambios[i];
        const auto titulo = De(c.nombre) + QStringLiteral(" (%1)").arg(De(NumeroSql(c.ganadero)));
        if (!ganadero || ganadero->text(0) != titulo)
            ganadero = new QTreeWidgetItem(m_arbol, {titulo});
        auto* tabla = new QTreeWidgetItem(ganadero, {De(c.tabla), QString::number(c.vienen),
                                                     QString::number(c.seVan), QString::number(c.cambian)});
        for (std::size_t f = 0; f < c.filas.size() && f < kFilasPorTabla; ++f) {
            auto* fila = new QTreeWidgetItem(tabla, {De(Texto(c, c.filas[f]))});
            fila->setFirstColumnSpanned(true); // it has no figures, and much to tell
            fila->setData(0, kCambio, QVariant::fromValue<qulonglong>(i));
            fila->setData(0, kFila, QVariant::fromValue<qulonglong>(f));
        }
        ganadero->setExpanded(true);
        tabla->setExpanded(c.filas.size() <= kFilasALaVista);
    }
    auto* primera = m_arbol->topLevelItem(0);
    while (primera && primera->isExpanded() && primera->childCount() > 0)
        primera = primera->child(0);
    if (primera)
        m_arbol->setCurrentItem(primera);
    m_arbol->setFocus();
}

void VerCambios::MostrarFila() {
    m_fila->setRowCount(0);
    const auto* elegida = m_arbol->currentItem();
    if (!elegida || elegida->data(0, kFila).isNull())
        return;
    const auto& c = m_comparacion.cambios[elegida->data(0, kCambio).toULongLong()];
    const auto& fila = c.filas[elegida->data(0, kFila).toULongLong()];
    m_fila->setRowCount(static_cast<int>(c.columnas.size()));
    for (std::size_t i = 0; i < c.columnas.size(); ++i) {
        const auto valor = [&](const std::vector<Valor>& v) {
            return v.empty() ? QStringLiteral("—") : De(TextoDe(v[i]));
        };
        const bool distinto = fila.antes.empty() || fila.despues.empty() || fila.antes[i] != fila.despues[i];
        const QString textos[] = {De(c.columnas[i]), valor(fila.antes), valor(fila.despues)};
        for (int k = 0; k < 3; ++k) {
            auto* celda = new QTableWidgetItem(textos[k]);
            auto letra = celda->font();
            letra.setBold(distinto);
            celda->setFont(letra);
            m_fila->setItem(static_cast<int>(i), k, celda);
        }
    }
    m_fila->setCurrentCell(0, 0);
}

} // namespace pastorix
