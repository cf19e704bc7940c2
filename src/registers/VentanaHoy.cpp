#include "registers/VentanaHoy.h"

#include "frame/Mensajes.h"
#include "frame/Tablas.h"
#include "frame/Ventanas.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace pastorix {

VentanaHoy::VentanaHoy(Sesion& sesion, QWidget* padre)
    : QDialog(padre)
    , m_sesion(sesion)
    , m_tabla(new QTableWidget(0, 2, this)) {
    setObjectName(QStringLiteral("Hoy"));
    setWindowTitle(QStringLiteral("Hoy"));
    m_tabla->setObjectName(QStringLiteral("GridHoy"));
    m_tabla->setAccessibleName(QStringLiteral("Lo hecho en esta sesión"));
    m_tabla->setHorizontalHeaderLabels({QStringLiteral("Hora"), QStringLiteral("Lo hecho")});
    VestirTabla(*m_tabla);
    auto* botones = new QDialogButtonBox(this);
    auto* abrir = botones->addButton(QStringLiteral("&Abrir la ficha"), QDialogButtonBox::ActionRole);
    auto* deshacer = botones->addButton(QStringLiteral("&Deshacer..."), QDialogButtonBox::ActionRole);
    botones->addButton(QStringLiteral("&Cerrar"), QDialogButtonBox::RejectRole);
    abrir->setObjectName(QStringLiteral("B_Abrir"));
    deshacer->setObjectName(QStringLiteral("B_Deshacer"));
    abrir->setDefault(true);
    connect(abrir, &QPushButton::clicked, this, [this] { Abrir(); });
    connect(deshacer, &QPushButton::clicked, this, [this] { Deshacer(); });
    connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_tabla, &QTableWidget::cellDoubleClicked, this, [this] { Abrir(); });
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(new QLabel(
        QStringLiteral("Lo que se ha guardado o eliminado en esta sesión, lo último primero."), this));
    todo->addWidget(m_tabla, 1);
    todo->addWidget(botones);
    resize(640, 400);
    RecordarVentana(*this);
    Llenar();
    m_tabla->setFocus();
}

void VentanaHoy::Llenar() {
    m_hechos.clear();
    m_tabla->setRowCount(0);
    if (!m_sesion.diario)
        return;
    const auto& acciones = m_sesion.diario->Acciones();
    m_tabla->setRowCount(static_cast<int>(acciones.size()));
    for (auto it = acciones.rbegin(); it != acciones.rend(); ++it) {
        const int fila = static_cast<int>(m_hechos.size());
        m_hechos.push_back(QueSeHizo(m_sesion.conexion, *m_sesion.diario, *it));
        m_tabla->setItem(fila, 0,
                         new QTableWidgetItem(QString::fromStdString(FormatoFecha(it->momento, "hh:nn"))));
        m_tabla->setItem(fila, 1, new QTableWidgetItem(QString::fromStdString(m_hechos.back().texto)));
    }
    if (!m_hechos.empty())
        m_tabla->setCurrentCell(0, 0);
    for (const char* nombre : {"B_Abrir", "B_Deshacer"})
        findChild<QPushButton*>(QString::fromUtf8(nombre))->setEnabled(!m_hechos.empty());
}

std::size_t VentanaHoy::Accion() const {
    return m_hechos.size() - 1 - static_cast<std::size_t>(m_tabla->currentRow());
}

void VentanaHoy::Abrir() {
    if (m_tabla->currentRow() < 0 || !alAbrir)
        return;
    const auto hecho = m_hechos[static_cast<std::size_t>(m_tabla->currentRow())];
    accept();
    alAbrir(hecho);
}

void VentanaHoy::Deshacer() {
    if (m_tabla->currentRow() < 0)
        return;
    const auto& texto = m_hechos[static_cast<std::size_t>(m_tabla->currentRow())].texto;
    if (!Preguntar(this, QStringLiteral("Deshacer"),
                   QStringLiteral(
                       "Los datos vuelven a ser los que había antes de:\r\n\r\n%1\r\n\r\n¿Desea deshacerlo?")
                       .arg(QString::fromStdString(texto))))
        return;
    try {
        m_sesion.diario->Deshacer(Accion());
    } catch (const ErrorAlmacen& e) {
        AvisarError(this, e);
    }
    Llenar();
}

} // namespace pastorix
