#pragma once

#include "store/Fecha.h"

#include <optional>
#include <string>

namespace pastorix {

// What a calf's weaning figures are worked out from: dates, and weights (kg) as they are typed.
struct DatosDeDestete {
    std::optional<Fecha> fechaParto;
    std::optional<Fecha> fechaDestete;
    std::optional<Fecha> fechaPeso; // of the weighing
    std::string pesoNac;
    std::string peso; // at the weighing
};

// The figures as their fields show them: "" where one cannot be worked out.
struct FigurasDeDestete {
    std::string edadDestete; // days
    std::string
        pesoDestete; // kg, whole: the weighing carried along the line from the birth weight to the age at weaning
    std::string gDestete; // gain in g a day, whole
    friend bool operator==(const FigurasDeDestete&, const FigurasDeDestete&) = default;
};

// All weights go in as whole numbers, halves to even. A gain of 0 shows as nothing; an age of 0 stands for a weaning on the day of birth.
FigurasDeDestete CalcularDestete(const DatosDeDestete& d);

// Display of stored figures: a 0 in either means that there is none, but for the age between two real dates.
std::string EdadMostrada(const std::string& texto, bool conFechas);
std::string GananciaMostrada(const std::string& texto);

} // namespace pastorix
