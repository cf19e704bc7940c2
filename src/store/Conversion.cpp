#include "store/Conversion.h"

#include "store/Apertura.h"
#include "store/BasePropia.h"
#include "store/Catalogo.h"
#include "store/Esquema.h"
#include "store/Ficheros.h"
#include "store/Instruccion.h"
#include "store/Reemplazo.h"
#include "store/TablaDestino.h"
#include "store/Textos.h"

#include "access/BaseAccess.h"

#include <sqlite3.h>

#include <QDateTime>

#include <algorithm>
#include <fstream>

namespace pastorix {

namespace fs = std::filesystem;
using access::BaseAccess;

namespace {

// A database that is built beside the scenes: no journal and no sync until it is whole, then one sync and a rename.
BasePropia NuevaBase(const fs::path& ruta) {
    auto base = AbrirBasePropia(ruta, Modo::Nueva);
    EjecutarDirecto(base.get(),
                    "PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF; PRAGMA cache_size=-64000; BEGIN");
    return base;
}

void Terminar(BasePropia base, const fs::path& ruta) {
    EjecutarDirecto(base.get(), "COMMIT");
    base.reset();
    SincronizarFichero(ruta);
}

ResultadoApertura ResultadoDe(access::ErrorAccess::Clase clase) {
    using Clase = access::ErrorAccess::Clase;
    switch (clase) {
    case Clase::NoSeLee:
        return ResultadoApertura::Ausente;
    case Clase::NoEsAccess:
    case Clase::VersionNoTratada:
        return ResultadoApertura::NoEsBase;
    case Clase::Dañado:
        break;
    }
    return ResultadoApertura::Dañada;
}

const access::Tabla* BuscarTabla(const BaseAccess& base, std::string_view nombre) {
    for (const auto& t : base.Tablas())
        if (IgualSinCaso(t.nombre, nombre))
            return &t;
    return nullptr;
}

// The catalogue of bulls is told from the big databases by what it lacks: neither cows nor central users.
ClaseDeBase ClaseDe(const BaseAccess& base) {
    const bool grande =
        BuscarTabla(base, "T_Vacas") || BuscarTabla(base, "T_Cubriciones") || BuscarTabla(base, "Claves");
    return !grande && BuscarTabla(base, "T_Sementales") ? ClaseDeBase::Toros : ClaseDeBase::Principal;
}

class Conversor {
public:
    Conversor(const BaseAccess& origen, sqlite3* destino, HojaDeConversion& hoja,
              const AvanceDeApertura& avance)
        : m_origen(origen)
        , m_destino(destino)
        , m_hoja(hoja)
        , m_avance(avance) {
        for (const auto& t : origen.Tablas())
            m_total += t.filasDeclaradas;
    }

    void Convertir(std::string_view clave) {
        const auto clase = ClaseDe(m_origen);
        ExigirTablas(clase);
        CrearTablas(m_destino, clase, clave);
        for (const auto& t : CatalogoCanonico(clase).Tablas())
            if (const auto* tabla = BuscarTabla(m_origen, t.nombre))
                Canonica(t, *tabla);
            else
                m_hoja.curiosidades.push_back("No estaba la tabla de trabajo " + t.nombre + "; queda vacía");
        for (const auto& t : m_origen.Tablas())
            if (!CatalogoCanonico(clase).Buscar(t.nombre))
                DeMas(t);
        for (const auto& t : CrearIndices(m_destino, clase))
            m_hoja.curiosidades.push_back("La tabla " + t + " repite claves; queda sin clave única");
    }

private:
    void ExigirTablas(ClaseDeBase clase) const {
        std::string faltan;
        for (const auto& t : CatalogoCanonico(clase).Tablas())
            if (!t.nombre.starts_with("X_") && !BuscarTabla(m_origen, t.nombre))
                faltan += (faltan.empty() ? "" : ", ") + t.nombre;
        if (!faltan.empty())
            throw ErrorConversion(ResultadoApertura::OtroEsquema,
                                  "A la base de datos le faltan tablas: " + faltan);
    }

    void Canonica(const TablaCatalogo& canonica, const access::Tabla& tabla) {
        TablaDestino destino(m_destino, canonica);
        for (const auto& c : tabla.columnas)
            if (!destino.Reconocer(c)) {
                destino.Ampliar(c);
                m_hoja.curiosidades.push_back("La tabla " + canonica.nombre + " tiene además la columna " +
                                              c.nombre);
            }
        for (const auto& c : destino.SinOrigen()) {
            m_hoja.curiosidades.push_back("En la tabla " + canonica.nombre + " no estaba la columna " + c);
            m_hoja.columnasAusentes.push_back(canonica.nombre + "." + c);
        }
        Copiar(destino, tabla, false);
    }

    void DeMas(const access::Tabla& tabla) {
        m_hoja.curiosidades.push_back("El fichero tiene además la tabla " + tabla.nombre);
        TablaCatalogo nueva;
        nueva.nombre = tabla.nombre;
        EjecutarDirecto(m_destino, TablaDestino::SqlDeCreacion(tabla));
        TablaDestino destino(m_destino, nueva);
        for (const auto& c : tabla.columnas)
            destino.Añadir(c);
        Copiar(destino, tabla, true);
    }

