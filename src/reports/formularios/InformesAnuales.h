#pragma once

#include "reports/formularios/InformeAnual.h"

namespace pastorix {

// The reports of a farmer and a year.
extern const DefinicionAnual kLst_IndicesTecnicos;
extern const DefinicionAnual kLstParamTec;
extern const DefinicionAnual kLstEAR_DP;
extern const DefinicionAnual kLstEAR_DR;
extern const DefinicionAnual kInfCebo;
extern const DefinicionAnual kInfDemora;
extern const DefinicionAnual kInfManejo;

} // namespace pastorix
