#pragma once

#include "store/Conexion.h"

#include <functional>
#include <optional>
#include <type_traits>

namespace pastorix {

// Runs a work that touches no window and nothing of the session on a thread of its own, and waits for it while the windows go on being
// drawn; they take no keys and clicks meanwhile. `avance`, called on this thread, follows what the work tells of its progress. What the
// work throws is thrown here.
void EsperarEnSegundoPlano(const std::function<void(const AvanceDeApertura&)>& trabajo,
                           const AvanceDeApertura& avance);

// The same for a work with a result.
template <typename F>
auto EnSegundoPlano(F&& trabajo, const AvanceDeApertura& avance = {}) {
    std::optional<std::invoke_result_t<F, const AvanceDeApertura&>> resultado;
    EsperarEnSegundoPlano([&](const AvanceDeApertura& relevo) { resultado.emplace(trabajo(relevo)); },
                          avance);
    return std::move(*resultado);
}

} // namespace pastorix
