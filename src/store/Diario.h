#pragma once

#include "store/Fecha.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_value;

namespace pastorix {

class Conexion;

struct LiberaValor {
    void operator()(sqlite3_value* valor) const;
};
// A row as it is stored, value by value; empty where there is none.
using FilaGuardada = std::vector<std::unique_ptr<sqlite3_value, LiberaValor>>;

// One row that a durable unit of work changed: nothing before it was added, nothing after it was removed.
struct FilaCambiada {
    std::string tabla;
    std::int64_t fila = 0;
    FilaGuardada antes;
    FilaGuardada despues;
};

// One durable unit of work: a save, a deletion.
struct Accion {
    Fecha momento;
    std::vector<FilaCambiada> filas; // each row once
};

// What is changed through a connection while the diary is on it, unit by unit, so that the last ones can be put back. Scratch tables and the log of
// exchanges are left out, and units of more rows than a person does by hand. It begins anew whenever the connection opens a file.
class Diario {
public:
    // `ahora` tells the time of each unit. The diary may not outlive the connection.
    Diario(Conexion& conexion, std::function<Fecha()> ahora);
    ~Diario();
    Diario(const Diario&) = delete;
    Diario& operator=(const Diario&) = delete;

    const std::vector<Accion>& Acciones() const { return m_acciones; } // the latest last

    // Puts back what a unit replaced, as a durable unit of its own, which the diary takes down too. Throws ErrorAlmacen (Restriccion) when
    // one of its rows is no longer as the unit left it, with everything as it was.
    void Deshacer(std::size_t accion);
    // The value of a column of a changed row as text: as it is now, or as it was when it is gone. "" for Null and for no such column.
    std::string Texto(const FilaCambiada& fila, const std::string& columna) const;

    // Told by the connection.
    void Seguir(sqlite3* base); // nullptr: it was closed
    void Marcar();
    void SoltarMarca();
    void VolverALaMarca();
    void Olvidar(std::size_t desde); // units whose commit failed after all

private:
    struct Ganchos; // what SQLite calls

    void Tomar(FilaCambiada fila);
    void Cerrar();

    Conexion& m_conexion;
    std::function<Fecha()> m_ahora;
    sqlite3* m_base = nullptr;
    std::vector<FilaCambiada> m_pendientes; // of the unit at hand, as they came
    std::vector<std::size_t> m_marcas;
    bool m_demasiadas = false;
    std::vector<Accion> m_acciones;
};

} // namespace pastorix
