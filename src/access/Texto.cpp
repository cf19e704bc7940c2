#include "access/Texto.h"

#include "access/BaseAccess.h"

namespace pastorix::access {

namespace {

constexpr char32_t sustituto = 0xFFFD;

// Writes UTF-8 into a buffer that was made large enough beforehand, so that no character pays for a growing string.
class Escritor {
public:
    // `caben`: an upper limit of the UTF-16 units to come; each makes three bytes at most (a pair makes four).
    Escritor(std::string& texto, std::size_t caben)
        : m_texto(texto) {
        texto.resize(caben * 3);
        m_sitio = texto.data();
    }

    void Estrecho(std::uint8_t b) {
        if (b < 0x80) {
            *m_sitio++ = static_cast<char>(b);
        } else {
            *m_sitio++ = static_cast<char>(0xC0 | (b >> 6));
            *m_sitio++ = static_cast<char>(0x80 | (b & 0x3F));
        }
    }

    void Unidad(char16_t unidad) {
        if (m_primera == 0 && (unidad < 0xD800 || unidad > 0xDFFF))
            Punto(unidad);
        else
            UnidadDePar(unidad);
    }

    // Must be called at the end: it gives the text its real length.
    void Cerrar() {
        Soltar();
        m_texto.resize(static_cast<std::size_t>(m_sitio - m_texto.data()));
    }

    // A half pair cannot be completed by a narrow character.
    void Soltar() {
        if (m_primera != 0)
            Punto(sustituto);
        m_primera = 0;
    }

private:
    void UnidadDePar(char16_t unidad) {
        const bool segunda = unidad >= 0xDC00 && unidad <= 0xDFFF;
        if (m_primera != 0 && segunda) {
            Punto(0x10000 + ((char32_t{m_primera} - 0xD800) << 10) + (char32_t{unidad} - 0xDC00));
            m_primera = 0;
            return;
        }
        Soltar();
        if (unidad >= 0xD800 && unidad <= 0xDBFF)
            m_primera = unidad;
        else
            Punto(segunda ? sustituto : char32_t{unidad});
    }

    void Punto(char32_t c) {
        const auto Cola = [this, c](unsigned bits) {
            *m_sitio++ = static_cast<char>(0x80 | ((c >> bits) & 0x3F));
        };
        if (c < 0x80) {
            *m_sitio++ = static_cast<char>(c);
        } else if (c < 0x800) {
            *m_sitio++ = static_cast<char>(0xC0 | (c >> 6));
            Cola(0);
        } else if (c < 0x10000) {
            *m_sitio++ = static_cast<char>(0xE0 | (c >> 12));
            Cola(6);
            Cola(0);
        } else {
            *m_sitio++ = static_cast<char>(0xF0 | (c >> 18));
            Cola(12);
            Cola(6);
            Cola(0);
        }
    }

    std::string& m_texto;
    char* m_sitio = nullptr;
    char16_t m_primera = 0; // first half of a pair that waits for the second
};

char16_t UnidadEn(Vista bytes, std::size_t i) {
    return static_cast<char16_t>(bytes[i] | (bytes[i + 1] << 8));
}

// Compressed text without its mark: narrow characters of one byte and wide ones of two; a zero byte changes over.
void Descomprimir(Vista bytes, std::string& texto) {
    Escritor salida(texto, bytes.size());
    bool estrecho = true;
    std::size_t i = 0;
    while (i < bytes.size()) {
        if (bytes[i] == 0) {
            estrecho = !estrecho;
            ++i;
        } else if (estrecho) {
            salida.Soltar();
            salida.Estrecho(bytes[i++]);
        } else if (i + 1 < bytes.size()) {
            salida.Unidad(UnidadEn(bytes, i));
            i += 2;
        } else {
            break;
        }
    }
    salida.Cerrar();
}

} // namespace

void DecodificarUtf16(Vista bytes, std::string& texto) {
    Escritor salida(texto, bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
        salida.Unidad(UnidadEn(bytes, i));
    salida.Cerrar();
}

Textos::Textos(const Formato& formato, unsigned paginaCodigos) {
    if (formato.EsJet4())
        return;
    m_tabla = TablaDePaginaDeCodigos(paginaCodigos);
    if (!m_tabla)
        throw ErrorAccess(ErrorAccess::Clase::VersionNoTratada,
                          "Los textos del fichero están escritos en la página de códigos " +
                              std::to_string(paginaCodigos) + ", que no se sabe leer.");
}

void Textos::Decodificar(Vista bytes, std::string& texto) const {
    if (m_tabla) {
        Escritor salida(texto, bytes.size());
        for (const std::uint8_t b : bytes)
            salida.Unidad(b < 0x80 ? char16_t{b} : (*m_tabla)[b - 0x80U]);
        salida.Cerrar();
    } else if (bytes.size() >= 2 && bytes[0] == 0xFF && bytes[1] == 0xFE) {
        Descomprimir(bytes.subspan(2), texto);
    } else {
        DecodificarUtf16(bytes, texto);
    }
}

std::string Textos::Nombre(Vista bytes) const {
    std::string nombre;
    if (m_tabla)
        Decodificar(bytes, nombre);
    else
        DecodificarUtf16(bytes, nombre);
    return nombre;
}

} // namespace pastorix::access
