#include "store/Conexion.h"

#include "store/Apertura.h"
#include "store/Catalogo.h"
#include "store/Diario.h"
#include "store/ErroresSqlite.h"
#include "store/Lexico.h"
#include "store/Preparada.h"
#include "store/Valor.h"

#include <sqlite3.h>

#include <cmath>
#include <unordered_map>
#include <utility>

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
    std::string fichero; // the arguments of the last opening
    std::string clave;
    OpcionesApertura opciones;
    DatosDeApertura apertura;
    std::shared_ptr<const Catalogo> catalogo;
    std::unordered_map<std::string, std::shared_ptr<Preparada>> preparadas;
    std::string forma; // of the statement at hand; kept for its memory
    Diario* diario = nullptr;
    int grupos = 0;
    bool alterada = false;       // an ALTER TABLE of the group at hand may still be undone
    bool catalogoCaduco = false; // it was undone: the tables are to be looked up again

    void Exigir() const {
        if (!base)
            throw ErrorAlmacen(CodigoError::ObjetoCerrado, "La conexión con la base de datos está cerrada");
    }
    void Abrir(const AvanceDeApertura& avance) {
        auto completas = opciones;
        completas.avance = avance;
        base = AbrirBase(fichero, clave, completas, apertura);
        LeerCatalogo();
        if (diario)
            diario->Seguir(base.get());
    }
    void LeerCatalogo() {
        preparadas.clear();
        catalogo = std::make_shared<const Catalogo>(Catalogo::DeBase(base.get()));
        catalogoCaduco = false;
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
    m->fichero = fichero;
    m->clave = clave;
    m->opciones = opciones;
    m->opciones.avance = {}; // whoever follows this opening may be gone by the next
    m->Abrir(opciones.avance);
    return m->apertura.resultado;
}

ResultadoApertura Conexion::Reabrir() {
    Cerrar();
    m->Abrir({});
    return m->apertura.resultado;
}

void Conexion::Cerrar() {
    m->preparadas.clear();
    m->catalogo.reset();
    m->grupos = 0;
    m->alterada = false;
    if (m->diario)
        m->diario->Seguir(nullptr);
    m->base.reset();
}

void Conexion::PonerDiario(Diario* diario) {
    m->diario = diario;
    if (diario)
        diario->Seguir(m->base.get());
}

bool Conexion::Abierta() const {
    return m->base != nullptr;
}
bool Conexion::SoloLectura() const {
    return m->opciones.soloLectura;
}
const std::string& Conexion::Fichero() const {
    return m->fichero;
}
ResultadoApertura Conexion::ResultadoUltimo() const {
    return m->apertura.resultado;
}
const std::vector<std::string>& Conexion::ColumnasAñadidas() const {
    return m->apertura.columnasAñadidas;
}
sqlite3* Conexion::Manejador() const {
    return m->base.get();
}

const Catalogo& Conexion::Esquema() const {
    m->Exigir();
    if (m->catalogoCaduco)
        m->LeerCatalogo();
    return *m->catalogo;
}

std::shared_ptr<Preparada> Conexion::Preparar(std::string_view sentencia, bool conFilas,
                                              std::vector<Valor>& literales) {
    m->Exigir();
    if (m->catalogoCaduco)
        m->LeerCatalogo();
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
        m->alterada = sqlite3_get_autocommit(m->base.get()) == 0;
        m->LeerCatalogo();
    }
    return filas;
}

void Conexion::EntrarEnGrupo() {
    m->Exigir();
    if (m->grupos == 0)
        EjecutarDirecto(m->base.get(), "BEGIN");
    ++m->grupos;
}

namespace {

// The whole group is gone, for what the statement that failed says, where one did.
[[noreturn]] void LanzarDeshecho(const std::exception_ptr& error) {
    try {
        if (error)
            std::rethrow_exception(error);
    } catch (const ErrorAlmacen& e) {
        throw ErrorAlmacen(e.Codigo(), std::string("No se ha podido guardar. ") + e.what(), e.Detalle(),
                           e.Motor());
    } catch (const std::exception&) {
        // not the store's: the text below
    }
    throw ErrorAlmacen(CodigoError::DiscoOFichero,
                       "No se ha podido guardar: la base de datos ha deshecho la operación");
}

} // namespace

void Conexion::SalirDeGrupo(const std::exception_ptr& error) {
    if (!m->base || m->grupos == 0) // the action closed the connection itself, which committed nothing
        throw ErrorAlmacen(CodigoError::ObjetoCerrado, "La conexión se cerró antes de guardar");
    if (--m->grupos > 0)
        return;
    const bool alterada = std::exchange(m->alterada, false);
    // A full disk or a failing one makes SQLite undo the whole group by itself; that must not pass for a save.
    const bool deshecho = sqlite3_get_autocommit(m->base.get()) != 0;
    const std::size_t anotadas = m->diario ? m->diario->Acciones().size() : 0;
    const int codigo =
        deshecho ? SQLITE_OK : sqlite3_exec(m->base.get(), "COMMIT", nullptr, nullptr, nullptr);
    if (deshecho || codigo != SQLITE_OK)
        m->catalogoCaduco = m->catalogoCaduco || alterada;
    if (deshecho)
        LanzarDeshecho(error);
    if (codigo != SQLITE_OK) {
        const auto lectura = LeerCodigo(codigo);
        auto detalle = DetalleDeSqlite(m->base.get(), codigo, "COMMIT");
        sqlite3_exec(m->base.get(), "ROLLBACK", nullptr, nullptr, nullptr);
        if (m->diario)
            m->diario->Olvidar(anotadas);
        throw ErrorAlmacen(lectura.codigo, std::string("No se ha podido guardar. ") + lectura.texto,
                           std::move(detalle), codigo);
    }
}

// Savepoints of one name nest: each statement means the innermost.
void Conexion::PonerMarca() {
    m->Exigir();
    EjecutarDirecto(m->base.get(), "SAVEPOINT marca");
    if (m->diario)
        m->diario->Marcar();
}

void Conexion::SoltarMarca() {
    m->Exigir();
    EjecutarDirecto(m->base.get(), "RELEASE marca");
    if (m->diario)
        m->diario->SoltarMarca();
}

// A full disk may have undone the whole group already, the mark with it; the group says so when it ends.
void Conexion::VolverALaMarca() noexcept {
    m->catalogoCaduco = m->catalogoCaduco || m->alterada;
    if (m->base)
        sqlite3_exec(m->base.get(), "ROLLBACK TO marca; RELEASE marca", nullptr, nullptr, nullptr);
    if (m->diario)
        m->diario->VolverALaMarca();
}

} // namespace pastorix
