#include "reports/motor/Formula.h"

#include "reports/motor/ErrorInforme.h"
#include "store/Textos.h"

#include <array>
#include <optional>

namespace pastorix {

namespace {

constexpr std::size_t LargoMaximo = 4000;
constexpr int HondoMaximo = 50;

[[noreturn]] void Fallo(const std::string& texto) {
    throw ErrorInforme(CodigoInforme::Formula, "Fórmula de selección errónea: " + texto);
}

std::optional<double> Numero(const Valor& v) {
    if (const auto* texto = std::get_if<std::string>(&v)) {
        double n = 0;
        return NumeroDeTexto(*texto, n) ? std::optional(n) : std::nullopt;
    }
    return NumeroDe(v);
}

std::optional<Fecha> Dia(const Valor& v) {
    const auto* texto = std::get_if<std::string>(&v);
    return texto ? FechaDeTexto(*texto) : std::get<Fecha>(v);
}

template <typename T>
std::optional<int> Orden(const std::optional<T>& a, const std::optional<T>& b) {
    if (!a || !b)
        return std::nullopt;
    return *a < *b ? -1 : (*b < *a ? 1 : 0);
}

// Order of two values that are not Null; nothing when they cannot be compared.
std::optional<int> Comparar(const Valor& a, const Valor& b) {
    const bool textoA = std::holds_alternative<std::string>(a);
    const bool textoB = std::holds_alternative<std::string>(b);
    if (textoA && textoB)
        return CompararEspañol(std::get<std::string>(a), std::get<std::string>(b));
    if (std::holds_alternative<Fecha>(a) != std::holds_alternative<Fecha>(b) && (textoA || textoB))
        return Orden(Dia(a), Dia(b));
    return Orden(Numero(a), Numero(b));
}

bool ConTexto(const Valor& v) {
    if (const auto* texto = std::get_if<std::string>(&v))
        return texto->find_first_not_of(' ') != std::string::npos;
    return !EsNulo(v);
}

} // namespace

bool Formula::Cumple(const Campos& campos, std::span<const Valor> parametros) const {
    return m_nodos.empty() || Cumple(static_cast<int>(m_nodos.size()) - 1, campos, parametros);
}

bool Formula::Cumple(int nodo, const Campos& campos, std::span<const Valor> parametros) const {
    const Nodo& n = m_nodos[static_cast<std::size_t>(nodo)];
    switch (n.op) {
    case Op::Y:
        return Cumple(n.a, campos, parametros) && Cumple(n.b, campos, parametros);
    case Op::O:
        return Cumple(n.a, campos, parametros) || Cumple(n.b, campos, parametros);
    case Op::No:
        return !Cumple(n.a, campos, parametros);
    default:
        break;
    }
    const auto valor = [&](const Operando& o) -> const Valor& {
        return o.esCampo          ? campos(o.campo)
               : o.parametro >= 0 ? parametros[static_cast<std::size_t>(o.parametro)]
                                  : o.literal;
    };
    const Valor& a = valor(n.izquierda);
    if (n.op == Op::ConTexto)
        return ConTexto(a);
    const Valor& b = valor(n.derecha);
    const auto orden = EsNulo(a) || EsNulo(b) ? std::nullopt : Comparar(a, b);
    if (!orden)
        return false;
    switch (n.op) {
    case Op::Igual:
        return *orden == 0;
    case Op::Distinto:
        return *orden != 0;
    case Op::Menor:
        return *orden < 0;
    case Op::MenorIgual:
        return *orden <= 0;
    case Op::Mayor:
        return *orden > 0;
    default:
        return *orden >= 0;
    }
}

std::vector<RefCampo> Formula::CamposUsados() const {
    std::vector<RefCampo> usados;
    for (const Nodo& n : m_nodos) {
        for (const Operando* o : {&n.izquierda, &n.derecha}) {
            if (o->esCampo)
                usados.push_back(o->campo);
        }
    }
    return usados;
}

// Recursive descent over: o := y {or y}; y := no {and no}; no := not no | "(" o ")" | comparison.
class LectorFormula {
public:
    LectorFormula(std::string_view texto, const Nombres& nombres, bool deDiseño)
        : m_texto(texto)
        , m_nombres(nombres)
        , m_deDiseño(deDiseño) {}

    Formula Leer() {
        if (m_texto.size() > LargoMaximo)
            Fallo("demasiado larga");
        O(0);
        Blancos();
        if (m_pos < m_texto.size())
            Sobra();
        return std::move(m_formula);
    }

private:
    [[noreturn]] void Sobra() const {
        Fallo("no se entiende a partir de \"" + std::string(m_texto.substr(m_pos, 30)) + "\"");
    }

    void Blancos() {
        while (m_pos < m_texto.size() && (m_texto[m_pos] == ' ' || m_texto[m_pos] == '\t'))
            ++m_pos;
    }

