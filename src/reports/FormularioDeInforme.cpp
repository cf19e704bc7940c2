#include "reports/FormularioDeInforme.h"

#include "frame/Ciclo.h"
#include "frame/Mensajes.h"
#include "frame/calendario/Calendario.h"
#include "frame/calendario/ErrorDeEjecucion.h"
#include "reports/motor/ControlInforme.h"
#include "reports/motor/ErrorInforme.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QScopeGuard>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace pastorix {

namespace {

// The year takes digits only, four at most; selected whole when the field is entered, so that typing replaces it.
class CampoAño : public QLineEdit {
public:
    using QLineEdit::QLineEdit;

protected:
    void focusInEvent(QFocusEvent* e) override {
        QLineEdit::focusInEvent(e);
        if (e->reason() != Qt::PopupFocusReason)
            QMetaObject::invokeMethod(
                this, [this] { selectAll(); }, Qt::QueuedConnection);
    }
};

} // namespace

FormularioDeInforme::FormularioDeInforme(Sesion& sesion, ControlInforme& control, const QString& titulo,
                                         QWidget* padre, const QString& rotuloAño)
    : QDialog(padre)
    , m_sesion(sesion)
    , m_control(control) {
    setWindowTitle(titulo);
    setWindowModality(Qt::WindowModal);
    Construir(rotuloAño);
    LlenarVeterinarios();
    m_año->setText(QString::fromStdString(AñoReferenciaActual()));
    LlenarGanaderos();
}

void FormularioDeInforme::Construir(const QString& rotuloAño) {
    const auto rotulo = [this](const QString& texto, int indice, QWidget* buddy) {
        auto* l = new QLabel(texto, this);
        l->setObjectName(QStringLiteral("Et_CR(%1)").arg(indice));
        l->setBuddy(buddy);
        return l;
    };
    m_veterinario = new QComboBox(this);
    m_veterinario->setObjectName(QStringLiteral("Cd_Veterinario"));
    m_veterinario->setAccessibleName(QStringLiteral("Veterinario"));
    m_veterinario->setPlaceholderText(QStringLiteral("Todos"));
    m_veterinario->setToolTip(QStringLiteral("Supr: todos los veterinarios"));
    m_veterinario->installEventFilter(this);
    connect(m_veterinario, &QComboBox::activated, this, [this] { LlenarGanaderos(); });

    m_lstGanadero = new QListWidget(this);
    m_lstGanadero->setObjectName(QStringLiteral("lstGanadero"));
    m_lstGanadero->setAccessibleName(QStringLiteral("Ganadero"));
    m_lstGanadero->setUniformItemSizes(true);
    connect(m_lstGanadero, &QListWidget::itemChanged, this, [this](QListWidgetItem* i) {
        if (i->checkState() == Qt::Checked)
            DejarUnoSolo(m_lstGanadero->row(i));
    });

    m_año = new CampoAño(this);
    m_año->setObjectName(QStringLiteral("Ct_E"));
    m_año->setAccessibleName(rotuloAño);
    m_año->setMaxLength(4);
    m_año->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), m_año));
    m_año->setMaximumWidth(fontMetrics().horizontalAdvance(QStringLiteral("00000000")));

    auto* botones = new QDialogButtonBox(this);
    m_aceptar = botones->addButton(QStringLiteral("&Aceptar"), QDialogButtonBox::AcceptRole);
    m_aceptar->setObjectName(QStringLiteral("B_Aceptar"));
    m_aceptar->setDefault(true);
    auto* cancelar = botones->addButton(QStringLiteral("&Cancelar"), QDialogButtonBox::RejectRole);
    cancelar->setObjectName(QStringLiteral("B_Cancelar"));
    connect(m_aceptar, &QPushButton::clicked, this, [this] { Aceptar(); });
    connect(cancelar, &QPushButton::clicked, this, &QDialog::close);

    auto* campos = new QFormLayout;
    campos->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    campos->setRowWrapPolicy(QFormLayout::DontWrapRows);
    campos->addRow(rotulo(QStringLiteral("&Veterinario"), 0, m_veterinario), m_veterinario);
    campos->addRow(rotulo(QStringLiteral("&Ganadero"), 1, m_lstGanadero), m_lstGanadero);
    // "Año &Referencia": the mnemonic of the last word leaves Alt+A to the button.
    campos->addRow(
        rotulo(QString(rotuloAño).insert(rotuloAño.lastIndexOf(QLatin1Char(' ')) + 1, QLatin1Char('&')), 2,
               m_año),
        m_año);
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(campos);
    todo->addWidget(botones);
    resize(fontMetrics().averageCharWidth() * 70, fontMetrics().height() * 24);
    m_lstGanadero->setFocus();
}

