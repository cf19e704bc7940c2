#pragma once

#include "reports/motor/Disposicion.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace pastorix {

// The text of a layout that another one includes, by its plain file name; nothing when there is none of that name.
using Incluibles = std::function<std::optional<std::string>(const std::string& nombre)>;

// Reads a layout. The file name is only told in errors. Throws ErrorInforme(Disposicion) "fichero, línea n: ..." for anything that is
// not a sound layout; whatever the bytes are, it ends, and in little time. Without includables every incluye is a mistake.
Disposicion LeerDisposicion(std::string_view texto, const std::string& fichero,
                            const Incluibles& incluibles = {});

// Whether it begins as our layouts do: pastorix-informe is the first word that is no comment.
bool EmpiezaComoDisposicion(std::string_view texto);

// What is read of a file at the most: one byte more than a layout may have.
inline constexpr int BytesDeDisposicion = 1'000'001;

} // namespace pastorix
