// The part of the record sheet that changes the database.
#include "frame/ficha/Ficha.h"

#include "frame/Mensajes.h"
#include "frame/calendario/Calendario.h"
#include "frame/calendario/Reloj.h"
#include "store/Literales.h"
#include "store/Recordset.h"
#include "store/Textos.h"

#include <QComboBox>
#include <QPushButton>

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
    return std::string("Select * FROM ") + m_definicion.tabla + " WHERE " + m_definicion.columnaClave +
           " = " + NumeroSql(clave);
}

std::string Ficha::CodigoPropuesto() {
    const std::string clave = m_definicion.columnaClave;
    return TextoNumero(
        SiguienteId(Base(), "SELECT " + clave + " FROM " + m_definicion.tabla + " ORDER BY " + clave));
}

void Ficha::AlAñadir() {
    if (m_campos.contains(1))
        Campo(1).setFocus();
}

void Ficha::Añadir() {
    try {
        if (!PermiteDejar() || !PermiteAñadir())
            return;
        const auto propuesto = CodigoPropuesto();
        m_accion = 1;
        m_barra->EstadoBotones(1);
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
    m_accion = 2;
    m_barra->EstadoBotones(2);
    if (CodigoTecleado().toDouble() != m_clave) {
        Avisar(this, TipoMensaje::Informacion, QStringLiteral("Atención"),
               QStringLiteral("El Código no se puede cambiar"));
        ReponerCodigo();
    }
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
        if (!ComprobarMinimos() || !Comprobar())
            return;
        m_barra->EstadoBotones(4);
        if (m_accion == 2 && CodigoTecleado().toDouble() != m_clave) {
            Avisar(this, TipoMensaje::Informacion, QStringLiteral("Atención"),
                   QStringLiteral("El Código no se puede cambiar"));
            ReponerCodigo();
        }
        const double codigo = CodigoTecleado().toDouble();
        if (!EnGrupo(Base(), [&] { return Escribir(codigo); })) {
            Avisar(this, TipoMensaje::Critico, QStringLiteral("Atención"),
                   QStringLiteral("Codigo no Valido, Cambielo por Otro"));
            Campo(0).setFocus();
            return;
        }
        m_accion = 0;
        DespuesDeGuardar(codigo);
    } catch (const std::exception& e) {
        // What was typed stays on the sheet, and the sheet stays in its edit; of a record that was written before a child table failed
        // it is a modification.
        MostrarError(e);
    }
}

bool Ficha::Escribir(double codigo) {
    Recordset rs(Base(), SentenciaDeClave(codigo), Cursor::Dinamico);
    if (m_accion == 1) {
        if (!rs.Eof())
            return false;
        rs.AddNew();
        rs[m_definicion.columnaClave] = codigo;
    } else if (rs.Eof()) {
        throw ErrorAlmacen(
            CodigoError::SinFilaActual,
            "El registro ya no existe: otro proceso lo ha borrado. Lo escrito sigue en la ficha.");
    }
    EscribirCampos(rs);
    EscribirPropios(rs);
    rs.Update();
    // Should a child table fail now, the record is there: saving again modifies it.
    m_clave = codigo;
    m_accion = 2;
    EscribirHijos(codigo);
    return true;
}

void Ficha::EscribirCampos(Recordset& rs) {
    for (const auto& c : m_definicion.campos) {
        if (!c.columna || c.clase == ClaseCampo::Codigo)
            continue;
        const auto texto = TextoStd(c.indice);
        const bool esFecha = c.clase == ClaseCampo::Fecha;
        const bool esNumero = c.clase == ClaseCampo::Decimal || c.clase == ClaseCampo::ConSigno ||
                              c.clase == ClaseCampo::Numero;
        // A number or date that reads as it was shown stays as it is: the sheet shows no more than 15 digits and two of the year.
        if ((esFecha || esNumero) && !texto.empty() && texto == rs[c.columna].Texto())
            continue;
        if (texto.empty() ? !esFecha : !esFecha || EsFechaValida(texto))
            rs[c.columna] = texto.empty() ? Valor() : Valor(texto);
        else if (c.vaciaSinFecha)
            rs[c.columna] = Valor();
    }
    for (const auto& c : m_definicion.combos) {
        const auto texto = Combo(c.nombre).currentText().toStdString();
        if (texto.empty() || !IgualSinCaso(texto, rs[c.columna].Texto()))
            rs[c.columna] = texto.empty() ? Valor() : Valor(texto);
    }
}

void Ficha::DespuesDeGuardar(double) {
    m_barra->EstadoBotones(6);
}

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
