#include "store/Traductor.h"

#include "store/AnalizadorExpresiones.h"
#include "store/Errores.h"

#include <algorithm>

namespace pastorix {

namespace {

// One statement: the clauses around the expressions.
class Analizador : public AnalizadorExpresiones {
public:
    Analizador(std::string_view forma, std::string_view sentencia, const Catalogo& catalogo)
        : AnalizadorExpresiones(forma, sentencia, catalogo) {}

    Traduccion Sentencia(bool conFilas) {
        if (Palabra("SELECT"))
            Seleccion(conFilas);
        else if (Palabra("DELETE"))
            Borrado();
        else if (Palabra("UPDATE"))
            Cambio();
        else if (Palabra("ALTER"))
            Estructura();
        else
            Error("La sentencia no empieza por SELECT, DELETE, UPDATE o ALTER");
        Simbolo(";");
        if (!Acabado())
            Error("Sobra texto: " + std::string(Actual().texto));
        return std::move(m_t);
    }

private:
    // The list of columns stands before the tables it refers to: the tables are read first, then the list.
    void Seleccion(bool conFilas) {
        m_t.clase = ClaseSentencia::Select;
        const auto lista = Posicion();
        SaltarHasta("FROM");
        std::string cola = " FROM " + Origen();
        const auto tras = Posicion();
        Volver(lista);
        std::string columnas = ListaDeColumnas();
        Volver(tras);
        bool agrupada = HayAgregados();
        if (Palabra("WHERE"))
            cola += " WHERE " + Expresion().sql;
        if (Palabra("GROUP")) {
            Exigir("BY");
            agrupada = true;
            cola += " GROUP BY " + Lista([this] { return ConOrden(Expresion()); });
        }
        if (Palabra("HAVING"))
            cola += " HAVING " + Expresion().sql;
        if (Palabra("ORDER")) {
            Exigir("BY");
            cola += " ORDER BY " + Lista([this] {
                        auto e = ConOrden(ExpresionOAlias());
                        if (Palabra("DESC"))
                            return e + " DESC";
                        Palabra("ASC");
                        return e;
                    });
        }
        m_t.escribible = !agrupada;
        m_t.tablas = TablasConLado();
        if (conFilas && m_t.escribible)
            for (const auto& t : m_t.tablas)
                columnas += ", " + Entrecomillar(t.tabla->nombre) + ".rowid";
        m_t.sql = "SELECT " + columnas + cola;
    }

    std::string ListaDeColumnas() {
        int expresiones = 0;
        return Lista([&]() -> std::string {
            if (Simbolo("*")) {
                for (const auto& t : TablasConLado())
                    Salida(*t.tabla);
                return "*";
            }
            if (const auto* tabla = TablaEstrella()) {
                Salida(*tabla);
                return Entrecomillar(tabla->nombre) + ".*";
            }
            const auto e = Expresion();
            std::string nombre =
                e.columna ? e.columna->nombre : "Expr" + std::to_string(1000 + expresiones++);
            if (Palabra("AS")) {
                nombre = Nombre("alias");
                AñadirAlias(nombre);
            }
            m_t.salida.push_back({nombre, e.tipo, e.tabla, e.columna});
            return e.sql + " AS " + Entrecomillar(nombre);
        });
    }

    void Salida(const TablaCatalogo& tabla) {
        for (const auto& c : tabla.columnas)
            m_t.salida.push_back({c.nombre, c.tipo, &tabla, &c});
    }

    // tables, joins (nested to the left in parentheses) and comma
    std::string Origen() {
        std::string sql = Union();
        while (Simbolo(","))
            sql += ", " + Union();
        return sql;
    }

    std::string Union() {
        std::string sql = Primaria();
        for (;;) {
            std::string clase;
            if (Palabra("INNER"))
                clase = " INNER JOIN ";
            else if (Palabra("LEFT"))
                clase = " LEFT JOIN ";
            else if (Palabra("RIGHT"))
                clase = " RIGHT JOIN ";
            else
                return sql;
            Palabra("OUTER");
            Exigir("JOIN");
            // Parentheses around the left side say nothing that the order of the joins does not, and hide the row identifiers.
            std::string derecha = ActualEs("(") ? "(" + Primaria() + ")" : Primaria();
            sql += clase + derecha;
            Exigir("ON");
            sql += " ON " + Expresion().sql;
        }
    }

