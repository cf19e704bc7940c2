// The cow's sheet: what it does with her record. How it is laid out stands in VacasConstruccion.cpp.
#include "registers/vacas/Vacas.h"

#include "frame/Mensajes.h"
#include "frame/selector/Selector.h"
#include "frame/selector/SentenciasSelector.h"
#include "registers/EncabezadoGanadero.h"
#include "registers/datos/Borrados.h"
#include "registers/datos/CodigoDeVaca.h"
#include "registers/datos/Crotales.h"
#include "registers/datos/NombreCompuesto.h"
#include "registers/sanidad/PaginaMamitis.h"
#include "registers/vacas/CamposDeVaca.h"
#include "registers/vacas/FranjaSituacion.h"
#include "registers/vacas/ObsControlRebano.h"
#include "registers/vacas/PaginaCiclos.h"
#include "store/Recordset.h"

#include <QComboBox>
#include <QTabWidget>
#include <QToolButton>

#include <vector>

namespace pastorix {

using namespace campo_vaca;

void Vacas::AbrirParaAñadir(double idGanadero) {
    m_ganadero->Poner(idGanadero);
    Añadir();
}

VacaEnMano Vacas::EnMano() const {
    return {Clave(),
            m_ganadero->Id().value_or(0),
            TextoStd(NombreC),
            TextoStd(Crotal),
            TextoStd(campo_vaca::AñoRef),
            Hoja().FechaDe(FechaCompra),
            m_fechaBaja,
            TextoStd(FechaCompra),
            TextoStd(FechaBaja),
            Hoja().FechaDe(FechaDesecho)};
}

// --- adding

bool Vacas::PermiteAñadir() {
    if (m_tab->currentIndex() != 0)
        return Rechazar(
            QStringLiteral("Debe encontrarse en la Ficha General para poder realizar esta acción"), m_tab);
    if (!m_ganadero->Id())
        return Rechazar(QStringLiteral("Seleccione el Ganadero al que pretende añadir una Vaca."),
                        m_ganadero->Icono());
    return true;
}

std::string Vacas::CodigoPropuesto() {
    return CodigoDeVaca(Base(), *m_ganadero->Id());
}

void Vacas::AlAñadir() {
    VaciarPaginas();
    m_nombre.clear();
    Ficha::AlAñadir();
}

// --- showing

void Vacas::LimpiarPropios() {
    m_crotal.clear();
    if (Clave() == 0)
        VaciarPaginas(); // what was typed there for a cow that is not to be
}

void Vacas::MostrarPropios(Recordset& rs) {
    if (rs["Id_Ganadero"].Nulo())
        m_ganadero->Limpiar();
    else
        m_ganadero->Poner(rs["Id_Ganadero"].Numero());
    m_ganaderoLeido = m_ganadero->Id();
    m_fechaBaja = rs["FechaBaja"].FechaValor();
    Poner(FechaBaja, rs["FechaBaja"].Texto());
    Poner(campo_vaca::AñoRef, rs["FechaBaja"].Nulo() ? std::string() : UltimoAñoDeVaca(Base(), Clave()));
    MostrarPaginas();
    MostrarSituacion();
    m_crotal = Texto(Crotal);
    m_nombre = Texto(Nombre);
}

void Vacas::MostrarPaginas() {
    const VacaEnHoja vaca{Clave(), m_ganadero->Id().value_or(0)};
    m_partos->Mostrar(vaca.idVaca);
    m_cubriciones->Mostrar(vaca.idVaca);
    m_mamitis->Mostrar(vaca);
    for (auto* pagina : m_sanidad)
        if (m_mostrada == vaca && pagina->Pendiente())
            continue; // what was typed there waits for the page's own save
        else
            pagina->Mostrar(vaca);
    m_mostrada = vaca;
}

void Vacas::VaciarPaginas() {
    m_partos->Mostrar(0);
    m_cubriciones->Mostrar(0);
    m_mamitis->Mostrar({});
    for (auto* pagina : m_sanidad)
        pagina->Mostrar({});
    m_situacion->Limpiar();
    m_mostrada = {};
}

void Vacas::NoEncontrado(double clave) {
    if (clave != 0)
        Poner(Codigo, {});
}

std::vector<PaginaPendiente> Vacas::Pendientes() {
    // What stands on the page of the udder belongs to the sheet's own edit, which is asked about as such.
    std::vector<PaginaSanidad*> paginas(m_sanidad.begin(), m_sanidad.end());
    if (!Editando())
        paginas.push_back(m_mamitis);
    std::vector<PaginaPendiente> pendientes;
    for (auto* pagina : paginas)
        if (pagina->Pendiente())
            pendientes.push_back({pagina->Titulo(), [pagina] { return pagina->Guardar(); },
                                  [pagina] { pagina->Descartar(); }});
    return pendientes;
}

// A cycle was changed by its own sheet, added or removed: what is shown of it elsewhere follows.
void Vacas::AlCambiarCiclos() {
    AlCambiarDePestaña(m_tab->currentIndex());
    Poner(campo_vaca::AñoRef, Texto(FechaBaja).isEmpty() ? std::string() : UltimoAñoDeVaca(Base(), Clave()));
    MostrarSituacion();
}

void Vacas::AlCambiarDePestaña(int) {
    if (Clave() != 0 && Modo() != ModoFicha::Añadiendo)
        try {
            m_partos->Mostrar(Clave());
            m_cubriciones->Mostrar(Clave());
            m_mamitis->Refrescar();
            for (auto* pagina : m_sanidad)
                pagina->Refrescar();
        } catch (const ErrorAlmacen& e) {
            MostrarError(e);
        }
}

// --- saving

bool Vacas::Recoger() {
    return m_mamitis->Recoger();
}

bool Vacas::ComprobarMinimos() {
    if (CodigoTecleado().trimmed().isEmpty() || Texto(Nombre).trimmed().isEmpty() || !m_ganadero->Id())
        return Rechazar(QString::fromUtf8(kFichaDeVaca.minimos), &Campo(Codigo));
    if (CodigoTecleado().toDouble() == 0)
        return Rechazar(QStringLiteral("El Código de la Vaca no puede ser '0'"), &Campo(Codigo));
    return true;
}

bool Vacas::Comprobar() {
    const auto crotal = TextoStd(Crotal);
    if (Texto(Crotal).size() >= kCrotalMinimo) {
        QString lista;
        for (const auto& otro : CrotalesCoincidentes(Base(), crotal, CodigoTecleado().toDouble()))
            lista += QLatin1Char('\n') + QString::fromStdString(otro);
        if (!lista.isEmpty())
            return Rechazar(
                QStringLiteral("EL se han encontrado crotales coincidentes: \n") + lista +
                    QStringLiteral("\n\nDebe cambiarlo por uno que no existe, puede incluir algún "
                                   "dígito más para diferenciarlo."),
                &Campo(Crotal));
    }
    return Modo() != ModoFicha::Modificando || CodigoIntacto();
}

void Vacas::EscribirPropios(Recordset& rs) {
    rs["Id_Ganadero"] = *m_ganadero->Id();
    // Two columns for one date: reports tell the live cows from the others by either.
    rs["FechaBaja"].Reponer(rs["FechaDesecho"].Leer());
}

void Vacas::EscribirHijos(double codigo) {
    m_mamitis->EscribirHijos(codigo);
}

void Vacas::DespuesDeGuardar(double clave) {
    CargarFicha(clave);
}

// --- removing

bool Vacas::PermiteEliminar() {
    return m_ganadero->Id() ||
           Rechazar(QStringLiteral("La vaca no tiene ganadero: elija uno y guárdela antes de eliminarla"),
                    m_ganadero->Icono());
}

QString Vacas::PreguntaEliminar() const {
    return QStringLiteral("Eliminar Vaca: ") + Texto(Nombre);
}

void Vacas::Borrar(double clave) {
    if (clave != 0 && m_ganadero->Id())
        BorrarVaca(Base(), clave, *m_ganadero->Id());
}

void Vacas::DespuesDeBorrar() {
    Vaciar();
    Campo(Codigo).setFocus();
}

// --- derived values and other windows

void Vacas::AlDejar(QWidget& campo) {
    if (&campo == &Campo(Nombre) &&
        Texto(Nombre) != m_nombre) // a compound name written by hand stays until then
        ComponerNombre();
}

void Vacas::ComponerNombre() {
    m_nombre = Texto(Nombre);
    if (Editando())
        Poner(NombreC,
              NombreCompuestoDeVaca(TextoStd(Nombre), Combo("CD_Cularidad").currentText().toStdString()));
}

void Vacas::AbrirObservaciones() {
    bool numerico = false;
    const double codigo = CodigoTecleado().toDouble(&numerico);
    if (!numerico)
        return;
    ObsControlRebaño(Base(), codigo, this).exec();
    MostrarSituacion();
}

void Vacas::MostrarSituacion() {
    if (Clave() == 0 || Modo() == ModoFicha::Añadiendo)
        return;
    try {
        m_situacion->Mostrar(LeerSituacion(Base(), Clave()));
        m_situacion->PermitirPasar(!Fija());
    } catch (const ErrorAlmacen& e) {
        MostrarError(e);
    }
}

void Vacas::PasarAVecina(int paso) {
    const auto ganadero = Clave() == 0 ? m_ganadero->Id() : m_ganaderoLeido;
    if (!ganadero)
        return Barra().Decir(QStringLiteral("Elija un ganadero (F4) para recorrer sus vacas"));
    try {
        const auto vecina = VecinaDeRebaño(Base(), *ganadero, Clave(), paso);
        if (!vecina)
            Barra().Decir(paso > 0 ? QStringLiteral("Es la última de la lista")
                                   : QStringLiteral("Es la primera de la lista"));
        else if (PermiteCargarOtro())
            CargarFicha(*vecina);
    } catch (const ErrorAlmacen& e) {
        MostrarError(e);
    }
}

void Vacas::BuscarDato(int icono) {
    switch (icono) {
    case 0:
        return ElegirVaca();
    case 1:
        return ElegirGanadero();
    case 2:
        return ElegirPadre();
    default:
        return ElegirMadre();
    }
}

void Vacas::ElegirVaca() {
    const auto elegida =
        Selector::Elegir(Base(), TipoSelector::Vacas, SentenciaVacas(m_ganadero->Id()).Completa(), this);
    if (elegida && elegida->clave != 0 && PermiteCargarOtro())
        CargarFicha(elegida->clave);
}

// While a cow is edited the farmer chosen becomes hers if she has none; otherwise the sheet is emptied, ready for a cow of his. One who has a
// farmer keeps him: her fattened calves are numbered by him, and her records of health carry him.
void Vacas::ElegirGanadero() {
    if (Modo() == ModoFicha::Modificando && m_ganaderoLeido) {
        Rechazar(
            QStringLiteral(
                "La vaca ya tiene ganadero, y no se cambia en su ficha: los registros de sanidad y de cebo "
                "van con él. Para llevarla a otra explotación, dela de baja aquí y añádala allí."),
            m_ganadero->Icono());
        return;
    }
    const auto elegido = Selector::Elegir(Base(), TipoSelector::GanaderosParaVacas, {}, this);
    if (!elegido || elegido->clave == 0 || (!Editando() && !PermiteDejar()))
        return;
    if (!Editando()) {
        Vaciar();
        m_ganaderoLeido.reset();
    }
    m_ganadero->Poner(elegido->clave);
    Campo(Editando() ? Nombre : Codigo).setFocus();
}

void Vacas::ElegirPadre() {
    if (Clave() == 0 && !Editando())
        return; // no cow on the sheet
    const auto elegido =
        Selector::Elegir(Base(), TipoSelector::PadresParaVacas, m_ganadero->Codigo().toStdString(), this);
    if (!elegido || elegido->clave == 0)
        return;
    EntrarEnModificar();
    Poner(NombrePadre, TextoDe(elegido->De("SementalC")));
    Poner(NombrePadre + 1, TextoDe(elegido->De("RegGen")));
    Poner(NombrePadre + 2, TextoDe(elegido->De("RegSan")));
}

void Vacas::ElegirMadre() {
    if (Clave() == 0 && !Editando())
        return;
    const auto elegida = Selector::Elegir(Base(), TipoSelector::MadresParaVacas,
                                          SentenciaVacas(m_ganadero->Id()).Completa(), this);
    if (!elegida || elegida->clave == 0)
        return;
    EntrarEnModificar();
    Poner(NombreMadre, elegida->texto);
    Poner(NombreMadre + 1, TextoDe(elegida->De("RegGenealogico")));
    Poner(NombreMadre + 2, TextoDe(elegida->De("RegSaneam")));
}

} // namespace pastorix
