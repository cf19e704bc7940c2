// The calving: its rows on the sheet and back, and what follows from its fields. Its window stands in PartosVentana.cpp.
#include "reproduction/Partos.h"

#include "frame/Mensajes.h"
#include "frame/Principal.h"
#include "frame/calendario/Reloj.h"
#include "frame/selector/Selector.h"
#include "reproduction/AbrirCiclos.h"
#include "reproduction/CamposDeParto.h"
#include "reproduction/Cebo.h"
#include "reproduction/EncabezadoVaca.h"
#include "reproduction/PaginaTernero.h"
#include "reproduction/PiezasDeCiclo.h"
#include "reproduction/datos/Cadena.h"
#include "reproduction/datos/Limites.h"
#include "reproduction/datos/Parto.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QTabWidget>

#include <stdexcept>

namespace pastorix {

namespace g = campo_parto;

namespace {

// A row of the calving is gone: failures that the sheet has texts of its own for.
struct SinParto : std::runtime_error {
    using std::runtime_error::runtime_error;
};

std::optional<int> Entero(const std::string& texto) {
    double n = 0;
    return NumeroDeTexto(texto, n) ? std::optional(static_cast<int>(n)) : std::nullopt;
}

constexpr std::size_t kPaginas = 2;

} // namespace

bool Partos::CargarParto() {
    try {
        MostrarFilas();
        return true;
    } catch (const SinParto& e) {
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"), QString::fromUtf8(e.what()));
    } catch (const std::exception& e) {
        AvisarError(this, e);
    }
    return false;
}

void Partos::MostrarFilas() {
    auto filas = FilasDeParto(Base(), m_ciclo);
    if (filas.empty())
        throw SinParto(
            "No ha sido posible realizar la operación 'Mostrar Datos del Parto'\r\nInténtelo otra vez");
    m_filas = std::move(filas);
    for (std::size_t i = 0; i < kPaginas; ++i) {
        if (i >= m_filas.size()) {
            m_terneros[i]->Limpiar();
            continue;
        }
        Recordset rs(Base(), SentenciaParto(m_ciclo, m_filas[i]), Cursor::Estatico, Bloqueo::SoloLectura);
        if (i == 0)
            m_hoja->Mostrar(rs);
        m_terneros[i]->Mostrar(
            rs, {m_ciclo, m_filas[i], m_vaca.idGanadero, {}, m_hoja->FechaDe(g::Fecha), {}, {}, {}});
    }
    m_gemelar = m_hoja->Combo("Cd_G(2)").currentText();
    PonerPestañas(m_filas.size() > 1 || (!m_gemelar.isEmpty() && m_gemelar != QLatin1String("No")));
    RotularCompletos(m_hoja->Marca(0));
    Repasar();
    QStringList avisos;
    for (const int año : OtrosAñosDeParidad(Base(), "T_Partos", m_ciclo))
        avisos << QStringLiteral("El parto nº %1 está también en el año %2")
                      .arg(m_hoja->Texto(g::NParto))
                      .arg(año);
    if (m_filas.size() > kPaginas)
        avisos << QStringLiteral("Este parto tiene %1 registros; los que siguen a los dos primeros no se ven "
                                 "ni se cambian aquí")
                      .arg(m_filas.size());
    m_avisos->setText(avisos.join(QStringLiteral(". ")));
    m_avisos->setVisible(!avisos.isEmpty());
    setWindowTitle(
        QStringLiteral("Partos - Año %1, parto %2").arg(m_hoja->Texto(g::AñoRef), m_hoja->Texto(g::NParto)));
}

CicloDeVaca Partos::CicloEscrito() const {
    auto ciclo = m_ciclo;
    ciclo.nParto = Entero(m_hoja->TextoStd(g::NParto));
    ciclo.añoRef = Entero(m_hoja->TextoStd(g::AñoRef));
    return ciclo;
}

// The page of the calving goes to both rows, each calf to its own. Fattening records follow their calves, to another year or parity too.
void Partos::EscribirFilas() {
    const auto escrito = CicloEscrito();
    if (escrito.añoRef != m_ciclo.añoRef || escrito.nParto != m_ciclo.nParto)
        LlevarCebo(Base(), m_ciclo, escrito, m_vaca.idGanadero);
    for (std::size_t i = 0; i < std::min(kPaginas, m_filas.size()); ++i) {
        Recordset rs(Base(), SentenciaParto(m_ciclo, m_filas[i]));
        if (rs.Eof())
            throw SinParto("Error en Partos");
        m_hoja->Escribir(rs);
        m_terneros[i]->Escribir(rs);
        rs.Update();
        auto ternero = m_terneros[i]->Ternero();
        ternero.parto = escrito;
        ActualizarCebo(Base(), ternero);
    }
}

// A calving that is overtyped onto another one of the cow would become its twin, and the next accept would write the one over the other.
void Partos::ResolverClave() {
    const auto escrito = CicloEscrito();
    if ((escrito.añoRef == m_ciclo.añoRef && escrito.nParto == m_ciclo.nParto) ||
        FilasDeParto(Base(), escrito).empty() ||
        Preguntar(this, QStringLiteral("Atención"),
                  QStringLiteral("La vaca ya tiene otro parto nº %1 del año %2, y los dos pasarían a ser uno "
                                 "gemelar. ¿Desea cambiarlo?")
                      .arg(m_hoja->Texto(g::NParto), m_hoja->Texto(g::AñoRef))))
        return;
    m_hoja->Poner(g::NParto, TextoDe(EnteroONulo(m_ciclo.nParto)));
    m_hoja->Poner(g::AñoRef, TextoDe(EnteroONulo(m_ciclo.añoRef)));
}

bool Partos::GuardarParto() {
    try {
        ResolverClave();
        TodoONada(Base(), [&] { EscribirFilas(); });
        m_ciclo = CicloEscrito();
        m_hoja->DarPorGuardado();
        for (auto* ternero : m_terneros)
            ternero->DarPorGuardado(m_ciclo);
        return true;
    } catch (const SinParto& e) {
        Avisar(this, TipoMensaje::Critico, QStringLiteral("Atención"), QString::fromUtf8(e.what()));
    } catch (const std::exception& e) {
        AvisarError(this, e); // what was typed stays on the sheet
    }
    return false;
}

bool Partos::ExigirFecha() {
    if (m_hoja->FechaDe(g::Fecha))
        return true;
    Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"),
           QStringLiteral("Debe indicar la fecha de parto"));
    m_tab->setCurrentIndex(0);
    m_hoja->Campo(g::Fecha).setFocus();
    return false;
}

