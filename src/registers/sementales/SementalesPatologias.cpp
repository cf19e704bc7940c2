// The health tab of the bull sheet: its grids are written line by line, apart from the sheet's own save.
#include "frame/Mensajes.h"
#include "registers/EncabezadoGanadero.h"
#include "registers/datos/FechasVacu.h"
#include "registers/datos/ReglasSemental.h"
#include "registers/sementales/DefinicionSementales.h"
#include "registers/sementales/RejillaPatologia.h"
#include "registers/sementales/Sementales.h"
#include "store/Literales.h"
#include "store/Recordset.h"

#include <QPushButton>

namespace pastorix {

// Lines belong to a saved bull; without one there is nothing to write them for.
void Sementales::PermitirSanidad(bool si) {
    for (auto* rejilla : m_rejillas) {
        if (!si)
            rejilla->Abandonar(); // what stands in an open editor goes to no other lines
        rejilla->setEnabled(si);
    }
    for (auto* boton : m_botonesPato)
        boton->setEnabled(si);
}

// Of the bull who was shown before, what no save has taken stays: lines without their year, and a grid that could not be written.
void Sementales::MostrarSanidad() {
    for (std::size_t i = 0; i < m_rejillas.size(); ++i) {
        auto& rejilla = *m_rejillas[i];
        const bool elMismo = m_deQuien == Clave();
        m_porGuardar[i] = m_porGuardar[i] && elMismo;
        if (m_porGuardar[i])
            continue;
        auto lineas = LeerPatologias(Base(), rejilla.Definicion().tabla, Clave());
        if (elMismo)
            for (auto& suelta : rejilla.SinAño())
                lineas.push_back(std::move(suelta));
        rejilla.Mostrar(std::move(lineas));
    }
    m_deQuien = Clave();
    PermitirSanidad(true);
}

void Sementales::VaciarSanidad() {
    m_deQuien = 0;
    m_porGuardar.fill(false);
    for (auto* rejilla : m_rejillas)
        rejilla->Mostrar({});
    PermitirSanidad(false);
}

bool Sementales::TerminarCeldas() {
    bool bien = true;
    for (auto* rejilla : m_rejillas)
        bien = rejilla->Terminar() && bien;
    return bien;
}

bool Sementales::GuardarPendientes() {
    for (std::size_t i = 0; i < m_rejillas.size(); ++i)
        if (m_porGuardar[i])
            GuardarRejilla(*m_rejillas[i]);
    return !m_porGuardar[0] && !m_porGuardar[1];
}

// The three vaccine columns stand behind the year, in this order.
void Sementales::LlenarVacunas() {
    const auto listas = LeerFechasVacu(Base(), "IBR, BVD, NEOSPORA", "Ln", m_ganadero->Id().value_or(0));
    for (std::size_t i = 0; i < listas.size(); ++i) {
        QStringList fechas;
        for (const auto& fecha : listas[i])
            fechas << QString::fromStdString(fecha);
        m_rejillas[1]->FijarLista(i + 1, fechas);
    }
}

void Sementales::GuardarRejilla(RejillaPatologia& rejilla) {
    auto& porGuardar = m_porGuardar[&rejilla == m_rejillas[0] ? 0 : 1];
    porGuardar = true;
    try {
        EnGrupo(Base(),
                [&] { GuardarPatologias(Base(), rejilla.Definicion().tabla, Clave(), rejilla.Lineas()); });
        porGuardar = false;
    } catch (const std::exception& e) {
        rejilla.AvisarDespues(QString::fromUtf8(e.what()), rejilla.currentRow(), rejilla.currentColumn());
    }
}

void Sementales::MostrarCausa(const std::exception& error) {
    MostrarError(error);
    Memo(kObsPatologia).setFocus();
}

// A text with an apostrophe is refused here; it stays on the sheet, whose own save takes it.
void Sementales::GuardarPato() {
    if (Clave() == 0 || !TerminarCeldas() || !GuardarPendientes())
        return;
    const auto texto = TextoStd(kObsPatologia);
    const auto donde = " WHERE ID_SEMENTAL = " + NumeroSql(Clave());
    try {
        const long filas = EnGrupo(Base(), [&] {
            return texto.empty()
                       ? Base().Execute("UPDATE T_Sementales SET ObsPatologia = Null" + donde)
                       : Base().Execute("UPDATE T_Sementales SET ObsPatologia =" + TextoSql(texto) + donde);
        });
        if (filas == 0)
            throw ErrorAlmacen(CodigoError::SinFilaActual,
                               "El registro ya no existe: otro proceso lo ha borrado. Lo escrito sigue en la "
                               "ficha.");
        TerminarObservaciones(texto);
    } catch (const std::exception& e) {
        MostrarCausa(e);
    }
}

void Sementales::CancelarPato() {
    if (Clave() == 0 || !TerminarCeldas())
        return;
    try {
        TerminarObservaciones(ValorDeCampo(
            Base(), "SELECT ObsPatologia FROM T_Sementales WHERE ID_Semental = " + NumeroSql(Clave())));
    } catch (const std::exception& e) {
        MostrarCausa(e);
    }
}

// Ends the editing that the remarks began, unless something else is being changed.
void Sementales::TerminarObservaciones(const std::string& texto) {
    Poner(kObsPatologia, texto);
    if (Editando() && !Hoja().Cambiada(kObsPatologia) && m_ganadero->Id() == m_ganaderoLeido)
        CargarFicha(Clave());
}

} // namespace pastorix
