#pragma once

#include "store/Conexion.h"

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace pastorix {

// A file that cannot be brought to our form; nothing was changed. what() says why, in Spanish, with the file's name.
class ErrorConversion : public std::runtime_error {
public:
    ErrorConversion(ResultadoApertura resultado, const std::string& texto)
        : std::runtime_error(texto)
        , m_resultado(resultado) {}
    ResultadoApertura Resultado() const { return m_resultado; }

private:
    ResultadoApertura m_resultado;
};

// What was read of an Access file: rows per table against the file's own count, and everything that was not as expected.
struct HojaDeConversion {
    struct Tabla {
        std::string nombre;
        std::uint64_t declaradas = 0; // rows that the file says it has
        std::uint64_t leidas = 0;
        std::uint64_t escritas = 0;
        bool deMas = false; // a table the program does not know; kept all the same
    };
    std::string origen;
    int jet = 0;
    std::vector<Tabla> tablas;
    std::vector<std::string> curiosidades;
    std::vector<std::string> columnasAusentes; // "T_Vacas.Nombre": added without values
    std::string guardado;                      // where the original is kept; empty: nowhere
    std::string Texto() const;
};

// Reads an Access file into a new database of ours: canonical tables and columns first, then whatever else it holds. `destino` must
// not exist; it appears complete or not at all. Throws ErrorConversion, or ErrorAlmacen when the disk fails.
HojaDeConversion ConvertirAccess(const std::filesystem::path& origen, const std::filesystem::path& destino,
                                 std::string_view clave, const AvanceDeApertura& avance = {});

// Converts a file and puts the result in its place; the original and the sheet of what was read go to `carpetaBackup`, as
// <name>_Access_<ddmmyyyy>_<hhmmss>; an empty folder keeps none. At every moment the one or the other is in place, complete.
HojaDeConversion ConvertirEnSuSitio(const std::filesystem::path& fichero, std::string_view clave,
                                    const std::filesystem::path& carpetaBackup,
                                    const AvanceDeApertura& avance = {});

// Brings the tables of one of our own databases to canonical order in the same manner (after repairs added columns at the end, or in
// files of other programs), so that copying by position is copying by name.
void Ordenar(const std::filesystem::path& fichero, std::string_view clave,
             const std::filesystem::path& carpetaBackup, const AvanceDeApertura& avance = {});

} // namespace pastorix
