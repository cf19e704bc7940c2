#include "store/Copias.h"

#include "store/Apertura.h"
#include "store/Conversion.h"
#include "store/Ficheros.h"
#include "store/Integridad.h"
#include "store/Recordset.h"
#include "store/Reemplazo.h"
#include "store/Textos.h"

#include "access/BaseAccess.h"

#include <QDateTime>

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <fstream>

namespace pastorix {

namespace fs = std::filesystem;

namespace {

Fecha MomentoDelFichero(const fs::path& fichero) {
    std::error_code error;
    const auto hora = fs::last_write_time(fichero, error);
    if (error)
        return {};
    const auto segundos = std::chrono::duration_cast<std::chrono::seconds>(
        std::chrono::file_clock::to_sys(hora).time_since_epoch());
    const auto local = QDateTime::fromSecsSinceEpoch(segundos.count());
    return {static_cast<std::int32_t>(QDate(1899, 12, 30).daysTo(local.date())),
            local.time().msecsSinceStartOfDay() / 1000};
}

// "..._31122026_235959"
std::optional<Fecha> MomentoDelNombre(std::string_view raiz) {
    constexpr std::size_t kLargo = 16;
    if (raiz.size() < kLargo)
        return std::nullopt;
    const auto cola = raiz.substr(raiz.size() - kLargo);
    const auto numero = [&](std::size_t desde, std::size_t largo) {
        int n = -1;
        const auto* fin = cola.data() + desde + largo;
        const auto leido = std::from_chars(cola.data() + desde, fin, n);
        return leido.ec == std::errc{} && leido.ptr == fin ? n : -1;
    };
    if (cola[0] != '_' || cola[9] != '_')
        return std::nullopt;
    return Fecha::De(numero(5, 4), numero(3, 2), numero(1, 2), numero(10, 2), numero(12, 2), numero(14, 2));
}

// A copy in our form: itself, or what an Access file becomes in a folder that goes when it is done with.
class EnNuestraForma {
public:
    EnNuestraForma(const fs::path& copia, std::string_view clave)
        : m_fichero(copia) {
        if (!EsDeAccess(copia))
            return;
        m_carpeta.emplace();
        m_fichero = m_carpeta->En("copia.mdb");
        try {
            ConvertirAccess(copia, m_fichero, clave);
        } catch (const ErrorConversion& e) {
            throw ErrorAlmacen(CodigoError::NoSePuedeAbrir, e.what());
        }
    }
    const fs::path& Fichero() const { return m_fichero; }

private:
    std::optional<CarpetaTemporal> m_carpeta;
    fs::path m_fichero;
};

} // namespace

bool EsDeAccess(const fs::path& fichero) {
    std::array<char, 128> bytes{};
    std::ifstream f(fichero, std::ios::binary);
    f.read(bytes.data(), bytes.size());
    return access::BaseAccess::LoParece(
        {reinterpret_cast<const std::uint8_t*>(bytes.data()), static_cast<std::size_t>(f.gcount())});
}

ContenidoDeBase LeerContenido(Conexion& conexion) {
    const auto primero = [&](const char* consulta) {
        Recordset rs(conexion, consulta, Cursor::Estatico, Bloqueo::SoloLectura);
        return rs[0].Leer();
    };
    const auto cuenta = [&](const char* consulta) { return static_cast<long>(NumeroDe(primero(consulta))); };
    ContenidoDeBase c;
    c.ganaderos = cuenta("SELECT Count(*) AS N FROM T_Ganaderos");
    c.vacas = cuenta("SELECT Count(*) AS N FROM T_Vacas");
    c.sementales = cuenta("SELECT Count(*) AS N FROM T_Sementales");
    const auto parto = primero("SELECT Max(Fecha_Parto) AS Ultimo FROM T_Partos");
    if (const auto* fecha = std::get_if<Fecha>(&parto))
        c.ultimoParto = *fecha;
    return c;
}

std::vector<CopiaDeSeguridad> BuscarCopias(const fs::path& carpeta, std::string_view base) {
    const auto raiz = TextoDeRuta(Ruta(base).stem());
    const auto otra = raiz.starts_with("BD_") ? "DB_" + raiz.substr(3) : raiz;
    const auto esSuya = [&](std::string_view nombre) {
        const auto principio = nombre.substr(0, raiz.size());
        return nombre.size() > raiz.size() && nombre[raiz.size()] == '_' &&
               (IgualSinCaso(principio, raiz) || IgualSinCaso(principio, otra));
    };
    std::vector<CopiaDeSeguridad> copias;
    std::error_code error;
    for (fs::directory_iterator it(carpeta, error), fin; !error && it != fin; it.increment(error)) {
        const auto nombre = TextoDeRuta(it->path().stem());
        if (!esSuya(nombre) || !IgualSinCaso(TextoDeRuta(it->path().extension()), ".mdb"))
            continue;
        const auto momento = MomentoDelNombre(nombre);
        copias.push_back({it->path(), momento ? *momento : MomentoDelFichero(it->path())});
    }
    std::sort(copias.begin(), copias.end(), [](const CopiaDeSeguridad& a, const CopiaDeSeguridad& b) {
        return a.momento != b.momento ? a.momento > b.momento : a.fichero < b.fichero;
    });
    return copias;
}

ContenidoDeBase ExaminarCopia(const fs::path& copia, std::string_view clave) {
    const EnNuestraForma suya(copia, clave);
    OpcionesApertura opciones;
    opciones.soloLectura = true;
    Conexion conexion;
    conexion.AbrirFichero(TextoDeRuta(suya.Fichero()), clave, opciones);
    if (const auto daños = BuscarDaños(suya.Fichero()); daños.Hay())
        throw ErrorAlmacen(CodigoError::NoSePuedeAbrir, daños.Texto(), daños.detalle);
    return LeerContenido(conexion);
}

std::optional<CopiaSana> UltimaCopiaSana(const fs::path& carpeta, std::string_view base,
                                         std::string_view clave) {
    for (const auto& copia : BuscarCopias(carpeta, base)) {
        try {
            return CopiaSana{copia, ExaminarCopia(copia.fichero, clave)};
        } catch (const ErrorAlmacen&) { // an older one may be sound
        }
    }
    return std::nullopt;
}

fs::path RestaurarCopia(const fs::path& fichero, const fs::path& copia, const fs::path& carpeta,
                        Fecha momento, std::string_view clave, BaseAnterior anterior) {
    const EnNuestraForma suya(copia, clave);
    const char* cola = anterior == BaseAnterior::Averiada ? "_Averiada" : "";
    return ReemplazarBase(fichero, suya.Fichero(), {carpeta, TextoDeRuta(fichero.stem()) + cola, momento},
                          anterior);
}

} // namespace pastorix
