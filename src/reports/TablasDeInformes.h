#pragma once

#include "reports/motor/LectorDeTablas.h"

namespace pastorix {

// The tables that layouts take, with those that the program works out for them from what a report has left in its scratch tables:
//   Titulares: the headline figures of the three years before, for every farmer and year of X_Temp (C1, C4), the latest year first.
class TablasDeInformes : public LectorDeTablas {
public:
    using LectorDeTablas::LectorDeTablas;

    TablaDatos Leer(std::string_view nombre, std::string_view consulta = {}) const override;
};

} // namespace pastorix
