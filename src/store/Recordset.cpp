#include "store/Recordset.h"

#include "store/Catalogo.h"
#include "store/Conversiones.h"
#include "store/ErroresSqlite.h"
#include "store/Filas.h"
#include "store/Lexico.h"
#include "store/Pendientes.h"
#include "store/Preparada.h"

#include <sqlite3.h>

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>
#include <vector>

namespace pastorix {

namespace {

// A text stays where it is until the statement has run; it must not change meanwhile.
void EnlazarSinCopia(sqlite3_stmt* s, int lugar, const Valor& v) {
    if (const auto* t = std::get_if<std::string>(&v))
        sqlite3_bind_text64(s, lugar, t->data(), t->size(), SQLITE_STATIC, SQLITE_UTF8);
    else
        Enlazar(s, lugar, v);
}

} // namespace

struct Recordset::Interior {
    Conexion* conexion = nullptr;
    std::string sentencia;
    std::shared_ptr<Preparada> preparada;
    bool escribible = false;
    bool abierto = true;
    Filas filas;
    std::size_t actual = 0;
    // Which row the fields are of: one of those read, one that is being added, or the one that has just been added.
    enum class Fila { Leida, Nueva, Añadida } fila = Fila::Leida;
    Pendientes pendientes;
    Filas añadida; // at most one row: the last one added, once somebody asks for it
    std::int64_t idAñadida = 0;
    // The last INSERT, kept ready: loops assign the same columns row after row.
    std::vector<int> columnasInsercion;
    Instruccion insercion;

    const Traduccion& T() const { return preparada->De(); }
    const ColumnaSalida& Salida(int i) const { return T().salida[static_cast<std::size_t>(i)]; }
    std::size_t ColumnasVisibles() const { return T().salida.size(); }

    [[noreturn]] void Fallar(CodigoError codigo, const std::string& texto) const {
        throw ErrorAlmacen(codigo, texto, SentenciaVisible(sentencia));
    }

    void ExigirFila() {
        if (fila != Fila::Leida || actual >= filas.Contar()) [[unlikely]]
            ExigirOtraFila();
    }

    void ExigirOtraFila() {
        if (!abierto)
            Fallar(CodigoError::ObjetoCerrado, "La consulta está cerrada");
        if (fila == Fila::Leida && actual >= filas.Contar())
            Fallar(CodigoError::SinFilaActual, "No hay registro actual");
        if (fila == Fila::Añadida && añadida.Contar() == 0)
            TraerAñadida();
    }

    // Where the cells of the current row are.
    Filas& Celdas() { return fila == Fila::Añadida ? añadida : filas; }
    const Filas& Celdas() const { return fila == Fila::Añadida ? añadida : filas; }
    std::size_t Linea() const { return fila == Fila::Añadida ? 0 : actual; }

    void Abandonar() {
        pendientes.Vaciar();
        añadida.Vaciar();
        fila = Fila::Leida;
    }

    void ExigirEscritura() const {
        if (!abierto)
            Fallar(CodigoError::ObjetoCerrado, "La consulta está cerrada");
        if (!escribible)
            Fallar(CodigoError::SoloLectura, "La consulta es de solo lectura");
    }

    // The column behind a field that is about to be assigned.
    const ColumnaTabla* Asignable(int columna) {
        ExigirEscritura();
        ExigirFila();
        const auto& salida = Salida(columna);
        if (!salida.columna)
            Fallar(CodigoError::SoloLectura, "La columna se calcula: " + salida.nombre);
        return salida.columna;
    }

    // Values of the row just added wait in `pendientes` until somebody asks for one, which loops never do.
    const Valor* Pendiente(int columna) const { return pendientes.Buscar(columna); }

    Celda CeldaDe(int columna) const {
        if (fila == Fila::Leida) [[likely]]
            return filas.Leer(actual, static_cast<std::size_t>(columna));
        return fila == Fila::Nueva ? Celda() : añadida.Leer(0, static_cast<std::size_t>(columna));
    }

