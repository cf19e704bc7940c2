#include "store/AnalizadorExpresiones.h"

#include "store/Textos.h"

#include <algorithm>
#include <array>
#include <span>

namespace pastorix {

namespace {

constexpr int kNivelMaximo = 60;

// Words that end a list of columns or tables and therefore cannot be a plain name; a bracketed name can be anything.
constexpr std::array<std::string_view, 24> kReservadas{
    "SELECT", "FROM",    "WHERE",    "GROUP",       "ORDER", "HAVING", "INNER",  "LEFT",
    "RIGHT",  "JOIN",    "ON",       "AND",         "OR",    "NOT",    "IS",     "NULL",
    "LIKE",   "BETWEEN", "DISTINCT", "DISTINCTROW", "TOP",   "UNION",  "INSERT", "INTO"};

bool Reservada(std::string_view palabra) {
    return std::any_of(kReservadas.begin(), kReservadas.end(),
                       [&](std::string_view r) { return IgualSinCaso(r, palabra); });
}

// Terms joined by AND or OR. A long chain (a term per farmer) is cut in halves, since SQLite refuses an expression that is some hundreds
// of operators deep.
std::string Cadena(std::span<const std::string> terminos, std::string_view nexo) {
    constexpr std::size_t kSeguidos = 50;
    std::string sql;
    if (terminos.size() <= kSeguidos) {
        for (const auto& t : terminos)
            sql.append(sql.empty() ? "" : nexo).append(t);
        return sql;
    }
    const auto medio = terminos.size() / 2;
    return sql.append("(")
               .append(Cadena(terminos.first(medio), nexo))
               .append(")")
               .append(nexo)
               .append("(")
               .append(Cadena(terminos.subspan(medio), nexo)) +
           ")";
}

} // namespace

AnalizadorExpresiones::Nivel::Nivel(AnalizadorExpresiones& a)
    : m_a(a) {
    if (++m_a.m_nivel > kNivelMaximo) {
        --m_a.m_nivel;
        m_a.Error("Demasiados paréntesis");
    }
}

AnalizadorExpresiones::AnalizadorExpresiones(std::string_view forma, std::string_view sentencia,
                                             const Catalogo& catalogo)
    : m_sentencia(sentencia)
    , m_catalogo(catalogo)
    , m_fichas(Fichas(forma, sentencia)) {}

void AnalizadorExpresiones::Fallar(CodigoError codigo, const std::string& texto) const {
    throw ErrorAlmacen(codigo, texto, SentenciaVisible(m_sentencia));
}

bool AnalizadorExpresiones::ActualEs(std::string_view simbolo) const {
    return Actual().tipo == TipoFicha::Simbolo && Actual().texto == simbolo;
}

bool AnalizadorExpresiones::Palabra(std::string_view palabra) {
    if (Actual().tipo != TipoFicha::Nombre || !IgualSinCaso(Actual().texto, palabra))
        return false;
    ++m_i;
    return true;
}

bool AnalizadorExpresiones::Simbolo(std::string_view simbolo) {
    if (!ActualEs(simbolo))
        return false;
    ++m_i;
    return true;
}

void AnalizadorExpresiones::Exigir(std::string_view palabra) {
    if (!Palabra(palabra))
        Error("Falta " + std::string(palabra) + (Acabado() ? "" : " ante " + std::string(Actual().texto)));
}

void AnalizadorExpresiones::ExigirSimbolo(std::string_view simbolo) {
    if (!Simbolo(simbolo))
        Error("Falta " + std::string(simbolo) + (Acabado() ? "" : " ante " + std::string(Actual().texto)));
}

std::string AnalizadorExpresiones::Nombre(const char* deQue) {
    const auto& f = Actual();
    const bool vale = f.tipo == TipoFicha::Corchetes || (f.tipo == TipoFicha::Nombre && !Reservada(f.texto));
    if (!vale || f.texto.empty())
        Error(std::string("Falta el nombre de ") + deQue);
    ++m_i;
    return std::string(f.texto);
}

void AnalizadorExpresiones::Volver(std::size_t posicion) {
    m_i = posicion;
}

void AnalizadorExpresiones::SaltarHasta(std::string_view palabra) {
    while (!Acabado() && !(Actual().tipo == TipoFicha::Nombre && IgualSinCaso(Actual().texto, palabra)))
        ++m_i;
    Exigir(palabra);
}

int AnalizadorExpresiones::SiguienteLiteral() const {
    const auto antes = std::count_if(m_fichas.begin(), m_fichas.begin() + static_cast<std::ptrdiff_t>(m_i),
                                     [](const Ficha& f) { return f.tipo == TipoFicha::Literal; });
    return static_cast<int>(antes);
}

const TablaCatalogo& AnalizadorExpresiones::AñadirTabla(const std::string& nombre) {
    const auto* tabla = m_catalogo.Buscar(nombre);
    if (!tabla)
        Fallar(CodigoError::TablaDesconocida, "No existe la tabla " + nombre);
    if (std::find(m_tablas.begin(), m_tablas.end(), tabla) != m_tablas.end())
        Error("La tabla " + nombre + " está dos veces");
    m_tablas.push_back(tabla);
    return *tabla;
}

const TablaCatalogo* AnalizadorExpresiones::TablaEstrella() {
    if (m_i + 2 >= m_fichas.size() || m_fichas[m_i + 1].texto != "." || m_fichas[m_i + 2].texto != "*")
        return nullptr;
    const auto nombre = Nombre("tabla");
    m_i += 2;
    for (const auto* t : m_tablas)
        if (IgualSinCaso(t->nombre, nombre))
            return t;
    Fallar(CodigoError::TablaDesconocida, "La tabla " + nombre + " no está en la consulta");
}

std::vector<TablaDeConsulta> AnalizadorExpresiones::TablasConLado() const {
    std::vector<TablaDeConsulta> lados;
    for (const auto* t : m_tablas) {
        const bool porClave =
            !t->clave.empty() && std::all_of(t->clave.begin(), t->clave.end(), [&](const auto& c) {
                return std::any_of(m_igualdades.begin(), m_igualdades.end(),
                                   [&](const Igualdad& i) { return i.tabla == t && i.columna->nombre == c; });
            });
        lados.push_back({t, m_tablas.size() > 1 && porClave});
    }
    return lados;
}

void AnalizadorExpresiones::Anotar(const Expr& a, const Expr& b) {
    if (!a.columna || !b.columna || a.tabla == b.tabla)
        return;
    m_igualdades.push_back({a.tabla, a.columna});
    m_igualdades.push_back({b.tabla, b.columna});
}

AnalizadorExpresiones::Expr AnalizadorExpresiones::Expresion() {
    const Nivel nivel(*this);
    auto e = Conjuncion();
    std::vector<std::string> terminos{e.sql};
    while (Palabra("OR"))
        terminos.push_back(Conjuncion().sql);
    return terminos.size() == 1 ? e : Expr{"(" + Cadena(terminos, " OR ") + ")", TipoColumna::SiNo};
}

AnalizadorExpresiones::Expr AnalizadorExpresiones::ExpresionOAlias() {
    if (Actual().tipo == TipoFicha::Nombre || Actual().tipo == TipoFicha::Corchetes) {
        const auto nombre = Actual().texto;
        const bool esColumna = std::any_of(m_tablas.begin(), m_tablas.end(),
                                           [&](const auto* t) { return t->Buscar(nombre) >= 0; });
        const auto alias = std::find_if(m_alias.begin(), m_alias.end(),
                                        [&](const auto& a) { return IgualSinCaso(a, nombre); });
        const auto& sigue = m_fichas[m_i + 1];
        if (!esColumna && alias != m_alias.end() && sigue.texto != "." && sigue.texto != "!" &&
            sigue.texto != "(") {
            ++m_i;
            return {Entrecomillar(*alias)};
        }
    }
    return Expresion();
}

AnalizadorExpresiones::Expr AnalizadorExpresiones::Conjuncion() {
    auto e = Negacion();
    std::vector<std::string> terminos{e.sql};
    while (Palabra("AND"))
        terminos.push_back(Negacion().sql);
    return terminos.size() == 1 ? e : Expr{Cadena(terminos, " AND "), TipoColumna::SiNo};
}

AnalizadorExpresiones::Expr AnalizadorExpresiones::Negacion() {
    if (!Palabra("NOT"))
        return Comparacion();
    const Nivel nivel(*this);
    return {"NOT (" + Negacion().sql + ")", TipoColumna::SiNo};
}

AnalizadorExpresiones::Expr AnalizadorExpresiones::Comparacion() {
    auto a = Concatenacion();
    if (Palabra("IS")) {
        const bool no = Palabra("NOT");
        Exigir("NULL");
        return {a.sql + (no ? " IS NOT NULL" : " IS NULL"), TipoColumna::SiNo};
    }
    const bool no = Palabra("NOT");
    if (Palabra("LIKE")) {
        const auto b = Concatenacion();
        return {a.sql + (no ? " NOT LIKE " : " LIKE ") + b.sql, TipoColumna::SiNo};
    }
    const auto conOrden = [&](const Expr& b) {
        return EsTexto(a.tipo) || EsTexto(b.tipo) ? " COLLATE ES" : "";
    };
    if (Palabra("BETWEEN")) {
        const auto b = Concatenacion();
        Exigir("AND");
        const auto c = Concatenacion();
        const auto* collate = conOrden(b);
        return {(no ? "NOT (" : "(") + a.sql + " >= " + b.sql + collate + " AND " + a.sql + " <= " + c.sql +
                    collate + ")",
                TipoColumna::SiNo};
    }
    if (no)
        Error("Falta LIKE o BETWEEN tras NOT");
    for (const std::string_view op : {"=", "<>", "<=", ">=", "<", ">"})
        if (Simbolo(op)) {
            const auto b = Concatenacion();
            if (op == "=")
                Anotar(a, b);
            return {a.sql + " " + std::string(op) + " " + b.sql + conOrden(b), TipoColumna::SiNo};
        }
    return a;
}

// A Null counts as empty when texts are joined; numbers are joined as the program writes them.
AnalizadorExpresiones::Expr AnalizadorExpresiones::ComoTexto(const Expr& e) {
    if (EsNumero(e.tipo))
        return {"ifnull(replace(printf('%.15g', " + e.sql + "), '.', ','), '')", TipoColumna::Texto};
    return {"ifnull(" + e.sql + ", '')", TipoColumna::Texto};
}

AnalizadorExpresiones::Expr AnalizadorExpresiones::Concatenacion() {
    auto e = Suma();
    if (!ActualEs("&"))
        return e;
    std::string sql = "(" + ComoTexto(e).sql;
    while (Simbolo("&"))
        sql += " || " + ComoTexto(Suma()).sql;
    return {sql + ")", TipoColumna::Texto};
}

AnalizadorExpresiones::Expr AnalizadorExpresiones::Suma() {
    auto e = Producto();
    while (ActualEs("+") || ActualEs("-")) {
        const std::string op = Simbolo("+") ? " + " : (Simbolo("-"), " - ");
        e = {"(" + e.sql + op + Producto().sql + ")", TipoColumna::Doble};
    }
    return e;
}

AnalizadorExpresiones::Expr AnalizadorExpresiones::Producto() {
    auto e = Factor();
    while (ActualEs("*") || ActualEs("/")) {
        // A division of whole numbers is a division, not a cut one.
        const std::string op = Simbolo("*") ? " * " : (Simbolo("/"), " * 1.0 / ");
        e = {"(" + e.sql + op + Factor().sql + ")", TipoColumna::Doble};
    }
    return e;
}

AnalizadorExpresiones::Expr AnalizadorExpresiones::Factor() {
    const Nivel nivel(*this);
    if (Actual().tipo == TipoFicha::Literal) {
        const int n = SiguienteLiteral() + 1;
        ++m_i;
        return {"?" + std::to_string(n)};
    }
    if (Simbolo("-"))
        return {"(- " + Factor().sql + ")", TipoColumna::Doble};
    if (Simbolo("(")) {
        auto e = Expresion();
        ExigirSimbolo(")");
        if (!e.columna)
            e.sql = "(" + e.sql + ")";
        return e;
    }
    if (Palabra("NULL"))
        return {"NULL"};
    if (Actual().tipo == TipoFicha::Nombre && m_fichas[m_i + 1].texto == "(") {
        const auto nombre = Actual().texto;
        m_i += 2;
        return Funcion(nombre);
    }
    return Columna();
}

AnalizadorExpresiones::Expr AnalizadorExpresiones::Funcion(std::string_view nombre) {
    const auto es = [&](std::string_view n) { return IgualSinCaso(nombre, n); };
    if (es("Count") && Simbolo("*")) {
        ExigirSimbolo(")");
        m_agregados = true;
        return {"count(*)", TipoColumna::Largo};
    }
    const auto arg = Expresion();
    ExigirSimbolo(")");
    if (es("Year"))
        return {"CAST(substr(" + arg.sql + ", 1, 4) AS INTEGER)", TipoColumna::Largo};
    if (es("chr"))
        return {"char(" + arg.sql + ")", TipoColumna::Texto};
    m_agregados = true;
    if (es("Count"))
        return {"count(" + arg.sql + ")", TipoColumna::Largo};
    if (es("Avg"))
        return {"avg(" + arg.sql + ")", TipoColumna::Doble};
    if (es("StDev"))
        return {"stdev(" + arg.sql + ")", TipoColumna::Doble};
    if (es("Sum"))
        return {"sum(" + arg.sql + ")", TipoColumna::Doble};
    if (es("Max"))
        return {"max(" + arg.sql + ")", arg.tipo};
    if (es("Min"))
        return {"min(" + arg.sql + ")", arg.tipo};
    Error("Función no admitida: " + std::string(nombre));
}

AnalizadorExpresiones::Expr AnalizadorExpresiones::Columna() {
    auto nombre = Nombre("columna");
    const TablaCatalogo* tabla = nullptr;
    if (Simbolo(".") || Simbolo("!")) {
        for (const auto* t : m_tablas)
            if (IgualSinCaso(t->nombre, nombre))
                tabla = t;
        if (!tabla)
            Fallar(CodigoError::TablaDesconocida, "La tabla " + nombre + " no está en la consulta");
        nombre = Nombre("columna");
    } else {
        for (const auto* t : m_tablas)
            if (t->Buscar(nombre) >= 0) {
                if (tabla)
                    Error("La columna " + nombre + " puede ser de varias tablas");
                tabla = t;
            }
    }
    const int lugar = tabla ? tabla->Buscar(nombre) : -1;
    if (lugar < 0)
        Fallar(CodigoError::ColumnaDesconocida, "No existe la columna " + nombre);
    const auto& columna = tabla->columnas[static_cast<std::size_t>(lugar)];
    return {Entrecomillar(tabla->nombre) + "." + Entrecomillar(columna.nombre), columna.tipo, tabla,
            &columna};
}

std::string AnalizadorExpresiones::ConOrden(const Expr& e) {
    return EsTexto(e.tipo) ? e.sql + " COLLATE ES" : e.sql;
}

} // namespace pastorix
