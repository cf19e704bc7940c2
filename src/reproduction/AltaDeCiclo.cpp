#include "reproduction/AltaDeCiclo.h"

#include "frame/Mensajes.h"
#include "frame/Ventanas.h"
#include "frame/calendario/Calendario.h"
#include "frame/ficha/Aspecto.h"
#include "frame/ficha/CampoTexto.h"
#include "frame/ficha/RejillaHijos.h"
#include "reproduction/datos/Cadena.h"
#include "reproduction/datos/Cubricion.h"
#include "reproduction/datos/Limites.h"
#include "reproduction/datos/Parto.h"

#include <QDialogButtonBox>
#include <QFocusEvent>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace pastorix {

namespace {

constexpr ColumnaHijos kColumnas[] = {{nullptr, "Año Referencia", 16}, {nullptr, "Nº Parto", 10}};
constexpr int kCifrasDelAño = 4;
constexpr int kCifrasDelParto = 4; // a cow has fewer; more would not go into the column

} // namespace

const DefinicionAlta kAltaCubricion{"AñadirCubricion",
                                    "Añadir Cubrición",
                                    "GridCubri",
                                    "Indique el Año de Referencia para la Cubrición",
                                    "Indique el el Nº de Parto para el año ",
                                    CubricionesDeVaca,
                                    [](Conexion& c, const CicloDeVaca& ciclo, const PropuestaDeCiclo& p) {
                                        return AltaCubricion(c, ciclo, p.fecha);
                                    }};

const DefinicionAlta kAltaParto{"AñadirParto",
                                "Añadir Parto",
                                "GridPartos",
                                "Indique el Año de Referencia para el Parto",
                                "Indique el Nº de Parto del año ",
                                PartosDeVaca,
                                [](Conexion& c, const CicloDeVaca& ciclo, const PropuestaDeCiclo& p) {
                                    return AltaParto(c, ciclo, p.fecha, p.semental);
                                },
                                ReparoDeParidad};

AltaDeCiclo::AltaDeCiclo(Conexion& c, const DefinicionAlta& definicion, double idVaca,
                         const PropuestaDeCiclo& propuesta, QWidget* padre)
    : QDialog(padre)
    , m_c(c)
    , m_definicion(definicion)
    , m_propuesta(propuesta)
    , m_ciclo{idVaca, 0, {}, {}, {}, false}
    , m_ciclos(definicion.leer(c, idVaca))
    , m_año(new CampoTexto(ClaseCampo::Numero, kCifrasDelAño, this))
    , m_parto(new CampoTexto(ClaseCampo::Numero, kCifrasDelParto, this))
    , m_rejilla(new RejillaHijos(kColumnas, this)) {
    setObjectName(QString::fromUtf8(definicion.nombre));
    setWindowTitle(QString::fromUtf8(*propuesta.titulo ? propuesta.titulo : definicion.titulo));
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(CrearCampos());
    m_rejilla->setObjectName(QString::fromUtf8(definicion.rejilla));
    m_rejilla->setAccessibleName(QStringLiteral("Los que tiene la vaca"));
    std::vector<std::vector<Valor>> filas;
    for (const auto& ciclo : m_ciclos)
        filas.push_back({EnteroONulo(ciclo.añoRef), EnteroONulo(ciclo.nParto)});
    m_rejilla->Llenar(std::move(filas));
    m_rejilla->alElegir = [this](int fila) { Copiar(fila); };
    m_rejilla->alAbrir = [this](int fila) {
        Copiar(fila);
        Aceptar();
    };
    connect(m_rejilla, &QTableWidget::cellClicked, this, [this](int fila, int) { Copiar(fila); });
    todo->addWidget(m_rejilla, 1);
    auto* botones = new QDialogButtonBox(this);
    auto* aceptar = botones->addButton(QStringLiteral("&Aceptar"), QDialogButtonBox::AcceptRole);
    aceptar->setObjectName(QStringLiteral("B_Aceptar"));
    aceptar->setDefault(true);
    auto* cancelar = botones->addButton(QStringLiteral("&Cancelar"), QDialogButtonBox::RejectRole);
    cancelar->setObjectName(QStringLiteral("B_Cancelar"));
    connect(aceptar, &QPushButton::clicked, this, [this] { Aceptar(); });
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    todo->addWidget(botones);
    m_año->setText(QString::fromStdString(TextoDe(EnteroONulo(propuesta.añoRef))));
    m_parto->setText(QString::fromStdString(TextoDe(EnteroONulo(propuesta.nParto))));
    m_año->setPlaceholderText(QString::fromStdString(AñoReferenciaActual()));
    (propuesta.añoRef ? m_parto : m_año)->setFocus();
    m_año->installEventFilter(this);
    if (definicion.reparo)
        connect(m_parto, &QLineEdit::textChanged, this, [this](const QString& texto) {
            m_reparo->setText(QString::fromStdString(m_definicion.reparo(texto.toStdString())));
            m_parto->Señalar(m_reparo->text());
        });
    RecordarVentana(*this);
}

QWidget* AltaDeCiclo::CrearCampos() {
    auto* caja = new QWidget(this);
    auto* campos = new QFormLayout(caja);
    campos->setContentsMargins(0, 0, 0, 0);
    int indice = 0;
    for (auto* campo : {m_año, m_parto})
        campo->setObjectName(QStringLiteral("CT_Estandar(%1)").arg(indice++));
    campos->addRow(QStringLiteral("Año de &Referencia"), m_año);
    campos->addRow(QStringLiteral("&Parto"), m_parto);
    m_reparo = Explicacion({}, caja);
    m_reparo->setWordWrap(true);
    campos->addRow(m_reparo);
    return caja;
}

// Year and parity go together: a year that is gone to empties the parity. Coming back from a box is no going.
bool AltaDeCiclo::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::FocusIn) {
        const auto razon = static_cast<QFocusEvent*>(evento)->reason();
        if (razon != Qt::ActiveWindowFocusReason && razon != Qt::PopupFocusReason)
            m_parto->clear();
    }
    return QDialog::eventFilter(objeto, evento);
}

void AltaDeCiclo::Copiar(int fila) {
    const auto& ciclo = m_ciclos[static_cast<std::size_t>(fila)];
    m_año->setText(QString::fromStdString(TextoDe(EnteroONulo(ciclo.añoRef))));
    m_parto->setText(QString::fromStdString(TextoDe(EnteroONulo(ciclo.nParto))));
}

void AltaDeCiclo::Aceptar() {
    const auto rechazar = [this](CampoTexto& campo, const QString& texto) {
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"), texto);
        campo.setFocus(Qt::ActiveWindowFocusReason);
    };
    if (m_año->text().size() != kCifrasDelAño)
        return rechazar(*m_año, QString::fromUtf8(m_definicion.sinAño));
    if (m_parto->text().isEmpty())
        return rechazar(*m_parto, QString::fromUtf8(m_definicion.sinParto) + m_año->text());
    m_ciclo.añoRef = m_año->text().toInt();
    m_ciclo.nParto = m_parto->text().toInt();
    try {
        m_definicion.añadir(m_c, m_ciclo, m_propuesta);
        accept();
    } catch (const std::exception& e) {
        AvisarError(this, e);
    }
}

} // namespace pastorix
