#pragma once

#include "frame/selector/SentenciaDeLista.h"

#include <optional>
#include <string_view>

namespace pastorix {

// The statements of the lists, by family. Sheets that limit or order a list otherwise write their own.

enum class VeterinarioDeLista { NombreYApellidos, SoloNombre };

// Farmers with their veterinarian (name, line break, district in brackets) and locality.
SentenciaDeLista SentenciaGanaderos(VeterinarioDeLista veterinario = VeterinarioDeLista::NombreYApellidos);
// Cows with their farmer; of one farmer, when his code is given.
SentenciaDeLista SentenciaVacas(std::optional<double> ganadero = {});
// All cows by farmer's code and compound name.
SentenciaDeLista SentenciaVacasTodas();
// Bulls with their farmer; of one farmer, when his code is given.
SentenciaDeLista SentenciaSementales(std::optional<double> ganadero = {});
// The short list of bulls by their code.
SentenciaDeLista SentenciaSementalesPorCodigo();
// Bulls with their merit figures; the key stands last, where no column shows it.
SentenciaDeLista SentenciaMeritos();
// Veterinarians with their locality; with their login name too, if asked for.
SentenciaDeLista SentenciaVeterinarios(bool conUsuario = false);
SentenciaDeLista SentenciaNucleos();
// X_Selector in the order it was filled; without removed bulls unless asked for.
SentenciaDeLista SentenciaXSelector(bool conBajas = false);

} // namespace pastorix
