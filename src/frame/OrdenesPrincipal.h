#pragma once

#include <span>
#include <string_view>

namespace pastorix {

// One line of the main window's menu tree.
struct EntradaDeMenu {
    enum class Clase { Menu, Orden, Regla };
    Clase clase;
    const char* nombre; // objectName of its action, and the name its command is bound under
    const char* texto;  // caption with its mnemonic; empty for a rule
    const char* padre;  // name of the menu it stands in; "" for the menu bar
    const char* icono;  // drawing, "" for none
};

// One place of the toolbar.
struct BotonDeBarra {
    int indice;        // 1 to 8
    const char* texto; // tooltip, with its leading blank; empty for a rule
    const char* orden; // menu entry whose command it runs; "" for none
    const char* icono;
};

// The whole menu tree, in order, a menu before its entries.
std::span<const EntradaDeMenu> MenusDePrincipal();

std::span<const BotonDeBarra> BarraDePrincipal();

} // namespace pastorix