    // The table whose row goes when a line of a join is deleted or added: the one on the many side.
    std::size_t TablaDeMuchos() const {
        const auto& tablas = T().tablas;
        for (std::size_t i = tablas.size(); i-- > 0;)
            if (!tablas[i].uno)
                return i;
        return tablas.size() - 1;
    }

    std::int64_t FilaDe(std::size_t tabla) const {
        const auto c = Celdas().Leer(Linea(), ColumnasVisibles() + tabla);
        if (c.clase != Celda::Clase::Entero)
            Fallar(CodigoError::SinFilaActual,
                   "El registro no existe en la tabla " + T().tablas[tabla].tabla->nombre);
        return c.entero;
    }

    void Correr(const std::string& sql, const std::vector<Valor>& v) const {
        Instruccion s(conexion->Manejador(), sql, sentencia);
        int lugar = 0;
        for (const auto& valor : v)
            s.Enlazar(++lugar, valor);
        s.Correr();
        if (sqlite3_changes(conexion->Manejador()) == 0)
            Fallar(CodigoError::SinFilaActual, "Otro proceso ha borrado el registro");
    }

    void Cambiar() {
        // One UPDATE per table that has assigned fields.
        for (std::size_t t = 0; t < T().tablas.size(); ++t) {
            std::string asignaciones;
            std::vector<Valor> v;
            for (const auto& [columna, valor] : pendientes.Todas())
                if (Salida(columna).tabla == T().tablas[t].tabla) {
                    asignaciones += (asignaciones.empty() ? "" : ", ") +
                                    Entrecomillar(Salida(columna).columna->nombre) + " = ?";
                    v.push_back(valor);
                }
            if (v.empty())
                continue;
            v.push_back(FilaDe(t));
            Correr("UPDATE " + Entrecomillar(T().tablas[t].tabla->nombre) + " SET " + asignaciones +
                       " WHERE rowid = ?",
                   v);
        }
        for (const auto& [columna, valor] : pendientes.Todas())
            Celdas().Poner(Linea(), static_cast<std::size_t>(columna), valor);
        pendientes.Vaciar();
    }

    void PrepararInsercion(const TablaCatalogo& tabla) {
        columnasInsercion.clear();
        std::string columnas;
        std::string marcas;
        for (const auto& p : pendientes.Todas()) {
            columnasInsercion.push_back(p.columna);
            columnas += (columnas.empty() ? "" : ", ") + Entrecomillar(Salida(p.columna).columna->nombre);
            marcas += marcas.empty() ? "?" : ", ?";
        }
        const auto sql =
            "INSERT INTO " + Entrecomillar(tabla.nombre) +
            (columnas.empty() ? " DEFAULT VALUES" : " (" + columnas + ") VALUES (" + marcas + ")");
        insercion = Instruccion(conexion->Manejador(), sql, sentencia, true);
    }

    void Insertar() {
        const auto& tabla = *T().tablas[TablaDeMuchos()].tabla;
        const auto asignadas = pendientes.Todas();
        for (const auto& c : tabla.clave)
            if (std::none_of(asignadas.begin(), asignadas.end(), [&](const auto& p) {
                    return Salida(p.columna).columna->nombre == c && !EsNulo(p.valor);
                }))
                Fallar(CodigoError::Restriccion, "Falta un dato obligatorio: " + c);
        const bool lista = insercion && std::equal(asignadas.begin(), asignadas.end(),
                                                   columnasInsercion.begin(), columnasInsercion.end(),
                                                   [](const auto& p, int c) { return p.columna == c; });
        if (!lista)
            PrepararInsercion(tabla);
        int n = 0;
        for (const auto& p : asignadas)
            EnlazarSinCopia(insercion.Manejador(), ++n, p.valor);
        insercion.Correr();
        idAñadida = sqlite3_last_insert_rowid(conexion->Manejador());
        fila = Fila::Añadida;
    }

    void TraerAñadida() {
        añadida.Columnas(ColumnasVisibles() + T().tablas.size());
        añadida.Añadir();
        for (std::size_t i = 0; i < ColumnasVisibles(); ++i)
            if (Salida(static_cast<int>(i)).tipo == TipoColumna::SiNo)
                añadida.Poner(0, i, Valor(std::int64_t{0}));
        for (const auto& [columna, valor] : pendientes.Todas())
            añadida.Poner(0, static_cast<std::size_t>(columna), valor);
        añadida.Poner(0, ColumnasVisibles() + TablaDeMuchos(), Valor(idAñadida));
        pendientes.Vaciar();
    }

