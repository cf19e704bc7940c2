#include "reports/formularios/Lst_ResumenIT.h"

#include "reports/figuras/Figuras.h"
#include "reports/formularios/SelectorGanadero.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QListWidget>

namespace pastorix {

Lst_ResumenIT::Lst_ResumenIT(Sesion& sesion, ControlInforme& control, QWidget* padre)
    : FormularioDeInforme(sesion, control, "Lst_ResumenIT", QStringLiteral("Índices Técnicos (Resumen)"),
                          padre)
    , m_ganadero(new SelectorGanadero(Base(), Campos(), this))
    , m_rotulo(new QLabel(QStringLiteral("..."), this))
    , m_listaAños(new QListWidget(this))
    , m_check1(new QCheckBox(QStringLiteral("&Incluir Todos los años de Referencia"), this)) {
    ElegirCon(*m_ganadero);
    m_rotulo->setObjectName(QStringLiteral("Et_Ganadero"));
    Campos().addRow(QStringLiteral("Relación de Años posibles para:"), m_rotulo);
    m_listaAños->setObjectName(QStringLiteral("ListaAños"));
    m_listaAños->setAccessibleName(QStringLiteral("Relación de Años posibles"));
    m_listaAños->setUniformItemSizes(true);
    PonerCampo(Campos(), QStringLiteral("A&ños"), 2, m_listaAños);
    m_check1->setObjectName(QStringLiteral("Check1"));
    Campos().addRow(QString(), m_check1);
    connect(m_check1, &QCheckBox::toggled, this, &Lst_ResumenIT::MarcarTodos);
    m_ganadero->alCambiar = [this] { CargarAños(); };
    Exigir([this] { return !AñosMarcados().empty(); }, "Indique al menos un Año de Referencia");
    Exigir([this] { return m_ganadero->Elegido() != 0; }, "Debe seleccionar un Ganadero");
    AdmitirOpcion("años", [this](const QString& v) { return MarcarAños(v); });
    resize(fontMetrics().averageCharWidth() * 76, fontMetrics().height() * 30);
}

void Lst_ResumenIT::CargarAños() {
    m_listaAños->clear();
    m_check1->setChecked(false);
    const bool hay = m_ganadero->Elegido() != 0;
    m_rotulo->setText(hay ? m_ganadero->NombreElegido() : QStringLiteral("..."));
    if (!hay)
        return;
    for (const int año : AñosConCubriciones(Base(), m_ganadero->Elegido())) {
        auto* i = new QListWidgetItem(QString::number(año), m_listaAños);
        i->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        i->setCheckState(Qt::Unchecked);
    }
    m_listaAños->setCurrentRow(0);
}

void Lst_ResumenIT::MarcarTodos(bool marcados) {
    for (int i = 0; i < m_listaAños->count(); ++i)
        m_listaAños->item(i)->setCheckState(marcados ? Qt::Checked : Qt::Unchecked);
}

bool Lst_ResumenIT::MarcarAños(const QString& lista) {
    if (lista == QLatin1String("todos")) {
        m_check1->setChecked(true);
        return true;
    }
    for (const auto& año : lista.split(QLatin1Char(','))) {
        const auto hallados = m_listaAños->findItems(año.trimmed(), Qt::MatchExactly);
        if (hallados.isEmpty())
            return false;
        hallados.first()->setCheckState(Qt::Checked);
    }
    return true;
}

std::vector<int> Lst_ResumenIT::AñosMarcados() const {
    std::vector<int> años;
    for (int i = 0; i < m_listaAños->count(); ++i)
        if (m_listaAños->item(i)->checkState() == Qt::Checked)
            años.push_back(m_listaAños->item(i)->text().toInt());
    return años;
}

bool Lst_ResumenIT::Llenar(const FuncionAvance& avance) {
    return LlenarResumen(Base(), m_ganadero->Elegido(), AñosMarcados(), avance);
}

HojaDeInforme Lst_ResumenIT::Hoja() const {
    HojaDeInforme hoja;
    hoja.titulo = QStringLiteral(" Resumen de Índices Ténicos");
    hoja.fichero = QStringLiteral("ResumenIT.rpt");
    return hoja;
}

QStringList Lst_ResumenIT::Sobre() const {
    const auto años = AñosMarcados();
    const auto primero = QString::number(años.front());
    return {m_ganadero->NombreElegido(),
            años.size() == 1 ? primero : primero + QStringLiteral(" a ") + QString::number(años.back())};
}

} // namespace pastorix
