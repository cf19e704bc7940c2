#include "access/Rc4.h"

#include <utility>

namespace pastorix::access {

void Rc4(const std::array<std::uint8_t, 4>& llave, std::span<std::uint8_t> datos) {
    std::array<std::uint8_t, 256> s;
    for (unsigned i = 0; i < 256; ++i)
        s[i] = static_cast<std::uint8_t>(i);
    unsigned j = 0;
    for (unsigned i = 0; i < 256; ++i) {
        j = (j + s[i] + llave[i % llave.size()]) & 0xFFU;
        std::swap(s[i], s[j]);
    }
    unsigned i = 0;
    j = 0;
    for (std::uint8_t& b : datos) {
        i = (i + 1) & 0xFFU;
        j = (j + s[i]) & 0xFFU;
        std::swap(s[i], s[j]);
        b = static_cast<std::uint8_t>(b ^ s[(s[i] + s[j]) & 0xFFU]);
    }
}

} // namespace pastorix::access
