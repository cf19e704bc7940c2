#include "store/Ficheros.h"

#include "store/Errores.h"
#include "store/Textos.h"

#include <cerrno>
#include <chrono>
#include <vector>

// The one place with calls of the operating system: nothing else in the program tells systems apart.
#ifdef _WIN32
#include <io.h>
#include <stdio.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace pastorix {

namespace fs = std::filesystem;

namespace {

struct MotivoDeError {
    std::errc error;
    const char* texto;
};

constexpr MotivoDeError kMotivos[] = {
    {std::errc::no_space_on_device, "el disco está lleno"},
    {std::errc::file_too_large, "el fichero es demasiado grande para el disco"},
    {std::errc::permission_denied, "no hay permiso"},
    {std::errc::operation_not_permitted, "no hay permiso"},
    {std::errc::read_only_file_system, "la carpeta es de solo lectura"},
    {std::errc::no_such_file_or_directory, "no existe"},
    {std::errc::is_a_directory, "es una carpeta"},
    {std::errc::not_a_directory, "el camino no lleva a una carpeta"},
    {std::errc::file_exists, "ya existe"},
    {std::errc::io_error, "el disco falla"},
    {std::errc::device_or_resource_busy, "lo está usando otro programa"},
    {std::errc::text_file_busy, "lo está usando otro programa"},
    {std::errc::cross_device_link, "está en otro disco"},
    {std::errc::filename_too_long, "el nombre es demasiado largo"},
    {std::errc::too_many_files_open, "hay demasiados ficheros abiertos"},
};

std::error_code UltimoError() {
    return {errno, std::generic_category()};
}

#ifndef _WIN32
void Sincronizar(const fs::path& ruta, int modo) {
    const int d = ::open(ruta.c_str(), modo | O_CLOEXEC);
    if (d < 0)
        FallarFichero("No se puede abrir", ruta, UltimoError());
    const int r = ::fsync(d);
    const auto error = UltimoError();
    ::close(d);
    if (r != 0 && error != std::errc::invalid_argument) // some file systems cannot sync a folder
        FallarFichero("No se puede escribir", ruta, error);
}
#endif

} // namespace

fs::path Ruta(std::string_view utf8) {
    return fs::path(std::u8string(reinterpret_cast<const char8_t*>(utf8.data()), utf8.size()));
}

std::string TextoDeRuta(const fs::path& ruta) {
    const auto u8 = ruta.u8string();
    return {reinterpret_cast<const char*>(u8.data()), u8.size()};
}

fs::path CarpetaDe(const fs::path& fichero) {
    return fichero.has_parent_path() ? fichero.parent_path() : fs::path(".");
}

std::string CausaDelSistema(std::error_code error) {
#ifdef EDQUOT
    if (error == std::error_code(EDQUOT, std::generic_category())) // the user's share of the disk
        error = std::make_error_code(std::errc::no_space_on_device);
#endif
    const auto condicion = error.default_error_condition();
    for (const auto& m : kMotivos)
        if (condicion == m.error)
            return m.texto;
    return {};
}

std::string Motivo(std::error_code error) {
    const auto causa = CausaDelSistema(error);
    return causa.empty() ? causa : " (" + causa + ")";
}

void FallarFichero(const std::string& que, const fs::path& ruta, std::error_code error) {
    throw ErrorAlmacen(CodigoError::DiscoOFichero, que + ": " + TextoDeRuta(ruta) + Motivo(error),
                       error.message() + " (" + error.category().name() + " " +
                           std::to_string(error.value()) + ")");
}

#ifdef _WIN32
void SincronizarFichero(const fs::path& fichero) {
    if (FILE* f = _wfopen(fichero.c_str(), L"r+b")) {
        _commit(_fileno(f));
        fclose(f);
    }
}
void SincronizarCarpeta(const fs::path&) {} // the file system's own journal sees to it
#else
void SincronizarFichero(const fs::path& fichero) {
    Sincronizar(fichero, O_RDONLY);
}
void SincronizarCarpeta(const fs::path& carpeta) {
    Sincronizar(carpeta, O_RDONLY | O_DIRECTORY);
}
#endif

