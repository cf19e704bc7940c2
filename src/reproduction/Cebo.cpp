#include "reproduction/Cebo.h"

#include "frame/Atajos.h"
#include "frame/Mensajes.h"
#include "frame/Ventanas.h"
#include "frame/calendario/Reloj.h"
#include "reproduction/datos/FichaCebo.h"
#include "store/Recordset.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace pastorix {

namespace {

using C = ClaseCampo;

enum {
    Saneamiento,
    FechaNac,
    FechaCebo,
    Obs,
    AñoRef,
    FechaSacrif,
    EdadSacrif,
    TiempoCebo,
    Categoria,
    KgCanal,
    PrecioKg,
    FechaMuerte,
    Engrasamiento,
    OtroTipo,
    OtraCausa
};

constexpr auto kConserva = SiNoVale::Conserva;

constexpr CampoFicha kCampos[] = {
    {AñoRef, "AñoRef", "Año de &Ref.", C::Numero, 4, 0, 0, 1, "Año de referencia"},
    {Saneamiento, "Saneamiento", "&Saneamiento", C::Texto, 0, 0, 1},
    {FechaNac, "FechaNac", "Fecha &Nac.", C::Fecha, 0, 1, 1, 1, "Fecha de nacimiento", 0, kConserva},
    {FechaCebo, "FechaCebo", "Fecha C&ebo", C::Fecha, 0, 1, 2, 1, "Fecha de entrada en cebo", 0, kConserva},
    {OtroTipo, "OtroTipoCebo", "", C::Texto, 0, 2, 1, 2, "Otro tipo de cebo", 0, SiNoVale::TalCual,
     "TxtTipoCebo"},
    {FechaSacrif, "FechaSacrif", "&Fecha Sacrif.", C::Fecha, 0, 3, 0, 1, "Fecha de sacrificio", 0, kConserva},
    {EdadSacrif, "EdadSacrif", "Edad Sacrif. (días)", C::NumeroLibre, 8, 3, 1, 1, "", 0, SiNoVale::Vacia,
     nullptr, true},
    {TiempoCebo, "TiempoCebo", "Tiempo Cebo (días)", C::NumeroLibre, 8, 3, 2, 1, "", 0, SiNoVale::Vacia,
     nullptr, true},
    {Categoria, "Categoria", "Ca&tegoría", C::Texto, 0, 4, 0},
    {Engrasamiento, "Engrasamiento", "Engrasamiento", C::Texto, 0, 4, 1},
    {KgCanal, "KgCanal", "&Kg Canal", C::DecimalPunto, 12, 5, 0, 1, "", 0, kConserva},
    {PrecioKg, "PrecioKg", "&Precio Kg", C::DecimalPunto, 12, 5, 1, 1, "", 0, kConserva},
    {FechaMuerte, "FechaMuerte", "Fecha M&uerte", C::Fecha, 0, 6, 0, 1, "", 0, kConserva},
    {OtraCausa, "OtraCausaMuerte", "", C::Texto, 0, 6, 2, 1, "Otra causa de muerte", 0, SiNoVale::TalCual,
     "TxtOtraCausaMuerte"},
    {Obs, "Obs", "&Observaciones", C::Memo, 0, 7, 0, 3},
};
constexpr const char* kOrigenes[] = {"Propio", "Comprado", "Cambiado", "Comprado PostD"};
constexpr const char* kSexos[] = {"Macho", "Hembra"};
constexpr const char* kTipos[] = {"Intensivo", "Otro"};
constexpr const char* kCausas[] = {"Enf.Digest", "Enf.Resp.", "Otra"};
constexpr ComboFicha kCombos[] = {
    {"CD_Origen", "Origen", "Or&igen", kOrigenes, 0, 2},
    {"CD_Sexo", "Sexo", "Se&xo", kSexos, 1, 0},
    {"CD_TipoCebo", "TipoCebo", "Tipo de Cebo", kTipos, 2, 0, 0, false, "", "Otro", OtroTipo},
    {"CD_CausaMuerte", "CausaMuerte", "Causa Muerte", kCausas, 6, 1, 0, false, "", "Otra", OtraCausa},
};
constexpr MarcaFicha kMarcas[] = {{"Ch_Cambiado", "Cambiado", "Cambio Fecha Nacimiento", 4, 2, 0, 0, "", -1}};
constexpr DefinicionHoja kHoja{"CT_Estandar", "T_Cebo", kCampos, kCombos, kMarcas};

std::string Dias(const std::optional<Fecha>& desde, const std::optional<Fecha>& hasta) {
    return desde && hasta ? std::to_string(hasta->dia - desde->dia) : std::string();
}

} // namespace

