#include "store/Lexico.h"

#include "store/Errores.h"

#include <algorithm>
#include <charconv>

namespace pastorix {

namespace {

bool EsDigito(char c) {
    return c >= '0' && c <= '9';
}
bool EsLetra(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}
bool EsBlanco(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

class Separador {
public:
    Separador(std::string_view s, std::string& forma, std::vector<Valor>& literales)
        : m_s(s)
        , m_forma(forma)
        , m_literales(literales) {}

    void Recorrer() {
        m_forma.reserve(m_s.size());
        while (m_i < m_s.size())
            Paso();
        if (!m_forma.empty() && m_forma.back() == ' ')
            m_forma.pop_back();
    }

private:
    [[noreturn]] void Error(const char* texto) const {
        throw ErrorAlmacen(CodigoError::Sintaxis, texto, SentenciaVisible(m_s));
    }

    void Paso() {
        const char c = m_s[m_i];
        if (EsBlanco(c)) {
            ++m_i;
            if (!m_forma.empty() && m_forma.back() != ' ')
                m_forma += ' ';
        } else if (EsLetra(c)) {
            const auto inicio = m_i;
            while (m_i < m_s.size() && (EsLetra(m_s[m_i]) || EsDigito(m_s[m_i])))
                ++m_i;
            m_forma.append(m_s.substr(inicio, m_i - inicio));
        } else if (EsDigito(c) ||
                   (c == '.' && m_i + 1 < m_s.size() && EsDigito(m_s[m_i + 1]) && !TrasNombre())) {
            Numero();
        } else if (c == '\'') {
            Literal(Texto());
        } else if (c == '#') {
            Literal(FechaAlmohadillas());
        } else if (c == '{') {
            Literal(FechaOdbc());
        } else if (c == '[') {
            const auto fin = m_s.find(']', m_i);
            if (fin == std::string_view::npos)
                Error("Falta el corchete de cierre");
            m_forma.append(m_s.substr(m_i, fin + 1 - m_i));
            m_i = fin + 1;
        } else if (c == '?' || static_cast<unsigned char>(c) < 0x20) {
            Error("Carácter no admitido en la sentencia");
        } else {
            m_forma += c;
            ++m_i;
        }
    }

    bool TrasNombre() const { return !m_forma.empty() && (EsLetra(m_forma.back()) || m_forma.back() == ']'); }

    void Literal(Valor v) {
        // Two literals in a row, or one glued to a word, would read as one thing; the blank keeps them apart.
        m_forma += '?';
        m_literales.push_back(std::move(v));
    }

    void Numero() {
        const auto inicio = m_i;
        bool entero = true;
        while (m_i < m_s.size() && (EsDigito(m_s[m_i]) || m_s[m_i] == '.')) {
            entero = entero && m_s[m_i] != '.';
            ++m_i;
        }
        if (m_i < m_s.size() && (m_s[m_i] == 'e' || m_s[m_i] == 'E') && m_i + 1 < m_s.size() &&
            (EsDigito(m_s[m_i + 1]) || m_s[m_i + 1] == '-' || m_s[m_i + 1] == '+')) {
            entero = false;
            m_i += 2;
            while (m_i < m_s.size() && EsDigito(m_s[m_i]))
                ++m_i;
        }
        if (m_i < m_s.size() && EsLetra(m_s[m_i]))
            Error("Número seguido de letras");
        const auto* a = m_s.data() + inicio;
        const auto* b = m_s.data() + m_i;
        std::int64_t n = 0;
        if (entero && std::from_chars(a, b, n).ec == std::errc{})
            return Literal(n);
        double d = 0;
        const auto [fin, error] = std::from_chars(a, b, d);
        if (error != std::errc{} || fin != b)
            Error("Número mal escrito");
        Literal(d);
    }

    std::string Texto() {
        std::string t;
        for (++m_i; m_i < m_s.size(); ++m_i) {
            const char c = m_s[m_i];
            if (c == kMarcaApostrofo)
                Error("Hay un apóstrofo dentro de un texto");
            if (c == '\'') {
                if (m_i + 1 >= m_s.size() || m_s[m_i + 1] != '\'') {
                    ++m_i;
                    return t;
                }
                ++m_i;
            }
            t += c;
        }
        Error("Falta el apóstrofo de cierre de un texto");
    }

    // Month first whatever the user's habits; a two-digit year is read as everywhere else.
    Valor FechaAlmohadillas() {
        const auto fin = m_s.find('#', m_i + 1);
        if (fin == std::string_view::npos)
            Error("Falta la almohadilla de cierre de una fecha");
        const auto cuerpo = m_s.substr(m_i + 1, fin - m_i - 1);
        const auto b = cuerpo.find('/');
        const auto b2 = b == std::string_view::npos ? b : cuerpo.find('/', b + 1);
        std::optional<Fecha> fecha;
        if (b2 != std::string_view::npos) {
            std::string diaPrimero(cuerpo.substr(b + 1, b2 - b - 1));
            diaPrimero.append("/").append(cuerpo.substr(0, b)).append(cuerpo.substr(b2));
            fecha = FechaDeTexto(diaPrimero);
        }
        if (!fecha)
            Error("Fecha incorrecta");
        m_i = fin + 1;
        return *fecha;
    }

    Valor FechaOdbc() {
        constexpr std::string_view kPrincipio = "{ts '";
        const auto fin = m_s.find("'}", m_i);
        if (m_s.substr(m_i, kPrincipio.size()) != kPrincipio || fin == std::string_view::npos)
            Error("Fecha incorrecta");
        const auto cuerpo = m_s.substr(m_i + kPrincipio.size(), fin - m_i - kPrincipio.size());
        const auto fecha = FechaDeIso(cuerpo);
        if (!fecha)
            Error("Fecha incorrecta");
        m_i = fin + 2;
        return *fecha;
    }

    std::string_view m_s;
    std::string& m_forma;
    std::vector<Valor>& m_literales;
    std::size_t m_i = 0;
};

} // namespace

std::string SentenciaVisible(std::string_view sentencia) {
    std::string t(sentencia);
    std::replace(t.begin(), t.end(), kMarcaApostrofo, '\'');
    return t;
}

void SepararLiterales(std::string_view sentencia, std::string& forma, std::vector<Valor>& literales) {
    forma.clear();
    literales.clear();
    Separador(sentencia, forma, literales).Recorrer();
}

std::vector<Ficha> Fichas(std::string_view forma, std::string_view sentencia) {
    std::vector<Ficha> fichas;
    std::size_t i = 0;
    while (i < forma.size()) {
        const char c = forma[i];
        if (c == ' ') {
            ++i;
        } else if (EsLetra(c)) {
            const auto inicio = i;
            while (i < forma.size() && (EsLetra(forma[i]) || EsDigito(forma[i])))
                ++i;
            fichas.push_back({TipoFicha::Nombre, forma.substr(inicio, i - inicio)});
        } else if (c == '[') {
            const auto fin = forma.find(']', i);
            fichas.push_back({TipoFicha::Corchetes, forma.substr(i + 1, fin - i - 1)});
            i = fin + 1;
        } else if (c == '?') {
            fichas.push_back({TipoFicha::Literal, forma.substr(i++, 1)});
        } else {
            const auto dos = forma.substr(i, 2);
            const std::size_t n = dos == "<>" || dos == "<=" || dos == ">=" ? 2 : 1;
            if (std::string_view("(),.!=<>+-*/&;").find(c) == std::string_view::npos)
                throw ErrorAlmacen(CodigoError::Sintaxis,
                                   std::string("Carácter no admitido en la sentencia: ") + c,
                                   SentenciaVisible(sentencia));
            fichas.push_back({TipoFicha::Simbolo, forma.substr(i, n)});
            i += n;
        }
    }
    fichas.push_back({});
    return fichas;
}

} // namespace pastorix
