#pragma once

namespace pastorix {

// Whether the login form leaves the entry to the main database enabled: offices, and the stations that exchange with them, build
// with it; the delivered form opens the personal database only.
#ifdef PASTORIX_ENTRADA_PRINCIPAL
inline constexpr bool EntradaPrincipalActiva = true;
#else
inline constexpr bool EntradaPrincipalActiva = false;
#endif

} // namespace pastorix