    // A word of the language, in either spelling.
    bool Palabra(std::string_view una, std::string_view otra) {
        Blancos();
        std::size_t fin = m_pos;
        while (fin < m_texto.size() && std::isalpha(static_cast<unsigned char>(m_texto[fin])))
            ++fin;
        const std::string_view palabra = m_texto.substr(m_pos, fin - m_pos);
        if (!IgualSinCaso(palabra, una) && !IgualSinCaso(palabra, otra))
            return false;
        m_pos = fin;
        return true;
    }

    int Poner(Formula::Nodo nodo) {
        m_formula.m_nodos.push_back(std::move(nodo));
        return static_cast<int>(m_formula.m_nodos.size()) - 1;
    }

    int O(int hondo) {
        int a = Y(hondo);
        while (Palabra("or", "o"))
            a = Poner({Formula::Op::O, a, Y(hondo), {}, {}});
        return a;
    }

    int Y(int hondo) {
        int a = No(hondo);
        while (Palabra("and", "y"))
            a = Poner({Formula::Op::Y, a, No(hondo), {}, {}});
        return a;
    }

    int No(int hondo) {
        if (hondo > HondoMaximo)
            Fallo("demasiados paréntesis");
        if (Palabra("not", "no"))
            return Poner({Formula::Op::No, No(hondo + 1), -1, {}, {}});
        Blancos();
        if (m_pos < m_texto.size() && m_texto[m_pos] == '(') {
            ++m_pos;
            const int dentro = O(hondo + 1);
            Blancos();
            if (m_pos >= m_texto.size() || m_texto[m_pos] != ')')
                Fallo("falta un paréntesis");
            ++m_pos;
            return dentro;
        }
        return Comparacion();
    }

    int Comparacion() {
        using Op = Formula::Op;
        Formula::Nodo nodo;
        nodo.izquierda = LeerOperando();
        Blancos();
        static constexpr std::array<std::pair<std::string_view, Op>, 6> signos{{{"<=", Op::MenorIgual},
                                                                                {">=", Op::MayorIgual},
                                                                                {"<>", Op::Distinto},
                                                                                {"=", Op::Igual},
                                                                                {"<", Op::Menor},
                                                                                {">", Op::Mayor}}};
        for (const auto& [signo, op] : signos) {
            if (m_texto.substr(m_pos).starts_with(signo)) {
                m_pos += signo.size();
                nodo.op = op;
                nodo.derecha = LeerOperando();
                return Poner(std::move(nodo));
            }
        }
        if (!m_deDiseño || (!nodo.izquierda.esCampo && nodo.izquierda.parametro < 0)) {
            if (m_pos < m_texto.size())
                Sobra();
            Fallo("falta la comparación");
        }
        nodo.op = Op::ConTexto;
        return Poner(std::move(nodo));
    }

    Formula::Operando LeerOperando() {
        Blancos();
        if (m_pos >= m_texto.size())
            Fallo("está incompleta");
        const char c = m_texto[m_pos];
        Formula::Operando operando;
        if (c == '{') {
            const std::size_t fin = m_texto.find('}', m_pos);
            if (fin == std::string_view::npos)
                Fallo("falta la llave que cierra un campo");
            const std::string_view dentro = m_texto.substr(m_pos + 1, fin - m_pos - 1);
            if (m_deDiseño && dentro.starts_with('?')) {
                operando.parametro = m_nombres.parametro(dentro.substr(1));
            } else {
                operando.esCampo = true;
                operando.campo = m_nombres.campo(dentro);
            }
            m_pos = fin + 1;
        } else if (c == '\'' || c == '"') {
            const std::size_t fin = m_texto.find(c, m_pos + 1);
            if (fin == std::string_view::npos)
                Fallo("falta la comilla que cierra un texto");
            operando.literal = std::string(m_texto.substr(m_pos + 1, fin - m_pos - 1));
            m_pos = fin + 1;
        } else {
            std::size_t fin = m_pos;
            while (fin < m_texto.size() &&
                   std::string_view("0123456789.-+").find(m_texto[fin]) != std::string_view::npos)
                ++fin;
            double n = 0;
            if (fin == m_pos || !NumeroDeTexto(m_texto.substr(m_pos, fin - m_pos), n))
                Sobra();
            operando.literal = n;
            m_pos = fin;
        }
        return operando;
    }

    std::string_view m_texto;
    const Nombres& m_nombres;
    bool m_deDiseño;
    std::size_t m_pos = 0;
    Formula m_formula;
};

Formula LeerFormula(std::string_view texto, const Nombres& nombres, bool deDiseño) {
    return LectorFormula(texto, nombres, deDiseño).Leer();
}

} // namespace pastorix
