// Statements of any form against the real tables: each is translated or refused, and what is translated SQLite understands.
#include "store/BasePropia.h"
#include "store/Catalogo.h"
#include "store/Errores.h"
#include "store/Esquema.h"
#include "store/Lexico.h"
#include "store/Traductor.h"

#include <sqlite3.h>

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t n) {
    using namespace pastorix;
    static sqlite3* base = [] {
        sqlite3* s = nullptr;
        sqlite3_open(":memory:", &s);
        InicializarConexion(s);
        sqlite3_exec(s, std::string(SqlDeEsquema(ClaseDeBase::Principal)).c_str(), nullptr, nullptr, nullptr);
        return s;
    }();
    const std::string_view sentencia(reinterpret_cast<const char*>(datos), n);
    try {
        std::string forma;
        std::vector<Valor> literales;
        SepararLiterales(sentencia, forma, literales);
        const auto t = Traducir(forma, sentencia, CatalogoCanonico(ClaseDeBase::Principal), true);
        if (t.clase == ClaseSentencia::Alter)
            return 0;
        sqlite3_stmt* s = nullptr;
        const int codigo = sqlite3_prepare_v2(base, t.sql.c_str(), -1, &s, nullptr);
        // A statement that passes may still be no sense to SQLite (an aggregate in WHERE), but it is one statement with one parameter
        // per literal and never writes what it says it reads.
        if (codigo == SQLITE_OK) {
            if (sqlite3_bind_parameter_count(s) > static_cast<int>(literales.size()))
                std::abort();
            if ((t.clase == ClaseSentencia::Select) != (sqlite3_stmt_readonly(s) != 0))
                std::abort();
        }
        sqlite3_finalize(s);
    } catch (const ErrorAlmacen&) {
    }
    return 0;
}
