// The search icons of the bull sheet.
#include "frame/selector/Selector.h"
#include "frame/selector/SentenciasSelector.h"
#include "registers/EncabezadoGanadero.h"
#include "registers/sementales/Sementales.h"
#include "store/Literales.h"
#include "store/Recordset.h"

namespace pastorix {

namespace {

// First of the texts that says something: bulls and cows without a compound name are known by their own.
std::string PrimerTexto(const std::string& a, const std::string& b) {
    return a.empty() ? b : a;
}

} // namespace

void Sementales::BuscarDato(int icono) {
    try {
        switch (icono) {
        case 1:
            return ElegirGanaderoPropietario();
        case 2:
            return ElegirPadre();
        case 3:
            return ElegirMadre();
        default:
            return CargarElegido(icono);
        }
    } catch (const std::exception& e) {
        MostrarError(e);
    }
}

// 0 by name, among the farmer's bulls if one is set; 4 by merit, among all.
void Sementales::CargarElegido(int icono) {
    auto sentencia = SentenciaMeritos();
    if (icono == 0) {
        sentencia = SentenciaSementales(m_ganadero->Id());
        sentencia.orden = " ORDER BY T_Ganaderos.Apodo, T_Sementales.NombreC";
    }
    const auto tipo = icono == 0 ? TipoSelector::Sementales : TipoSelector::Meritos;
    const auto eleccion = Selector::Elegir(Base(), tipo, sentencia.Completa(), this);
    if (eleccion && PermiteCargarOtro())
        CargarFicha(eleccion->clave);
}

void Sementales::ElegirGanaderoPropietario() {
    const auto eleccion = Selector::Elegir(Base(), TipoSelector::GanaderosParaSementales, {}, this);
    if (!eleccion)
        return;
    EntrarEnModificar();
    MostrarGanadero(eleccion->clave);
}

void Sementales::ElegirPadre() {
    if (Clave() == 0 && !Editando())
        return; // no bull on the sheet
    const auto toro = Selector::Elegir(Base(), TipoSelector::PadresParaSementales,
                                       m_ganadero->Codigo().toStdString(), this);
    if (!toro)
        return;
    EntrarEnModificar();
    Poner(7, PrimerTexto(TextoDe(toro->De("SementalC")), TextoDe(toro->De("Semental"))));
    Poner(8, TextoDe(toro->De("RegGen")));
    Poner(9, TextoDe(toro->De("RegSan")));
}

void Sementales::ElegirMadre() {
    if (Clave() == 0 && !Editando())
        return;
    const auto vaca = Selector::Elegir(Base(), TipoSelector::MadresParaSementales,
                                       SentenciaVacas(m_ganadero->Id()).Completa(), this);
    if (!vaca)
        return;
    EntrarEnModificar();
    const auto nombreC =
        ValorDeCampo(Base(), "Select NombreC FROM T_Vacas WHERE Id_Vaca = " + NumeroSql(vaca->clave));
    Poner(10, PrimerTexto(nombreC, TextoDe(vaca->De("Vaca"))));
    Poner(11, TextoDe(vaca->De("RegGenealogico")));
    Poner(12, TextoDe(vaca->De("RegSaneam")));
}

} // namespace pastorix
