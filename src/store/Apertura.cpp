#include "store/Apertura.h"

#include "store/Catalogo.h"
#include "store/Conversion.h"
#include "store/Esquema.h"
#include "store/Ficheros.h"
#include "store/Preparada.h"

#include "access/BaseAccess.h"

#include <sqlite3.h>

#include <array>
#include <fstream>

namespace pastorix {

namespace fs = std::filesystem;

namespace {

enum class Principio { Vacio, Access, Sqlite, Otro };

Principio LeerPrincipio(const fs::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    std::array<char, 128> bytes{};
    f.read(bytes.data(), bytes.size());
    const auto n = static_cast<std::size_t>(f.gcount());
    if (n == 0)
        return Principio::Vacio;
    if (access::BaseAccess::LoParece({reinterpret_cast<const std::uint8_t*>(bytes.data()), n}))
        return Principio::Access;
    return std::string_view(bytes.data(), n).starts_with(std::string_view("SQLite format 3\0", 16))
               ? Principio::Sqlite
               : Principio::Otro;
}

std::string PrimerTexto(sqlite3* base, const char* sql) {
    sqlite3_stmt* s = nullptr;
    std::string texto;
    int codigo = sqlite3_prepare_v2(base, sql, -1, &s, nullptr);
    if (codigo == SQLITE_OK) {
        codigo = sqlite3_step(s);
        if (codigo == SQLITE_ROW)
            if (const auto* t = sqlite3_column_text(s, 0))
                texto = reinterpret_cast<const char*>(t);
    }
    sqlite3_finalize(s);
    if (codigo != SQLITE_ROW && codigo != SQLITE_DONE)
        LanzarError(base, codigo, sql);
    return texto;
}

void Limitar(sqlite3* base) {
    sqlite3_limit(base, SQLITE_LIMIT_LENGTH, 64 * 1024 * 1024);
    sqlite3_limit(base, SQLITE_LIMIT_SQL_LENGTH, 1024 * 1024);
    sqlite3_limit(base, SQLITE_LIMIT_COLUMN, 400);
    sqlite3_limit(base, SQLITE_LIMIT_ATTACHED, 1);
    sqlite3_limit(base, SQLITE_LIMIT_WORKER_THREADS, 0);
}

BasePropia AbrirSqlite(const fs::path& ruta, const OpcionesApertura& opciones) {
    sqlite3* cruda = nullptr;
    const int modo = opciones.soloLectura ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    const int codigo =
        sqlite3_open_v2(TextoDeRuta(ruta).c_str(), &cruda, modo | SQLITE_OPEN_NOMUTEX, nullptr);
    BasePropia base(cruda);
    if (codigo != SQLITE_OK)
        LanzarError(cruda, codigo, {});
    InicializarConexion(cruda);
    if (opciones.desconfiada)
        Limitar(cruda);
    return base;
}

ResultadoApertura DeCodigo(CodigoError codigo) {
    switch (codigo) {
    case CodigoError::Bloqueada:
        return ResultadoApertura::Bloqueada;
    case CodigoError::SoloLectura:
        return ResultadoApertura::SoloLectura;
    default:
        return ResultadoApertura::Dañada;
    }
}

std::string Unir(const std::vector<std::string>& lista) {
    std::string t;
    for (const auto& x : lista)
        t += (t.empty() ? "" : ", ") + x;
    return t;
}

class Apertura {
public:
    Apertura(const std::string& fichero, std::string_view clave, const OpcionesApertura& opciones,
             ResultadoApertura& resultado)
        : m_fichero(fichero)
        , m_ruta(Ruta(fichero))
        , m_clave(clave)
        , m_opciones(opciones)
        , m_resultado(resultado) {}

    BasePropia Abrir() {
        m_resultado = ResultadoApertura::Lista;
        std::error_code error;
        if (!fs::is_regular_file(m_ruta, error))
            Fallar(ResultadoApertura::Ausente, "No existe el fichero: " + m_fichero);
        Preparar();
        auto base = Comprobada();
        if (m_opciones.trabajo) {
            const auto clase = LeerSello(base.get(), m_clave).clase;
            if (CompararEsquema(Catalogo::DeBase(base.get()), clase).otroOrden) {
                base.reset();
                Ordenar(m_ruta, m_clave, CarpetaBackup(), m_opciones.avance);
                m_resultado = ResultadoApertura::Convertida;
                base = Comprobada();
            }
        }
        return base;
    }

private:
    [[noreturn]] void Fallar(ResultadoApertura resultado, const std::string& texto) {
        m_resultado = resultado;
        throw ErrorAlmacen(CodigoError::NoSePuedeAbrir, texto);
    }

    fs::path CarpetaBackup() const {
        return m_opciones.carpetaBackup.empty() ? EntradaSinCaso(m_ruta.parent_path(), "BackUp")
                                                : Ruta(m_opciones.carpetaBackup);
    }

