#pragma once

#include "access/Formato.h"
#include "access/Lector.h"

#include <array>
#include <string>

namespace pastorix::access {

// Characters 0x80 to 0xFF of a code page; U+FFFD where it has none.
using MitadAlta = std::array<char16_t, 128>;

// The table of a Windows code page 1250 to 1258, nullptr for any other.
const MitadAlta* TablaDePaginaDeCodigos(unsigned pagina);

// Plain UTF-16LE to UTF-8, replacing what `texto` held. A lone byte at the end is dropped, half a surrogate pair becomes U+FFFD.
void DecodificarUtf16(Vista bytes, std::string& texto);

// Turns the bytes of text values and names of one file into UTF-8.
class Textos {
public:
    // Throws ErrorAccess (VersionNoTratada, naming the page) when a Jet 3 file is written in a code page without a table;
    // texts of Jet 4 do not depend on it.
    Textos(const Formato& formato, unsigned paginaCodigos);

    // A text or memo value, put together from all its parts: only its very front tells whether it is compressed (Jet 4).
    void Decodificar(Vista bytes, std::string& texto) const;
    // Names of tables and columns are never compressed.
    std::string Nombre(Vista bytes) const;

private:
    const MitadAlta* m_tabla = nullptr; // Jet 3 only
};

} // namespace pastorix::access
