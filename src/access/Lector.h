#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

// The one way in which the reader touches bytes of a file: a window that knows its limits and where in the file it lies.
namespace pastorix::access {

using Vista = std::span<const std::uint8_t>;

// Damage found inside the room. BaseAccess turns it into the ErrorAccess of its interface, with the name of the table;
// callbacks of the user never see it.
struct Daño {
    enum class Como { Dañado, Cortado };
    std::string detalle;
    Como como = Como::Dañado;
};

// Ends the reading. The text says what is wrong; "página N" is added when a page is given (0 = none in particular).
[[noreturn]] void Dañar(const std::string& detalle, std::uint32_t pagina = 0);
// The same for what is only missing because the file has lost its end.
[[noreturn]] void Cortar(const std::string& detalle);

// Bytes of one page, row, value or joined definition. Positions count from the window's start, in 64 bits so that no sum
// of counts taken from the file can wrap. A read past the end is damage of the page named.
class Lector {
public:
    Lector() = default;
    Lector(Vista bytes, std::uint32_t pagina)
        : m_bytes(bytes)
        , m_pagina(pagina) {}

    std::uint64_t Largo() const { return m_bytes.size(); }
    std::uint32_t Pagina() const { return m_pagina; }
    Vista Todo() const { return m_bytes; }

    Vista Trozo(std::uint64_t desde, std::uint64_t largo) const {
        if (desde > m_bytes.size() || largo > m_bytes.size() - desde) [[unlikely]]
            FueraDeLimites();
        return m_bytes.subspan(static_cast<std::size_t>(desde), static_cast<std::size_t>(largo));
    }
    Lector Parte(std::uint64_t desde, std::uint64_t largo) const { return {Trozo(desde, largo), m_pagina}; }

    std::uint8_t U8(std::uint64_t pos) const { return Trozo(pos, 1)[0]; }
    std::uint16_t U16(std::uint64_t pos) const { return Entero<std::uint16_t>(pos); }
    std::uint32_t U32(std::uint64_t pos) const { return Entero<std::uint32_t>(pos); }
    std::uint64_t U64(std::uint64_t pos) const { return Entero<std::uint64_t>(pos); }
    double Doble(std::uint64_t pos) const { return std::bit_cast<double>(U64(pos)); }
    float Simple(std::uint64_t pos) const { return std::bit_cast<float>(U32(pos)); }

private:
    // Little-endian, whatever the machine; compilers make one load of it.
    template <class T>
    T Entero(std::uint64_t pos) const {
        const Vista b = Trozo(pos, sizeof(T));
        std::uint64_t valor = 0;
        for (std::size_t i = 0; i < sizeof(T); ++i)
            valor |= std::uint64_t{b[i]} << (8 * i);
        return static_cast<T>(valor);
    }
    [[noreturn]] void FueraDeLimites() const;

    Vista m_bytes;
    std::uint32_t m_pagina = 0;
};

} // namespace pastorix::access
