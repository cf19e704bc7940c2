#include "store/Recordset.h"

#include "store/Catalogo.h"
#include "store/Filas.h"
#include "store/Lexico.h"
#include "store/Preparada.h"

#include <sqlite3.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>
#include <vector>

namespace pastorix {

namespace {

// Binds literals for one run and lets go of them whatever happens.
class Corrida {
public:
    Corrida(sqlite3_stmt* s, const std::vector<Valor>& valores)
        : m_s(s) {
        int lugar = 0;
        for (const auto& v : valores)
            Enlazar(s, ++lugar, v);
    }
    ~Corrida() { sqlite3_reset(m_s); }
    Corrida(const Corrida&) = delete;
    Corrida& operator=(const Corrida&) = delete;
    int Paso() { return sqlite3_step(m_s); }

private:
    sqlite3_stmt* m_s;
};

std::size_t Caracteres(std::string_view t) {
    return static_cast<std::size_t>(std::count_if(
        t.begin(), t.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

// What a column keeps of an assigned value: typed numbers and dates become numbers and dates.
Valor Convertido(const Valor& v, const ColumnaTabla& c) {
    const auto fallar = [&](const std::string& que) {
        throw ErrorAlmacen(CodigoError::TipoInadecuado, que + " (" + c.nombre + ": " + TextoDe(v) + ")");
    };
    const auto* texto = std::get_if<std::string>(&v);
    if (EsNulo(v))
        return c.tipo == TipoColumna::SiNo ? Valor(std::int64_t{0}) : v;
    switch (c.tipo) {
    case TipoColumna::Texto:
    case TipoColumna::Memo: {
        Valor t = texto ? v : Valor(TextoDe(v));
        if (c.anchura > 0 && Caracteres(std::get<std::string>(t)) > static_cast<std::size_t>(c.anchura))
            fallar("El texto es demasiado largo; caben " + std::to_string(c.anchura) + " caracteres");
        return t;
    }
    case TipoColumna::Fecha:
    case TipoColumna::FechaHora:
        // A text that is no date is kept as it was typed.
        if (texto)
            if (const auto f = FechaDeTexto(*texto))
                return *f;
        return v;
    case TipoColumna::Doble:
    case TipoColumna::Largo:
    case TipoColumna::SiNo: {
        double n = NumeroDe(v);
        if (texto && !NumeroDeTexto(*texto, n))
            fallar("El texto no es un número");
        if (c.tipo == TipoColumna::Doble)
            return n;
        if (std::abs(n) > 9.0e15)
            fallar("El número es demasiado grande");
        return static_cast<std::int64_t>(std::nearbyint(n)); // halves to even
    }
    case TipoColumna::Otro:
        break;
    }
    return v;
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
    bool nueva = false;
    std::vector<std::pair<int, Valor>> pendientes;
    // The last INSERT, kept ready: loops assign the same columns row after row.
    std::vector<int> columnasInsercion;
    sqlite3_stmt* insercion = nullptr;
    std::vector<Valor> valores; // reused

    ~Interior() { sqlite3_finalize(insercion); }

    const Traduccion& T() const { return preparada->De(); }
    const ColumnaSalida& Salida(int i) const { return T().salida[static_cast<std::size_t>(i)]; }
    std::size_t ColumnasVisibles() const { return T().salida.size(); }

    [[noreturn]] void Fallar(CodigoError codigo, const std::string& texto) const {
        throw ErrorAlmacen(codigo, texto, SentenciaVisible(sentencia));
    }

    void ExigirFila() const {
        if (!abierto)
            Fallar(CodigoError::ObjetoCerrado, "La consulta está cerrada");
        if (!nueva && actual >= filas.Contar())
            Fallar(CodigoError::SinFilaActual, "No hay registro actual");
    }

    void ExigirEscritura() const {
        if (!abierto)
            Fallar(CodigoError::ObjetoCerrado, "La consulta está cerrada");
        if (!escribible)
            Fallar(CodigoError::SoloLectura, "La consulta es de solo lectura");
    }

    // The column behind a field that is about to be assigned.
    const ColumnaTabla* Asignable(int columna) const {
        ExigirEscritura();
        ExigirFila();
        const auto& salida = Salida(columna);
        if (!salida.columna)
            Fallar(CodigoError::SoloLectura, "La columna se calcula: " + salida.nombre);
        return salida.columna;
    }

    const Valor* Pendiente(int columna) const {
        const auto it = std::find_if(pendientes.begin(), pendientes.end(),
                                     [&](const auto& p) { return p.first == columna; });
        return it == pendientes.end() ? nullptr : &it->second;
    }

    Celda CeldaDe(int columna) const {
        if (nueva)
            return {};
        return filas.Leer(actual, static_cast<std::size_t>(columna));
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
        const auto c = filas.Leer(actual, ColumnasVisibles() + tabla);
        if (c.clase != Celda::Clase::Entero)
            Fallar(CodigoError::SinFilaActual,
                   "El registro no existe en la tabla " + T().tablas[tabla].tabla->nombre);
        return c.entero;
    }

    void Correr(const std::string& sql, const std::vector<Valor>& v) const {
        auto* base = conexion->Manejador();
        sqlite3_stmt* s = nullptr;
        int codigo = sqlite3_prepare_v2(base, sql.c_str(), static_cast<int>(sql.size()), &s, nullptr);
        if (codigo == SQLITE_OK)
            codigo = Corrida(s, v).Paso();
        const auto cambios = sqlite3_changes(base);
        sqlite3_finalize(s);
        if (codigo != SQLITE_DONE)
            LanzarError(base, codigo, sentencia);
        if (cambios == 0)
            Fallar(CodigoError::SinFilaActual, "Otro proceso ha borrado el registro");
    }

    void Cambiar() {
        // One UPDATE per table that has assigned fields.
        for (std::size_t t = 0; t < T().tablas.size(); ++t) {
            std::string asignaciones;
            std::vector<Valor> v;
            for (const auto& [columna, valor] : pendientes)
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
        for (const auto& [columna, valor] : pendientes)
            filas.Poner(actual, static_cast<std::size_t>(columna), valor);
    }

    void PrepararInsercion(const TablaCatalogo& tabla) {
        sqlite3_finalize(insercion);
        insercion = nullptr;
        columnasInsercion.clear();
        std::string columnas;
        std::string marcas;
        for (const auto& p : pendientes) {
            columnasInsercion.push_back(p.first);
            columnas += (columnas.empty() ? "" : ", ") + Entrecomillar(Salida(p.first).columna->nombre);
            marcas += marcas.empty() ? "?" : ", ?";
        }
        const auto sql =
            "INSERT INTO " + Entrecomillar(tabla.nombre) +
            (columnas.empty() ? " DEFAULT VALUES" : " (" + columnas + ") VALUES (" + marcas + ")");
        auto* base = conexion->Manejador();
        if (const int codigo =
                sqlite3_prepare_v2(base, sql.c_str(), static_cast<int>(sql.size()), &insercion, nullptr);
            codigo != SQLITE_OK)
            LanzarError(base, codigo, sentencia);
    }

    void Insertar() {
        const auto lugar = TablaDeMuchos();
        const auto& tabla = *T().tablas[lugar].tabla;
        for (const auto& c : tabla.clave)
            if (std::none_of(pendientes.begin(), pendientes.end(), [&](const auto& p) {
                    return Salida(p.first).columna->nombre == c && !EsNulo(p.second);
                }))
                Fallar(CodigoError::Restriccion, "Falta un dato obligatorio: " + c);
        const bool lista = insercion && columnasInsercion.size() == pendientes.size() &&
                           std::equal(pendientes.begin(), pendientes.end(), columnasInsercion.begin(),
                                      [](const auto& p, int c) { return p.first == c; });
        if (!lista)
            PrepararInsercion(tabla);
        int n = 0;
        for (const auto& p : pendientes)
            Enlazar(insercion, ++n, p.second);
        const int codigo = sqlite3_step(insercion);
        if (codigo != SQLITE_DONE) {
            sqlite3_reset(insercion);
            LanzarError(conexion->Manejador(), codigo, sentencia);
        }
        sqlite3_reset(insercion);
        actual = filas.Añadir();
        for (std::size_t i = 0; i < ColumnasVisibles(); ++i)
            if (Salida(static_cast<int>(i)).tipo == TipoColumna::SiNo)
                filas.Poner(actual, i, Valor(std::int64_t{0}));
        for (const auto& [columna, valor] : pendientes)
            filas.Poner(actual, static_cast<std::size_t>(columna), valor);
        filas.Poner(actual, ColumnasVisibles() + lugar,
                    Valor(static_cast<std::int64_t>(sqlite3_last_insert_rowid(conexion->Manejador()))));
        nueva = false;
    }
};

Recordset::Recordset(Conexion& conexion, std::string_view sentencia, Cursor, Bloqueo bloqueo)
    : m(std::make_unique<Interior>()) {
    const bool conFilas = bloqueo == Bloqueo::Optimista;
    std::vector<Valor> literales;
    m->conexion = &conexion;
    m->sentencia = sentencia;
    m->preparada = conexion.Preparar(sentencia, conFilas, literales);
    if (m->T().clase != ClaseSentencia::Select)
        m->Fallar(CodigoError::Sintaxis, "Solo se puede abrir una consulta SELECT");
    m->escribible = conFilas && m->T().escribible;
    auto* s = m->preparada->Manejador();
    Corrida corrida(s, literales);
    m->filas.Columnas(static_cast<std::size_t>(sqlite3_column_count(s)));
    int codigo = 0;
    while ((codigo = corrida.Paso()) == SQLITE_ROW)
        m->filas.Añadir(s);
    if (codigo != SQLITE_DONE)
        LanzarError(conexion.Manejador(), codigo, sentencia);
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
    m->pendientes.clear();
    m->nueva = true;
}

void Recordset::Update() {
    m->ExigirEscritura();
    m->ExigirFila();
    if (m->nueva)
        m->Insertar();
    else if (!m->pendientes.empty())
        m->Cambiar();
    m->pendientes.clear();
}

void Recordset::CancelarCambios() {
    m->pendientes.clear();
    m->nueva = false;
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
    return c.clase == Celda::Clase::Texto ? m_r.m->filas.Texto(c) : std::string_view();
}

std::string Campo::Texto() const {
    return TextoDe(Leer());
}

double Campo::Numero() const {
    m_r.m->ExigirFila();
    if (m_r.m->pendientes.empty()) {
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
    if (m_r.m->pendientes.empty())
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
    const auto t = m_r.m->filas.Texto(c);
    if (EsFecha(m_r.m->Salida(m_indice).tipo))
        if (const auto f = FechaDeIso(t))
            return *f;
    return std::string(t);
}

Campo& Campo::operator=(const Valor& v) {
    const auto* columna = m_r.m->Asignable(m_indice);
    Asignar(Convertido(v, *columna));
    return *this;
}

void Campo::Reponer(const Valor& leido) {
    const auto* columna = m_r.m->Asignable(m_indice);
    Asignar(EsNulo(leido) ? Convertido(leido, *columna) : leido);
}

void Campo::Asignar(Valor v) {
    auto& p = m_r.m->pendientes;
    const auto it = std::find_if(p.begin(), p.end(), [&](const auto& x) { return x.first == m_indice; });
    if (it != p.end())
        it->second = std::move(v);
    else
        p.emplace_back(m_indice, std::move(v));
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
