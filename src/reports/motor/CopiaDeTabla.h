#pragma once

#include "reports/motor/Informe.h"

#include <memory>

class QMimeData;

namespace pastorix {

// A sheet's headings and rows for the clipboard: cells by tabulators for spreadsheets, and a table for word processors.
std::unique_ptr<QMimeData> CopiaDeTabla(const HojaDatos& hoja);

} // namespace pastorix
