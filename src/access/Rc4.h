#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace pastorix::access {

// XORs `datos` in place with the RC4 key stream of a four-byte key, the stream started afresh. Serves the mask of the header
// and the pages of encoded files; applying it twice gives the old bytes back.
void Rc4(const std::array<std::uint8_t, 4>& llave, std::span<std::uint8_t> datos);

} // namespace pastorix::access