void PonerEnSuSitio(const fs::path& nuevo, const fs::path& fichero) {
    std::error_code error;
    fs::rename(nuevo, fichero, error);
    if (error)
        FallarFichero("No se puede reemplazar", fichero, error);
    SincronizarCarpeta(CarpetaDe(fichero));
}

void CopiarFichero(const fs::path& origen, const fs::path& destino) {
    const FicheroTemporal temporal(NombreTemporal(destino));
    std::error_code error;
    fs::copy_file(origen, temporal.Nombre(), fs::copy_options::overwrite_existing, error);
    if (error)
        FallarFichero("No se puede copiar", origen, error);
    SincronizarFichero(temporal.Nombre());
    PonerEnSuSitio(temporal.Nombre(), destino);
}

void CopiarConDiarios(const fs::path& origen, const fs::path& destino) {
    const auto con = [](fs::path p, const char* cola) { return p += cola; };
    std::error_code error;
    for (const char* cola : kDiarios)
        fs::remove(con(destino, cola), error); // of a file that is about to go
    CopiarFichero(origen, destino);
    for (const char* cola : kDiarios)
        if (fs::exists(con(origen, cola), error))
            CopiarFichero(con(origen, cola), con(destino, cola));
}

fs::path NombreTemporal(const fs::path& fichero) {
    const auto ahora = std::chrono::steady_clock::now().time_since_epoch().count();
    fs::path t = fichero;
    t += "." + std::to_string(ahora % 1000000007) + ".tmp";
    return t;
}

FicheroTemporal::FicheroTemporal(fs::path ruta)
    : m_ruta(std::move(ruta)) {}

FicheroTemporal::~FicheroTemporal() {
    std::error_code error;
    fs::remove(m_ruta, error);
    for (const char* cola : kDiarios)
        fs::remove(fs::path(m_ruta) += cola, error);
}

CarpetaTemporal::CarpetaTemporal()
    : m_carpeta(NombreTemporal(fs::temp_directory_path() / "pastorix")) {
    std::error_code error;
    if (!fs::create_directory(m_carpeta, error))
        FallarFichero("No se puede crear la carpeta", m_carpeta, error);
    fs::permissions(m_carpeta, fs::perms::owner_all, error); // it will hold people's data
}

CarpetaTemporal::~CarpetaTemporal() {
    std::error_code error;
    fs::remove_all(m_carpeta, error);
}

void LimpiarTemporales(const fs::path& carpeta) {
    // "base.mdb.123456.tmp", and its journals
    const auto esTemporal = [](std::string nombre) {
        for (const char* cola : kDiarios)
            if (nombre.ends_with(cola))
                nombre.resize(nombre.size() - std::string_view(cola).size());
        if (!nombre.ends_with(".tmp"))
            return false;
        nombre.resize(nombre.size() - 4);
        const auto punto = nombre.rfind('.');
        return punto != std::string::npos && punto > 0 && punto + 1 < nombre.size() &&
               nombre.find_first_not_of("0123456789", punto + 1) == std::string::npos;
    };
    std::error_code error;
    std::vector<fs::path> restos;
    for (fs::directory_iterator it(carpeta, error), fin; !error && it != fin; it.increment(error))
        if (esTemporal(TextoDeRuta(it->path().filename())) && it->is_regular_file(error))
            restos.push_back(it->path());
    for (const auto& resto : restos)
        fs::remove(resto, error);
}

fs::path EntradaSinCaso(const fs::path& carpeta, std::string_view nombre) {
    fs::path exacta = carpeta / Ruta(nombre);
    std::error_code error;
    if (fs::exists(exacta, error))
        return exacta;
    for (fs::directory_iterator it(carpeta, error), fin; !error && it != fin; it.increment(error))
        if (IgualSinCaso(TextoDeRuta(it->path().filename()), nombre))
            return it->path();
    return exacta;
}

} // namespace pastorix
