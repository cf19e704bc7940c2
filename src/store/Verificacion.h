#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pastorix {

// Looks through a whole database: SQLite's own integrity check, the tables, and whether it can be opened. One line per fault; empty for
// a sound one. The file is only read: what a crash left half done is looked at in a copy.
std::vector<std::string> VerificarBase(const std::string& fichero, std::string_view clave);

} // namespace pastorix
