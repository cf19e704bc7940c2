#include "store/Integridad.h"

#include "store/BasePropia.h"
#include "store/Catalogo.h"
#include "store/Errores.h"
#include "store/Instruccion.h"

#include <sqlite3.h>

#include <algorithm>

namespace pastorix {

namespace {

// A page that cannot be read, or reads as nonsense.
bool EsDaño(const ErrorAlmacen& e) {
    const int motor = e.Motor() & 0xFF;
    return motor == SQLITE_CORRUPT || motor == SQLITE_NOTADB || motor == SQLITE_IOERR;
}

// SQLite gives its findings as rows, and gives up with an error where it cannot go on.
std::string Hallazgos(sqlite3* base, const std::string& sql) {
    std::string lineas;
    const auto anotar = [&](const std::string& linea) {
        if (linea != "ok")
            lineas += (lineas.empty() ? "" : "\n") + linea;
    };
    try {
        Instruccion s(base, sql);
        while (s.Fila())
            anotar(s.Texto(0));
    } catch (const ErrorAlmacen& e) {
        if (!EsDaño(e))
            throw;
        anotar(e.Detalle());
    }
    return lineas;
}

struct Seguimiento {
    sqlite3* base;
    int paginas;
    const std::function<void(int, int)>& avance;

    static int Seguir(void* esto) {
        auto* s = static_cast<Seguimiento*>(esto);
        int leidas = 0;
        int maximo = 0;
        sqlite3_db_status(s->base, SQLITE_DBSTATUS_CACHE_MISS, &leidas, &maximo, 0);
        s->avance(std::min(leidas, s->paginas), s->paginas);
        return 0; // go on
    }
};

std::vector<std::string> NombresDeTablas(sqlite3* base) {
    std::vector<std::string> nombres;
    try {
        Instruccion s(base, "SELECT name FROM sqlite_schema WHERE type = 'table' ORDER BY name");
        while (s.Fila())
            nombres.push_back(s.Texto(0));
    } catch (const ErrorAlmacen& e) {
        if (!EsDaño(e))
            throw;
    }
    return nombres;
}

} // namespace

Daños BuscarDaños(sqlite3* base, bool aFondo) {
    Daños daños;
    daños.detalle = Hallazgos(base, aFondo ? "PRAGMA integrity_check(50)" : "PRAGMA quick_check(50)");
    if (daños.Hay())
        for (const auto& tabla : NombresDeTablas(base))
            if (!Hallazgos(base, "PRAGMA quick_check(" + Entrecomillar(tabla) + ")").empty())
                daños.tablas.push_back(tabla);
    return daños;
}

Daños BuscarDaños(const std::filesystem::path& fichero, const std::function<void(int, int)>& avance) {
    const auto base = AbrirBasePropia(fichero, Modo::Lectura);
    if (!avance)
        return BuscarDaños(base.get());
    Instruccion paginas(base.get(), "PRAGMA page_count");
    // Every page is read twice: as a part of its tree, and row by row.
    Seguimiento seguimiento{base.get(), paginas.Fila() ? static_cast<int>(paginas.Entero(0)) * 2 : 0, avance};
    constexpr int kInstrucciones = 20000;
    sqlite3_progress_handler(base.get(), kInstrucciones, Seguimiento::Seguir, &seguimiento);
    return BuscarDaños(base.get());
}

std::string Daños::Texto() const {
    std::string texto = "La base de datos está dañada";
    for (const auto& t : tablas)
        texto += (&t != &tablas.front() ? ", "
                  : tablas.size() == 1  ? ". No se lee entera la tabla "
                                        : ". No se leen enteras las tablas ") +
                 t;
    return texto;
}

} // namespace pastorix
