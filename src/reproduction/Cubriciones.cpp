// The mating record: what is shown and worked out. What it writes stands in CubricionesGuardado.cpp, its window in CubricionesVentana.cpp.
#include "reproduction/Cubriciones.h"

#include "frame/Mensajes.h"
#include "frame/calendario/Reloj.h"
#include "reproduction/CamposDeCubricion.h"
#include "reproduction/Colores.h"
#include "reproduction/EncabezadoVaca.h"
#include "reproduction/PaginaCausas.h"
#include "reproduction/PaginaServicios.h"
#include "reproduction/PiezasDeCiclo.h"
#include "reproduction/datos/Cadena.h"
#include "reproduction/datos/Cubricion.h"
#include "reproduction/datos/Limites.h"
#include "reproduction/datos/Servicios.h"
#include "store/Recordset.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

namespace pastorix {

namespace c = campo_cubricion;

namespace {

std::string Texto(const std::optional<int>& dias) {
    return dias ? std::to_string(*dias) : std::string();
}

} // namespace

DatosDeCiclo Cubriciones::Datos() const {
    return {m_hoja->FechaDe(c::FechaParto),
            m_hoja->FechaDe(c::FechaRealParto),
            m_hoja->FechaDe(c::FechaIPR),
            m_servicios->Primero(),
            m_servicios->Ultimo(),
            FechaSecadoDeCiclo(Base(), m_ciclo),
            EstadoDe(m_hoja->Combo("Cd_E(3)").currentText().toStdString()),
            TextoDe(EnteroONulo(m_ciclo.añoRef)),
            m_vaca.fechaDesecho,
            m_vaca.añoDeBaja,
            Hoy()};
}

bool Cubriciones::CargarCubricion() {
    m_cargando = true;
    bool bien = false;
    try {
        Recordset rs(Base(), SentenciaCubricion(m_ciclo));
        if (rs.Eof()) {
            Avisar(this, TipoMensaje::Critico, QStringLiteral("Atención"),
                   QStringLiteral("Error en Cubriciones"));
        } else {
            m_ciclo.idCubricion = rs["Id_Cubricion"].Numero();
            m_hoja->Mostrar(rs);
            m_servicios->Mostrar(m_ciclo);
            for (const auto& [campo, columna] :
                 {std::pair{c::TotalServicios, servicio::Numero}, {c::TotalInsem, servicio::NumeroInsem}})
                if (m_hoja->Texto(campo).isEmpty())
                    m_hoja->Poner(campo, m_servicios->DelUltimo(columna));
            m_causas->MostrarCausa(static_cast<int>(rs["CausaPrincipal"].Entero()));
            const auto d = Datos();
            PonerFechas(d);
            PonerIPR_CP(d);
            m_hoja->Poner(c::IEP, Texto(IEP(d)));
            m_hoja->Poner(c::DemoraPreñez, {}); // no rule fills it
            PonerIEPc(d);
            if (IEP(d))
                m_hoja->Poner(c::IEPc, Texto(IEP(d))); // the real interval goes before the expected one
            m_causas->PonerAmamantamiento(Amamantamiento(d));
            MostrarOtras();
            Repasar();
            m_hoja->DarPorGuardado();
            m_serviciosPorGuardar = false;
            bien = true;
        }
    } catch (const std::exception& e) {
        AvisarError(this, e);
    }
    m_cargando = false;
    return bien;
}

void Cubriciones::PonerFechas(const DatosDeCiclo& d) {
    m_hoja->PonerFecha(c::FechaDG22, FechaDG22dias(d));
    m_hoja->PonerFecha(c::D40PostParto, D40PostParto(d));
    m_hoja->PonerFecha(c::FechaEspParto, FechaEspParto(d));
}

void Cubriciones::PonerIPR_CP(const DatosDeCiclo& d) {
    const auto texto = IPR_CP(d);
    m_hoja->Poner(c::IPR_CP, texto);
    PintarFondo(m_hoja->Campo(c::IPR_CP), EsIPRTardia(texto) ? kRojo : kPalido);
}

void Cubriciones::PonerIEPc(const DatosDeCiclo& d) {
    m_hoja->Poner(c::IEPc, Texto(IEPc(d)));
}

// What other tables say of the cycle, and what of it stands elsewhere on the sheet.
void Cubriciones::MostrarOtras() {
    const auto sanidad = LeerSanidadDeCiclo(Base(), m_ciclo);
    m_hoja->Poner(c::BVD, sanidad.bvd);
    m_hoja->Poner(c::IBR, sanidad.ibr);
    m_hoja->Poner(c::MovReservas, sanidad.movReservas);
    m_hoja->Poner(c::Neospora, sanidad.neospora);
    constexpr std::size_t kDificultad = 6;
    m_encabezado->Poner(kDificultad, QString::fromStdString(DificultadDeCiclo(Base(), m_ciclo)));
    m_causaPpal->setText(m_hoja->Texto(c::DescCausa));
    RotularCompletos(m_hoja->Marca(kMarcaCompletos));
    QStringList años;
    for (const int año : OtrosAñosDeParidad(Base(), "T_Cubriciones", m_ciclo))
        años << QString::number(año);
    m_avisos->setText(QStringLiteral("El parto nº %1 tiene cubrición también en %2")
                          .arg(m_hoja->Texto(c::NParto), años.join(QStringLiteral(", "))));
    m_avisos->setVisible(!años.isEmpty());
    setWindowTitle(
        QStringLiteral("Cubriciones - Año %1, parto %2")
            .arg(QString::fromStdString(TextoDe(EnteroONulo(m_ciclo.añoRef))), m_hoja->Texto(c::NParto)));
}

void Cubriciones::Repasar() {
    const auto parto = m_hoja->FechaDe(c::FechaParto);
    const auto real = m_hoja->FechaDe(c::FechaRealParto);
    m_hoja->Señalar(c::FechaParto, ReparoDeParto(parto, Hoy()));
    const auto porVenir = ReparoDeParto(real, Hoy());
    m_hoja->Señalar(c::FechaRealParto,
                    porVenir.empty() ? ReparoDeGestacion(m_servicios->Ultimo(), real) : porVenir);
    m_servicios->Repasar(parto, m_vaca.fechaDesecho);
}

// The values that follow a field when it is left. The date of the calving moves all of them, by way of the row.
void Cubriciones::AlDejar(QWidget& campo) {
    if (m_cargando)
        return;
    try {
        if (&campo == &m_hoja->Campo(c::FechaParto)) {
            if (GuardarCubricion())
                CargarCubricion();
        } else if (&campo == &m_hoja->Campo(c::FechaIPR)) {
            PonerIPR_CP(Datos());
        } else if (&campo == &m_hoja->Campo(c::FechaRealParto)) {
            PonerIEPc(Datos());
        }
        Repasar();
    } catch (const std::exception& e) {
        AvisarError(this, e);
    }
}

void Cubriciones::AlDecidir(QComboBox& combo) {
    if (m_cargando)
        return;
    try {
        if (&combo == &m_hoja->Combo("Cd_E(3)")) {
            const auto d = Datos();
            PonerIPR_CP(d);
            PonerIEPc(d);
            m_hoja->PonerFecha(c::FechaEspParto, FechaEspParto(d));
        } else if (&combo == &m_hoja->Combo("Cd_E(7)")) {
            constexpr int kReaccionNegativa = 13;
            m_hoja->Marca(kReaccionNegativa).setChecked(combo.currentText() == QLatin1String("No"));
        }
    } catch (const std::exception& e) {
        AvisarError(this, e);
    }
}

} // namespace pastorix
