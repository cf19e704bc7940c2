#pragma once

#include "access/BaseAccess.h"

#include <string>
#include <vector>

// What the tests of the reader share.
namespace pastorix::access::ayudas {

// A cell as text, the way the outside tool writes it, so that both can be compared: "@" null, 0/1, 16 digits, yyyy-mm-dd hh:mm:ss
// to whole seconds, hexadecimal bytes.
std::string Mostrar(const Celda& celda);

using FilasMostradas = std::vector<std::vector<std::string>>;
FilasMostradas Filas(const BaseAccess& base, const std::string& tabla);
const Tabla& TablaDe(const BaseAccess& base, const std::string& nombre);

Bytes LeerBytes(const std::string& fichero);

// Reads every row of every table; returns their number.
std::uint64_t LeerTodo(const BaseAccess& base);

// Every table of a file against mdb-export, cell by cell; the rows sorted, for it hands out moved ones at their new place,
// and empty texts taken for null, for it does not tell them apart. Returns the first difference, empty when there is none.
std::string CompararConExport(const std::string& fichero);
bool HayExport();

} // namespace pastorix::access::ayudas
