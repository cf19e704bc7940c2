// The part of a sheet's fields that makes their controls from the table.
#include "frame/Iconos.h"
#include "frame/ficha/HojaDeCampos.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace pastorix {

namespace {

constexpr int kCifrasDeCodigo = 15; // a double holds no more of them exactly

QString SinLetra(const char* rotulo) {
    return QString::fromUtf8(rotulo).remove(QLatin1Char('&'));
}

void Explicar(QWidget& control, const char* explicacion) {
    if (*explicacion == 0)
        return;
    if (auto* campo = qobject_cast<QLineEdit*>(&control))
        return static_cast<CampoTexto*>(campo)->Explicar(QString::fromUtf8(explicacion));
    control.setToolTip(QString::fromUtf8(explicacion));
    control.setWhatsThis(QString::fromUtf8(explicacion));
    control.setAccessibleDescription(QString::fromUtf8(explicacion));
}

QString DestinoSinFecha(SiNoVale siNoVale) {
    return siNoVale == SiNoVale::Conserva ? QStringLiteral("no se guardará; queda la que había")
                                          : QStringLiteral("se guardará vacía");
}

} // namespace

QWidget* HojaDeCampos::CrearRejilla(QWidget* padre, int hoja) {
    auto* caja = new QWidget(padre);
    m_rejilla = new QGridLayout(caja);
    m_rejilla->setHorizontalSpacing(12);
    // Three fields to a line may be wide, and more must fit the screen.
    int columnas = 1;
    for (const auto& c : m_definicion.campos)
        columnas = c.hoja == hoja ? std::max(columnas, c.columnaRejilla + c.ancho) : columnas;
    const int anchuraMinima = caja->fontMetrics().averageCharWidth() * (columnas <= 3 ? 26 : 14);
    std::map<std::pair<int, int>, QWidget*> porLugar; // Tab goes by rows
    const auto poner = [&](QWidget* campo, const char* texto, std::pair<int, int> lugar, int ancho,
                           Qt::Alignment altura) {
        auto* rotulo = new QLabel(QString::fromUtf8(texto), caja);
        rotulo->setBuddy(campo);
        const int columna = lugar.second * 2;
        m_rejilla->addWidget(rotulo, lugar.first, columna, Qt::AlignRight | altura);
        m_rejilla->addWidget(campo, lugar.first, columna + 1, 1, ancho * 2 - 1);
        m_rejilla->setColumnMinimumWidth(columna + 1, anchuraMinima);
        m_rejilla->setColumnStretch(columna + 1, 1);
        porLugar[lugar] = campo;
        return rotulo;
    };
    for (const auto& c : m_definicion.campos)
        if (c.hoja == hoja) {
            auto* rotulo = poner(CrearCampo(c, caja), c.rotulo, {c.fila, c.columnaRejilla}, c.ancho,
                                 c.clase == ClaseCampo::Memo ? Qt::AlignTop : Qt::AlignVCenter);
            rotulo->setObjectName(
                QStringLiteral("E%1(%2)").arg(QString::fromUtf8(m_definicion.arreglo + 1)).arg(c.indice));
            m_rotulos[c.indice] = rotulo;
        }
    for (const auto& c : m_definicion.combos)
        if (c.hoja == hoja)
            poner(CrearCombo(c, caja), c.rotulo, {c.fila, c.columnaRejilla}, 1, Qt::AlignVCenter);
    for (const auto& m : m_definicion.marcas)
        if (m.hoja == hoja) {
            auto* marca = CrearMarca(m, caja);
            m_rejilla->addWidget(marca, m.fila, m.columnaRejilla * 2, 1, 2);
            porLugar[{m.fila, m.columnaRejilla}] = marca;
        }
    QWidget* anterior = nullptr;
    for (const auto& [lugar, campo] : porLugar) {
        if (anterior)
            QWidget::setTabOrder(anterior, campo);
        anterior = campo;
    }
    return caja;
}

QCheckBox* HojaDeCampos::CrearMarca(const MarcaFicha& m, QWidget* padre) {
    auto* marca = new QCheckBox(QString::fromUtf8(m.rotulo), padre);
    marca->setObjectName(QString::fromUtf8(m.nombre));
    Explicar(*marca, m.explicacion);
    connect(marca, &QCheckBox::clicked, this, [this] { Editar(); });
    marca->installEventFilter(this);
    m_marcas[m.indice] = marca;
    return marca;
}

QComboBox* HojaDeCampos::CrearCombo(const ComboFicha& c, QWidget* padre) {
    auto* combo = new QComboBox(padre);
    combo->setObjectName(QString::fromUtf8(c.nombre));
    combo->setAccessibleName(SinLetra(c.rotulo));
    combo->setFocusPolicy(Qt::StrongFocus);
    Explicar(*combo, c.explicacion);
    combo->addItem(QString());
    for (const char* item : c.lista)
        combo->addItem(QString::fromUtf8(item));
    if (c.porTexto) {
        combo->setEditable(true);
        combo->setInsertPolicy(QComboBox::NoInsert);
        combo->lineEdit()->setMaxLength(AnchuraDe(c.columna));
        connect(combo->lineEdit(), &QLineEdit::textEdited, this, [this] { Editar(); });
    }
    connect(combo, &QComboBox::currentTextChanged, this, [this, &c] {
        MostrarDetalle(c);
        Reparar();
    });
    Vigilar(combo);
    m_combos[c.nombre] = combo;
    return combo;
}

