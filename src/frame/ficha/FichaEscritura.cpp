// The part of the record sheet that changes the database.
#include "frame/ficha/Ficha.h"

#include "frame/Mensajes.h"
#include "frame/calendario/Reloj.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <QPushButton>

#include <exception>

namespace pastorix {

namespace {

constexpr const char* kGuardaPagina = "guardaPagina";

// The button that saves what is in view inside the widget; none when there is nothing to save.
QPushButton* GuardarDe(const QWidget& caja) {
    for (auto* boton : caja.findChildren<QPushButton*>())
        if (boton->property(kGuardaPagina).toBool() && boton->isVisible() && boton->isEnabled())
            return boton;
    return nullptr;
}

} // namespace

void MarcarGuardarDePagina(QPushButton& boton) {
    boton.setProperty(kGuardaPagina, true);
    boton.setToolTip(QStringLiteral("Ctrl+S"));
}

void Ficha::GuardarLoCercano() {
    for (auto* w = focusWidget(); w && w != this; w = w->parentWidget())
        if (auto* boton = GuardarDe(*w))
            return boton->click();
    if (Editando())
        (*m_barra)[BarraFicha::Guardar]->click();
    else if (auto* boton = GuardarDe(*this))
        boton->click();
}

std::string Ficha::SentenciaDeClave(double clave) const {
    return std::string("Select * FROM ") + m_definicion.hoja.tabla + " WHERE " + m_definicion.columnaClave +
           " = " + NumeroSql(clave);
}

std::string Ficha::CodigoPropuesto() {
    const std::string clave = m_definicion.columnaClave;
    return TextoNumero(
        SiguienteId(Base(), "SELECT " + clave + " FROM " + m_definicion.hoja.tabla + " ORDER BY " + clave));
}

void Ficha::AlAñadir() {
    if (m_hoja->Tiene(1))
        Campo(1).setFocus();
}

void Ficha::Añadir() {
    try {
        if (!PermiteDejar() || !PermiteAñadir())
            return;
        const auto propuesto = CodigoPropuesto();
        PonerModo(ModoFicha::Añadiendo);
        LimpiarCampos();
        if (m_definicion.indiceFechaAlta >= 0)
            Poner(m_definicion.indiceFechaAlta, FormatoFecha(Hoy(), m_definicion.mascaraFechaAlta));
        Poner(0, propuesto);
        AlAñadir();
    } catch (const std::exception& e) {
        MostrarError(e);
    }
}

void Ficha::Modificar() {
    if (m_clave == 0 || !PermiteModificar())
        return;
    PonerModo(ModoFicha::Modificando);
    CodigoIntacto();
}

bool Ficha::ComprobarMinimos() {
    const auto codigo = CodigoTecleado();
    if (!codigo.isEmpty() && codigo.toDouble() == 0)
        return Rechazar(QStringLiteral("El Código no puede ser '0'"), &Campo(0));
    const int otro = m_definicion.indiceObligatorio;
    if (codigo.isEmpty() || (otro >= 0 && Texto(otro).isEmpty()))
        return Rechazar(QString::fromUtf8(m_definicion.minimos), &Campo(0));
    return true;
}

void Ficha::Guardar() {
    try {
        if (auto* campo = focusWidget())
            AlDejar(*campo); // by a key: the field was not left
        if (!Recoger() || !ComprobarMinimos())
            return;
        Completar();
        if (!Comprobar())
            return;
        if (m_modo == ModoFicha::Modificando)
            CodigoIntacto();
        const double codigo = CodigoTecleado().toDouble();
        std::exception_ptr deHijos;
        m_fallo = true; // until the commit is through
        const bool escrito = EnGrupo(Base(), [&] { return Escribir(codigo, deHijos); });
        m_fallo = deHijos != nullptr;
        if (!escrito) {
            Avisar(this, TipoMensaje::Critico, QStringLiteral("Atención"),
                   QStringLiteral("Codigo no Valido, Cambielo por Otro"));
            Campo(0).setFocus();
            return;
        }
        m_clave = codigo;
        if (deHijos) { // the record is there: saving again modifies it
            m_modo = ModoFicha::Modificando;
            std::rethrow_exception(deHijos);
        }
        PonerModo(ModoFicha::Mostrando);
        m_hoja->DarPorGuardado();
        DespuesDeGuardar(codigo);
        m_barra->Decir(QStringLiteral("Guardado ") + QString::fromStdString(FormatoFecha(Ahora(), "hh:nn")));
    } catch (const std::exception& e) {
        MostrarError(e); // what was typed stays on the sheet, and the sheet stays in its edit
    }
}

bool Ficha::Escribir(double codigo, std::exception_ptr& deHijos) {
    Recordset rs(Base(), SentenciaDeClave(codigo), Cursor::Dinamico);
    if (m_modo == ModoFicha::Añadiendo) {
        if (!rs.Eof())
            return false;
        rs.AddNew();
        rs[m_definicion.columnaClave] = codigo;
    } else if (rs.Eof()) {
        throw ErrorAlmacen(
            CodigoError::SinFilaActual,
            "El registro ya no existe: otro proceso lo ha borrado. Lo escrito sigue en la ficha.");
    }
    m_hoja->Escribir(rs);
    EscribirPropios(rs);
    rs.Update();
    try {
        EscribirHijos(codigo);
    } catch (...) {
        deHijos = std::current_exception();
    }
    return true;
}

void Ficha::DespuesDeGuardar(double) {}

void Ficha::Eliminar() {
    ReponerCodigo(); // a code typed and not entered is not what is deleted
    if (!PermiteEliminar())
        return;
    const double clave = m_clave;
    if (!Preguntar(this, QStringLiteral("Confirme Eliminar"), PreguntaEliminar(), TipoMensaje::Critico, true))
        return;
    try {
        EnGrupo(Base(), [&] { Borrar(clave); });
        LimpiarCampos();
        m_clave = 0;
        DespuesDeBorrar();
    } catch (const std::exception& e) {
        MostrarError(e);
    }
}

void Ficha::Borrar(double clave) {
    Recordset rs(Base(), SentenciaDeClave(clave), Cursor::Dinamico);
    if (!rs.Eof())
        rs.Delete();
}

} // namespace pastorix