    void Copiar(TablaDestino& destino, const access::Tabla& tabla, bool deMas) {
        destino.Preparar();
        HojaDeConversion::Tabla linea{destino.Nombre(), tabla.filasDeclaradas, 0, 0, deMas};
        linea.leidas = m_origen.Recorrer(tabla, [&](std::span<const access::Celda> fila) {
            destino.Escribir(fila);
            if (m_avance && ++m_hechas % 1000 == 0)
                m_avance(static_cast<int>(std::min(m_hechas, m_total)), static_cast<int>(m_total));
        });
        linea.escritas = destino.Contar();
        if (linea.escritas != linea.leidas)
            throw ErrorConversion(ResultadoApertura::Dañada,
                                  "La tabla " + linea.nombre + " no se ha podido copiar entera");
        if (linea.leidas != linea.declaradas)
            m_hoja.curiosidades.push_back("La tabla " + linea.nombre + " decía tener " +
                                          std::to_string(linea.declaradas) + " registros y tiene " +
                                          std::to_string(linea.leidas));
        for (const auto& c : destino.Curiosidades())
            m_hoja.curiosidades.push_back(c);
        m_hoja.tablas.push_back(std::move(linea));
    }

    const BaseAccess& m_origen;
    sqlite3* m_destino;
    HojaDeConversion& m_hoja;
    const AvanceDeApertura& m_avance;
    std::uint64_t m_total = 0;
    std::uint64_t m_hechas = 0;
};

// Builds the converted database under a name of its own; the caller puts it where it belongs.
HojaDeConversion ConvertirEn(const fs::path& origen, const fs::path& nueva, std::string_view clave,
                             const AvanceDeApertura& avance) {
    HojaDeConversion hoja;
    hoja.origen = TextoDeRuta(origen);
    try {
        const auto access = BaseAccess::Abrir(origen);
        if (access.Clave() != clave)
            throw ErrorConversion(ResultadoApertura::ClaveErronea,
                                  "La clave de la base de datos no es correcta");
        hoja.jet = access.VersionJet();
        auto base = NuevaBase(nueva);
        Conversor(access, base.get(), hoja, avance).Convertir(clave);
        Terminar(std::move(base), nueva);
    } catch (const access::ErrorAccess& e) {
        throw ErrorConversion(ResultadoDe(e.DeClase()), std::string(e.what()) + "\n" + hoja.origen);
    } catch (const ErrorConversion& e) {
        throw ErrorConversion(e.Resultado(), std::string(e.what()) + "\n" + hoja.origen);
    }
    return hoja;
}

// Where the original of a file goes before it is replaced: <name>_<reason>_<ddmmyyyy>_<hhmmss>.
fs::path NombreDeBackup(const fs::path& fichero, const fs::path& carpeta, const char* motivo) {
    const auto ahora = QDateTime::currentDateTime();
    const Fecha momento{static_cast<std::int32_t>(QDate(1899, 12, 30).daysTo(ahora.date())),
                        ahora.time().msecsSinceStartOfDay() / 1000};
    return LugarDeCopia{carpeta, TextoDeRuta(fichero.stem()) + "_" + motivo, momento}.Libre();
}

void EscribirTexto(const fs::path& fichero, const std::string& texto) {
    {
        std::ofstream f(fichero, std::ios::binary);
        f << texto;
        if (!f.flush())
            throw ErrorAlmacen(CodigoError::DiscoOFichero, "No se puede escribir: " + TextoDeRuta(fichero));
    }
    SincronizarFichero(fichero);
}

void Unir(sqlite3* base, const fs::path& fichero) {
    Instruccion(base, "ATTACH ? AS vieja").Enlazar(1, TextoDeRuta(fichero)).Correr();
}

void CopiarCanonica(sqlite3* base, const TablaCatalogo& canonica, const TablaCatalogo& vieja) {
    std::string destino;
    std::string origen;
    const auto par = [&](const std::string& columna, const std::string& valor) {
        destino += (destino.empty() ? "" : ", ") + Entrecomillar(columna);
        origen += (origen.empty() ? "" : ", ") + valor;
    };
    for (const auto& c : vieja.columnas) {
        const int lugar = canonica.Buscar(c.nombre);
        if (lugar < 0)
            EjecutarDirecto(base, "ALTER TABLE main." + Entrecomillar(canonica.nombre) + " ADD COLUMN " +
                                      Entrecomillar(c.nombre) + " " + TablaDestino::DeclaracionCompleta(c));
        const auto& nueva = lugar < 0 ? c : canonica.columnas[static_cast<std::size_t>(lugar)];
        par(nueva.nombre,
            nueva.noNula ? "ifnull(" + Entrecomillar(c.nombre) + ", 0)" : Entrecomillar(c.nombre));
    }
    EjecutarDirecto(base, "INSERT INTO main." + Entrecomillar(canonica.nombre) + " (" + destino +
                              ") SELECT " + origen + " FROM vieja." + Entrecomillar(vieja.nombre) +
                              " ORDER BY rowid");
}

} // namespace

std::string HojaDeConversion::Texto() const {
    std::string t = "Fichero: " + origen + "\nFormato: Access, Jet " + std::to_string(jet) + "\n\n";
    const auto columna = [&](std::string c, std::size_t ancho, bool derecha) {
        const auto visibles = static_cast<std::size_t>(std::count_if(
            c.begin(), c.end(), [](char b) { return (static_cast<unsigned char>(b) & 0xC0U) != 0x80U; }));
        const std::string blancos(ancho > visibles ? ancho - visibles : 0, ' ');
        t += derecha ? blancos + c : c + blancos;
    };
    const auto linea = [&](const std::string& a, const std::string& b, const std::string& c,
                           const std::string& d) {
        columna(a, 30, false);
        columna(b, 12, true);
        columna(c, 12, true);
        columna(d, 12, true);
        t += "\n";
    };
    linea("Tabla", "Declarados", "Leídos", "Escritos");
    std::uint64_t leidas = 0;
    std::uint64_t escritas = 0;
    for (const auto& f : tablas) {
        linea(f.nombre, std::to_string(f.declaradas), std::to_string(f.leidas), std::to_string(f.escritas));
        leidas += f.leidas;
        escritas += f.escritas;
    }
    linea("Total", "", std::to_string(leidas), std::to_string(escritas));
    if (!curiosidades.empty())
        t += "\nObservaciones:\n";
    for (const auto& c : curiosidades)
        t += "- " + c + "\n";
    return t;
}

HojaDeConversion ConvertirAccess(const fs::path& origen, const fs::path& destino, std::string_view clave,
                                 const AvanceDeApertura& avance) {
    std::error_code error;
    if (fs::exists(destino, error))
        throw ErrorConversion(ResultadoApertura::SoloLectura,
                              "El fichero de destino ya existe: " + TextoDeRuta(destino));
    const FicheroTemporal nueva(NombreTemporal(destino));
    auto hoja = ConvertirEn(origen, nueva.Nombre(), clave, avance);
    PonerEnSuSitio(nueva.Nombre(), destino);
    return hoja;
}

HojaDeConversion ConvertirEnSuSitio(const fs::path& fichero, std::string_view clave,
                                    const fs::path& carpetaBackup, const AvanceDeApertura& avance) {
    const FicheroTemporal nueva(NombreTemporal(fichero));
    auto hoja = ConvertirEn(fichero, nueva.Nombre(), clave, avance);
    if (!carpetaBackup.empty()) {
        auto original = NombreDeBackup(fichero, carpetaBackup, "Access");
        CopiarFichero(fichero, original);
        hoja.guardado = TextoDeRuta(original);
        EscribirTexto(original.replace_extension(".txt"), hoja.Texto());
        SincronizarCarpeta(carpetaBackup);
    }
    PonerEnSuSitio(nueva.Nombre(), fichero);
    return hoja;
}

void Ordenar(const fs::path& fichero, std::string_view clave, const fs::path& carpetaBackup,
             const AvanceDeApertura& avance) {
    const FicheroTemporal nueva(NombreTemporal(fichero));
    OpcionesApertura opciones;
    opciones.trabajo = false;
    opciones.soloLectura = true;
    DatosDeApertura datos;
    const auto vieja = AbrirBase(TextoDeRuta(fichero), clave, opciones, datos);
    const auto catalogo = Catalogo::DeBase(vieja.get());
    const auto clase = LeerSello(vieja.get(), clave).clase;
    auto base = NuevaBase(nueva.Nombre());
    EjecutarDirecto(base.get(), "COMMIT");
    Unir(base.get(), fichero);
    EjecutarDirecto(base.get(), "BEGIN");
    CrearTablas(base.get(), clase, clave);
    const int total = static_cast<int>(catalogo.Tablas().size());
    int hechas = 0;
    for (const auto& t : catalogo.Tablas()) {
        if (const auto* canonica = CatalogoCanonico(clase).Buscar(t.nombre)) {
            CopiarCanonica(base.get(), *canonica, t);
        } else {
            EjecutarDirecto(base.get(), TablaDestino::SqlDeCreacion(t));
            CopiarCanonica(base.get(), t, t);
        }
        if (avance)
            avance(++hechas, total);
    }
    CrearIndices(base.get(), clase);
    EjecutarDirecto(base.get(), "COMMIT");
    EjecutarDirecto(base.get(), "DETACH vieja");
    base.reset();
    SincronizarFichero(nueva.Nombre());
    if (!carpetaBackup.empty())
        CopiarFichero(fichero, NombreDeBackup(fichero, carpetaBackup, "Orden"));
    PonerEnSuSitio(nueva.Nombre(), fichero);
}

} // namespace pastorix