void FormularioDeInforme::LlenarVeterinarios() {
    m_veterinario->clear();
    m_lst_Id_Veterinario.clear();
    for (Recordset rs(Base(), "Select * FROM T_Veterinarios ORDER BY NombreVet"); !rs.Eof(); rs.Siguiente()) {
        m_veterinario->addItem(QString::fromStdString(rs["NombreVet"].Texto()));
        m_lst_Id_Veterinario.push_back(rs["Id_Veterinario"].Numero());
    }
    m_veterinario->setCurrentIndex(-1);
}

void FormularioDeInforme::LlenarGanaderos() {
    std::string sql = "Select * FROM T_Ganaderos WHERE FechaBaja IS NULL";
    if (const int i = m_veterinario->currentIndex(); i >= 0)
        sql += " AND Id_Veterinario = " + NumeroSql(m_lst_Id_Veterinario[static_cast<std::size_t>(i)]);
    sql += " ORDER BY Nombre, Apellidos";
    const QSignalBlocker silencio(m_lstGanadero);
    m_lstGanadero->clear();
    m_lst_Id_Ganadero.clear();
    for (Recordset rs(Base(), sql); !rs.Eof(); rs.Siguiente()) {
        auto* i = new QListWidgetItem(
            QString::fromStdString(rs["Nombre"].Texto() + " " + rs["Apellidos"].Texto()), m_lstGanadero);
        i->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        i->setCheckState(Qt::Unchecked);
        m_lst_Id_Ganadero.push_back(rs["Id_Ganadero"].Numero());
    }
    if (m_lstGanadero->count() > 0)
        m_lstGanadero->setCurrentRow(0);
}

void FormularioDeInforme::DejarUnoSolo(int fila) {
    const QSignalBlocker silencio(m_lstGanadero);
    for (int i = 0; i < m_lstGanadero->count(); ++i)
        if (i != fila)
            m_lstGanadero->item(i)->setCheckState(Qt::Unchecked);
    m_lstGanadero->viewport()->update();
}

bool FormularioDeInforme::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == m_veterinario && evento->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(evento)->key() == Qt::Key_Delete) {
        m_veterinario->setCurrentIndex(-1);
        LlenarGanaderos();
        return true;
    }
    return QDialog::eventFilter(objeto, evento);
}

bool FormularioDeInforme::MarcarGanadero(double idGanadero) {
    for (std::size_t i = 0; i < m_lst_Id_Ganadero.size(); ++i)
        if (m_lst_Id_Ganadero[i] == idGanadero) {
            m_lstGanadero->item(static_cast<int>(i))->setCheckState(Qt::Checked);
            return true;
        }
    return false;
}

void FormularioDeInforme::PonerAño(const QString& año) {
    m_año->setText(año);
}
QString FormularioDeInforme::Año() const {
    return m_año->text();
}

std::vector<double> FormularioDeInforme::GanaderosMarcados() const {
    std::vector<double> ids;
    for (int i = 0; i < m_lstGanadero->count(); ++i)
        if (m_lstGanadero->item(i)->checkState() == Qt::Checked)
            ids.push_back(m_lst_Id_Ganadero[static_cast<std::size_t>(i)]);
    return ids;
}

void FormularioDeInforme::Informar(const QString& texto) {
    Avisar(this, TipoMensaje::Informacion, QStringLiteral("Información"), texto);
}

bool FormularioDeInforme::Aceptar() {
    const auto atencion = [this](long numero, const char* texto) {
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención..."),
               QString::number(numero) + QStringLiteral(" ... ") + QString::fromUtf8(texto));
        return false;
    };
    try {
        if (!Validar())
            return false;
        m_aceptar->setEnabled(false);
        const auto repuesto = qScopeGuard([this] { m_aceptar->setEnabled(true); });
        {
            CicloTardio ciclo(this, QStringLiteral("Generando informe"));
            Llenar([&](int hecho, int total) { ciclo.Avance(hecho, total); });
        }
        Lanzar(m_control);
        return true;
    } catch (const ErrorAlmacen& e) {
        return atencion(e.Numero(), e.what());
    } catch (const ErrorDeEjecucion& e) {
        return atencion(e.Numero(), e.what());
    } catch (const ErrorInforme& e) {
        return atencion(e.Numero(), e.what());
    } catch (const std::exception& e) {
        return atencion(5, e.what());
    }
}

} // namespace pastorix