bool Partos::Cambiada() const {
    return m_hoja->Cambiada() || m_terneros[0]->Cambiada() ||
           (m_filas.size() > 1 && m_terneros[1]->Cambiada());
}

void Partos::Asentar() {
    m_hoja->Asentar();
    for (auto* ternero : m_terneros)
        ternero->Hoja().Asentar();
}

void Partos::Aceptar() {
    Asentar();
    if (ExigirFecha() && GuardarParto())
        QDialog::accept();
}

void Partos::reject() {
    const auto salida =
        Cambiada() ? PreguntarGuardar(this, QStringLiteral("Hay cambios sin guardar. ¿Desea guardarlos?"))
                   : AntesDeDejar::Descartar;
    if (salida == AntesDeDejar::Guardar)
        return Aceptar();
    if (salida == AntesDeDejar::Cancelar)
        return;
    try {
        if (Cambiada())
            for (std::size_t i = 0; i < std::min(kPaginas, m_filas.size()); ++i)
                m_terneros[i]->DeshacerCebo();
        QDialog::reject();
    } catch (const std::exception& e) {
        AvisarError(this, e);
    }
}

void Partos::Pasar(int paso) {
    Asentar();
    if (!ExigirFecha() || !GuardarParto())
        return;
    try {
        if (const auto vecino = CicloVecino(Base(), "T_Partos", m_ciclo, m_ciclo.nParto.value_or(0), paso)) {
            m_ciclo = *vecino;
            if (!CargarParto())
                QDialog::accept(); // half of one calving and half of the other: nothing that may be saved
        }
    } catch (const std::exception& e) {
        AvisarError(this, e);
    }
}

