#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

// Reader of Access 97 (Jet 3) and Access 2000-2003 (Jet 4) database files. Bytes in, tables and rows out; it writes nothing
// and knows neither our own databases nor any window. Every offset, count and chain of the file is checked: a damaged or
// hostile file ends in ErrorAccess, in time bounded by its size.
namespace pastorix::access {

enum class Tipo : std::uint8_t {
    SiNo = 1,
    Byte = 2,
    Entero = 3,
    Largo = 4,
    Moneda = 5,
    Simple = 6,
    Doble = 7,
    FechaHora = 8,
    Binario = 9,
    Texto = 10,
    Ole = 11,
    Memo = 12,
    Guid = 15,
    Decimal = 16,
    Otro = 17,
};

struct Columna {
    std::string nombre; // UTF-8
    Tipo tipo{};
    int longitud = 0; // bytes of a fixed column; characters of a text
};

// A date as the file has it: days since 1899-12-30 and milliseconds of that day (time counts forward in negative days too).
struct Momento {
    std::int32_t dia = 0;
    std::int32_t milisegundo = 0;
    friend bool operator==(const Momento&, const Momento&) = default;
};

using Bytes = std::vector<std::uint8_t>;

// Null, yes/no, whole number, floating number, date, text (UTF-8; also GUID, currency and decimal in exact decimal notation
// with a point), bytes.
using Celda = std::variant<std::monostate, bool, std::int64_t, double, Momento, std::string, Bytes>;

struct Tabla {
    std::string nombre;              // UTF-8
    std::vector<Columna> columnas;   // in the order on show
    std::uint64_t filasDeclaradas{}; // row count that the file states; a check, not a limit
    std::uint32_t paginaDefinicion{};
};

// What is wrong with a file, in Spanish, for the user.
class ErrorAccess : public std::runtime_error {
public:
    enum class Clase { NoSeLee, NoEsAccess, VersionNoTratada, Dañado };
    ErrorAccess(Clase clase, const std::string& texto)
        : std::runtime_error(texto)
        , m_clase(clase) {}
    Clase DeClase() const { return m_clase; }

private:
    Clase m_clase;
};

class BaseAccess {
public:
    // True when the first bytes are those of an Access file of any version (also of versions that are not treated).
    static bool LoParece(std::span<const std::uint8_t> principio);

    // Reads header and catalogue. Throws ErrorAccess.
    static BaseAccess Abrir(const std::filesystem::path& fichero);
    static BaseAccess DeBytes(Bytes contenido);

    ~BaseAccess();
    BaseAccess(BaseAccess&&) noexcept;
    BaseAccess& operator=(BaseAccess&&) noexcept;

    int VersionJet() const; // 3 or 4
    // Database password, UTF-8, empty when none; the rows can be read without it.
    const std::string& Clave() const;
    const std::vector<Tabla>& Tablas() const; // user tables, in the order of the catalogue

    // Walks the live rows of a table in physical order; the cells stand in the order of Tabla::columnas. Returns the number
    // of rows. Throws ErrorAccess at the first damaged thing, and whatever the callback throws.
    std::uint64_t Recorrer(const Tabla& tabla, const std::function<void(std::span<const Celda>)>& fila) const;

private:
    BaseAccess();
    struct Interior;
    std::unique_ptr<Interior> m;
};

} // namespace pastorix::access