Cebo::Cebo(Sesion& sesion, double idGanadero, std::optional<double> idCebo,
           std::optional<TerneroDeParto> ternero, QWidget* padre)
    : QDialog(padre)
    , m_sesion(sesion)
    , m_idGanadero(idGanadero)
    , m_idCebo(idCebo)
    , m_ternero(std::move(ternero))
    , m_hoja(new HojaDeCampos(kHoja, this))
    , m_barra(new BarraFicha(this))
    , m_avisoParto(new QLabel(this)) {
    Construir();
    Conectar();
    m_hoja->Limpiar();
    PonerModo(ModoFicha::Vacia);
    if (m_idCebo)
        Mostrar();
    else
        Añadir();
}

void Cebo::Construir() {
    setObjectName(QStringLiteral("Cebo"));
    setWindowTitle(QStringLiteral("Ficha de Cebo"));
    auto* todo = new QVBoxLayout(this);
    auto* cuerpo = CuerpoDesplazable(*this, *todo);
    cuerpo->addWidget(m_hoja->CrearRejilla(this));
    m_avisoParto->setObjectName(QStringLiteral("AvisoParto"));
    todo->addWidget(m_avisoParto);
    todo->addWidget(m_hoja->CrearPie(this));
    todo->addWidget(m_barra);
    (*m_barra)[BarraFicha::Eliminar]->hide(); // a record goes with its calf's destination, or with its farmer
    (*m_barra)[BarraFicha::Cerrar]->setObjectName(QStringLiteral("B_CerrarGeneral"));
    resize(940, 460);
    RecordarVentana(*this);
}

void Cebo::Conectar() {
    const auto alPulsar = [this](BarraFicha::Boton boton, void (Cebo::*orden)()) {
        connect((*m_barra)[boton], &QPushButton::clicked, this, [this, orden] { (this->*orden)(); });
    };
    alPulsar(BarraFicha::Añadir, &Cebo::Añadir);
    alPulsar(BarraFicha::Modificar, &Cebo::Modificar);
    alPulsar(BarraFicha::Guardar, &Cebo::Guardar);
    alPulsar(BarraFicha::Cancelar, &Cebo::Cancelar);
    connect((*m_barra)[BarraFicha::Cerrar], &QPushButton::clicked, this, [this] { reject(); });
    (*m_barra)[BarraFicha::Guardar]->setToolTip(QStringLiteral("Ctrl+S"));
    PonerAtajo(*this, Qt::CTRL | Qt::Key_S, QStringLiteral("Guardar"), [this] {
        if (Editando())
            Guardar();
    });
    m_hoja->trasElUltimo = (*m_barra)[BarraFicha::Guardar];
    m_hoja->alEditar = [this] { Modificar(); };
    m_hoja->alDejar = [this](QWidget&) { RevisarParto(); };
    m_hoja->alDecidir = [this](QComboBox&) { RevisarParto(); };
    for (const int campo : {FechaNac, FechaCebo, FechaSacrif})
        connect(&m_hoja->Campo(campo), &QLineEdit::textEdited, this, [this] { Calcular(); });
    connect(&m_hoja->Combo("CD_Origen"), &QComboBox::currentTextChanged, this, [this] { AlElegirOrigen(); });
    connect(&m_hoja->Marca(0), &QCheckBox::toggled, this, [this] { RevisarParto(); });
}

void Cebo::PonerModo(ModoFicha modo) {
    m_modo = modo;
    m_fallo = false;
    m_barra->Poner(modo);
    RevisarParto();
}

void Cebo::Mostrar() {
    try {
        Recordset rs(Base(), SentenciaCebo(m_idGanadero, *m_idCebo), Cursor::Estatico, Bloqueo::SoloLectura);
        if (rs.Eof()) {
            Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención..."),
                   QStringLiteral("No Encuentro el Codigo: ") +
                       QString::fromStdString(TextoNumero(*m_idCebo)));
            m_idCebo.reset();
            return;
        }
        m_hoja->Mostrar(rs);
        AlElegirOrigen();
        PonerModo(ModoFicha::Mostrando);
    } catch (const std::exception& e) {
        PonerModo(ModoFicha::Vacia);
        AvisarError(this, e);
    }
}

void Cebo::Añadir() {
    m_hoja->Limpiar();
    if (m_ternero) {
        m_hoja->Elegir("CD_Origen", m_ternero->origen.empty() ? kOrigenes[0] : m_ternero->origen);
        m_hoja->Elegir("CD_Sexo", m_ternero->sexo);
        m_hoja->Poner(Saneamiento, m_ternero->regSaneam);
        m_hoja->PonerFecha(FechaNac, m_ternero->fechaParto);
        m_hoja->DarPorGuardado(); // nothing of it was typed
    }
    AlElegirOrigen();
    PonerModo(ModoFicha::Añadiendo);
    m_hoja->Campo(AñoRef).setFocus();
}

void Cebo::Modificar() {
    if (m_modo == ModoFicha::Mostrando)
        PonerModo(ModoFicha::Modificando);
}

