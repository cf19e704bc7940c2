#include "store/Conexion.h"

#include "store/Apertura.h"
#include "store/Catalogo.h"
#include "store/Lexico.h"
#include "store/Preparada.h"
#include "store/Valor.h"

#include <sqlite3.h>

#include <cmath>
#include <unordered_map>

namespace pastorix {

namespace {

// Shapes whose prepared statement is kept. A session has some hundreds; texts typed into a list's filter could make more.
constexpr std::size_t kPreparadasMaximo = 1000;

// A literal that is put into a number column must be one, as the old databases demanded.
void ComprobarAsignados(const Traduccion& t, const std::vector<Valor>& literales,
                        std::string_view sentencia) {
    for (const auto& [lugar, tipo] : t.asignados) {
        const auto& v = literales[static_cast<std::size_t>(lugar)];
        const auto* texto = std::get_if<std::string>(&v);
        double n = 0;
        if (texto && !NumeroDeTexto(*texto, n))
            throw ErrorAlmacen(CodigoError::TipoInadecuado, "El texto no es un número: " + *texto,
                               SentenciaVisible(sentencia));
    }
}

} // namespace

struct Conexion::Interior {
    BasePropia base;
    std::string fichero;
    ResultadoApertura resultado = ResultadoApertura::Ausente;
    std::shared_ptr<const Catalogo> catalogo;
    std::unordered_map<std::string, std::shared_ptr<Preparada>> preparadas;
    std::string forma; // of the statement at hand; kept for its memory
    int grupos = 0;

    void Exigir() const {
        if (!base)
            throw ErrorAlmacen(CodigoError::ObjetoCerrado, "La conexión con la base de datos está cerrada");
    }
};

Conexion::Conexion()
    : m(std::make_unique<Interior>()) {}
Conexion::~Conexion() = default;
Conexion::Conexion(Conexion&&) noexcept = default;
Conexion& Conexion::operator=(Conexion&&) noexcept = default;

ResultadoApertura Conexion::Abrir(const OrigenesDeDatos& origenes, std::string_view cadena,
                                  std::string_view clave, const OpcionesApertura& opciones) {
    return AbrirFichero(origenes.Resolver(cadena).fichero, clave, opciones);
}

ResultadoApertura Conexion::AbrirFichero(const std::string& fichero, std::string_view clave,
                                         const OpcionesApertura& opciones) {
    if (m->base)
        throw ErrorAlmacen(CodigoError::ObjetoCerrado, "La conexión ya está abierta: " + m->fichero);
    m->base = AbrirBase(fichero, clave, opciones, m->resultado);
    m->fichero = fichero;
    m->catalogo = std::make_shared<const Catalogo>(Catalogo::DeBase(m->base.get()));
    return m->resultado;
}

void Conexion::Cerrar() {
    m->preparadas.clear();
    m->catalogo.reset();
    m->grupos = 0;
    m->base.reset();
}

bool Conexion::Abierta() const {
    return m->base != nullptr;
}
const std::string& Conexion::Fichero() const {
    return m->fichero;
}
ResultadoApertura Conexion::ResultadoUltimo() const {
    return m->resultado;
}
sqlite3* Conexion::Manejador() const {
    return m->base.get();
}

const Catalogo& Conexion::Esquema() const {
    m->Exigir();
    return *m->catalogo;
}

std::shared_ptr<Preparada> Conexion::Preparar(std::string_view sentencia, bool conFilas,
                                              std::vector<Valor>& literales) {
    m->Exigir();
    SepararLiterales(sentencia, m->forma, literales);
    if (conFilas)
        m->forma += '\n'; // the same text with row identifiers is another shape
    if (const auto it = m->preparadas.find(m->forma); it != m->preparadas.end())
        return it->second;
    const std::string_view forma(m->forma.data(), m->forma.size() - (conFilas ? 1 : 0));
    auto t = Traducir(forma, sentencia, *m->catalogo, conFilas);
    auto preparada =
        std::make_shared<Preparada>(m->base.get(), m->catalogo, std::move(t), std::string(sentencia));
    if (preparada->De().clase != ClaseSentencia::Alter) {
        if (m->preparadas.size() >= kPreparadasMaximo)
            m->preparadas.clear();
        m->preparadas.emplace(m->forma, preparada);
    }
    return preparada;
}

long Conexion::Execute(std::string_view sentencia) {
    std::vector<Valor> literales;
    const auto preparada = Preparar(sentencia, false, literales);
    const auto& t = preparada->De();
    if (t.clase == ClaseSentencia::Select)
        throw ErrorAlmacen(CodigoError::Sintaxis, "Una consulta se abre, no se ejecuta",
                           SentenciaVisible(sentencia));
    ComprobarAsignados(t, literales, sentencia);
    auto* s = preparada->Manejador();
    for (std::size_t i = 0; i < literales.size(); ++i)
        Enlazar(s, static_cast<int>(i) + 1, literales[i]);
    const int codigo = sqlite3_step(s);
    const long filas = static_cast<long>(sqlite3_changes(m->base.get()));
    if (codigo != SQLITE_DONE) {
        sqlite3_reset(s); // gives the same code again, and keeps the message
        LanzarError(m->base.get(), codigo, sentencia);
    }
    sqlite3_reset(s);
    sqlite3_clear_bindings(s);
    if (t.clase == ClaseSentencia::Alter) {
        m->preparadas.clear();
        m->catalogo = std::make_shared<const Catalogo>(Catalogo::DeBase(m->base.get()));
    }
    return filas;
}

void Conexion::EntrarEnGrupo() {
    m->Exigir();
    if (m->grupos == 0)
        EjecutarDirecto(m->base.get(), "BEGIN");
    ++m->grupos;
}

void Conexion::SalirDeGrupo() {
    if (!m->base || m->grupos == 0) // the action closed the connection itself, which committed nothing
        throw ErrorAlmacen(CodigoError::ObjetoCerrado, "La conexión se cerró antes de guardar");
    if (--m->grupos > 0)
        return;
    // A full disk or a failing one makes SQLite undo the whole group by itself; that must not pass for a save.
    if (sqlite3_get_autocommit(m->base.get()) != 0)
        throw ErrorAlmacen(CodigoError::DiscoOFichero,
                           "No se ha podido guardar: la base de datos ha deshecho la operación");
    const int codigo = sqlite3_exec(m->base.get(), "COMMIT", nullptr, nullptr, nullptr);
    if (codigo != SQLITE_OK) {
        const std::string detalle = sqlite3_errmsg(m->base.get());
        sqlite3_exec(m->base.get(), "ROLLBACK", nullptr, nullptr, nullptr);
        throw ErrorAlmacen((codigo & 0xFF) == SQLITE_BUSY ? CodigoError::Bloqueada
                                                          : CodigoError::DiscoOFichero,
                           "No se ha podido guardar (" + detalle + ")");
    }
}

// Savepoints of one name nest: each statement means the innermost.
void Conexion::PonerMarca() {
    m->Exigir();
    EjecutarDirecto(m->base.get(), "SAVEPOINT marca");
}

void Conexion::SoltarMarca() {
    m->Exigir();
    EjecutarDirecto(m->base.get(), "RELEASE marca");
}

// A full disk may have undone the whole group already, the mark with it; the group says so when it ends.
void Conexion::VolverALaMarca() noexcept {
    if (m->base)
        sqlite3_exec(m->base.get(), "ROLLBACK TO marca; RELEASE marca", nullptr, nullptr, nullptr);
}

} // namespace pastorix
