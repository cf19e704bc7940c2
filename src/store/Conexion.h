#pragma once

#include "store/Errores.h"
#include "store/OrigenesDeDatos.h"
#include "store/Valor.h"

#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

struct sqlite3;

namespace pastorix {

class Preparada;
class Catalogo;

// How a database file is opened; every outcome but the two first is an error with its own description.
#ifndef Q_MOC_RUN // Qt's moc stops at enumerators with an ñ, in whatever header it meets them
enum class ResultadoApertura {
    Lista,
    Convertida, // it was an Access file (or stood in another column order) and has just been brought to our form
    Ausente,
    ClaveErronea,
    NoEsBase,
    Dañada,
    OtroEsquema, // a sound database that lacks one of our tables
    Bloqueada,
    SoloLectura,
    Ilegible, // the system does not let it be read
};
#endif

using AvanceDeApertura = std::function<void(int hecho, int total)>;

struct HojaDeConversion;

struct OpcionesApertura {
    bool trabajo = true;      // convert and bring to canonical order if need be; false: open as it is
    bool soloLectura = false; // the rows stay as they are; scratch tables can be written all the same, aside
    bool desconfiada = false; // a file from elsewhere: checked before use, nothing in it is run
    bool desechable =
        false; // a work file that is worth nothing before it is whole: nobody waits for the disk
    bool guardarOriginal = true; // of a file that is brought to our form; false for what is a copy already
    std::string carpetaBackup;   // where that original is kept; empty: folder BackUp in the file's own folder
    AvanceDeApertura avance;     // told of the progress of a conversion
    std::function<void(const HojaDeConversion&)> alConvertir; // an Access file was brought to our form
};

class Diario;

// One connection to one database. Not copyable; closed by its destructor. Statements are written in the dialect of the
// system's databases (see docs/architecture.md) and translated here; nothing reaches SQLite untranslated.
class Conexion {
public:
    Conexion();
    ~Conexion();
    Conexion(Conexion&&) noexcept;
    Conexion& operator=(Conexion&&) noexcept;

    // Opens by connection string ("dsn=OD_PRADALC"). Throws ErrorAlmacen.
    ResultadoApertura Abrir(const OrigenesDeDatos& origenes, std::string_view cadena, std::string_view clave,
                            const OpcionesApertura& opciones = {});
    // Opens a file by its path. Throws ErrorAlmacen; ResultadoUltimo() tells which outcome it was.
    ResultadoApertura AbrirFichero(const std::string& fichero, std::string_view clave,
                                   const OpcionesApertura& opciones = {});
    void Cerrar();
    // Closes and opens again what was opened last, with the same arguments. Throws ErrorAlmacen, closed.
    ResultadoApertura Reabrir();
    bool Abierta() const;
    bool SoloLectura() const; // opened to be looked at only
    const std::string& Fichero() const;
    ResultadoApertura ResultadoUltimo() const;
    // Columns ("T_Vacas.Nombre") that the file lacked when it was opened for work, and that were added without values. Those that the
    // repairs would add are not among them.
    const std::vector<std::string>& ColumnasAñadidas() const;

    // Runs a DELETE, UPDATE or ALTER TABLE; returns the number of rows it touched. Throws ErrorAlmacen.
    long Execute(std::string_view sentencia);

    // What the open database holds. Valid until the next Execute of an ALTER TABLE.
    const Catalogo& Esquema() const;

    // Used by Recordset, CopiaDeFilas and EnGrupo only.
    std::shared_ptr<Preparada> Preparar(std::string_view sentencia, bool conFilas,
                                        std::vector<Valor>& literales);
    sqlite3* Manejador() const;
    void EntrarEnGrupo();
    void SalirDeGrupo(const std::exception_ptr& error = {}); // what ended the action, if anything

    // The diary that takes down what is changed from now on; nullptr for none.
    void PonerDiario(Diario* diario);

    // Used by TodoONada only.
    void PonerMarca();
    void SoltarMarca();
    void VolverALaMarca() noexcept;

private:
    struct Interior;
    std::unique_ptr<Interior> m;
};

// Runs one user action as one durable unit on the connection: committed at its end whatever happened in it (a failed
// statement leaves what was done before it), undone only if the process never gets there. An exception of the action is thrown
// on after the commit; a failing commit is itself an ErrorAlmacen. Groups nest; the outermost commits.
template <typename F>
auto EnGrupo(Conexion& conexion, F&& accion) {
    conexion.EntrarEnGrupo();
    std::exception_ptr error;
    if constexpr (std::is_void_v<std::invoke_result_t<F>>) {
        try {
            std::forward<F>(accion)();
        } catch (...) {
            error = std::current_exception();
        }
        conexion.SalirDeGrupo(error);
        if (error)
            std::rethrow_exception(error);
    } else {
        std::optional<std::invoke_result_t<F>> resultado;
        try {
            resultado.emplace(std::forward<F>(accion)());
        } catch (...) {
            error = std::current_exception();
        }
        conexion.SalirDeGrupo(error);
        if (error)
            std::rethrow_exception(error);
        return std::move(*resultado);
    }
}

// Rewrites a set as a whole: rows that are deleted to be written anew come back, all of them, when the action throws, and the
// exception goes on. Inside a group it is a part of it; alone it is a durable unit of its own.
template <typename F>
void TodoONada(Conexion& conexion, F&& accion) {
    EnGrupo(conexion, [&] {
        conexion.PonerMarca();
        try {
            std::forward<F>(accion)();
        } catch (...) {
            conexion.VolverALaMarca();
            throw;
        }
        conexion.SoltarMarca();
    });
}

} // namespace pastorix
