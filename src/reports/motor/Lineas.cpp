#include "reports/motor/Lineas.h"

#include "reports/motor/ErrorInforme.h"

namespace pastorix {

namespace {

constexpr std::size_t TamañoMaximo = 1'000'000; // bytes; the largest layout we have is a fiftieth of it
constexpr std::size_t LineaMaxima = 4'000;
constexpr std::size_t LineasMaximas = 20'000;

// True when the bytes are well-formed UTF-8 without NUL or other control characters but tab.
bool EsTexto(std::string_view s) {
    for (std::size_t i = 0; i < s.size();) {
        const auto c = static_cast<unsigned char>(s[i]);
        std::size_t mas = 0;
        if (c < 0x80) {
            if (c < 0x20 && c != '\t')
                return false;
        } else if (c >= 0xC2 && c <= 0xDF) {
            mas = 1;
        } else if (c >= 0xE0 && c <= 0xEF) {
            mas = 2;
        } else if (c >= 0xF0 && c <= 0xF4) {
            mas = 3;
        } else {
            return false;
        }
        if (i + mas >= s.size())
            return false;
        for (std::size_t k = 1; k <= mas; ++k) {
            if ((static_cast<unsigned char>(s[i + k]) & 0xC0) != 0x80)
                return false;
        }
        i += mas + 1;
    }
    return true;
}

class CortadorDeLinea {
public:
    CortadorDeLinea(std::string_view linea, const std::string& fichero, int numero)
        : m_linea(linea)
        , m_fichero(fichero)
        , m_numero(numero) {}

    std::vector<Palabra> Cortar() {
        std::vector<Palabra> palabras;
        while (true) {
            while (m_pos < m_linea.size() && (m_linea[m_pos] == ' ' || m_linea[m_pos] == '\t'))
                ++m_pos;
            if (m_pos >= m_linea.size())
                return palabras;
            palabras.push_back(Una());
        }
    }

private:
    Palabra Una() {
        Palabra palabra;
        if (m_linea[m_pos] == '"') {
            palabra.texto = Comillas();
            palabra.entreComillas = true;
            return palabra;
        }
        while (m_pos < m_linea.size() && m_linea[m_pos] != ' ' && m_linea[m_pos] != '\t') {
            const char c = m_linea[m_pos];
            if (c == '"')
                FalloEnLinea(m_fichero, m_numero, "comillas en medio de una palabra");
            ++m_pos;
            if (c != '=' || !palabra.clave.empty() || palabra.texto.empty()) {
                palabra.texto += c;
                continue;
            }
            palabra.clave = std::move(palabra.texto);
            palabra.texto.clear();
            if (m_pos < m_linea.size() && m_linea[m_pos] == '"') {
                palabra.texto = Comillas();
                palabra.entreComillas = true;
                return palabra;
            }
        }
        return palabra;
    }

    std::string Comillas() {
        std::string texto;
        for (++m_pos; m_pos < m_linea.size(); ++m_pos) {
            char c = m_linea[m_pos];
            if (c == '"') {
                ++m_pos;
                if (m_pos < m_linea.size() && m_linea[m_pos] != ' ' && m_linea[m_pos] != '\t')
                    FalloEnLinea(m_fichero, m_numero, "falta un blanco detrás de las comillas");
                return texto;
            }
            if (c == '\\') {
                if (++m_pos >= m_linea.size())
                    break;
                c = m_linea[m_pos];
                if (c != '"' && c != '\\' && c != 'n')
                    FalloEnLinea(m_fichero, m_numero, "detrás de \\ sólo puede estar \", \\ o n");
                c = c == 'n' ? '\n' : c;
            }
            texto += c;
        }
        FalloEnLinea(m_fichero, m_numero, "faltan las comillas que cierran el texto");
    }

    std::string_view m_linea;
    const std::string& m_fichero;
    int m_numero;
    std::size_t m_pos = 0;
};

} // namespace

void FalloEnLinea(const std::string& fichero, int linea, const std::string& texto) {
    throw ErrorInforme(CodigoInforme::Disposicion,
                       fichero + ", línea " + std::to_string(linea) + ": " + texto);
}

std::vector<LineaLeida> CortarLineas(std::string_view texto, const std::string& fichero) {
    if (texto.size() > TamañoMaximo)
        FalloEnLinea(fichero, 1, "el fichero es demasiado grande para ser un informe");
    if (texto.starts_with("\xEF\xBB\xBF"))
        texto.remove_prefix(3);
    std::vector<LineaLeida> lineas;
    int numero = 0;
    while (!texto.empty()) {
        const std::size_t fin = texto.find('\n');
        std::string_view linea = texto.substr(0, fin);
        texto.remove_prefix(fin == std::string_view::npos ? texto.size() : fin + 1);
        ++numero;
        if (linea.ends_with('\r'))
            linea.remove_suffix(1);
        if (linea.size() > LineaMaxima)
            FalloEnLinea(fichero, numero, "la línea es demasiado larga");
        if (!EsTexto(linea))
            FalloEnLinea(fichero, numero, "la línea no es texto UTF-8");
        const std::size_t primero = linea.find_first_not_of(" \t");
        if (primero == std::string_view::npos || linea[primero] == '#')
            continue;
        if (lineas.size() >= LineasMaximas)
            FalloEnLinea(fichero, numero, "el informe tiene demasiadas líneas");
        lineas.push_back({numero, CortadorDeLinea(linea, fichero, numero).Cortar()});
    }
    return lineas;
}

} // namespace pastorix
