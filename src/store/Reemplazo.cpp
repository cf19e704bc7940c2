#include "store/Reemplazo.h"

#include "store/BasePropia.h"
#include "store/Catalogo.h"
#include "store/ErroresSqlite.h"
#include "store/Ficheros.h"
#include "store/Instruccion.h"
#include "store/Integridad.h"

#include <sqlite3.h>

#include <map>
#include <memory>
#include <vector>

namespace pastorix {

namespace fs = std::filesystem;

namespace {

// Undoes what a crash left half done, which takes the journal away, and makes sure that nobody else is at the file.
void Asentar(const fs::path& fichero) {
    const auto base = AbrirBasePropia(fichero, Modo::Escritura);
    if (sqlite3_db_readonly(base.get(), "main") == 1)
        throw ErrorAlmacen(CodigoError::SoloLectura,
                           "El fichero es de solo lectura: " + TextoDeRuta(fichero));
    EjecutarDirecto(base.get(), "PRAGMA journal_mode=DELETE; BEGIN EXCLUSIVE; COMMIT");
}

std::map<std::string, std::int64_t> FilasPorTabla(const fs::path& fichero) {
    const auto base = AbrirBasePropia(fichero, Modo::Lectura);
    const auto catalogo = Catalogo::DeBase(base.get());
    std::map<std::string, std::int64_t> filas;
    for (const auto& t : catalogo.Tablas()) {
        Instruccion s(base.get(), "SELECT count(*) FROM " + Entrecomillar(t.nombre));
        s.Fila();
        filas[t.nombre] = s.Entero(0);
    }
    return filas;
}

void ExigirSana(const fs::path& fichero) {
    if (const auto daños = BuscarDaños(fichero); daños.Hay())
        throw ErrorAlmacen(CodigoError::NoSePuedeAbrir, daños.Texto() + "\n" + TextoDeRuta(fichero),
                           daños.detalle);
}

// Keeps a settled database as it is, until the swap is done: a second name costs nothing and cannot be incomplete.
class Guardada {
public:
    Guardada(const fs::path& fichero, const fs::path& copia)
        : m_copia(copia) {
        std::error_code error;
        fs::create_hard_link(fichero, copia, error);
        m_mismoFichero = !error;
        if (m_mismoFichero) {
            SincronizarCarpeta(CarpetaDe(copia));
            return;
        }
        CopiarFichero(fichero, copia);
        if (FilasPorTabla(copia) != FilasPorTabla(fichero))
            throw ErrorAlmacen(CodigoError::DiscoOFichero,
                               "La copia no tiene los mismos registros que la base de datos: " +
                                   TextoDeRuta(copia));
    }
    ~Guardada() {
        std::error_code error;
        if (m_mismoFichero && !m_hecho) // would change with the database
            fs::remove(m_copia, error);
    }
    Guardada(const Guardada&) = delete;
    Guardada& operator=(const Guardada&) = delete;
    void Hecho() { m_hecho = true; }

private:
    fs::path m_copia;
    bool m_mismoFichero = false;
    bool m_hecho = false;
};

// Nothing of it is read where the file system knows a second name for one file: the disk may refuse to.
void GuardarAveriada(const fs::path& fichero, const fs::path& copia) {
    std::error_code error;
    const auto guardar = [&](const char* cola) {
        const auto de = fs::path(fichero) += cola;
        const auto a = fs::path(copia) += cola;
        if (!fs::exists(de, error))
            return;
        fs::create_hard_link(de, a, error);
        if (error)
            CopiarFichero(de, a);
    };
    guardar("");
    for (const char* cola : kDiarios)
        guardar(cola);
    SincronizarCarpeta(CarpetaDe(copia));
    for (const char* cola : kDiarios) // the next file in this place has nothing to do with them
        fs::remove(fs::path(fichero) += cola, error);
}

} // namespace

fs::path LugarDeCopia::Libre() const {
    std::error_code error;
    fs::create_directories(carpeta, error);
    if (error)
        FallarFichero("No se puede crear la carpeta", carpeta, error);
    for (Fecha m = momento;; m = m.segundo == 86399 ? Fecha{m.dia + 1, 0} : Fecha{m.dia, m.segundo + 1}) {
        auto nombre = carpeta / Ruta(raiz + "_" + FormatoFecha(m, "ddmmyyyy_hhnnss") + ".mdb");
        if (!fs::exists(nombre, error))
            return nombre;
    }
}

void CopiarBase(Conexion& origen, const fs::path& destino, const AvanceDeApertura& avance) {
    const FicheroTemporal temporal(NombreTemporal(destino));
    auto base = AbrirBasePropia(temporal.Nombre(), Modo::Nueva);
    {
        struct Cierra {
            void operator()(sqlite3_backup* b) const { sqlite3_backup_finish(b); }
        };
        const std::unique_ptr<sqlite3_backup, Cierra> copia(
            sqlite3_backup_init(base.get(), "main", origen.Manejador(), "main"));
        if (!copia)
            LanzarError(base.get(), sqlite3_extended_errcode(base.get()), "backup");
        constexpr int kPaginas = 256;
        int codigo = SQLITE_OK;
        while ((codigo = sqlite3_backup_step(copia.get(), kPaginas)) == SQLITE_OK)
            if (avance)
                avance(sqlite3_backup_pagecount(copia.get()) - sqlite3_backup_remaining(copia.get()),
                       sqlite3_backup_pagecount(copia.get()));
        if (codigo != SQLITE_DONE)
            LanzarError(nullptr, codigo, "backup");
    }
    base.reset();
    SincronizarFichero(temporal.Nombre());
    PonerEnSuSitio(temporal.Nombre(), destino);
}

namespace {

// The compact form of a database under a name that nobody knows yet, looked through.
void EscribirCompacta(const fs::path& fichero, const fs::path& temporal) {
    {
        const auto base = AbrirBasePropia(fichero, Modo::Escritura); // a crash's journal is part of it
        std::string nombre = TextoDeRuta(temporal);
        for (auto i = nombre.find('\''); i != std::string::npos; i = nombre.find('\'', i + 2))
            nombre.insert(i, 1, '\'');
        EjecutarDirecto(base.get(), "VACUUM INTO '" + nombre + "'");
    }
    ExigirSana(temporal);
    if (FilasPorTabla(temporal) != FilasPorTabla(fichero))
        throw ErrorAlmacen(CodigoError::DiscoOFichero,
                           "El fichero nuevo no tiene los mismos registros que la base de datos: " +
                               TextoDeRuta(fichero));
    SincronizarFichero(temporal);
}

void MoverOCopiar(const fs::path& de, const fs::path& a) {
    std::error_code error;
    bool conDiario = false;
    for (const char* cola : kDiarios)
        conDiario = conDiario || fs::exists(fs::path(de) += cola, error);
    if (!conDiario) {
        fs::rename(de, a, error);
        if (!error)
            return;
    }
    CopiarConDiarios(de, a);
}

} // namespace

void CompactarBase(const fs::path& fichero, const fs::path& destino) {
    const FicheroTemporal temporal(NombreTemporal(destino));
    EscribirCompacta(fichero, temporal.Nombre());
    PonerEnSuSitio(temporal.Nombre(), destino);
}

fs::path CompactarEnSuSitio(const fs::path& fichero, const LugarDeCopia& copia) {
    Asentar(fichero);
    const FicheroTemporal temporal(NombreTemporal(fichero));
    EscribirCompacta(fichero, temporal.Nombre()); // has read all of the old one
    auto nombre = copia.Libre();
    Guardada guardada(fichero, nombre);
    PonerEnSuSitio(temporal.Nombre(), fichero);
    guardada.Hecho();
    return nombre;
}

fs::path ReemplazarBase(const fs::path& fichero, const fs::path& nueva, const LugarDeCopia& copia,
                        BaseAnterior anterior, BaseNueva estado) {
    const FicheroTemporal temporal(NombreTemporal(fichero));
    if (estado == BaseNueva::SeGasta)
        MoverOCopiar(nueva, temporal.Nombre());
    else
        CopiarConDiarios(nueva, temporal.Nombre());
    Asentar(temporal.Nombre());
    ExigirSana(temporal.Nombre());
    SincronizarFichero(temporal.Nombre());

    auto nombre = copia.Libre();
    if (anterior == BaseAnterior::Averiada) {
        GuardarAveriada(fichero, nombre);
        PonerEnSuSitio(temporal.Nombre(), fichero);
        return nombre;
    }
    Asentar(fichero);
    Guardada guardada(fichero, nombre);
    ExigirSana(nombre);
    PonerEnSuSitio(temporal.Nombre(), fichero);
    guardada.Hecho();
    return nombre;
}

void QuitarSegundosNombres(const fs::path& base, const fs::path& carpeta) {
    std::error_code error;
    if (fs::hard_link_count(base, error) < 2 || error)
        return;
    std::vector<fs::path> sobran;
    for (fs::directory_iterator it(carpeta, error), fin; !error && it != fin; it.increment(error))
        if (std::error_code aparte; fs::equivalent(it->path(), base, aparte))
            sobran.push_back(it->path());
    for (const auto& nombre : sobran)
        fs::remove(nombre, error);
}

} // namespace pastorix
