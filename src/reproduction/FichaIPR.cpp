#include "reproduction/FichaIPR.h"

#include "frame/Mensajes.h"
#include "frame/Ventanas.h"
#include "frame/ficha/Aspecto.h"
#include "frame/selector/Selector.h"
#include "registers/datos/DatosGanadero.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace pastorix {

namespace {

using C = ClaseCampo;
enum { Codigo, Nombre, PrimVac, PrimNov, InvVac, InvNov, Blanco };

constexpr CampoFicha kCampos[] = {
    {Codigo, nullptr, "Código &Ganadero", C::Codigo, 0, 0, 0},
    {Nombre, nullptr, "Ganadero", C::Texto, 0, 0, 1, 1, "", 0, SiNoVale::TalCual, nullptr, true},
    {PrimVac, "PrimVac", "&Prim. Vac.", C::Fecha, 10, 1, 0, 1, "Primavera, vacas"},
    {PrimNov, "PrimNov", "P&rim. Nov.", C::Fecha, 10, 1, 1, 1, "Primavera, novillas"},
    {InvVac, "InvVac", "&Inv.Vac.", C::Fecha, 10, 2, 0, 1, "Invierno, vacas"},
    {InvNov, "InvNov", "I&nv. Nov.", C::Fecha, 10, 2, 1, 1, "Invierno, novillas"},
    {Blanco, "Blanco", "&Texto Libre", C::Memo, 0, 3, 0, 2},
};
constexpr DefinicionHoja kHoja{"CT_Estandar", "T_IPR", kCampos};

} // namespace

FichaIPR::FichaIPR(Sesion& sesion, std::optional<double> idGanadero, QWidget* padre)
    : QDialog(padre)
    , m_sesion(sesion)
    , m_hoja(new HojaDeCampos(kHoja, this)) {
    setObjectName(QStringLiteral("FichaIPR"));
    setWindowTitle(QStringLiteral("Ficha I.P.R."));
    auto* todo = new QVBoxLayout(this);
    CuerpoDesplazable(*this, *todo)->addWidget(m_hoja->CrearRejilla(this));
    auto* icono =
        m_hoja->PonerIcono(0, Codigo, QStringLiteral("Seleccionar ganadero"), [this] { BuscarGanadero(); });
    DarTecla(*icono, QKeySequence(Qt::Key_F3));
    auto* botones = new QDialogButtonBox(this);
    auto* aceptar = botones->addButton(QStringLiteral("&Aceptar"), QDialogButtonBox::AcceptRole);
    aceptar->setObjectName(QStringLiteral("B_Aceptar"));
    auto* cancelar = botones->addButton(QStringLiteral("&Cancelar"), QDialogButtonBox::RejectRole);
    cancelar->setObjectName(QStringLiteral("B_Cancelar"));
    for (auto* b : {aceptar, cancelar})
        static_cast<QPushButton*>(b)->setAutoDefault(false);
    connect(aceptar, &QPushButton::clicked, this, [this] { Aceptar(); });
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    todo->addWidget(botones);
    for (const int i :
         {PrimVac, PrimNov, InvVac, InvNov}) // texts that hold dates: what is typed is what is stored
        m_hoja->Campo(i).siNoEsFecha = [] { return QStringLiteral("se guardará como está escrito"); };
    const auto buscar = [this] {
        const double codigo = m_hoja->Texto(Codigo).toDouble();
        if (codigo > 0 && codigo != m_mostrado)
            Mostrar(codigo);
    };
    m_hoja->trasElUltimo = aceptar;
    m_hoja->alConfirmar = [this, buscar](QWidget& campo) {
        if (&campo == &m_hoja->Campo(Codigo))
            buscar();
        return false;
    };
    m_hoja->alDejar = [this, buscar](QWidget& campo) {
        if (&campo == &m_hoja->Campo(Codigo))
            buscar();
    };
    if (idGanadero) {
        m_hoja->Poner(Codigo, TextoNumero(*idGanadero));
        m_hoja->Campo(Codigo).setReadOnly(true);
        icono->setEnabled(false);
        Mostrar(*idGanadero);
    }
    RecordarVentana(*this);
}

void FichaIPR::Mostrar(double codigo) {
    try {
        auto& c = m_sesion.conexion;
        if (Recordset(c, "Select Nombre From T_Ganaderos Where Id_Ganadero = " + NumeroSql(codigo)).Eof()) {
            m_hoja->Limpiar();
            m_mostrado = 0;
            Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"),
                   QStringLiteral("Código de Ganadero No Encontrado"));
            return;
        }
        Recordset rs(c, "Select * FROM T_IPR WHERE ID_Ganadero= " + NumeroSql(codigo));
        m_hoja->Limpiar();
        if (!rs.Eof())
            m_hoja->Mostrar(rs);
        m_hoja->Poner(Codigo, TextoNumero(codigo));
        m_hoja->Poner(Nombre, LeerDatosGanadero(c, codigo).nombre);
        m_mostrado = codigo;
    } catch (const std::exception& e) {
        AvisarError(this, e);
    }
}

void FichaIPR::BuscarGanadero() {
    if (const auto elegido = Selector::Elegir(m_sesion.conexion, TipoSelector::GanaderosParaVacas, {}, this);
        elegido && elegido->clave != 0)
        Mostrar(elegido->clave);
}

void FichaIPR::Aceptar() {
    m_hoja->Asentar(); // a key may ask for it from the code, whose farmer is not on the sheet yet
    const double codigo = m_hoja->Texto(Codigo).toDouble();
    if (m_mostrado == 0 || codigo != m_mostrado) {
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"),
               QStringLiteral("Debe Seleccionar el Ganadero al que pertenecen los datos"));
        return m_hoja->Campo(Codigo).setFocus();
    }
    try {
        EnGrupo(m_sesion.conexion, [&] {
            Recordset rs(m_sesion.conexion, "Select * FROM T_IPR WHERE Id_Ganadero = " + NumeroSql(codigo));
            if (rs.Eof()) {
                rs.AddNew();
                rs["Id_Ganadero"] = codigo;
            }
            m_hoja->Escribir(rs);
            rs.Update();
        });
        accept();
    } catch (const std::exception& e) {
        AvisarError(this, e);
    }
}

} // namespace pastorix