    std::string Primaria() {
        const Nivel nivel(*this);
        if (Simbolo("(")) {
            auto sql = Union();
            ExigirSimbolo(")");
            return sql;
        }
        return Entrecomillar(AñadirTabla(Nombre("tabla")).nombre);
    }

    void Borrado() {
        m_t.clase = ClaseSentencia::Delete;
        Simbolo("*");
        Exigir("FROM");
        const auto& tabla = AñadirTabla(Nombre("tabla"));
        m_t.sql = "DELETE FROM " + Entrecomillar(tabla.nombre);
        if (Palabra("WHERE"))
            m_t.sql += " WHERE " + Expresion().sql;
        m_t.tablas = TablasConLado();
    }

    void Cambio() {
        m_t.clase = ClaseSentencia::Update;
        const auto& primera = AñadirTabla(Nombre("tabla"));
        const TablaCatalogo* segunda = nullptr;
        std::string condicion;
        if (Palabra("INNER")) {
            Exigir("JOIN");
            segunda = &AñadirTabla(Nombre("tabla"));
            Exigir("ON");
            condicion = Expresion().sql;
        }
        Exigir("SET");
        const TablaCatalogo* cambiada = nullptr;
        const auto asignaciones = Lista([&] {
            const auto destino = Columna();
            if (cambiada && cambiada != destino.tabla)
                Error("Un UPDATE cambia una sola tabla");
            cambiada = destino.tabla;
            ExigirSimbolo("=");
            const auto literal = Actual().tipo == TipoFicha::Literal ? SiguienteLiteral() : -1;
            const auto valor = Suma();
            if (literal >= 0 && EsNumero(destino.columna->tipo))
                m_t.asignados.emplace_back(literal, destino.columna->tipo);
            return Entrecomillar(destino.columna->nombre) + " = " + valor.sql;
        });
        if (Palabra("WHERE")) {
            const auto donde = Expresion().sql;
            condicion = condicion.empty() ? donde : "(" + condicion + ") AND (" + donde + ")";
        }
        m_t.sql = "UPDATE " + Entrecomillar(cambiada->nombre) + " SET " + asignaciones;
        if (segunda)
            m_t.sql += " FROM " + Entrecomillar((cambiada == &primera ? segunda : &primera)->nombre);
        if (!condicion.empty())
            m_t.sql += " WHERE " + condicion;
        m_t.tablas = {{cambiada, false}};
    }

    void Estructura() {
        m_t.clase = ClaseSentencia::Alter;
        Exigir("TABLE");
        const auto& tabla = AñadirTabla(Nombre("tabla"));
        const bool añadir = Palabra("ADD");
        if (!añadir)
            Exigir("DROP");
        Exigir("COLUMN");
        const auto nombre = Nombre("columna");
        const int lugar = tabla.Buscar(nombre);
        m_t.sql = "ALTER TABLE " + Entrecomillar(tabla.nombre);
        if (añadir) {
            const auto tipo = TipoDeclarado();
            if (lugar >= 0)
                Fallar(CodigoError::Restriccion,
                       "La tabla " + tabla.nombre + " ya tiene la columna " + nombre);
            m_t.sql += " ADD COLUMN " + Entrecomillar(nombre) + " " + tipo;
        } else {
            if (lugar < 0)
                Fallar(CodigoError::ColumnaDesconocida,
                       "La tabla " + tabla.nombre + " no tiene la columna " + nombre);
            m_t.sql +=
                " DROP COLUMN " + Entrecomillar(tabla.columnas[static_cast<std::size_t>(lugar)].nombre);
        }
        m_t.tablas = TablasConLado();
    }

    std::string TipoDeclarado() {
        if (Palabra("DOUBLE"))
            return "DOUBLE";
        if (Palabra("LONG"))
            return "INTEGER";
        if (Palabra("DATETIME"))
            return "TEXT_DATE";
        if (Palabra("MEMO"))
            return "TEXT_MEMO COLLATE NOCASE";
        if (Palabra("YESNO"))
            return "YESNO NOT NULL DEFAULT 0";
        Error("Tipo de columna no admitido");
    }

    Traduccion m_t;
};

} // namespace

Traduccion Traducir(std::string_view forma, std::string_view sentencia, const Catalogo& catalogo,
                    bool conFilas) {
    return Analizador(forma, sentencia, catalogo).Sentencia(conFilas);
}

} // namespace pastorix
