#include "store/Apertura.h"

#include "store/Catalogo.h"
#include "store/Conversion.h"
#include "store/Esquema.h"
#include "store/Ficheros.h"
#include "store/Instruccion.h"
#include "store/Integridad.h"
#include "store/TablaDestino.h"

#include "access/BaseAccess.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>

namespace pastorix {

namespace fs = std::filesystem;

namespace {

enum class Principio { Vacio, Access, Sqlite, Otro };

std::string PrimerTexto(sqlite3* base, const char* sql) {
    Instruccion s(base, sql);
    return s.Fila() ? s.Texto(0) : std::string();
}

// A file from elsewhere gets no more than a package needs: statements of ours over its tables.
void Limitar(sqlite3* base) {
    sqlite3_limit(base, SQLITE_LIMIT_LENGTH, 64 * 1024 * 1024);
    sqlite3_limit(base, SQLITE_LIMIT_SQL_LENGTH, 1024 * 1024);
    sqlite3_limit(base, SQLITE_LIMIT_COLUMN, 400);
    sqlite3_limit(base, SQLITE_LIMIT_ATTACHED, 1);
    sqlite3_limit(base, SQLITE_LIMIT_COMPOUND_SELECT, 10);
    sqlite3_limit(base, SQLITE_LIMIT_TRIGGER_DEPTH, 1);
    sqlite3_limit(base, SQLITE_LIMIT_WORKER_THREADS, 0);
}

// Tables whose rows come out of code instead of pages have no place in a database of ours. They are told by their text, since asking
// SQLite would already set that code to work.
bool TieneTablasVirtuales(sqlite3* base) {
    return PrimerTexto(base, "SELECT count(*) FROM sqlite_schema WHERE (type = 'table' AND rootpage = 0) OR "
                             "(instr(upper(sql), 'VIRTUAL') > 0 AND instr(upper(sql), 'USING') > 0)") != "0";
}

// The scratch tables of a database that is only looked at: empty ones in memory, which statements meet before those of the file. So
// reports and lists work as ever.
void ApartarTablasDeTrabajo(sqlite3* base, ClaseDeBase clase) {
    for (const auto& t : CatalogoCanonico(clase).Tablas())
        if (t.nombre.starts_with("X_"))
            EjecutarDirecto(base, "CREATE TEMP" + TablaDestino::SqlDeCreacion(t).substr(6));
}

ResultadoApertura DeError(const ErrorAlmacen& e) {
    switch (e.Codigo()) {
    case CodigoError::Bloqueada:
        return ResultadoApertura::Bloqueada;
    case CodigoError::SoloLectura:
        return ResultadoApertura::SoloLectura;
    default:
        return (e.Motor() & 0xFF) == SQLITE_CANTOPEN ? ResultadoApertura::Ilegible
                                                     : ResultadoApertura::Dañada;
    }
}

std::string Unir(const std::vector<std::string>& lista) {
    std::string t;
    for (const auto& x : lista)
        t += (t.empty() ? "" : ", ") + x;
    return t;
}

std::vector<std::string> QueNoSeReponen(const std::vector<std::string>& columnas) {
    std::vector<std::string> lista;
    std::copy_if(columnas.begin(), columnas.end(), std::back_inserter(lista),
                 [](const std::string& c) { return !LaPonenLasReparaciones(c); });
    return lista;
}

class Apertura {
public:
    Apertura(const std::string& fichero, std::string_view clave, const OpcionesApertura& opciones,
             DatosDeApertura& datos)
        : m_fichero(fichero)
        , m_ruta(Ruta(fichero))
        , m_clave(clave)
        , m_opciones(opciones)
        , m_datos(datos) {}

    BasePropia Abrir() {
        m_datos = {ResultadoApertura::Lista, {}};
        Preparar(LeerPrincipio());
        auto base = Comprobada();
        if (m_opciones.trabajo && !m_opciones.soloLectura)
            base = Ordenada(std::move(base));
        if (m_opciones.soloLectura && !m_opciones.desconfiada)
            ApartarTablasDeTrabajo(base.get(), LeerSello(base.get(), m_clave).clase);
        return base;
    }

private:
    [[noreturn]] void Fallar(ResultadoApertura resultado, const std::string& texto,
                             const std::string& detalle = {}) {
        m_datos.resultado = resultado;
        throw ErrorAlmacen(CodigoError::NoSePuedeAbrir, texto, detalle);
    }

    fs::path CarpetaBackup() const {
        if (!m_opciones.guardarOriginal)
            return {};
        return m_opciones.carpetaBackup.empty() ? EntradaSinCaso(CarpetaDe(m_ruta), "BackUp")
                                                : Ruta(m_opciones.carpetaBackup);
    }

    Principio LeerPrincipio() {
        std::error_code error;
        if (!fs::is_regular_file(m_ruta, error)) {
            if (const auto motivo = Motivo(error);
                !motivo.empty() && error != std::errc::no_such_file_or_directory)
                Fallar(ResultadoApertura::Ilegible, "No se puede leer el fichero: " + m_fichero + motivo);
            Fallar(ResultadoApertura::Ausente, "No existe el fichero: " + m_fichero);
        }
        errno = 0;
        std::ifstream f(m_ruta, std::ios::binary);
        std::array<char, 128> bytes{};
        f.read(bytes.data(), bytes.size());
        const auto n = static_cast<std::size_t>(f.gcount());
        if (!f.is_open() || f.bad())
            Fallar(ResultadoApertura::Ilegible,
                   "No se puede leer el fichero: " + m_fichero + Motivo({errno, std::generic_category()}));
        if (n == 0)
            return Principio::Vacio;
        if (access::BaseAccess::LoParece({reinterpret_cast<const std::uint8_t*>(bytes.data()), n}))
            return Principio::Access;
        return std::string_view(bytes.data(), n).starts_with(std::string_view("SQLite format 3\0", 16))
                   ? Principio::Sqlite
                   : Principio::Otro;
    }

