#include "exchange/VeterinarioImp1.h"

#include "frame/ErrorInesperado.h"
#include "frame/Mensajes.h"
#include "frame/Tablas.h"
#include "frame/Ventanas.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QVBoxLayout>

namespace pastorix {

namespace {

constexpr int kColumnaCentral = 4;

QString De(const std::string& s) {
    return QString::fromStdString(s);
}

// The floating editor over the last column: digits only; Enter stores, Escape leaves.
class EditorDeCodigo : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QWidget* createEditor(QWidget* padre, const QStyleOptionViewItem&, const QModelIndex&) const override {
        auto* editor = new QLineEdit(padre);
        editor->setObjectName(QStringLiteral("Ct_Est(0)"));
        editor->setAccessibleName(QStringLiteral("Código (Central)"));
        editor->setValidator(
            new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]{0,9}")), editor));
        return editor;
    }
};

} // namespace

VeterinarioImp1::VeterinarioImp1(Sesion& sesion, EstadoDeUnion& estado, QWidget* padre)
    : QDialog(padre)
    , m_sesion(sesion)
    , m_estado(estado)
    , m_rejilla(new QTableWidget(0, kColumnaCentral + 1, this)) {
    setObjectName(QStringLiteral("VeterinarioImp1"));
    setWindowTitle(QStringLiteral("Importación de Veterinario Nuevo"));
    setWindowModality(Qt::WindowModal);
    m_rejilla->setObjectName(QStringLiteral("Grid"));
    m_rejilla->setAccessibleName(QStringLiteral("Ganaderos del fichero"));
    m_rejilla->setHorizontalHeaderLabels({QStringLiteral("Código"), QStringLiteral("Apodo"),
                                          QStringLiteral("Nombre"), QStringLiteral("Apellidos"),
                                          QStringLiteral("Código (Central)")});
    m_rejilla->setItemDelegateForColumn(kColumnaCentral, new EditorDeCodigo(m_rejilla));
    m_rejilla->setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::EditKeyPressed);
    connect(m_rejilla, &QTableWidget::cellClicked, this, [this](int fila, int columna) {
        if (columna == kColumnaCentral)
            m_rejilla->editItem(m_rejilla->item(fila, columna));
    });
    m_rejilla->setSelectionMode(QAbstractItemView::SingleSelection);
    m_rejilla->setTabKeyNavigation(false);
    m_rejilla->verticalHeader()->hide();
    m_rejilla->horizontalHeader()->setStretchLastSection(true);
    constexpr int anchos[] = {80, 130, 130, 180};
    for (int c = 0; c < kColumnaCentral; ++c)
        m_rejilla->setColumnWidth(c, anchos[c]);
    auto* todo = new QVBoxLayout(this);
    auto* aviso =
        new QLabel(QStringLiteral("Escriba en la última columna el código que recibe en la central cada "
                                  "ganadero que entra en ella; los demás se quedan fuera."),
                   this);
    aviso->setWordWrap(true);
    todo->addWidget(aviso);
    todo->addWidget(m_rejilla);
    auto* botones = new QDialogButtonBox(this);
    auto* aceptar = botones->addButton(QStringLiteral("&Aceptar"), QDialogButtonBox::ActionRole);
    aceptar->setObjectName(QStringLiteral("B_Aceptar"));
    aceptar->setAutoDefault(false); // Enter belongs to the cell
    auto* cancelar = botones->addButton(QStringLiteral("&Cancelar"), QDialogButtonBox::ActionRole);
    cancelar->setObjectName(QStringLiteral("B_Cancelar"));
    cancelar->setAutoDefault(false);
    todo->addWidget(botones);
    connect(aceptar, &QPushButton::clicked, this, [this] { Aceptar(); });
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    resize(680, 420);
    RecordarVentana(*this);
    Cargar();
}

void VeterinarioImp1::Cargar() {
    m_estado.ResultadoImportacion = 99;
    try {
        m_paquete = AbrirDeTrabajo(m_estado.PaqueteImportado);
        m_ganaderos = GanaderosPorCodificar(m_paquete);
    } catch (const ErrorAlmacen& e) {
        AvisarErrorInesperado(this, e.Numero(), QString::fromUtf8(e.what()), DetalleDe(e));
    }
    m_rejilla->setRowCount(static_cast<int>(m_ganaderos.size()));
    for (int fila = 0; fila < m_rejilla->rowCount(); ++fila) {
        const auto& g = m_ganaderos[static_cast<std::size_t>(fila)];
        const std::string* textos[] = {&g.codigo, &g.apodo, &g.nombre, &g.apellidos, &g.central};
        for (int c = 0; c <= kColumnaCentral; ++c) {
            auto* celda = new QTableWidgetItem(De(*textos[c]));
            if (c != kColumnaCentral)
                celda->setFlags(celda->flags() & ~Qt::ItemIsEditable);
            m_rejilla->setItem(fila, c, celda);
        }
    }
    if (m_rejilla->rowCount() > 0)
        m_rejilla->setCurrentCell(0, kColumnaCentral, QItemSelectionModel::Select);
}

bool VeterinarioImp1::Poner(const QString& codigo, const QString& central) {
    for (int fila = 0; fila < m_rejilla->rowCount(); ++fila)
        if (m_rejilla->item(fila, 0)->text() == codigo) {
            m_rejilla->item(fila, kColumnaCentral)->setText(central);
            return true;
        }
    return false;
}

bool VeterinarioImp1::Aceptar() {
    // Reached by its letter, the button leaves the editor open.
    if (const auto* editor = m_rejilla->findChild<QLineEdit*>(QStringLiteral("Ct_Est(0)")))
        m_rejilla->item(m_rejilla->currentRow(), kColumnaCentral)->setText(editor->text());
    for (int fila = 0; fila < m_rejilla->rowCount(); ++fila)
        m_ganaderos[static_cast<std::size_t>(fila)].central =
            m_rejilla->item(fila, kColumnaCentral)->text().toStdString();
    const auto avisar = [this](const QString& texto) {
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"), texto);
        return false;
    };
    try {
        if (const auto objecion = ObjecionALosGanaderos(m_sesion.conexion, m_paquete, m_ganaderos);
            !objecion.empty())
            return avisar(De(objecion));
        if (const auto claves = ClavesRepetidas(m_sesion.conexion, m_paquete, m_ganaderos); !claves.empty()) {
            QString texto =
                QStringLiteral("Los códigos no sirven, porque habría claves que estarían dos veces:");
            for (std::size_t i = 0; i < claves.size() && i < 12; ++i)
                texto += QStringLiteral("\n• ") + De(claves[i]);
            return avisar(claves.size() > 12 ? texto + QStringLiteral("\n… y %1 más").arg(claves.size() - 12)
                                             : texto);
        }
        RenumerarGanaderos(m_paquete, m_ganaderos);
    } catch (const ErrorAlmacen& e) {
        AvisarErrorInesperado(this, e.Numero(), QString::fromUtf8(e.what()), DetalleDe(e));
        return false;
    }
    m_paquete.Cerrar();
    m_estado.ResultadoImportacion = 0;
    accept();
    return true;
}

} // namespace pastorix