    // Brings an Access file to our form; refuses whatever is no database at all.
    void Preparar() {
        switch (LeerPrincipio(m_ruta)) {
        case Principio::Sqlite:
            return;
        case Principio::Vacio:
            Fallar(ResultadoApertura::NoEsBase, "El fichero está vacío: " + m_fichero);
        case Principio::Otro:
            Fallar(ResultadoApertura::NoEsBase, "El fichero no es una base de datos: " + m_fichero);
        case Principio::Access:
            break;
        }
        if (!m_opciones.trabajo)
            Fallar(ResultadoApertura::NoEsBase, "El fichero es de Access y está sin convertir: " + m_fichero);
        try {
            ConvertirEnSuSitio(m_ruta, m_clave, CarpetaBackup(), m_opciones.avance);
        } catch (const ErrorConversion& e) {
            Fallar(e.Resultado(), e.what());
        }
        m_resultado = ResultadoApertura::Convertida;
    }

    BasePropia Comprobada() {
        try {
            auto base = AbrirSqlite(m_ruta, m_opciones);
            const auto sello = LeerSello(base.get(), m_clave);
            PrimerTexto(
                base.get(),
                "SELECT count(*) FROM sqlite_schema"); // damage and locks show here, not as a missing stamp
            if (!sello.nuestra)
                Fallar(ResultadoApertura::NoEsBase,
                       "El fichero no es una base de datos del programa: " + m_fichero);
            if (!sello.claveCorrecta)
                Fallar(ResultadoApertura::ClaveErronea,
                       "La clave de la base de datos no es correcta: " + m_fichero);
            if (m_opciones.desconfiada)
                if (const auto mal = PrimerTexto(base.get(), "PRAGMA quick_check(1)"); mal != "ok")
                    Fallar(ResultadoApertura::Dañada,
                           "La base de datos está dañada: " + m_fichero + " (" + mal + ")");
            const auto d = CompararEsquema(Catalogo::DeBase(base.get()), sello.clase);
            if (!d.tablasAusentes.empty())
                Fallar(ResultadoApertura::OtroEsquema, "A la base de datos le faltan tablas: " +
                                                           Unir(d.tablasAusentes) + " (" + m_fichero + ")");
            if (!m_opciones.soloLectura && sqlite3_db_readonly(base.get(), "main") == 1) {
                m_resultado = ResultadoApertura::SoloLectura;
                throw ErrorAlmacen(CodigoError::SoloLectura, "El fichero es de solo lectura: " + m_fichero);
            }
            return base;
        } catch (const ErrorAlmacen& e) {
            if (m_resultado == ResultadoApertura::Lista || m_resultado == ResultadoApertura::Convertida) {
                m_resultado = DeCodigo(e.Codigo());
                throw ErrorAlmacen(e.Codigo(), std::string(e.what()) + "\n" + m_fichero);
            }
            throw;
        }
    }

    const std::string& m_fichero;
    fs::path m_ruta;
    std::string_view m_clave;
    const OpcionesApertura& m_opciones;
    ResultadoApertura& m_resultado;
};

} // namespace

void CierraBase::operator()(sqlite3* base) const {
    sqlite3_close_v2(base);
}

BasePropia AbrirBase(const std::string& fichero, std::string_view clave, const OpcionesApertura& opciones,
                     ResultadoApertura& resultado) {
    return Apertura(fichero, clave, opciones, resultado).Abrir();
}

std::vector<std::string> VerificarBase(const std::string& fichero, std::string_view clave) {
    std::vector<std::string> faltas;
    try {
        OpcionesApertura opciones;
        opciones.trabajo = false;
        opciones.soloLectura = true;
        opciones.desconfiada = true;
        ResultadoApertura resultado{};
        const auto base = AbrirBase(fichero, clave, opciones, resultado);
        sqlite3_stmt* s = nullptr;
        sqlite3_prepare_v2(base.get(), "PRAGMA integrity_check(50)", -1, &s, nullptr);
        while (sqlite3_step(s) == SQLITE_ROW) {
            const std::string linea = reinterpret_cast<const char*>(sqlite3_column_text(s, 0));
            if (linea != "ok")
                faltas.push_back(linea);
        }
        sqlite3_finalize(s);
        const auto d = CompararEsquema(Catalogo::DeBase(base.get()), LeerSello(base.get(), clave).clase);
        for (const auto& c : d.columnasAusentes)
            faltas.push_back("Falta la columna " + c);
        if (d.otroOrden && d.columnasAusentes.empty())
            faltas.push_back("Las tablas no están en el orden del programa");
    } catch (const ErrorAlmacen& e) {
        faltas.push_back(e.what());
    }
    return faltas;
}

} // namespace pastorix
