#pragma once

#include "store/Conexion.h"
#include "store/Valor.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace pastorix {

enum class Cursor { Keyset = 1, Dinamico = 2, Estatico = 3 };
enum class Bloqueo { SoloLectura = 1, Optimista = 3 };

class Recordset;

// One field of the current row: what rs["Nombre"] gives. Reading never changes it; assigning holds the value until Update().
class Campo {
public:
    bool Nulo() const;
    std::string Texto() const; // "" when Null; numbers with decimal comma, dates as dd/mm/yy
    std::string_view
    Vista() const;         // a text column's bytes without a copy, "" when Null; valid until the row changes
    double Numero() const; // 0 when Null
    std::int64_t Entero() const;             // 0 when Null; halves to even
    std::optional<Fecha> FechaValor() const; // empty when Null or no date
    Valor Leer() const;

    // Converts as the column asks: a typed number or date text is taken in the program's own form. Throws
    // ErrorAlmacen(TipoInadecuado) for a text that is no number in a number column or one that is too long.
    Campo& operator=(Valor v);
    // Puts back what was read from this very column, as it is: a text in a number column, one longer than the column is wide.
    void Reponer(const Valor& leido);
    Campo& operator=(std::string_view texto);
    Campo& operator=(const char* texto) { return *this = std::string_view(texto); }
    Campo& operator=(const std::string& texto) { return *this = std::string_view(texto); }
    Campo& operator=(double n) { return *this = Valor(n); }
    Campo& operator=(int n) { return *this = Valor(static_cast<std::int64_t>(n)); }
    Campo& operator=(std::int64_t n) { return *this = Valor(n); }
    Campo& operator=(Fecha f) { return *this = Valor(f); }
    Campo& operator=(std::optional<Fecha> f) { return *this = f ? Valor(*f) : Valor(); }

private:
    friend class Recordset;
    Campo(Recordset& r, int indice)
        : m_r(r)
        , m_indice(indice) {}
    Recordset& m_r;
    int m_indice;
};

// An open query, closed by its destructor. The rows are read when it opens and do not follow later changes of others, so that
// a walk never meets a row twice, nor one that was added through it. Writing goes row by row to the tables the fields come from, over
// joins too.
class Recordset {
public:
    Recordset(Conexion& conexion, std::string_view sentencia, Cursor cursor = Cursor::Keyset,
              Bloqueo bloqueo = Bloqueo::Optimista);
    ~Recordset();
    Recordset(Recordset&&) noexcept;
    // Opens a query for new rows alone: none of those that are there is read.
    static Recordset ParaAñadir(Conexion& conexion, std::string_view sentencia);
    Recordset& operator=(Recordset&&) = delete;

    bool Eof() const;
    void Primero();
    void Ultimo();
    void Siguiente();
    long Contar() const; // rows

    int Campos() const;
    std::string NombreCampo(int indice) const;
    int TipoCampo(int indice) const;          // type code of the column, see CodigoDeTipo
    std::string TablaCampo(int indice) const; // table that the column comes from; "" when it is computed
    // By name without regard to case ("AÑONAT" finds AñoNat), optionally prefixed "T_Vacas.Nombre"; the first of two equal names.
    // Throws ErrorAlmacen(ColumnaDesconocida).
    Campo operator[](std::string_view nombre);
    Campo operator[](int indice);

    // A new row of the query's one table; or, for a join, of the table on the many side. Assign, then Update(). It is the current one
    // until the cursor moves.
    void AddNew();
    // Writes the assigned fields of the current or the new row. Throws ErrorAlmacen(Restriccion) and leaves the database as it was.
    void Update();
    // Forgets what was assigned since AddNew or the last Update.
    void CancelarCambios();
    // Deletes the current row; through a join, the row of the table on the many side. The cursor stays; call Siguiente().
    void Delete();
    void Cerrar();

private:
    friend class Campo;
    struct Interior;
    explicit Recordset(std::unique_ptr<Interior> interior);
    std::unique_ptr<Interior> m;
};

// Last row's field plus 1, or 1 when the query is empty: how keys are made. The statement must sort ascending on the key.
double SiguienteId(Conexion& conexion, std::string_view sentencia, int indice = 0);

// First row's field as text; "" when the query is empty or the field Null.
std::string ValorDeCampo(Conexion& conexion, std::string_view sentencia, int indice = 0);

} // namespace pastorix
