#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;

namespace pastorix {

enum class TipoColumna { Doble, Largo, Texto, Memo, Fecha, FechaHora, SiNo, Otro };

// Type codes by which lists tell their columns apart: 202 text, 135 date, 5 double, 3 long, 203 memo, 11 yes/no, 204 other.
int CodigoDeTipo(TipoColumna tipo);

inline bool EsTexto(TipoColumna t) {
    return t == TipoColumna::Texto || t == TipoColumna::Memo;
}
inline bool EsFecha(TipoColumna t) {
    return t == TipoColumna::Fecha || t == TipoColumna::FechaHora;
}
inline bool EsNumero(TipoColumna t) {
    return t == TipoColumna::Doble || t == TipoColumna::Largo || t == TipoColumna::SiNo;
}

struct ColumnaTabla {
    std::string nombre;      // canonical spelling
    std::string declaracion; // as in CREATE TABLE: "TEXT(50)"
    TipoColumna tipo = TipoColumna::Otro;
    int anchura = 0; // characters of a text, 0 without limit
    bool noNula = false;
};

struct TablaCatalogo {
    std::string nombre;
    std::vector<ColumnaTabla> columnas;
    std::vector<std::string> clave; // columns of the natural key; empty when the table has none

    // Index of a column by name without regard to case ("AÑONAT" finds AñoNat); -1 when there is none.
    int Buscar(std::string_view columna) const;
};

// Tables and columns of one open database.
class Catalogo {
public:
    static Catalogo DeBase(sqlite3* base);

    const TablaCatalogo* Buscar(std::string_view tabla) const;
    const std::vector<TablaCatalogo>& Tablas() const { return m_tablas; } // our own meta table left out

private:
    std::vector<TablaCatalogo> m_tablas;
};

// What a database of ours must hold, read from the delivered SQL.
enum class ClaseDeBase { Principal, Toros };
const Catalogo& CatalogoCanonico(ClaseDeBase clase);
std::string_view SqlDeEsquema(ClaseDeBase clase);

// A name between double quotes for SQLite.
std::string Entrecomillar(std::string_view nombre);

} // namespace pastorix
