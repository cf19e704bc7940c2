#pragma once

#include "store/Catalogo.h"
#include "store/Instruccion.h"

#include "access/BaseAccess.h"

#include <map>
#include <span>
#include <string>
#include <vector>

namespace pastorix {

// One table of a database under conversion: which column of the Access table goes to which of ours, and how its values are
// written. A value that is not of the column's kind is kept as it is and named among the oddities: nothing is lost on the way.
class TablaDestino {
public:
    TablaDestino(sqlite3* base, const TablaCatalogo& canonica);
    TablaDestino(const TablaDestino&) = delete;
    TablaDestino& operator=(const TablaDestino&) = delete;

    // The next column of the Access table: goes to the canonical column of its name; false when there is none.
    bool Reconocer(const access::Columna& columna);
    // Adds a column that the program does not know behind the canonical ones.
    void Ampliar(const access::Columna& columna);
    // The same when the table was made with the column already in it.
    void Añadir(const access::Columna& columna);
    // Canonical columns that nothing in the Access table fills.
    std::vector<std::string> SinOrigen() const;

    void Preparar();
    void Escribir(std::span<const access::Celda> fila);
    std::uint64_t Contar() const;
    const std::string& Nombre() const { return m_canonica.nombre; }
    std::vector<std::string> Curiosidades() const;

    static std::string SqlDeCreacion(const access::Tabla& tabla);
    static std::string SqlDeCreacion(const TablaCatalogo& tabla);
    // Type and collation as CREATE TABLE wants them.
    static std::string DeclaracionCompleta(const ColumnaTabla& columna);

private:
    struct Destino {
        std::string nombre;
        TipoColumna tipo;
        bool noNula;
    };
    void EnlazarTexto(int lugar, const std::string& texto);
    bool EnlazarCelda(int lugar, const access::Celda& celda, TipoColumna tipo); // false: odd value
    bool EnlazarTextoEn(int lugar, const access::Celda& celda);
    bool EnlazarNumeroEn(int lugar, const access::Celda& celda);
    bool EnlazarFechaEn(int lugar, const access::Celda& celda);

    sqlite3* m_base;
    const TablaCatalogo& m_canonica;
    std::vector<Destino> m_destinos; // one per column of the Access table, in its order
    std::map<std::string, int> m_raros;
    Instruccion m_insercion;
};

} // namespace pastorix