void Cebo::Calcular() {
    m_hoja->Poner(EdadSacrif, Dias(m_hoja->FechaDe(FechaNac), m_hoja->FechaDe(FechaSacrif)));
    m_hoja->Poner(TiempoCebo, Dias(m_hoja->FechaDe(FechaCebo), m_hoja->FechaDe(FechaSacrif)));
}

void Cebo::AlElegirOrigen() {
    m_hoja->Marca(0).setEnabled(m_hoja->Combo("CD_Origen").currentText() == QLatin1String("Propio"));
}

bool Cebo::DevuelveAlParto() const {
    return m_hoja->Marca(0).isEnabled() && !m_hoja->Marca(0).isChecked();
}

void Cebo::Escribir(QStringList& conservados) {
    const bool alta = m_modo == ModoFicha::Añadiendo;
    const double id = alta ? SiguienteCebo(Base(), m_idGanadero) : *m_idCebo;
    Recordset rs(Base(), SentenciaCebo(m_idGanadero, id));
    if (alta) {
        rs.AddNew();
        rs["Id_Cebo"] = id;
        rs["Id_Ganadero"] = m_idGanadero;
    } else if (rs.Eof()) {
        throw ErrorAlmacen(
            CodigoError::SinFilaActual,
            "El registro ya no existe: otro proceso lo ha borrado. Lo escrito sigue en la ficha.");
    }
    conservados = m_hoja->Conservados(rs);
    m_hoja->Escribir(rs);
    rs.Update();
    if (m_ternero)
        EnlazarConParto(Base(), id, m_ternero->parto, m_ternero->idParto);
    if (DevuelveAlParto())
        DevolverAlParto(Base(),
                        {m_idGanadero, id, m_hoja->FechaDe(FechaCebo), m_hoja->TextoStd(Saneamiento),
                         m_hoja->Combo("CD_Sexo").currentText().toStdString(), rs["FechaNac"].FechaValor()});
    m_idCebo = id;
}

void Cebo::Guardar() {
    m_hoja->Asentar();
    if (m_hoja->Texto(AñoRef).isEmpty()) {
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"),
               QStringLiteral("Debe indicar el año de referencia"));
        return m_hoja->Campo(AñoRef).setFocus();
    }
    const auto antes = m_idCebo;
    try {
        QStringList conservados;
        m_fallo = true; // until the commit is through
        TodoONada(Base(), [&] { Escribir(conservados); });
        Mostrar();
        auto dicho = QStringLiteral("Guardado ") + QString::fromStdString(FormatoFecha(Ahora(), "hh:nn"));
        if (!conservados.isEmpty())
            dicho += QStringLiteral("; queda como estaba: ") + conservados.join(QStringLiteral(", "));
        m_barra->Decir(dicho);
    } catch (const std::exception& e) {
        m_idCebo = antes;
        AvisarError(this, e);
    }
}

void Cebo::Cancelar() {
    if (m_fallo &&
        !Preguntar(this, QStringLiteral("Atención"),
                   QStringLiteral("Lo que se ve en la ficha no se ha podido guardar. ¿Desea perderlo?")))
        return;
    m_hoja->Limpiar();
    PonerModo(ModoFicha::Vacia);
    if (m_idCebo)
        Mostrar();
}

void Cebo::reject() {
    // A record that was begun by opening the sheet, and not touched, is nothing to ask about.
    const bool pendiente = Editando() && (m_modo == ModoFicha::Modificando || m_hoja->Cambiada());
    switch (pendiente ? PreguntarGuardar(this, QStringLiteral("Hay cambios sin guardar. ¿Desea guardarlos?"))
                      : AntesDeDejar::Descartar) {
    case AntesDeDejar::Cancelar:
        return;
    case AntesDeDejar::Guardar:
        Guardar();
        if (Editando())
            return;
        break;
    case AntesDeDejar::Descartar:
        break;
    }
    QDialog::reject();
}

void Cebo::RevisarParto() {
    QStringList cambian;
    if (m_modo == ModoFicha::Modificando && DevuelveAlParto())
        try {
            for (const auto& campo : DevolverAlParto(
                     Base(),
                     {m_idGanadero, *m_idCebo, m_hoja->FechaDe(FechaCebo), m_hoja->TextoStd(Saneamiento),
                      m_hoja->Combo("CD_Sexo").currentText().toStdString(), m_hoja->FechaDe(FechaNac)},
                     false))
                cambian << QString::fromStdString(campo);
        } catch (const ErrorAlmacen& e) {
            m_avisoParto->setText(QStringLiteral("No se puede mirar el parto: ") +
                                  QString::fromUtf8(e.what()));
            return;
        }
    m_avisoParto->setText(cambian.isEmpty()
                              ? QString()
                              : QStringLiteral("Al guardar cambiará en el parto del ternero: ") +
                                    cambian.join(QStringLiteral(", ")));
}

} // namespace pastorix
