#pragma once

#include "access/BaseAccess.h"
#include "access/Formato.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

// Writes small Jet 3 and Jet 4 files by hand, for what the sample databases do not hold: Jet 3, encoded pages, every column
// type, deleted columns, moved and deleted rows, definitions and values over many pages.
namespace pastorix::access::ayudas {

struct ColumnaNueva {
    std::string nombre; // bytes of the file's code page (Jet 3) or UTF-8 (Jet 4)
    Tipo tipo{};
    bool fija = false;
    int longitud = 0; // bytes
    int numero = -1;  // column number, -1: its place in the list
    int escala = 0;
};

enum class Estado { Viva, Borrada, Trasladada };

// The bytes of each column, in the order of the columns; yes/no: any bytes for yes. Long values: the value itself.
struct FilaNueva {
    std::vector<std::optional<Bytes>> celdas;
    Estado estado = Estado::Viva;
    int columnas = -1; // columns at the time of writing, -1: all
};

struct TablaNueva {
    std::string nombre;
    std::vector<ColumnaNueva> columnas;
    std::vector<FilaNueva> filas;
    std::int32_t marcas = 0;
    bool mapaPorReferencia = false;
    int filasPorPagina = 1000;
};

struct FicheroNuevo {
    int version = 4;
    unsigned paginaCodigos = 1252;
    std::uint32_t llave = 0;
    std::string clave = {}; // bytes of the code page, or UTF-8
    std::vector<TablaNueva> tablas = {};
};

// Where the writer has put things, for tests that spoil them.
struct Plano {
    Bytes contenido;
    std::map<std::string, std::uint32_t> definicion;         // page, by name of the table
    std::map<std::string, std::vector<std::uint32_t>> datos; // pages, by name of the table
    std::uint32_t mapas = 0, largos = 0, bitmap = 0; // map page; first long-value page; last bitmap page
};

Plano Escribir(const FicheroNuevo& fichero);

// A table "Pesadas" with numbers, a text, a memo and a yes/no column that stands behind a deleted column: 60 rows of every state
// on several pages, memos of every kind.
TablaNueva TablaVariada(int version);

// Little-endian bytes of a number.
Bytes Numero(std::uint64_t valor, int bytes);
Bytes Doble(double valor);
// UTF-16LE of a UTF-8 text.
Bytes Utf16(const std::string& texto);
Bytes Crudo(const std::string& bytes);
// Reverses or applies the encoding of all pages but the first.
void Cifrar(Bytes& contenido, std::size_t pagina, std::uint32_t llave);

} // namespace pastorix::access::ayudas
