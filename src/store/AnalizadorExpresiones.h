#pragma once

#include "store/Catalogo.h"
#include "store/Errores.h"
#include "store/Lexico.h"
#include "store/Traductor.h"

#include <string>
#include <string_view>
#include <vector>

namespace pastorix {

// Base of the statement parser: walks the words of one statement, knows its tables, and turns expressions into SQLite's.
// Recursive descent in the order of precedence: OR, AND, NOT, comparison, &, + -, * /, sign.
class AnalizadorExpresiones {
public:
    AnalizadorExpresiones(std::string_view forma, std::string_view sentencia, const Catalogo& catalogo);

protected:
    struct Expr {
        std::string sql;
        TipoColumna tipo = TipoColumna::Otro;
        const TablaCatalogo* tabla = nullptr; // set, with columna, for a plain column
        const ColumnaTabla* columna = nullptr;
    };

    // Keeps hostile nesting from using up the stack.
    struct Nivel {
        explicit Nivel(AnalizadorExpresiones& a);
        ~Nivel() { --m_a.m_nivel; }
        Nivel(const Nivel&) = delete;
        Nivel& operator=(const Nivel&) = delete;

    private:
        AnalizadorExpresiones& m_a;
    };

    // words
    const Ficha& Actual() const { return m_fichas[m_i]; }
    bool Acabado() const { return Actual().tipo == TipoFicha::Fin; }
    bool ActualEs(std::string_view simbolo) const;
    bool Palabra(std::string_view palabra); // takes a keyword, in any case
    bool Simbolo(std::string_view simbolo);
    void Exigir(std::string_view palabra);
    void ExigirSimbolo(std::string_view simbolo);
    std::string Nombre(const char* deQue); // takes a name, bracketed or not
    std::size_t Posicion() const { return m_i; }
    void Volver(std::size_t posicion);
    void SaltarHasta(std::string_view palabra);
    int SiguienteLiteral() const; // number of the literal the next ? stands for
    [[noreturn]] void Error(const std::string& texto) const { Fallar(CodigoError::Sintaxis, texto); }
    [[noreturn]] void Fallar(CodigoError codigo, const std::string& texto) const;

    // tables of the statement
    const TablaCatalogo& AñadirTabla(const std::string& nombre);
    void AñadirAlias(const std::string& nombre) { m_alias.push_back(nombre); }
    const TablaCatalogo* TablaEstrella(); // takes "Tabla.*"
    std::vector<TablaDeConsulta> TablasConLado() const;
    bool HayAgregados() const { return m_agregados; }

    // expressions
    Expr Expresion();
    Expr ExpresionOAlias();
    Expr Suma();
    Expr Columna();
    static std::string ConOrden(const Expr& e); // the expression with the Spanish order if it is a text

    template <typename F>
    std::string Lista(F&& elemento) {
        std::string sql = elemento();
        while (Simbolo(","))
            sql += ", " + elemento();
        return sql;
    }

private:
    struct Igualdad {
        const TablaCatalogo* tabla;
        const ColumnaTabla* columna;
    };

    Expr Conjuncion();
    Expr Negacion();
    Expr Comparacion();
    Expr Concatenacion();
    Expr Producto();
    Expr Factor();
    Expr Funcion(std::string_view nombre);
    static Expr ComoTexto(const Expr& e);
    void Anotar(const Expr& a, const Expr& b);

    std::string_view m_sentencia;
    const Catalogo& m_catalogo;
    std::vector<Ficha> m_fichas;
    std::size_t m_i = 0;
    int m_nivel = 0;
    bool m_agregados = false;
    std::vector<const TablaCatalogo*> m_tablas;
    std::vector<std::string> m_alias;
    std::vector<Igualdad> m_igualdades; // columns that are equated with one of another table
};

} // namespace pastorix
