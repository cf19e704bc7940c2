// The mating record: its moments of writing, and the way from one record to the next.
#include "frame/Mensajes.h"
#include "frame/calendario/Calendario.h"
#include "reproduction/AbrirCiclos.h"
#include "reproduction/CamposDeCubricion.h"
#include "reproduction/Cubriciones.h"
#include "reproduction/PaginaCausas.h"
#include "reproduction/PaginaServicios.h"
#include "reproduction/datos/Cadena.h"
#include "reproduction/datos/Causas.h"
#include "reproduction/datos/Cubricion.h"
#include "reproduction/datos/Servicios.h"
#include "store/Recordset.h"

#include <stdexcept>

namespace pastorix {

namespace c = campo_cubricion;

namespace {

// Its row is gone: the one failure that the sheet has a text of its own for.
struct SinCubricion : std::runtime_error {
    SinCubricion()
        : std::runtime_error("Error en Cubriciones") {}
};

} // namespace

std::optional<int> Cubriciones::ParidadEscrita() const {
    double n = 0;
    return NumeroDeTexto(m_hoja->TextoStd(c::NParto), n) ? std::optional(static_cast<int>(n)) : std::nullopt;
}

// An overtyped parity takes services and health entries of the cycle along, or is taken back: left behind they would belong to no record.
void Cubriciones::ResolverParidad() {
    const auto paridad = ParidadEscrita();
    if (paridad == m_ciclo.nParto)
        return;
    const auto antes = TextoDe(EnteroONulo(m_ciclo.nParto));
    auto otra = m_ciclo;
    otra.nParto = paridad;
    const bool ocupada = !Recordset(Base(), SentenciaCubricion(otra)).Eof();
    const auto pregunta =
        QStringLiteral("El nº de parto de esta cubrición pasa de «%1» a «%2», y con ella sus servicios y "
                       "sus anotaciones de sanidad.%3 ¿Desea cambiarlo?")
            .arg(QString::fromStdString(antes), m_hoja->Texto(c::NParto),
                 ocupada   ? QStringLiteral(" Ya hay otra cubrición de ese año y parto.")
                 : paridad ? QString()
                           : QStringLiteral(" Sin nº de parto, los servicios se borran al volver a entrar en "
                                            "la base de datos."));
    if (!Preguntar(this, QStringLiteral("Atención"), pregunta))
        m_hoja->Poner(c::NParto, antes);
}

void Cubriciones::EscribirRegistro() {
    Recordset rs(Base(), SentenciaCubricion(m_ciclo));
    if (rs.Eof())
        throw SinCubricion();
    m_hoja->Escribir(rs);
    rs["CausaPrincipal"] = m_causas->CausaPrincipal();
    EscribirTexto(rs["NombreCausaPpal"], NombreDeCausa(m_causas->CausaPrincipal()));
    rs.Update();
    if (const auto paridad = ParidadEscrita(); paridad != m_ciclo.nParto)
        LlevarAParidad(Base(), m_ciclo, paridad);
}

// What cannot be written stays on the sheet, and the rows are as they were.
bool Cubriciones::GuardarCubricion() {
    try {
        ResolverParidad();
        TodoONada(Base(), [&] {
            if (m_serviciosPorGuardar)
                m_servicios->Escribir(m_ciclo);
            EscribirRegistro();
        });
        m_serviciosPorGuardar = false;
        m_ciclo.nParto = ParidadEscrita();
        m_servicios->FijarCiclo(m_ciclo);
        m_hoja->DarPorGuardado();
        return true;
    } catch (const SinCubricion& e) {
        Avisar(this, TipoMensaje::Critico, QStringLiteral("Atención"), QString::fromUtf8(e.what()));
    } catch (const std::exception& e) {
        AvisarError(this, e);
    }
    return false;
}

// A service accepted or deleted: the set is rewritten, the record saved with the values that stand on the sheet, and both read again. The totals
// are those of the last line.
void Cubriciones::CambiarServicios() {
    m_hoja->Poner(c::TotalServicios, m_servicios->DelUltimo(servicio::Numero));
    m_hoja->Poner(c::TotalInsem, m_servicios->DelUltimo(servicio::NumeroInsem));
    m_serviciosPorGuardar = true;
    if (GuardarCubricion())
        CargarCubricion();
}

bool Cubriciones::Salir() {
    m_hoja->Asentar();
    return m_servicios->Resolver() &&
           (GuardarCubricion() ||
            Preguntar(this, QStringLiteral("Atención"),
                      QStringLiteral(
                          "Lo que se ve en la ficha no se ha podido guardar. ¿Desea dejarla y perderlo?")));
}

void Cubriciones::reject() {
    if (Salir())
        QDialog::reject();
}

void Cubriciones::Pasar(int paso) {
    if (!Salir())
        return;
    try {
        if (const auto vecino =
                CicloVecino(Base(), "T_Cubriciones", m_ciclo, ParidadEscrita().value_or(0), paso)) {
            m_ciclo = *vecino;
            m_causas->LimpiarLibre();
            if (!CargarCubricion())
                QDialog::reject(); // half of one record and half of the other: nothing that may be saved
        }
    } catch (const std::exception& e) {
        AvisarError(this, e);
    }
}

// To the calving that closes this cycle: its year is that of its date, or this record's own; the date and the last bull go along.
void Cubriciones::IrAPartos() {
    if (!Salir())
        return;
    PropuestaDeCiclo propuesta;
    const auto fecha = m_hoja->FechaDe(c::FechaRealParto);
    propuesta.añoRef = fecha ? std::optional(AñoReferenciaPropio(*fecha)) : m_ciclo.añoRef;
    propuesta.fecha = fecha;
    propuesta.semental = m_servicios->DelUltimo(servicio::Semental);
    propuesta.titulo = "Ir a Partos";
    AñadirParto(m_marco, this, m_vaca, propuesta);
    CargarCubricion(); // what was changed there
}

} // namespace pastorix
