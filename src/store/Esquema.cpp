#include "store/Esquema.h"

#include "store/BasePropia.h"
#include "store/ErroresSqlite.h"
#include "store/Ficheros.h"
#include "store/Instruccion.h"

#include <sqlite3.h>

#include <QByteArray>
#include <QCryptographicHash>
#include <QList>
#include <QRandomGenerator>

namespace pastorix {

namespace {

QByteArray Resumen(const QByteArray& sal, std::string_view clave) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(sal);
    hash.addData(QByteArray(clave.data(), static_cast<qsizetype>(clave.size())));
    return hash.result().toHex();
}

std::string LeerMeta(sqlite3* base, const char* nombre) {
    try {
        Instruccion s(base, "SELECT valor FROM _pastorix WHERE nombre = ?");
        s.Enlazar(1, std::string(nombre));
        return s.Fila() ? s.Texto(0) : std::string();
    } catch (const ErrorAlmacen& e) {
        if (e.Motor() !=
            SQLITE_ERROR) // without the table the file is simply not ours; damage and locks are something else
            throw;
        return {};
    }
}

// The statements of the delivered SQL, comments left out.
std::vector<std::string> Sentencias(ClaseDeBase clase) {
    std::vector<std::string> lista;
    std::string actual;
    std::string_view sql = SqlDeEsquema(clase);
    while (!sql.empty()) {
        const auto fin = std::min(sql.find('\n'), sql.size() - 1);
        const auto linea = sql.substr(0, fin + 1);
        sql.remove_prefix(fin + 1);
        if (linea.starts_with("--"))
            continue;
        actual += linea;
        if (linea.ends_with(";\n")) {
            const auto principio = actual.find_first_not_of('\n');
            lista.push_back(actual.substr(principio, actual.size() - principio - 2));
            actual.clear();
        }
    }
    return lista;
}

} // namespace

void CrearTablas(sqlite3* base, ClaseDeBase clase, std::string_view clave) {
    EjecutarDirecto(base, "PRAGMA application_id=" + std::to_string(kIdentificadorAplicacion));
    EjecutarDirecto(base, "CREATE TABLE _pastorix (nombre TEXT PRIMARY KEY, valor TEXT)");
    for (const auto& s : Sentencias(clase))
        if (s.starts_with("CREATE TABLE"))
            EjecutarDirecto(base, s);
    quint32 azar[4];
    QRandomGenerator::system()->fillRange(azar);
    const auto sal = QByteArray(reinterpret_cast<const char*>(azar), sizeof azar).toHex();
    const auto sello = sal + ":" + Resumen(sal, clave);
    EjecutarDirecto(base, "INSERT INTO _pastorix VALUES ('formato', '1'), ('clase', '" +
                              std::string(clase == ClaseDeBase::Principal ? "principal" : "toros") +
                              "'), ('sello', '" + sello.toStdString() + "')");
}

std::vector<std::string> CrearIndices(sqlite3* base, ClaseDeBase clase) {
    std::vector<std::string> sinClave;
    for (const auto& s : Sentencias(clase)) {
        if (s.starts_with("CREATE INDEX")) {
            EjecutarDirecto(base, s);
        } else if (s.starts_with("CREATE UNIQUE INDEX")) {
            const int codigo = sqlite3_exec(base, s.c_str(), nullptr, nullptr, nullptr);
            if ((codigo & 0xFF) == SQLITE_CONSTRAINT) {
                auto llano = s;
                EjecutarDirecto(base, llano.erase(7, 7)); // "UNIQUE "
                const auto tabla = s.find("clave_") + 6;
                sinClave.push_back(s.substr(tabla, s.find(' ', tabla) - tabla));
            } else if (codigo != SQLITE_OK) {
                LanzarError(base, codigo, s);
            }
        }
    }
    return sinClave;
}

SelloDeBase LeerSello(sqlite3* base, std::string_view clave) {
    SelloDeBase sello;
    Instruccion identificador(base, "PRAGMA application_id");
    sello.nuestra = identificador.Fila() && identificador.Entero(0) == kIdentificadorAplicacion;
    const auto guardado = QByteArray::fromStdString(LeerMeta(base, "sello"));
    const auto partes = guardado.split(':');
    sello.nuestra = sello.nuestra && partes.size() == 2;
    sello.claveCorrecta = partes.size() == 2 && Resumen(partes[0], clave) == partes[1];
    sello.clase = LeerMeta(base, "clase") == "toros" ? ClaseDeBase::Toros : ClaseDeBase::Principal;
    return sello;
}

void CrearBase(const std::filesystem::path& fichero, ClaseDeBase clase, std::string_view clave) {
    if (std::filesystem::exists(fichero))
        throw ErrorAlmacen(CodigoError::DiscoOFichero, "El fichero ya existe: " + TextoDeRuta(fichero));
    const FicheroTemporal temporal(NombreTemporal(fichero));
    auto base = AbrirBasePropia(temporal.Nombre(), Modo::Nueva);
    EjecutarDirecto(base.get(), "BEGIN");
    CrearTablas(base.get(), clase, clave);
    CrearIndices(base.get(), clase);
    if (clase == ClaseDeBase::Principal)
        EjecutarDirecto(base.get(),
                        "INSERT INTO T_Tetos VALUES (1, 'Anterior izquierdo'), (2, 'Anterior derecho'), "
                        "(3, 'Posterior izquierdo'), (4, 'Posterior derecho')");
    EjecutarDirecto(base.get(), "COMMIT");
    base.reset();
    PonerEnSuSitio(temporal.Nombre(), fichero);
}

bool LaPonenLasReparaciones(std::string_view columna) {
    return columna == "T_Cubriciones.DemoraServIPR" || columna == "T_Cebo.Cambiado";
}

DiferenciasDeEsquema CompararEsquema(const Catalogo& catalogo, ClaseDeBase clase) {
    DiferenciasDeEsquema d;
    for (const auto& canonica : CatalogoCanonico(clase).Tablas()) {
        const auto* tabla = catalogo.Buscar(canonica.nombre);
        if (!tabla) {
            d.otroOrden = true;
            if (!canonica.nombre.starts_with("X_")) // scratch tables are made anew
                d.tablasAusentes.push_back(canonica.nombre);
            continue;
        }
        for (std::size_t i = 0; i < canonica.columnas.size(); ++i) {
            const auto& c = canonica.columnas[i];
            const int lugar = tabla->Buscar(c.nombre);
            if (lugar < 0)
                d.columnasAusentes.push_back(canonica.nombre + "." + c.nombre);
            d.otroOrden = d.otroOrden || lugar != static_cast<int>(i) ||
                          tabla->columnas[i].nombre != c.nombre ||
                          tabla->columnas[i].declaracion != c.declaracion;
        }
    }
    return d;
}

} // namespace pastorix
