#include "access/BaseAccess.h"

#include "access/Cabecera.h"
#include "access/Catalogo.h"
#include "access/Definicion.h"
#include "access/Paginas.h"
#include "access/Recorrido.h"
#include "access/Texto.h"
#include "access/ValoresLargos.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <system_error>

namespace pastorix::access {

namespace {

constexpr std::uint64_t maxBytes = std::uint64_t{2} << 30;
constexpr std::uint64_t minPaginas = 3;

[[noreturn]] void NoSeLee(const std::string& porque) {
    throw ErrorAccess(ErrorAccess::Clase::NoSeLee, "No se puede leer el fichero: " + porque + ".");
}

[[noreturn]] void Lanzar(const Daño& daño, const std::string& tabla) {
    const bool cortado = daño.como == Daño::Como::Cortado;
    throw ErrorAccess(ErrorAccess::Clase::Dañado,
                      (cortado ? "El fichero está cortado: " : "El fichero está dañado: ") +
                          (tabla.empty() ? "" : "tabla " + tabla + ": ") + daño.detalle + ".");
}

void ComprobarTamaño(std::uint64_t bytes, const Formato& formato) {
    if (bytes > maxBytes)
        Dañar("mide " + std::to_string(bytes) + " bytes, más de lo que puede medir");
    if (bytes < minPaginas * formato.pagina || bytes % formato.pagina != 0)
        Cortar("mide " + std::to_string(bytes) + " bytes, que no son " +
               (bytes % formato.pagina != 0 ? "páginas enteras de " : "tres páginas de ") +
               std::to_string(formato.pagina));
}

} // namespace

struct BaseAccess::Interior {
    Interior(Bytes contenido, const Cabecera& c)
        : cabecera(c)
        , textos(*c.formato, c.paginaCodigos)
        , paginas(std::move(contenido), c)
        , largos(paginas) {}

    Cabecera cabecera;
    Textos textos;
    Paginas paginas;
    ValoresLargos largos;
    std::vector<Definicion> definiciones; // one for each of `tablas`
    std::vector<Tabla> tablas;

    void LeerTablas() {
        std::vector<bool> usadas(paginas.Cuantas());
        for (Entrada& entrada : LeerCatalogo(paginas, textos, largos, usadas)) {
            try {
                definiciones.push_back(LeerDefinicion(paginas, textos, entrada.pagina, usadas));
            } catch (const Daño& daño) {
                Lanzar(daño, entrada.nombre);
            }
            Definicion& definicion = definiciones.back();
            tablas.push_back({std::move(entrada.nombre), std::move(definicion.columnas), definicion.filas,
                              definicion.pagina});
        }
    }
};

BaseAccess::BaseAccess() = default;
BaseAccess::~BaseAccess() = default;
BaseAccess::BaseAccess(BaseAccess&&) noexcept = default;
BaseAccess& BaseAccess::operator=(BaseAccess&&) noexcept = default;

bool BaseAccess::LoParece(std::span<const std::uint8_t> principio) {
    return TieneFirma(principio);
}

BaseAccess BaseAccess::Abrir(const std::filesystem::path& fichero) {
    std::error_code error; // its own texts are in the language of the system, not the user's
    if (!std::filesystem::exists(fichero, error))
        NoSeLee(error ? "no se puede llegar a él" : "no existe");
    if (!std::filesystem::is_regular_file(fichero, error))
        NoSeLee("no es un fichero");
    const std::uint64_t bytes = std::filesystem::file_size(fichero, error);
    if (error)
        NoSeLee("no se sabe cuánto mide");
    std::ifstream entrada(fichero, std::ios::binary);
    if (!entrada)
        NoSeLee("no se deja abrir");
    const auto Leer = [&entrada](std::uint8_t* donde, std::uint64_t cuantos) {
        // The stream only knows char; the bytes are the same.
        if (!entrada.read(reinterpret_cast<char*>(donde), static_cast<std::streamsize>(cuantos)))
            NoSeLee("falla la lectura");
    };
    // What is no Access file, or far too large for one, is not read whole only to be refused.
    Bytes contenido(static_cast<std::size_t>(std::min<std::uint64_t>(bytes, Jet3.pagina)));
    Leer(contenido.data(), contenido.size());
    try {
        ComprobarTamaño(bytes, ReconocerFormato(contenido));
    } catch (const Daño& daño) {
        Lanzar(daño, {});
    }
    const std::size_t leidos = contenido.size();
    contenido.resize(static_cast<std::size_t>(bytes));
    Leer(contenido.data() + leidos, contenido.size() - leidos);
    return DeBytes(std::move(contenido));
}

BaseAccess BaseAccess::DeBytes(Bytes contenido) {
    const Formato& formato = ReconocerFormato(contenido);
    BaseAccess base;
    try {
        ComprobarTamaño(contenido.size(), formato);
        const Cabecera cabecera = LeerCabecera(Vista(contenido).first(formato.pagina), formato);
        base.m = std::make_unique<Interior>(std::move(contenido), cabecera);
        base.m->LeerTablas();
    } catch (const Daño& daño) {
        Lanzar(daño, {});
    }
    return base;
}

int BaseAccess::VersionJet() const {
    return m->cabecera.formato->version;
}

const std::string& BaseAccess::Clave() const {
    return m->cabecera.clave;
}

const std::vector<Tabla>& BaseAccess::Tablas() const {
    return m->tablas;
}

std::uint64_t BaseAccess::Recorrer(const Tabla& tabla,
                                   const std::function<void(std::span<const Celda>)>& fila) const {
    const auto definicion =
        std::find_if(m->definiciones.begin(), m->definiciones.end(),
                     [&tabla](const Definicion& d) { return d.pagina == tabla.paginaDefinicion; });
    if (definicion == m->definiciones.end())
        throw std::invalid_argument("BaseAccess::Recorrer: not a table of this file: " + tabla.nombre);
    try {
        return RecorrerFilas(m->paginas, *definicion, m->textos, m->largos, fila);
    } catch (const Daño& daño) {
        Lanzar(daño, tabla.nombre);
    }
}

} // namespace pastorix::access
