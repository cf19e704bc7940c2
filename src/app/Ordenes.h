#pragma once

namespace pastorix {

class Principal;
class ControlInforme;
struct Sesion;

// The one place where the entries of the main window meet the forms they open. An entry that is not bound here is shown disabled.
void VincularOrdenes(Principal& principal, Sesion& sesion, ControlInforme& informe);

} // namespace pastorix
