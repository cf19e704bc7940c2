#include "exchange/Historial.h"

#include "exchange/FormularioDeRuta.h"
#include "frame/Ajustes.h"
#include "frame/Mensajes.h"
#include "frame/Tablas.h"
#include "frame/Ventanas.h"
#include "frame/calendario/Reloj.h"
#include "store/Ficheros.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace pastorix {

namespace {

constexpr int kTwipsPorPunto = 15;
constexpr int kAnchos[] = {1570, 1000, 1000, 4500}; // twips

std::filesystem::path BackUpDe(const Sesion& sesion) {
    QDir().mkpath(sesion.rutas.BackUp());
    return Camino(sesion.rutas.BackUp());
}

QString Megas(std::uintmax_t bytes) {
    return QLocale(QLocale::Spanish).toString(static_cast<double>(bytes) / 1048576.0, 'f', 1) +
           QStringLiteral(" MB");
}

} // namespace

Historial::Historial(Sesion& sesion, QWidget* padre)
    : QDialog(padre)
    , m_sesion(sesion)
    , m_rejilla(new QTableWidget(0, 4, this))
    , m_buscar(new QLineEdit(this)) {
    setObjectName(QStringLiteral("Historial"));
    setWindowTitle(QStringLiteral("Historial de Transacciones"));
    setWindowModality(Qt::WindowModal);
    m_rejilla->setObjectName(QStringLiteral("Grid"));
    m_rejilla->setAccessibleName(windowTitle());
    m_rejilla->setHorizontalHeaderLabels({QStringLiteral("Equipo"), QStringLiteral("Fecha"),
                                          QStringLiteral("Hora"), QStringLiteral("Operación")});
    VestirTabla(*m_rejilla);
    for (int c = 0; c < 4; ++c)
        m_rejilla->setColumnWidth(
            c, std::max(kAnchos[c] / kTwipsPorPunto,
                        fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000")) + 14));
    m_buscar->setObjectName(QStringLiteral("Buscar"));
    m_buscar->setClearButtonEnabled(true);
    auto* rotulo = new QLabel(QStringLiteral("B&uscar:"), this);
    rotulo->setBuddy(m_buscar);
    connect(m_buscar, &QLineEdit::textChanged, this, &Historial::Filtrar);

    auto* botones = new QDialogButtonBox(this);
    const auto boton = [&](const char* nombre, const QString& texto, auto hacer) {
        auto* b = botones->addButton(texto, QDialogButtonBox::ActionRole);
        b->setObjectName(QString::fromUtf8(nombre));
        b->setAutoDefault(false);
        connect(b, &QPushButton::clicked, this, hacer);
        return b;
    };
    boton("B_Historial", QStringLiteral("&Vaciar Historial"), [this] { Vaciar(); });
    auto* borrar = boton("B_BorrarBackUp", QStringLiteral("&Borrar Copias"), [this] { BorrarBackUp(); });
    boton("B_Restaurar", QStringLiteral("&Restaurar Copia..."), [this] { ElegirCopia(); });
    boton("B_Aceptar", QStringLiteral("&Aceptar"), [this] { accept(); })->setDefault(true);
    borrar->setVisible(GetSetting(QStringLiteral("Modo"), QStringLiteral("NULO")).toUpper() !=
                       QLatin1String("C")); // once all buttons stand there: their box shows them

    auto* todo = new QVBoxLayout(this);
    auto* linea = new QHBoxLayout;
    linea->addWidget(rotulo);
    linea->addWidget(m_buscar);
    todo->addLayout(linea);
    todo->addWidget(m_rejilla, 1);
    todo->addWidget(botones);
    resize(700, 440);
    RecordarVentana(*this);
    Cargar();
}

// Too long a log goes as a whole, and the text of it stays.
bool Historial::VaciarConTexto() {
    try {
        VaciarHistorial(m_sesion.conexion, BackUpDe(m_sesion), Ahora());
        return true;
    } catch (const ErrorAlmacen& e) {
        AvisarFallo(this, QStringLiteral("Atención"), e.Numero(), e);
        return false;
    }
}

void Historial::Cargar() {
    try {
        m_filas = LeerHistorial(m_sesion.conexion);
        if (m_filas.size() > kHistorialMaximo) {
            Avisar(this, TipoMensaje::Critico, QStringLiteral("Atención"),
                   QStringLiteral("Es necesario eliminar el registro Historial"));
            VaciarConTexto();
            m_filas = LeerHistorial(m_sesion.conexion);
        }
    } catch (const ErrorAlmacen& e) {
        AvisarFallo(this, QStringLiteral("Atención"), e.Numero(), e);
    }
    m_rejilla->setSortingEnabled(false);
    m_rejilla->setRowCount(static_cast<int>(m_filas.size()));
    for (int fila = 0; fila < m_rejilla->rowCount(); ++fila) {
        const auto& t = m_filas[static_cast<std::size_t>(fila)];
        const std::string textos[] = {t.equipo, t.fecha ? FormatoFecha(*t.fecha, "dd/mm/yyyy") : "",
                                      t.fecha ? FormatoFecha(*t.fecha, "hh:nn:ss") : "", t.operacion};
        for (int c = 0; c < 4; ++c)
            m_rejilla->setItem(fila, c, new QTableWidgetItem(Texto(textos[c])));
    }
    if (!m_filas.empty())
        m_rejilla->setCurrentCell(0, 0);
    Filtrar(m_buscar->text());
}

void Historial::Filtrar(const QString& texto) {
    for (int fila = 0; fila < m_rejilla->rowCount(); ++fila) {
        bool visible = texto.isEmpty();
        for (int c = 0; c < 4; ++c)
            visible = visible || m_rejilla->item(fila, c)->text().contains(texto, Qt::CaseInsensitive);
        m_rejilla->setRowHidden(fila, !visible);
    }
}

void Historial::Vaciar() {
    if (!Preguntar(this, QStringLiteral("Confirmar"),
                   QStringLiteral("Confirmar Eliminar Historial de Transacciones")))
        return;
    VaciarConTexto();
    Cargar();
}

void Historial::BorrarBackUp() {
    const auto c = MirarCopias(BackUpDe(m_sesion));
    const auto nueva = c.masNueva ? QStringLiteral("; la copia más nueva es del ") +
                                        Texto(FormatoFecha(*c.masNueva, "dd/mm/yyyy hh:nn"))
                                  : QString();
    if (!Preguntar(this, QStringLiteral("Confirmación"),
                   QStringLiteral("Confirme Eliminar todo el contenido Backup de Importaciones de Clientes."),
                   TipoMensaje::Pregunta, false, {},
                   QStringLiteral("%1 ficheros, %2%3.").arg(c.ficheros).arg(Megas(c.bytes), nueva)))
        return;
    setCursor(Qt::WaitCursor);
    try {
        BorrarCopias(BackUpDe(m_sesion));
    } catch (const ErrorAlmacen& e) {
        unsetCursor();
        AvisarFallo(this, QStringLiteral("Atención"), e.Numero(), e);
    }
    unsetCursor();
}

void Historial::ElegirCopia() {
    if (Copias(m_sesion, this).exec() == QDialog::Accepted)
        Cargar();
}

} // namespace pastorix