    // Brings an Access file to our form; refuses whatever is no database at all.
    void Preparar(Principio principio) {
        switch (principio) {
        case Principio::Sqlite:
            return;
        case Principio::Vacio:
            Fallar(ResultadoApertura::NoEsBase, "El fichero está vacío: " + m_fichero);
        case Principio::Otro:
            Fallar(ResultadoApertura::NoEsBase, "El fichero no es una base de datos: " + m_fichero);
        case Principio::Access:
            break;
        }
        if (!m_opciones.trabajo || m_opciones.soloLectura)
            Fallar(ResultadoApertura::NoEsBase, "El fichero es de Access y está sin convertir: " + m_fichero);
        try {
            const auto hoja = ConvertirEnSuSitio(m_ruta, m_clave, CarpetaBackup(), m_opciones.avance);
            m_datos.resultado = ResultadoApertura::Convertida;
            if (m_opciones.alConvertir)
                m_opciones.alConvertir(hoja);
            ExigirColumnas(hoja.columnasAusentes);
        } catch (const ErrorConversion& e) {
            Fallar(e.Resultado(), e.what());
        }
    }

    // What is copied by position must be there; a file of the program's own may lack columns, which are added.
    void ExigirColumnas(const std::vector<std::string>& ausentes) {
        if (const auto faltan = QueNoSeReponen(ausentes); m_opciones.desconfiada && !faltan.empty())
            Fallar(ResultadoApertura::OtroEsquema,
                   "A la base de datos le faltan columnas: " + Unir(faltan) + " (" + m_fichero + ")");
    }

    BasePropia Ordenada(BasePropia base) {
        const auto d = CompararEsquema(Catalogo::DeBase(base.get()), LeerSello(base.get(), m_clave).clase);
        if (!d.otroOrden)
            return base;
        base.reset();
        Ordenar(m_ruta, m_clave, CarpetaBackup(), m_opciones.avance);
        m_datos = {ResultadoApertura::Convertida, QueNoSeReponen(d.columnasAusentes)};
        return Comprobada();
    }

    BasePropia Comprobada() {
        try {
            auto base = AbrirBasePropia(m_ruta, m_opciones.soloLectura ? Modo::Lectura : Modo::Escritura);
            if (m_opciones.desconfiada)
                Desconfiar(base.get());
            if (!m_opciones.soloLectura) // another program may have left it otherwise
                EjecutarDirecto(base.get(), "PRAGMA journal_mode=DELETE");
            if (m_opciones.desechable)
                EjecutarDirecto(base.get(), "PRAGMA synchronous=OFF");
            ExigirNuestra(base.get());
            return base;
        } catch (const ErrorAlmacen& e) {
            if (m_datos.resultado != ResultadoApertura::Lista &&
                m_datos.resultado != ResultadoApertura::Convertida)
                throw;
            m_datos.resultado = DeError(e);
            throw ErrorAlmacen(e.Codigo(), std::string(e.what()) + "\n" + m_fichero, e.Detalle(), e.Motor());
        }
    }

    // Before anything of it is used.
    void Desconfiar(sqlite3* base) {
        Limitar(base);
        if (const auto daños = BuscarDaños(base); daños.Hay())
            Fallar(ResultadoApertura::Dañada, daños.Texto() + "\n" + m_fichero, daños.detalle);
        if (TieneTablasVirtuales(base))
            Fallar(ResultadoApertura::OtroEsquema,
                   "El fichero tiene tablas que no son de una base de datos del programa: " + m_fichero);
    }

    void ExigirNuestra(sqlite3* base) {
        const auto sello = LeerSello(base, m_clave);
        PrimerTexto(
            base,
            "SELECT count(*) FROM sqlite_schema"); // damage and locks show here, not as a missing stamp
        if (!sello.nuestra)
            Fallar(ResultadoApertura::NoEsBase,
                   "El fichero no es una base de datos del programa: " + m_fichero);
        if (!sello.claveCorrecta)
            Fallar(ResultadoApertura::ClaveErronea,
                   "La clave de la base de datos no es correcta: " + m_fichero);
        const auto d = CompararEsquema(Catalogo::DeBase(base), sello.clase);
        if (!d.tablasAusentes.empty())
            Fallar(ResultadoApertura::OtroEsquema,
                   "A la base de datos le faltan tablas: " + Unir(d.tablasAusentes) + " (" + m_fichero + ")");
        ExigirColumnas(d.columnasAusentes);
        if (!m_opciones.soloLectura && sqlite3_db_readonly(base, "main") == 1)
            throw ErrorAlmacen(CodigoError::SoloLectura, "El fichero es de solo lectura");
    }

    const std::string& m_fichero;
    fs::path m_ruta;
    std::string_view m_clave;
    const OpcionesApertura& m_opciones;
    DatosDeApertura& m_datos;
};

} // namespace

BasePropia AbrirBase(const std::string& fichero, std::string_view clave, const OpcionesApertura& opciones,
                     DatosDeApertura& datos) {
    return Apertura(fichero, clave, opciones, datos).Abrir();
}

ResultadoApertura AbrirPaquete(Conexion& conexion, const fs::path& origen, const fs::path& etapa,
                               std::string_view clave, const AvanceDeApertura& avance) {
    CopiarConDiarios(origen, etapa);
    OpcionesApertura opciones;
    opciones.desconfiada = true;
    opciones.guardarOriginal = false;
    opciones.desechable = true;
    opciones.avance = avance;
    return conexion.AbrirFichero(TextoDeRuta(etapa), clave, opciones);
}

} // namespace pastorix
