#include "reproduction/datos/Limites.h"

#include "store/Valor.h"

namespace pastorix {

namespace {

struct Limite {
    const char* que;
    int minimo;
    int maximo;
    const char* unidad;
};

// Gestation: breeds average 276 to 295 days. A foetus expelled before some 240 is not viable and counts as an abortion; one carried beyond 310 dates
// from another service (textbooks of bovine obstetrics).
constexpr Limite kGestacion{"Gestación", 240, 310, " días"};
// Weaning: before 60 days the rumen does not work yet; suckler calves are weaned at 4 to 9 months, and beyond 400 days the dam has the next one at
// foot (husbandry of suckler cows).
constexpr Limite kEdadDestete{"Destete", 60, 400, " días"};
// Birth weight: single calves of beef breeds weigh 30 to 55 kg. Twins born early and double-muscled calves are the ends of the scale (the calving records of
// breeders' herd books).
constexpr Limite kPesoNac{"Peso al nacer", 15, 80, " kg"};

std::string Reparo(const Limite& limite, double valor, const std::string& texto) {
    if (valor >= limite.minimo && valor <= limite.maximo)
        return {};
    return std::string(limite.que) + " de " + texto + limite.unidad + ": lo posible va de " +
           std::to_string(limite.minimo) + " a " + std::to_string(limite.maximo);
}

std::string ReparoDeNumero(const Limite& limite, const std::string& texto) {
    double n = 0;
    return NumeroDeTexto(texto, n) ? Reparo(limite, n, texto) : std::string();
}

} // namespace

std::string ReparoDeGestacion(std::optional<Fecha> servicio, std::optional<Fecha> parto) {
    if (!servicio || !parto)
        return {};
    const int dias = parto->dia - servicio->dia;
    return Reparo(kGestacion, dias, std::to_string(dias));
}

std::string ReparoDeEdadDestete(const std::string& dias) {
    return ReparoDeNumero(kEdadDestete, dias);
}

std::string ReparoDePesoNac(const std::string& kg) {
    return ReparoDeNumero(kPesoNac, kg);
}

std::string ReparoDeParto(std::optional<Fecha> fecha, Fecha hoy) {
    return fecha && *fecha > hoy ? "La fecha está por llegar" : "";
}

std::string ReparoDeParidad(const std::string& nParto) {
    double n = 1;
    return NumeroDeTexto(nParto, n) && n == 0
               ? "Un parto nº 0 se borra al volver a entrar en la base de datos"
               : "";
}

std::string ReparoDeServicio(std::optional<Fecha> servicio, std::optional<Fecha> parto,
                             std::optional<Fecha> baja) {
    if (servicio && parto && *servicio < *parto)
        return "El servicio es anterior al parto que abrió el ciclo";
    if (servicio && baja && *servicio > *baja)
        return "El servicio es posterior a la baja de la vaca";
    return {};
}

} // namespace pastorix
