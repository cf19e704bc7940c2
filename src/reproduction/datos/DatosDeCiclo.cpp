#include "reproduction/datos/DatosDeCiclo.h"

#include "store/Textos.h"
#include "store/Valor.h"

namespace pastorix {

namespace {

std::optional<Fecha> MasDias(const std::optional<Fecha>& fecha, int dias) {
    return fecha ? std::optional(fecha->MasDias(dias)) : std::nullopt;
}

int Dias(const Fecha& desde, const Fecha& hasta) {
    return hasta.dia - desde.dia;
}

std::optional<int> DiasSiHay(const std::optional<Fecha>& desde, const std::optional<Fecha>& hasta) {
    return desde && hasta ? std::optional(Dias(*desde, *hasta)) : std::nullopt;
}

std::string Texto(int dias) {
    return std::to_string(dias);
}

const char* const kSinIPR = "No F.IPR";

} // namespace

EstadoReproductivo EstadoDe(const std::string& texto) {
    return IgualSinCaso(texto, "Preñada") ? EstadoReproductivo::Preñada
           : IgualSinCaso(texto, "Vacía") ? EstadoReproductivo::Vacia
                                          : EstadoReproductivo::Ninguno;
}

std::optional<Fecha> FechaDG22dias(const DatosDeCiclo& d) {
    return MasDias(d.ultimoServicio, kDiasDiagnostico);
}

std::optional<Fecha> D40PostParto(const DatosDeCiclo& d) {
    return MasDias(d.fechaParto, kDiasPostParto);
}

std::optional<Fecha> PrimeraFechaIPR(const DatosDeCiclo& d) {
    return MasDias(d.fechaParto, kDiasPrimerIPR);
}

std::optional<Fecha> FechaEspParto(const DatosDeCiclo& d) {
    return d.estado == EstadoReproductivo::Preñada ? MasDias(d.ultimoServicio, kDiasGestacion) : std::nullopt;
}

std::optional<int> IEP(const DatosDeCiclo& d) {
    return DiasSiHay(d.fechaParto, d.fechaRealParto);
}

std::string IPR_CP(const DatosDeCiclo& d) {
    // A cow who left, or a record of the year that she left in, is no longer counted to today for being open.
    const bool activa = d.añoRef != d.añoBajaVaca && !d.fechaBajaVaca;
    const auto hastaServicioUHoy = [&] { return Texto(Dias(*d.fechaIPR, d.ultimoServicio.value_or(d.hoy))); };
    if (activa)
        return d.fechaIPR ? hastaServicioUHoy() : kSinIPR;
    if (d.estado == EstadoReproductivo::Preñada)
        return d.fechaIPR ? hastaServicioUHoy() : std::string();
    if (!d.fechaIPR)
        return kSinIPR;
    return d.fechaBajaVaca && *d.fechaIPR < *d.fechaBajaVaca ? Texto(Dias(*d.fechaIPR, *d.fechaBajaVaca))
                                                             : std::string();
}

bool EsIPRTardia(const std::string& iprCp) {
    double dias = 0;
    return NumeroDeTexto(iprCp, dias) && dias >= kDiasIPREnRojo;
}

std::optional<int> IEPc(const DatosDeCiclo& d) {
    if (!d.fechaParto || (d.fechaBajaVaca && d.añoBajaVaca != d.añoRef))
        return std::nullopt;
    const Fecha hasta = d.fechaBajaVaca.value_or(d.hoy);
    const bool mucho = Dias(*d.fechaParto, hasta) > kDiasAbierta;
    // Of a cow in the herd a service counts however short the time; of one who left, and of an open one, only behind the limit.
    if (!mucho && (d.fechaBajaVaca || !d.ultimoServicio))
        return std::nullopt;
    return Dias(*d.fechaParto, d.ultimoServicio.value_or(hasta).MasDias(kDiasGestacion));
}

std::optional<int> Amamantamiento(const DatosDeCiclo& d) {
    return DiasSiHay(d.fechaSecado, d.primerServicio);
}

} // namespace pastorix
