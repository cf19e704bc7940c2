#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

struct sqlite3;

namespace pastorix {

// What a look through a database file finds.
struct Daños {
    std::vector<std::string> tablas; // that cannot be read whole; empty when the damage lies in none of them
    std::string detalle;             // SQLite's own words; empty: the file is sound

    bool Hay() const { return !detalle.empty(); }
    // "La base de datos está dañada. No se leen enteras las tablas T_Vacas, T_Partos": without the file's name.
    std::string Texto() const;
};

// Looks for damage, page by page; `aFondo` compares the indexes with the rows as well, which takes three times as long. A lock is
// thrown and not taken for damage.
Daños BuscarDaños(sqlite3* base, bool aFondo = false);

// The same on a connection of its own, so that it may run beside the session's, on another thread; `avance` is told there of the pages
// read.
Daños BuscarDaños(const std::filesystem::path& fichero, const std::function<void(int, int)>& avance = {});

} // namespace pastorix
