// The part of the record sheet that makes its controls from the table of fields.
#include "frame/Iconos.h"
#include "frame/ficha/Ficha.h"
#include "store/Catalogo.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QToolButton>

#include <utility>

namespace pastorix {

namespace {

constexpr int kCifrasDeCodigo = 15; // a double holds no more of them exactly

} // namespace

QWidget* Ficha::CrearRejilla(QWidget* padre, int hoja) {
    auto* caja = new QWidget(padre);
    m_rejilla = new QGridLayout(caja);
    m_rejilla->setHorizontalSpacing(12);
    const int anchuraMinima = fontMetrics().averageCharWidth() * 26;
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
        if (c.hoja == hoja)
            poner(CrearCampo(c, caja), c.rotulo, {c.fila, c.columnaRejilla}, c.ancho,
                  c.clase == ClaseCampo::Memo ? Qt::AlignTop : Qt::AlignVCenter)
                ->setObjectName(QStringLiteral("ET_Estandar(%1)").arg(c.indice));
    for (const auto& c : m_definicion.combos)
        if (c.hoja == hoja)
            poner(CrearCombo(c, caja), c.rotulo, {c.fila, c.columnaRejilla}, 1, Qt::AlignVCenter);
    QWidget* anterior = nullptr;
    for (const auto& [lugar, campo] : porLugar) {
        if (anterior)
            setTabOrder(anterior, campo);
        anterior = campo;
    }
    return caja;
}

QComboBox* Ficha::CrearCombo(const ComboFicha& c, QWidget* padre) {
    auto* combo = new QComboBox(padre);
    combo->setObjectName(QString::fromUtf8(c.nombre));
    combo->setAccessibleName(QString::fromUtf8(c.rotulo).remove(QLatin1Char('&')));
    combo->setFocusPolicy(Qt::StrongFocus);
    combo->addItem(QString());
    for (const char* item : c.lista)
        combo->addItem(QString::fromUtf8(item));
    if (c.porTexto) {
        combo->setEditable(true);
        combo->setInsertPolicy(QComboBox::NoInsert);
        combo->lineEdit()->setMaxLength(AnchuraDe(c.columna));
        connect(combo->lineEdit(), &QLineEdit::textEdited, this, [this] { EntrarEnModificar(); });
    }
    Vigilar(combo);
    m_combos[c.nombre] = combo;
    return combo;
}

int Ficha::AnchuraDe(const char* columna) const {
    const auto* tabla = CatalogoCanonico(ClaseDeBase::Principal).Buscar(m_definicion.tabla);
    const int lugar = tabla ? tabla->Buscar(columna) : -1;
    return lugar < 0 ? 0 : tabla->columnas[static_cast<std::size_t>(lugar)].anchura;
}

QWidget* Ficha::CrearCampo(const CampoFicha& c, QWidget* padre) {
    QWidget* campo = nullptr;
    if (c.clase == ClaseCampo::Memo)
        campo = m_memos[c.indice] = CrearMemo(padre);
    else
        campo = m_campos[c.indice] = CrearLinea(c, padre);
    campo->setObjectName(QStringLiteral("%1(%2)").arg(QString::fromUtf8(m_definicion.arreglo)).arg(c.indice));
    const auto nombre =
        QString::fromUtf8(*c.nombreAccesible ? c.nombreAccesible : c.rotulo).remove(QLatin1Char('&'));
    campo->setAccessibleName(nombre);
    campo->installEventFilter(this);
    return campo;
}

CampoMemo* Ficha::CrearMemo(QWidget* padre) {
    auto* memo = new CampoMemo(padre);
    connect(memo, &QPlainTextEdit::modificationChanged, this, [this](bool cambiado) {
        if (cambiado)
            EntrarEnModificar();
    });
    return memo;
}

CampoTexto* Ficha::CrearLinea(const CampoFicha& c, QWidget* padre) {
    int anchura = c.clase == ClaseCampo::Codigo ? kCifrasDeCodigo : c.anchura;
    if (anchura == 0 && c.columna)
        anchura = AnchuraDe(c.columna);
    if (anchura == 0 && c.clase == ClaseCampo::Fecha)
        anchura = 10;
    auto* campo = new CampoTexto(c.clase, anchura, padre);
    if (c.clase == ClaseCampo::Fecha)
        campo->setPlaceholderText(QStringLiteral("dd/mm/aa"));
    // Short fields look short: what fits can be seen before it is typed.
    if (anchura > 0 && anchura <= 15)
        campo->setMaximumWidth(campo->fontMetrics().horizontalAdvance(QLatin1Char('0')) * (anchura + 3));
    if (c.indice != 0)
        connect(campo, &QLineEdit::textEdited, this, [this] { EntrarEnModificar(); });
    return campo;
}

void Ficha::PonerIconoBusDato(int icono, int indiceCampo) {
    auto* boton = new QToolButton(this);
    boton->setObjectName(QStringLiteral("IconoBusDato(%1)").arg(icono));
    boton->setIcon(Icono("buscar"));
    boton->setCursor(CursorMano());
    boton->setToolTip(QStringLiteral("Seleccionar"));
    boton->setAccessibleName(QStringLiteral("Seleccionar"));
    boton->setAutoRaise(true);
    if (icono == 0)
        boton->setShortcut(QKeySequence(Qt::Key_F3));
    connect(boton, &QToolButton::clicked, this, [this, icono] { BuscarDato(icono); });
    // The field shares its cell with the icon.
    auto* campo = m_campos.at(indiceCampo);
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
    setTabOrder(campo, boton);
}

} // namespace pastorix