// The mating record that starts after this calving: its year and parity, its date as the one that opened it.
void Partos::IrACubriciones() {
    Asentar();
    const auto escrito = CicloEscrito();
    AñadirCubricion(m_marco, this, m_vaca,
                    {escrito.añoRef, escrito.nParto, m_hoja->FechaDe(g::Fecha), {}, "Ir a Cubriciones"});
    if (!Cambiada())
        CargarParto(); // what was changed from there
}

void Partos::AbrirCebo(int ternero) {
    Asentar();
    if (!ExigirFecha() || !GuardarParto())
        return;
    try {
        const auto i = static_cast<std::size_t>(ternero);
        const auto enlace = ValorDeCampo(Base(), "SELECT Id_Cebo FROM T_Partos" + DondeCiclo(m_ciclo) +
                                                     " AND Id_Parto = " + NumeroSql(m_filas[i]));
        double id = 0;
        const bool hay = NumeroDeTexto(enlace, id);
        Cebo(m_sesion, m_vaca.idGanadero, hay ? std::optional(id) : std::nullopt, m_terneros[i]->Ternero(),
             this)
            .exec();
    } catch (const std::exception& e) {
        AvisarError(this, e);
    }
    CargarParto();
}

void Partos::BuscarToro(int ternero) {
    const auto toro =
        Selector::Elegir(Base(), TipoSelector::PadresParaPartos, NumeroSql(m_vaca.idGanadero), this);
    if (!toro || toro->clave == 0)
        return;
    auto& hoja = m_terneros[static_cast<std::size_t>(ternero)]->Hoja();
    const auto nombreC = TextoDe(toro->De("SementalC"));
    hoja.Poner(campo_ternero::Semental, nombreC.empty() ? TextoDe(toro->De("Semental")) : nombreC);
    hoja.Poner(campo_ternero::IdSemental, TextoNumero(toro->clave));
}

void Partos::AlDejarFecha() {
    const auto fecha = m_hoja->FechaDe(g::Fecha);
    for (auto* ternero : m_terneros)
        if (ternero->Ternero().fechaParto != fecha)
            ternero->FijarFechaDeParto(fecha, true);
}

void Partos::Repasar() {
    m_hoja->Señalar(g::NParto, ReparoDeParidad(m_hoja->TextoStd(g::NParto)));
    m_hoja->Señalar(g::Fecha, ReparoDeParto(m_hoja->FechaDe(g::Fecha), Hoy()));
}

// --- twins

void Partos::AlDecidirGemelar() {
    auto& combo = m_hoja->Combo("Cd_G(2)");
    const bool gemelar = !combo.currentText().isEmpty() && combo.currentText() != QLatin1String("No");
    try {
        if (gemelar && m_filas.size() < kPaginas)
            CrearSegundo();
        else if (gemelar)
            PonerPestañas(true);
        else if (m_filas.size() < kPaginas)
            PonerPestañas(false);
        else if (Preguntar(
                     this, QStringLiteral("Atención"),
                     QStringLiteral("Esta operación eliminará los datos del 2º Ternero, Desea continuar?")))
            QuitarSegundo();
        else
            m_hoja->Elegir("Cd_G(2)", m_gemelar.toStdString());
    } catch (const std::exception& e) {
        m_hoja->Elegir("Cd_G(2)", m_gemelar.toStdString());
        AvisarError(this, e);
    }
    m_gemelar = combo.currentText();
}

// What stands on the sheet is saved first: it is read anew with the second calf.
void Partos::CrearSegundo() {
    const auto gemelar = m_hoja->Combo("Cd_G(2)").currentText().toStdString();
    if (!GuardarParto())
        return m_hoja->Elegir("Cd_G(2)", m_gemelar.toStdString());
    CrearMellizo(Base(), m_ciclo, m_filas[0], m_hoja->FechaDe(g::Fecha), gemelar);
    if (CargarParto())
        GuardarParto();
}

void Partos::QuitarSegundo() {
    QuitarMellizo(Base(), m_ciclo, m_vaca.idGanadero, m_filas[0], m_filas[1]);
    m_filas.resize(1); // a third row does not come up into the place of the second
    m_terneros[1]->Limpiar();
    m_hoja->Elegir("Cd_G(2)", "No");
    PonerPestañas(false);
    m_tab->setCurrentIndex(1); // the first calf's
}

} // namespace pastorix
