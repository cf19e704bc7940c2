#pragma once

#include "store/Fecha.h"

#include <optional>
#include <string>

namespace pastorix {

// Days by which a cycle is reckoned. They are those of the breed and of the veterinarians' protocol, fixed in the program.
inline constexpr int kDiasDiagnostico = 22; // last service to the early diagnosis
inline constexpr int kDiasPostParto = 40;   // calving to the control that follows it
inline constexpr int kDiasPrimerIPR = 60;   // calving to the first start of reproduction that is offered
inline constexpr int kDiasGestacion = 286;  // service to expected calving
inline constexpr int kDiasAbierta = 79; // open time up to which no interval is given: a year less a gestation
inline constexpr int kDiasIPREnRojo =
    43; // from the start of reproduction to conception: at this and above it is too late

#ifndef Q_MOC_RUN // Qt's moc stops at enumerators with an ñ, in whatever header it meets them
enum class EstadoReproductivo { Ninguno, Preñada, Vacia };
#endif

// The state that a text means, whatever its case.
EstadoReproductivo EstadoDe(const std::string& texto);

// What the derived values of a mating record are worked out from. A date that is none is none here.
struct DatosDeCiclo {
    std::optional<Fecha> fechaParto;     // calving that opened the cycle
    std::optional<Fecha> fechaRealParto; // calving that closed it
    std::optional<Fecha> fechaIPR;       // start of the reproductive period for this cow
    std::optional<Fecha> primerServicio;
    std::optional<Fecha> ultimoServicio; // of the last line, also when that one has no date and others have
    std::optional<Fecha> fechaSecado;
    EstadoReproductivo estado = EstadoReproductivo::Ninguno;
    std::string añoRef;                 // of the record
    std::optional<Fecha> fechaBajaVaca; // she left the herd
    std::string añoBajaVaca;            // reference year of her last record when she left; else ""
    Fecha hoy;
};

// Dates of the protocol; none without what they count from.
std::optional<Fecha> FechaDG22dias(const DatosDeCiclo& d);
std::optional<Fecha> D40PostParto(const DatosDeCiclo& d);
std::optional<Fecha> PrimeraFechaIPR(const DatosDeCiclo& d);
// Expected calving, of a pregnant cow with a dated last service.
std::optional<Fecha> FechaEspParto(const DatosDeCiclo& d);

// Days between the two calvings of the cycle, negative as they come; none unless both have a date.
std::optional<int> IEP(const DatosDeCiclo& d);

// Days from the start of reproduction to conception: to the last service, else to today or to the day she left. "No F.IPR" where the start is
// wanted and missing; "" where there is nothing to count.
std::string IPR_CP(const DatosDeCiclo& d);
bool EsIPRTardia(const std::string& iprCp); // at or over the limit: shown in red

// The interval between calvings that is to be expected. A cow who is still open counts as conceiving today, or on the day she left, and gets an
// interval only once she has been open so long that it cannot come out under a year.
std::optional<int> IEPc(const DatosDeCiclo& d);

// Days from drying off to the first service; 0 and more mean that she was served after it.
std::optional<int> Amamantamiento(const DatosDeCiclo& d);

} // namespace pastorix