    void Preparar(Conexion& c, std::string_view texto, bool conFilas, std::vector<Valor>& literales) {
        conexion = &c;
        sentencia = texto;
        preparada = c.Preparar(texto, conFilas, literales);
        if (T().clase != ClaseSentencia::Select)
            Fallar(CodigoError::Sintaxis, "Solo se puede abrir una consulta SELECT");
        escribible = conFilas && T().escribible;
        pendientes.Columnas(ColumnasVisibles());
    }
};

Recordset::Recordset(Conexion& conexion, std::string_view sentencia, Cursor, Bloqueo bloqueo)
    : m(std::make_unique<Interior>()) {
    std::vector<Valor> literales;
    m->Preparar(conexion, sentencia, bloqueo == Bloqueo::Optimista, literales);
    auto* s = m->preparada->Manejador();
    Corrida corrida(s, literales);
    m->filas.Columnas(static_cast<std::size_t>(sqlite3_column_count(s)));
    int codigo = 0;
    while ((codigo = corrida.Paso()) == SQLITE_ROW)
        m->filas.Añadir(s);
    if (codigo != SQLITE_DONE)
        LanzarError(conexion.Manejador(), codigo, sentencia);
}

Recordset::Recordset(std::unique_ptr<Interior> interior)
    : m(std::move(interior)) {}

Recordset Recordset::ParaAñadir(Conexion& conexion, std::string_view sentencia) {
    auto interior = std::make_unique<Interior>();
    std::vector<Valor> literales;
    interior->Preparar(conexion, sentencia, true, literales);
    return Recordset(std::move(interior));
}

Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;

bool Recordset::Eof() const {
    return m->actual >= m->filas.Contar();
}
void Recordset::Primero() {
    CancelarCambios();
    m->actual = 0;
}
void Recordset::Ultimo() {
    CancelarCambios();
    m->actual = m->filas.Contar() == 0 ? 0 : m->filas.Contar() - 1;
}
void Recordset::Siguiente() {
    CancelarCambios();
    if (!Eof())
        ++m->actual;
}
long Recordset::Contar() const {
    return static_cast<long>(m->filas.Contar());
}
int Recordset::Campos() const {
    return static_cast<int>(m->ColumnasVisibles());
}
std::string Recordset::NombreCampo(int indice) const {
    return m->Salida(indice).nombre;
}
int Recordset::TipoCampo(int indice) const {
    return CodigoDeTipo(m->Salida(indice).tipo);
}
std::string Recordset::TablaCampo(int indice) const {
    const auto* tabla = m->Salida(indice).tabla;
    return tabla ? tabla->nombre : std::string();
}

Campo Recordset::operator[](std::string_view nombre) {
    const int i = m->preparada->Columna(nombre);
    if (i < 0)
        m->Fallar(CodigoError::ColumnaDesconocida, "No existe la columna " + std::string(nombre));
    return {*this, i};
}

Campo Recordset::operator[](int indice) {
    if (indice < 0 || static_cast<std::size_t>(indice) >= m->ColumnasVisibles())
        m->Fallar(CodigoError::ColumnaDesconocida, "No existe la columna número " + std::to_string(indice));
    return {*this, indice};
}

void Recordset::AddNew() {
    m->ExigirEscritura();
    m->Abandonar();
    m->fila = Interior::Fila::Nueva;
}

void Recordset::Update() {
    m->ExigirEscritura();
    m->ExigirFila();
    if (m->fila == Interior::Fila::Nueva)
        m->Insertar();
    else if (!m->pendientes.Vacio())
        m->Cambiar();
}

void Recordset::CancelarCambios() {
    m->Abandonar();
}

void Recordset::Delete() {
    m->ExigirEscritura();
    m->ExigirFila();
    const auto lugar = m->TablaDeMuchos();
    m->Correr("DELETE FROM " + Entrecomillar(m->T().tablas[lugar].tabla->nombre) + " WHERE rowid = ?",
              {Valor(m->FilaDe(lugar))});
}

void Recordset::Cerrar() {
    m->abierto = false;
    m->filas.Vaciar();
    CancelarCambios();
}

bool Campo::Nulo() const {
    return EsNulo(Leer());
}

std::string_view Campo::Vista() const {
    m_r.m->ExigirFila();
    if (const auto* v = m_r.m->Pendiente(m_indice)) {
        const auto* t = std::get_if<std::string>(v);
        return t ? std::string_view(*t) : std::string_view();
    }
    const auto c = m_r.m->CeldaDe(m_indice);
    return c.clase == Celda::Clase::Texto ? m_r.m->Celdas().Texto(c) : std::string_view();
}

std::string Campo::Texto() const {
    return TextoDe(Leer());
}

double Campo::Numero() const {
    m_r.m->ExigirFila();
    if (m_r.m->pendientes.Vacio()) {
        const auto c = m_r.m->CeldaDe(m_indice);
        if (c.clase == Celda::Clase::Real)
            return c.real;
        if (c.clase == Celda::Clase::Entero)
            return static_cast<double>(c.entero);
        if (c.clase == Celda::Clase::Nulo)
            return 0;
    }
    return NumeroDe(Leer());
}

std::int64_t Campo::Entero() const {
    m_r.m->ExigirFila();
    if (m_r.m->pendientes.Vacio())
        if (const auto c = m_r.m->CeldaDe(m_indice); c.clase == Celda::Clase::Entero)
            return c.entero;
    return static_cast<std::int64_t>(std::nearbyint(Numero()));
}

std::optional<Fecha> Campo::FechaValor() const {
    const auto v = Leer();
    if (const auto* f = std::get_if<Fecha>(&v))
        return *f;
    if (const auto* t = std::get_if<std::string>(&v))
        return FechaDeTexto(*t);
    return std::nullopt;
}

Valor Campo::Leer() const {
    m_r.m->ExigirFila();
    if (const auto* v = m_r.m->Pendiente(m_indice))
        return *v;
    const auto c = m_r.m->CeldaDe(m_indice);
    switch (c.clase) {
    case Celda::Clase::Nulo:
        return {};
    case Celda::Clase::Entero:
        return c.entero;
    case Celda::Clase::Real:
        return c.real;
    case Celda::Clase::Texto:
        break;
    }
    const auto t = m_r.m->Celdas().Texto(c);
    if (EsFecha(m_r.m->Salida(m_indice).tipo))
        if (const auto f = FechaDeIso(t))
            return *f;
    return std::string(t);
}

Campo& Campo::operator=(Valor v) {
    const auto* columna = m_r.m->Asignable(m_indice);
    v = Convertido(std::move(v), *columna);
    m_r.m->pendientes.De(m_indice) = std::move(v);
    return *this;
}

Campo& Campo::operator=(std::string_view texto) {
    const auto* columna = m_r.m->Asignable(m_indice);
    if (!EsTexto(columna->tipo))
        return *this = Valor(std::string(texto));
    ExigirAnchura(texto, *columna);
    Valor& v = m_r.m->pendientes.De(m_indice);
    if (auto* t = std::get_if<std::string>(&v))
        t->assign(texto);
    else
        v = std::string(texto);
    return *this;
}

void Campo::Reponer(const Valor& leido) {
    const auto* columna = m_r.m->Asignable(m_indice);
    m_r.m->pendientes.De(m_indice) = EsNulo(leido) ? Convertido(leido, *columna) : leido;
}

double SiguienteId(Conexion& conexion, std::string_view sentencia, int indice) {
    Recordset rs(conexion, sentencia, Cursor::Keyset, Bloqueo::SoloLectura);
    if (rs.Eof())
        return 1;
    rs.Ultimo();
    return rs[indice].Numero() + 1;
}

std::string ValorDeCampo(Conexion& conexion, std::string_view sentencia, int indice) {
    Recordset rs(conexion, sentencia, Cursor::Estatico, Bloqueo::SoloLectura);
    return rs.Eof() ? std::string() : rs[indice].Texto();
}

} // namespace pastorix