void HojaDeCampos::Vigilar(QWidget* control) {
    if (auto* combo = qobject_cast<QComboBox*>(control))
        connect(combo, &QComboBox::activated, this, [this, combo] {
            Editar();
            if (m_pasando != combo)
                Decidir(*combo);
        });
    control->installEventFilter(this);
}

// The free text beside "Otra" is in sight with that item, and as long as something stands in it: nothing is stored that cannot be seen.
void HojaDeCampos::MostrarDetalle(const ComboFicha& c) {
    if (!c.itemDetallado || !Tiene(c.campoDetalle))
        return;
    const bool suyo =
        Combo(c.nombre).currentText().compare(QString::fromUtf8(c.itemDetallado), Qt::CaseInsensitive) == 0;
    const bool visible = suyo || !Texto(c.campoDetalle).isEmpty();
    Campo(c.campoDetalle).setVisible(visible);
    m_rotulos.at(c.campoDetalle)->setVisible(visible);
}

QWidget* HojaDeCampos::CrearCampo(const CampoFicha& c, QWidget* padre) {
    QWidget* campo = nullptr;
    if (c.clase == ClaseCampo::Memo)
        campo = m_memos[c.indice] = CrearMemo(padre);
    else
        campo = m_campos[c.indice] = CrearLinea(c, padre);
    campo->setObjectName(
        c.control ? QString::fromUtf8(c.control)
                  : QStringLiteral("%1(%2)").arg(QString::fromUtf8(m_definicion.arreglo)).arg(c.indice));
    campo->setAccessibleName(SinLetra(*c.nombreAccesible ? c.nombreAccesible : c.rotulo));
    Explicar(*campo, c.explicacion);
    campo->installEventFilter(this);
    return campo;
}

CampoMemo* HojaDeCampos::CrearMemo(QWidget* padre) {
    auto* memo = new CampoMemo(padre);
    connect(memo, &QPlainTextEdit::modificationChanged, this, [this](bool cambiado) {
        if (cambiado)
            Editar();
    });
    return memo;
}

CampoTexto* HojaDeCampos::CrearLinea(const CampoFicha& c, QWidget* padre) {
    int anchura = c.clase == ClaseCampo::Codigo ? kCifrasDeCodigo : c.anchura;
    if (anchura == 0 && c.columna)
        anchura = AnchuraDe(c.columna);
    if (anchura == 0 && c.clase == ClaseCampo::Fecha)
        anchura = 10;
    auto* campo = new CampoTexto(c.clase, anchura, padre);
    campo->siNoEsFecha = [siNoVale = c.siNoVale] { return DestinoSinFecha(siNoVale); };
    campo->alSeñalar = [this] { Reparar(); };
    // Short fields look short: what fits can be seen before it is typed.
    if (anchura > 0 && anchura <= 15)
        campo->setMaximumWidth(campo->fontMetrics().horizontalAdvance(QLatin1Char('0')) * (anchura + 3));
    if (c.derivado) {
        campo->setReadOnly(true);
        campo->setFocusPolicy(Qt::NoFocus);
        campo->setPlaceholderText({});
    } else if (c.clase != ClaseCampo::Codigo) {
        connect(campo, &QLineEdit::textEdited, this, [this] { Editar(); });
    }
    return campo;
}

QToolButton* HojaDeCampos::PonerIcono(int icono, int indiceCampo, const QString& nombre,
                                      std::function<void()> alPulsar) {
    auto* campo = m_campos.at(indiceCampo);
    auto* boton = new QToolButton(campo->parentWidget());
    boton->setObjectName(QStringLiteral("IconoBusDato(%1)").arg(icono));
    boton->setIcon(Icono("buscar"));
    boton->setCursor(CursorMano());
    boton->setToolTip(QStringLiteral("Seleccionar"));
    boton->setAccessibleName(nombre);
    boton->setAutoRaise(true);
    connect(boton, &QToolButton::clicked, this, std::move(alPulsar));
    auto* rejilla = static_cast<QGridLayout*>(campo->parentWidget()->layout());
    int fila = 0;
    int columna = 0;
    int altura = 0;
    int anchura = 0;
    rejilla->getItemPosition(rejilla->indexOf(campo), &fila, &columna, &altura, &anchura);
    rejilla->removeWidget(campo);
    auto* juntos = new QHBoxLayout;
    juntos->setSpacing(2);
    juntos->addWidget(campo);
    juntos->addWidget(boton);
    if (campo->maximumWidth() < QWIDGETSIZE_MAX)
        juntos->addStretch(); // a long field takes the room itself
    rejilla->addLayout(juntos, fila, columna, altura, anchura);
    QWidget::setTabOrder(campo, boton);
    return boton;
}

} // namespace pastorix
